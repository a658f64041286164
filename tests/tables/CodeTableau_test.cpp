#include "tables/CodeTableau.h"

#include "EssaisTableaux.h"
#include "shell/etat/Contexte.h"
#include "tables/LectureCode.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using namespace essais_tableaux;

Texte Code(const TableauModele& t, const Options& options = Options{}) {
    int incomplete = 0;
    Texte code = CodeModele(t, options, incomplete);
    EXPECT_EQ(incomplete, 0);
    return code;
}

TEST(CodeTableau, FormeExacte) {
    TableauModele t;
    t.centre = 1;
    t.rouge = 1;
    t.modeAnnees = kAnneeDebutEtToutes;
    t.largeurs[0] = 2000;
    t.lignes = {Ligne("Produit brut", "serie:PROD.DON+PROD-3:0:1"), Ligne("", "newpg")};
    t.lignes[1].hauteur = 0;
    EXPECT_EQ(Code(t), "taba2p1cr1;larg2000;larg7200([280;120][Produit_brut;5006;10;1;1;0;0;0;0;"
                       "l;1;1;1;1;8][serie:PROD.DON+PROD-3:0:1;5006;10;1;0;0;0;0;0;r;1;1;1;1;8]#"
                       "[0;120][;5006;10;1;1;0;0;0;0;l;1;1;1;1;8][newpg;5006;10;1;0;0;0;0;0;r;1;"
                       "1;1;1;8])");
    t.lignes.clear();
    t.centre = t.rouge = 0;
    t.modeAnnees = -1; // not written
    t.nbColonnes = 3;
    EXPECT_EQ(Code(t), "taba2p3;larg2000;larg1000;larg1000;larg7200()");
}

TEST(CodeTableau, PrefixeDeRepetitionEnModeAnneesSeulement) {
    TableauModele t;
    t.genre = kTableauActiviteLibre;
    t.typeEntete = 2;
    t.pageDebut = 12;
    EXPECT_EQ(Code(t).substr(0, 13), "actlibr212tab");
    t.multiDossier = 1;
    t.nbDossiers = 4;
    EXPECT_EQ(Code(t).substr(0, 5), "tabd4");
}

TEST(CodeTableau, FormatsManquantsRemplacesParLesDefauts) {
    TableauModele t;
    LigneModele ligne;
    ligne.cellules[0].texte = "a";
    ligne.cellules[0].formatTexte = "   ";
    ligne.definition = "espace";
    t.lignes = {ligne};
    Options options;
    options.TailleDefaut = 12;
    options.AlignementDefaut = "c";
    EXPECT_EQ(Code(t, options), "taba2p10;larg1000;larg7200([280;120][a;5006;12;1;0;0;0;0;0;c;"
                                "0;0;0;0;8][espace;5006;12;1;0;0;0;0;0;c;0;0;0;0;8])");
    // A format short of fields is completed from the defaults.
    t.lignes[0].cellules[0].formatTexte = "5007;9";
    t.lignes[0].formatCadre = "2;2";
    EXPECT_NE(Code(t, options)
                  .find("[a;5007;9;1;0;0;0;0;0;c;0;0;0;0;8][espace;5006;12;1;0;0;0;0;"
                        "0;c;2;2;0;0;8]"),
              Texte::npos);
    t.lignes[0].formatCadre.clear();
    options.TailleDefaut = 0; // unset
    options.AlignementDefaut.clear();
    EXPECT_NE(Code(t, options).find("[espace;5006;10;1;0;0;0;0;0;l;0;0;0;0;8]"), Texte::npos);
}

TEST(CodeTableau, AllerRetourDeModeles) {
    std::vector<TableauModele> modeles;
    modeles.push_back(ModeleComplet());
    TableauModele d = ModeleComplet();
    d.multiDossier = 1;
    d.nbDossiers = 9;
    d.modeAnnees = 0;
    for (std::size_t i = 0; i < d.lignes.size(); ++i)
        if (d.lignes[i].definition.starts_with("serie")) d.lignes[i].annee = 3;
    modeles.push_back(d);
    for (std::int16_t genre = 1; genre <= 3; ++genre) {
        TableauModele r = ModeleComplet();
        r.genre = genre;
        r.typeEntete = static_cast<std::int16_t>(genre - 1);
        r.pageDebut = genre == 2 ? -1 : static_cast<std::int16_t>(7 * genre);
        r.modeAnnees = static_cast<std::int16_t>(genre);
        r.centre = 0;
        modeles.push_back(r);
    }
    TableauModele large = ModeleComplet();
    large.nbColonnes = 9;
    for (std::size_t c = 0; c < 9; ++c) {
        large.largeurs[c] = static_cast<std::int16_t>(100 * c);
        for (LigneModele& l : large.lignes)
            l.cellules[c] = {"c" + std::to_string(c), kTexteSimple, kCadre};
    }
    modeles.push_back(large);
    TableauModele vide;
    vide.nbColonnes = 0;
    modeles.push_back(vide);
    // Blanks are written as "_" and come back as blanks.
    TableauModele blancs;
    blancs.nbColonnes = 2;
    blancs.lignes = {Ligne("Mon libellé  ", "totalC:LG1 + LG2")};
    modeles.push_back(blancs);

    for (const TableauModele& m : modeles) {
        const Texte code = Code(m);
        EXPECT_EQ(code.find(' '), Texte::npos);
        const TableauModele relu = LireCodeTableau(code);
        EXPECT_EQ(relu, m) << code;
        EXPECT_EQ(Code(relu), code);
    }
}

TEST(CodeTableau, LimiteDe511Lignes) {
    TableauModele t;
    t.nbColonnes = 2;
    for (int n = 1; n <= 600; ++n) t.lignes.push_back(Ligne("L" + std::to_string(n), "espace"));
    t.lignes.resize(511);
    const TableauModele relu = LireCodeTableau(Code(t));
    EXPECT_EQ(relu, t);
    // Lines beyond the limit have no slot: they are neither written nor read.
    t.lignes.push_back(Ligne("L512", "espace"));
    EXPECT_EQ(Code(t), Code(relu));
    const Texte code = Code(relu);
    EXPECT_EQ(LireCodeTableau(code.substr(0, code.size() - 1) + "#[1;1][x][y][espace])"), relu);
}

TEST(CodeTableau, ValeursHorsDesChiffres) {
    TableauModele t;
    t.nbColonnes = 12;
    t.nbDossiers = 15;
    t.multiDossier = 1;
    t.modeAnnees = 10;
    t.lignes = {Ligne("a", "serie:A")};
    t.lignes[0].annee = 13;
    const Texte code = Code(t);
    EXPECT_TRUE(code.starts_with("tabd9p9;larg")) << code;
    EXPECT_NE(code.find("[9@serie:A;"), Texte::npos);
    const TableauModele relu = LireCodeTableau(code);
    EXPECT_EQ(relu.nbColonnes, 9);
    EXPECT_EQ(relu.modeAnnees, 0);
    EXPECT_EQ(relu.Ligne(1)->definition, "serie:A");
}

class CodeTableauIncomplet : public ::testing::Test {
protected:
    CodeTableauIncomplet() : ctx(utilisateur) {
        TableauModele t;
        t.nom = "Résultats";
        t.dossier = "Divers";
        t.lignes = {Ligne("a", "espace"), Ligne("b", "espace"), Ligne("c", " "),
                    Ligne("d", "espace")};
        ctx.etat.tableaux.TableauxCourants = {TableauModele{}, t};
    }
    UtilisateurTemoin utilisateur;
    Contexte ctx;
};

TEST_F(CodeTableauIncomplet, MessageEtCodeDesLignesPrecedentes) {
    // Silent: no code at all. No such table: nothing either.
    for (int numero : {0, 3}) EXPECT_EQ(CodeTableau(ctx, numero, false), "");
    EXPECT_EQ(CodeTableau(ctx, 2, true), "");
    EXPECT_TRUE(utilisateur.messages.empty());
    const Texte code = CodeTableau(ctx, 2, false);
    EXPECT_TRUE(code.ends_with("[b;5006;10;1;1;0;0;0;0;l;1;1;1;1;8][espace;5006;10;1;0;0;0;0;0;"
                               "r;1;1;1;1;8])"))
        << code;
    EXPECT_EQ(LireCodeTableau(code).nbLignes(), 2);
    ASSERT_EQ(utilisateur.messages.size(), 1u);
    EXPECT_EQ(utilisateur.messages[0].texte,
              "Il vous faut définir les cellules de la ligne 3 du tableau n°2 \"Résultats\" dans "
              "le dossier \"Divers\".");
    EXPECT_EQ(utilisateur.messages[0].titre, "Edition d'un tableau : définition incomplète !");

    ctx.etat.tableaux.Tableau(2)->sousDossier = "Bilans";
    ctx.etat.tableaux.Tableau(2)->lignes[0].definition.clear();
    EXPECT_EQ(CodeTableau(ctx, 2, false), "taba2p10;larg1000;larg7200()");
    EXPECT_EQ(utilisateur.messages.back().texte,
              "Il vous faut définir les cellules de la ligne 1 du tableau n°2 \"Résultats\" dans "
              "le dossier \"Divers\", sous-dossier : \"Bilans\".");
}

} // namespace
} // namespace verdane
