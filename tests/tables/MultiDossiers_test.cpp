#include "tables/MultiDossiers.h"

#include "EssaisRendu.h"
#include "shell/console/ConsoleUtilisateur.h"
#include "support/Morceaux.h"
#include "tables/GenererTableau.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace verdane {
namespace {

using essais_rendu::Code;
using essais_rendu::L;
using essais_rendu::Rangees;
using essais_rendu::RenduTest;

class MultiDossiersTest : public RenduTest {
protected:
    MultiDossiersTest() {
        u.choix = [this](int& nombre, std::vector<DossierCompare>& dossiers) {
            if (nombreChoisi) nombre = nombreChoisi;
            if (!echange.nom.empty()) dossiers[0] = echange;
            return repondre;
        };
    }
    Texte Tableau2(const Texte& tete) {
        return GenererTableau(
            ctx,
            Code(tete, {L("Dossier", "entete:1:x"), L("An_1", "1@serie:PROD.DON+PROD-1:0:0"),
                        L("An_0", "serie:PROD.DON+PROD-1:0:0"), L("Double", "totalC:LG2*2:0:0")}));
    }
    bool repondre = true;
    int nombreChoisi = 0;
    DossierCompare echange;
};

TEST_F(MultiDossiersTest, ColonnesDeDossiers) {
    // Slots 1 and 2 hold Hypothese1 (x10) and Hypothese2 (x100).
    const auto rangees = Rangees(Tableau2("tabd2p1;larg1500;larg4000"));
    ASSERT_EQ(rangees.size(), 4u);
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"Dossier", "Hypothese1", "Hypothese2"}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"An 1", "20", "200"}));
    // Without "@" a line reads index 0.
    EXPECT_EQ(rangees[2], (std::vector<Texte>{"An 0", "10", "100"}));
    EXPECT_EQ(rangees[3], (std::vector<Texte>{"Double", "40", "400"}));
    EXPECT_EQ(u.demandes.size(), 1);
    EXPECT_EQ(u.demandes[0], Texte(kTitreMultiDossier) + "|" + kConsigneMultiDossier);
    EXPECT_EQ(ctx.etat.tableaux.nbDossiersChoisis, 2);

    // Same count: no second question. Another count: asked again.
    Tableau2("tabd2p1");
    EXPECT_EQ(u.demandes.size(), 1);
    Tableau2("tabd1p1");
    EXPECT_EQ(u.demandes.size(), 2);
    EXPECT_EQ(u.proposes[1], 1);
    EXPECT_EQ(ctx.etat.tableaux.nbDossiersChoisis, 1);
}

TEST_F(MultiDossiersTest, LesReferencesDeSerieLisentLeDossierCourant) {
    // LG(...) reads slot 0 (factor 1) at the year of the column number, whatever the column's
    // dossier; LGn reads the column's own values.
    const auto rangees =
        Rangees(GenererTableau(ctx, Code("tabd2p1", {L("Courant", "totalC:LG(PROD-1)+0:0:0"),
                                                     L("Colonne", "3@serie:PROD.DON+PROD-1:0:0"),
                                                     L("Double", "totalS:LG2+LG2:0:0")})));
    ASSERT_EQ(rangees.size(), 3u);
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"Courant", "2", "3"}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"Colonne",
                                              "12\xA0"
                                              "345",
                                              "123\xA0"
                                              "450"}));
    EXPECT_EQ(rangees[2], (std::vector<Texte>{"Double",
                                              "24\xA0"
                                              "690",
                                              "246\xA0"
                                              "900"}));
}

TEST_F(MultiDossiersTest, LeChoixChangeLeNombreEtLesDossiers) {
    nombreChoisi = 1;
    echange = {ctx.etat.RepDossier[2], "Hypothese2"};
    const auto rangees = Rangees(Tableau2("tabd3p1"));
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"Dossier", "Hypothese2"}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"An 1", "200"}));
    EXPECT_EQ(ctx.etat.NomDossier[1], "Hypothese2");
    EXPECT_EQ(ctx.etat.tableaux.nbDossiersChoisis, 1);
    EXPECT_EQ(ctx.etat.tableaux.TableauxCourants[0].nbDossiers, 1);
}

TEST_F(MultiDossiersTest, DossiersImposesSansQuestion) {
    ctx.etat.nbDossiersImposes = 1;
    auto rangees = Rangees(Tableau2("tabd2p1"));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"An 1", "20"}));
    EXPECT_EQ(u.demandes.size(), 0);
    ctx.etat.nbDossiersImposes = 2;
    EXPECT_EQ(Rangees(Tableau2("tabd1p1"))[1], (std::vector<Texte>{"An 1", "20"}));
    rangees = Rangees(Tableau2("tabd2p1"));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"An 1", "20", "200"}));
    EXPECT_EQ(u.demandes.size(), 0);
}

// The console: at a terminal it reads the count and the paths; without one it keeps the
// dossiers and says so.
struct Flux {
    explicit Flux(const std::string& entree) : in(std::tmpfile()), err(std::tmpfile()) {
        std::fputs(entree.c_str(), in);
        std::rewind(in);
    }
    ~Flux() {
        std::fclose(in);
        std::fclose(err);
    }
    std::string Sortie() {
        std::rewind(err);
        std::string s;
        for (int c; (c = std::fgetc(err)) != EOF;) s += static_cast<char>(c);
        return s;
    }
    std::FILE* in;
    std::FILE* err;
};

TEST(ConsoleDossiersTest, AuTerminalOuSans) {
    std::vector<DossierCompare> dossiers(9);
    dossiers[0] = {"/a/", "DUPONT"};
    int nombre = 2;
    {
        Flux f("3\n\n/donn\xC3\xA9"
               "es/Marlo/MARTIN/\n\n");
        ConsoleUtilisateur console(f.in, true, f.err, false);
        ASSERT_TRUE(
            console.ChoisirDossiers(kTitreMultiDossier, kConsigneMultiDossier, nombre, dossiers));
        EXPECT_EQ(nombre, 3);
        EXPECT_EQ(dossiers[0].nom, "DUPONT");
        EXPECT_EQ(dossiers[1].repertoire, "/donn\xE9"
                                          "es/Marlo/");
        EXPECT_EQ(dossiers[1].nom, "MARTIN");
        EXPECT_TRUE(dossiers[2].nom.empty());
        EXPECT_NE(f.Sortie().find("Dossier 1 [/a/DUPONT] ?"), std::string::npos);
    }
    Flux f("");
    ConsoleUtilisateur console(f.in, false, f.err, false);
    nombre = 2;
    dossiers[1] = {"/b", "MARTIN"};
    EXPECT_TRUE(
        console.ChoisirDossiers(kTitreMultiDossier, kConsigneMultiDossier, nombre, dossiers));
    EXPECT_EQ(nombre, 2);
    EXPECT_TRUE(test::Contient(f.Sortie(), {"comparaison des dossiers pr\xC3\xA9"
                                            "c\xC3\xA9"
                                            "dents",
                                            "Dossier 2 : /b/MARTIN"}));
}

} // namespace
} // namespace verdane
