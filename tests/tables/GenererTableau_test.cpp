#include "engine/AnalyserCodes.h"
#include "tables/GenererTableau.h"

#include "EssaisRendu.h"
#include "support/GrandTableau.h"
#include "support/Morceaux.h"
#include "tables/Cellules.h"
#include "tables/LignesDomaine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace verdane {
namespace {

using essais_rendu::Code;
using essais_rendu::FichierDon;
using essais_rendu::kLibelle;
using essais_rendu::kValeurs;
using essais_rendu::L;
using essais_rendu::Rangees;
using essais_rendu::RenduTest;
using essais_rendu::Serie;
using test::Compter;

const std::vector<Texte> kLignesCompletes = {
    L("Campagne", "entete:1:a&b"),
    L("Produit", "serie:PROD.DON+PROD-1:0:0"),
    L("Pertes_cachées", "serie:PROD.DON+PROD-2:0:3"),
    L("Marge", "totalS:LG2+LG3:0:0"),
    L("Calcul", "totalC:LG2*2+LG(PROD-1!A1):1:0"),
    L("Note_de_bas", "espace"),
    L("", "newpg"),
    L("Autre", "bidule"),
};

TEST_F(RenduTest, TableauClassique) {
    const Texte rtf = GenererTableau(ctx, Code("tabp1c;larg2000;larg6000", kLignesCompletes));
    const auto rangees = Rangees(rtf);
    const Texte milliers = "1\xA0"
                           "234";
    ASSERT_EQ(rangees.size(), 5u);
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"Campagne", "2006/07", "2007/08", "2008/09"}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"Produit", "2", "3", milliers}));
    // Line 3 is never shown but feeds line 4; the zeros are empty cells.
    EXPECT_EQ(rangees[2], (std::vector<Texte>{"Marge", " ", " ",
                                              "1\xA0"
                                              "230"}));
    // Line values as displayed (1234, not 1234.5) plus a series of a fixed year.
    EXPECT_EQ(rangees[3], (std::vector<Texte>{"Calcul", "6,0", "8,0",
                                              "2\xA0"
                                              "470,0"}));
    EXPECT_EQ(rangees[4], (std::vector<Texte>{"Autre", "bidule", "bidule", "bidule"}));
    for (const char* morceau : {"\\trowd", "\\trqc", "\\cellx2000", "\\cellx8000"})
        EXPECT_EQ(Compter(rtf, morceau), 5) << morceau;
    EXPECT_TRUE(test::Contient(rtf, {"\\ql\\f5006\\fs20\\cf1 Note de bas\\par\\plain }\\page {"}));
    EXPECT_TRUE(test::Exclut(rtf, {"cachées"}));
    EXPECT_EQ(rtf.rfind("\\row\\pard\\plain "), rtf.size() - 16);
    EXPECT_TRUE(u.messages.empty()) << u.ToutCeQuiAEteDit();

    // A second table reads what the first left: the values are never cleared.
    const Texte suite = GenererTableau(ctx, Code("tabp1", {L("Reprise", "totalC:LG4:0:0")}));
    EXPECT_EQ(Rangees(suite), (std::vector<std::vector<Texte>>{{"Reprise", " ", " ",
                                                                "1\xA0"
                                                                "230"}}));
}

TEST_F(RenduTest, TeteDeLigne) {
    const Texte rtf = GenererTableau(
        ctx, "tabp1([5;10][a;5006;10;1;0;0;0;0;0;l;0;0;0;0;8][bidule]#[400;60][b][bidule])");
    // A cell without format is a new cell: the configured size and alignment, no border.
    EXPECT_TRUE(test::Contient(rtf, {"\\plain \\trowd\\trleft0\\clvertalc\\clcbpat8\\cellx1000",
                                     "\\plain \\trowd\\trgaph60\\trrh400\\trleft0",
                                     "\\cellx8200\\ql\\intbl\\clvertalb{\\fs20\\f5006\\cf1 b}"}));
}

TEST_F(RenduTest, EspacesSeulsSansRangee) {
    const Texte rtf =
        GenererTableau(ctx, Code("tabp1", {"[280;120][Titre_%mrl(x)%;5140;0;3;1;0;1;0;0;c][espace]",
                                           "[280;120][Fin__][espace]"}));
    EXPECT_EQ(rtf.find("\\trowd"), Texte::npos);
    // Size 0 keeps the size word with 0; the codes of the text are left when nobody expands them.
    EXPECT_EQ(rtf, "\\qc\\f5140\\fs0\\cf3\\b\\ul Titre %mrl(x)%\\par\\plain "
                   "\\ql\\f5006\\fs20\\cf1 Fin\\par\\plain ");
}

TEST_F(RenduTest, TitresSelonLeModeDesAnnees) {
    ctx.etat.enrDossier.dateDebut = "01/01/2006";
    auto rangees = Rangees(GenererTableau(ctx, Code("tabp11", {L("An", "entete:1")})));
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"An", "2005", "2006", "2007", "2008"}));
    rangees = Rangees(GenererTableau(
        ctx, Code("tabp12", {L("An", "entete:1:Début&Fin"), L("Sans", "entete:1")})));
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"An", "Début", "Fin"}));
    EXPECT_EQ(rangees[1],
              (std::vector<Texte>{"Sans", "1ère année de prévision", "Fin de prévision"}));
}

TEST_F(RenduTest, FormulesVersLeBasEtFichiersAbsents) {
    ctx.etat.tableaux.valeursLignes[1][2] = 50.0f; // left by an earlier table
    const auto rangees = Rangees(GenererTableau(
        ctx, Code("tabp1", {L("Avant", "totalC:LG2+LG(ABSENT-4):0:0"),
                            L("Absent", "serie:ABSENT.DON+ABSENT-4:0:0"),
                            L("Cassée", "totalC:(LG1:0:0"), L("Vide", "totalC:LG:0:0")})));
    ASSERT_EQ(rangees.size(), 4u);
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"Avant", "50", " ", " "}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"Absent", " ", " ", " "}));
    EXPECT_EQ(rangees[2], (std::vector<Texte>{"Cassée", " ", " ", " "}));
    EXPECT_FALSE(u.messages.empty()); // "LG" with nothing behind it is told
}

TEST_F(RenduTest, BlocDePrimes) {
    std::vector<EnrDon> primes(65, Serie("", {}));
    primes[0] = Serie("Prime vache|€", {0, 100, 200, 300});
    primes[4] = Serie("Prime brebis", {0, 0, 0, -5});
    primes[22] = Serie("Hors plage", {0, 1, 1, 1});
    d.Ecrire("Ferme/pricult.don", FichierDon(primes));
    const auto rangees = Rangees(
        GenererTableau(ctx, "tabp2r;larg1000;larg500;larg3000([280;120][x" + Texte(kLibelle) +
                                "][y" + kLibelle + "][prime:pricv:0:1" + kValeurs + "])"));
    ASSERT_EQ(rangees.size(), 2u);
    EXPECT_EQ(rangees[0], (std::vector<Texte>{"prime vache", "prime vache", "100", "200", "300"}));
    EXPECT_EQ(rangees[1], (std::vector<Texte>{"prime brebis", "prime brebis", " ", " ", "-5"}));
    // A word of no range gives a single record 0: nothing in it, the zero rule drops it.
    EXPECT_TRUE(GenererTableau(ctx, "tabp1(" + L("x", "prime:autre:0:1") + ")").find("\\row") ==
                Texte::npos);
}

class DomaineTemoin : public LignesDomaine {
public:
    Texte Lignes(Contexte&, GenreLigne genre, int ligne, const Texte& prefixe) override {
        return prefixe + "<bloc " + std::to_string(static_cast<int>(genre)) + " ligne " +
               std::to_string(ligne) + ">";
    }
    Texte Valeur(Contexte&, GenreLigne, const Texte& reste, int colonne) override {
        return reste == "SURF:1" ? std::to_string(colonne * 10) : Texte("0");
    }
    Texte LibelleCulture(Contexte&) override { return "Blé tendre"; }
};

TEST_F(RenduTest, LignesDuDomaine) {
    const Texte code =
        Code("culture1tabp1", {L("x", "cultu:ASSOL:0"), L("y", "imemp:inves"),
                               L("Surface", "scult:SURF:1:1"), L("Rien", "scult:AUTRE:0:1")});
    // Without a domain behind them, these lines give nothing.
    ctx.etat.tableaux.lignesDomaine = nullptr;
    EXPECT_TRUE(Rangees(GenererTableau(ctx, code)).empty());
    DomaineTemoin domaine;
    ctx.etat.tableaux.lignesDomaine = &domaine;
    const Texte rtf = GenererTableau(ctx, code);
    EXPECT_TRUE(test::Contient(rtf, {"\\trleft0<bloc 5 ligne 1>", "\\trleft0<bloc 7 ligne 2>"}));
    EXPECT_EQ(Rangees(rtf), (std::vector<std::vector<Texte>>{{"Blé tendre", "10", "20", "30"}}));
}

TEST_F(RenduTest, EchappementsEtBlancs) {
    const auto rangees = Rangees(GenererTableau(
        ctx, "tab p1 ([280;120][Ann\\'e9e_\\'e0_venir\\'b0;5006;10;1;0;0;0;0;0;l][bidule])"));
    ASSERT_EQ(rangees.size(), 1u);
    EXPECT_EQ(rangees[0][0], "Année à venir");
}

TEST_F(RenduTest, CodeFormule) {
    auto valeur = [&](const Texte& code) {
        Texte t = "#mrl(formule:" + code + ")#";
        AnalyserCodes(ctx, t, false, false);
        return t;
    };
    EXPECT_EQ(valeur("2a:LG(PROD-1)*2+1:1"), "7,0");
    EXPECT_EQ(valeur("3a:(150+COS(0))*10^2:0"), "15\xA0"
                                                "100");
    EXPECT_EQ(valeur("3:1+1"), "<Code Mal renseigné : valeur non calculée>");
    EXPECT_EQ(valeur("3a1+1"), "<Code Mal renseigné : valeur non calculée>");
    EXPECT_EQ(valeur("99999999999a:1/0:0"), "0");
}

// The largest table: 511 lines, 9 label columns and 14 value columns (the start year and 13
// study years), with totals over the lines above, with and without series from the dossier;
// lines beyond it are left out.
TEST_F(RenduTest, LePlusGrandTableauARangeeParLigne) {
    ctx.etat.nbAnEtude = 13;
    for (bool series : {false, true})
        EXPECT_EQ(Compter(GenererTableau(ctx, test::CodeGrandTableau(series, "PROD.DON+PROD-1")),
                          "\\row"),
                  511);
    // Line 3: twice the series as displayed (1234, not 1234.5) plus the header line's 0.
    EXPECT_FLOAT_EQ(Valeur(3, 3), 2 * 1234.0f);
    // 600 lines: the table holds 511.
    std::vector<Texte> lignes(600, L("l", "serie:PROD.DON+PROD-1:0:0"));
    EXPECT_EQ(Compter(GenererTableau(ctx, Code("tabp1", lignes)), "\\row"), 511);
    EXPECT_EQ(ctx.etat.tableaux.TableauxCourants.size(), 1u);
}

} // namespace
} // namespace verdane
