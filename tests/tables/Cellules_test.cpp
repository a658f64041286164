#include "tables/Cellules.h"

#include "EssaisRendu.h"
#include "support/Morceaux.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using essais_rendu::BordsDroits;
using essais_rendu::RenduTest;
using essais_rendu::TextesCellules;
using test::Exclut;

constexpr const char* kValeur = ";5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

TEST(FormatCelluleTest, CadreEtParagrapheDansLOrdre) {
    UtilisateurMuet u;
    Contexte ctx(u);
    ctx.etat.decalageCouleurs = 3;
    Texte definitions = "\\trowd", cellules;
    Texte police = "12";
    FormatCellule(ctx, definitions, cellules, "1", "2", "0", "1", "16", 4200, police, "20", "6",
                  "1", "0", "1", "1", "1", "r");
    EXPECT_EQ(definitions, "\\trowd \\clbrdrt\\brdrs \\clbrdrb\\brdrdb \\clbrdrr\\brdrs"
                           "\\clvertalc\\clcbpat19\\cellx4200");
    EXPECT_EQ(cellules, "\\qr\\intbl\\clvertalb{\\fs20\\f5006\\cf9\\b\\ul\\strike\\shad");
    EXPECT_EQ(police, "5006"); // written back for the caller
    Texte police2 = "5140";
    FormatCellule(ctx, definitions, cellules, "0", "0", "0", "0", "8", 10, police2, "16", "1", "0",
                  "1", "0", "0", "0", "c");
    EXPECT_EQ(police2, "5140");
    EXPECT_NE(cellules.find("\\qc\\intbl\\clvertalb{\\fs16\\f5140\\cf4\\i"), Texte::npos);
}

TEST_F(RenduTest, CelluleDeLibelle) {
    Tableau("tabp1;larg1500;larg6000([280;120][x;5006;10;1;0;0;0;0;0;l;1;1;1;1;8][espace])");
    ctx.etat.enrDossier.nomExploitation = "GAEC du Pré   ";
    Texte definitions, cellules;
    int position = 1500;
    std::int16_t mode = 0;
    // Size 0 prints at 8 points; the fields after the fifteenth are ignored.
    AjouterCellules(ctx, "Ferme %mrl(nomExplSoc)%;4000;0;2;1;1;0;0;0;c;2;0;0;0;16;9;9", definitions,
                    cellules, position, true, mode);
    EXPECT_EQ(definitions, " \\clbrdrt\\brdrdb\\clvertalc\\clcbpat16\\cellx1500");
    EXPECT_EQ(cellules, "\\qc\\intbl\\clvertalb{\\fs16\\f5006\\cf2\\b\\i Ferme GAEC du Pré}\\cell");
    EXPECT_EQ(position, 1500);

    // An empty text is one blank; a missing format takes the configured defaults.
    cellules.clear();
    definitions.clear();
    AjouterCellules(ctx, "  ", definitions, cellules, position, true, mode);
    EXPECT_EQ(cellules, "\\ql\\intbl\\clvertalb{\\fs20\\f5006\\cf1  }\\cell");
    EXPECT_EQ(definitions, "\\clvertalc\\clcbpat8\\cellx1500");
}

// The value cells of a line: definitions and cells of `definition` as the engine lays them.
struct CellulesValeurs {
    Texte definitions, cellules;
};
CellulesValeurs Valeurs(Contexte& ctx, const Texte& definition, std::int16_t mode = 0) {
    CellulesValeurs r;
    int position = 0;
    AjouterCellules(ctx, definition, r.definitions, r.cellules, position, false, mode);
    return r;
}

TEST_F(RenduTest, LargeursSelonLesModesDAnnees) {
    const Texte serie = "serie:PROD.DON+PROD-1:0:0" + Texte(kValeur);
    // Mode 1 with ten years: eleven cells, each a tenth of the block (wider than the block).
    ctx.etat.nbAnEtude = 10;
    Tableau("tabp11;larg1000;larg7200([280;120][x][serie:PROD.DON+PROD-1:0:0])");
    auto c = Valeurs(ctx, serie, kAnneeDebutEtToutes);
    const auto bords = BordsDroits(c.definitions);
    ASSERT_EQ(bords.size(), 11u);
    EXPECT_EQ(bords.front(), 720);
    EXPECT_EQ(bords.back(), 7920);
    EXPECT_EQ(TextesCellules(c.cellules)[0], "1"); // column 0: the start year

    // Mode 2 with three years: first and last, each a third of the block; the middle zeroed.
    ctx.etat.nbAnEtude = 3;
    ctx.etat.tableaux.valeursLignes[2][1] = 99.0f;
    c = Valeurs(ctx, serie, kPremiereEtDerniere);
    EXPECT_EQ(TextesCellules(c.cellules), (std::vector<Texte>{"2", "1\xA0"
                                                                   "234"}));
    EXPECT_EQ(BordsDroits(c.definitions), (std::vector<int>{2400, 4800}));
    EXPECT_EQ(Valeur(2, 1), 0.0f);
    // Mode 3: no value cell at all.
    c = Valeurs(ctx, serie, kSansValeurs);
    EXPECT_TRUE(c.cellules.empty() && c.definitions.empty());

    // Widths are rounded to even: 10 / 4 = 2.5 -> 2; an unknown kind prints its definition.
    ctx.etat.nbAnEtude = 4;
    Tableau("tabp1;larg1000;larg10([280;120][x][inconnu])");
    c = Valeurs(ctx, "inconnu");
    EXPECT_EQ(BordsDroits(c.definitions), (std::vector<int>{2, 4, 6, 8}));
    EXPECT_EQ(TextesCellules(c.cellules), (std::vector<Texte>(4, "inconnu")));
}

TEST_F(RenduTest, NegatifsEnRougeEtValeursPosees) {
    ctx.etat.decalageCouleurs = 2;
    const Texte perte = "serie:PROD.DON+PROD-2:0:0;5006;10;4;0;0;0;0;0;r;1;1;1;1;8";
    // Without "r" a negative value keeps the format's colour; with it every one turns red.
    Tableau("tabp1([280;120][x][serie:PROD.DON+PROD-2:0:0])");
    const Texte noirs = Valeurs(ctx, perte).cellules;
    EXPECT_TRUE(Exclut(noirs, {"\\cf8"}));
    EXPECT_TRUE(test::Contient(noirs, {"\\cf6"}));
    Tableau("tabp1r([280;120][x][serie:PROD.DON+PROD-2:0:0])");
    const Texte rouges = Valeurs(ctx, perte).cellules;
    EXPECT_TRUE(Exclut(rouges, {"\\cf6 "}));
    EXPECT_EQ(TextesCellules(rouges), (std::vector<Texte>{"-2", "-3", "-4"}));
    EXPECT_EQ(test::Compter(rouges, "\\cf8 "), 3);

    // Zero prints as an empty cell and is stored as 0; a missing file reads as 0 too.
    Texte zero = "0,00", c;
    ctx.etat.tableaux.valeursLignes[4][1] = 7.0f;
    PoserValeur(ctx, zero, c, 4);
    EXPECT_EQ(zero, " ");
    EXPECT_EQ(Valeur(4, 1), 0.0f);
    Texte vide = "";
    PoserValeur(ctx, vide, c, 5);
    EXPECT_EQ(vide, " ");
    Texte grand = "-12\xA0"
                  "345\xA0"
                  "678,25";
    PoserValeur(ctx, grand, c, 6);
    EXPECT_FLOAT_EQ(Valeur(6, 1), -12345678.25f);
    // Outside the array nothing is written, nothing breaks.
    ctx.etat.tableaux.ligneCourante = 0;
    Texte t = "5";
    PoserValeur(ctx, t, c, 99);
    EXPECT_EQ(t, "5");
}

TEST_F(RenduTest, ReglesDesValeursNulles) {
    const Texte zeros = "serie:PROD.DON+PROD-3:0:";
    auto Cellules = [&](const Texte& regle) {
        Tableau("tabp1([280;120][Rien][" + zeros + regle + "])", 1);
        return Valeurs(ctx, zeros + regle + kValeur).cellules;
    };
    EXPECT_TRUE(EstValeursNulles(Cellules("1")));
    EXPECT_FALSE(EstValeursNulles(Cellules("0")));
    EXPECT_FALSE(EstValeursNulles(Cellules("9")));
    EXPECT_TRUE(u.questions.empty());
    // Rule 2 asks, and the default answer keeps the line.
    EXPECT_FALSE(EstValeursNulles(Cellules("2")));
    ASSERT_EQ(u.questions.size(), 1u);
    EXPECT_EQ(u.questions[0].texte, "La ligne serie 'Rien' d'un tableau ne contient que des "
                                    "valeurs nulles. \r\nSouhaitez-vous l'afficher dans le "
                                    "document ?");
    EXPECT_EQ(u.questions[0].parDefaut, Reponse::Oui);
    u.reponses.push_back(Reponse::Non);
    EXPECT_TRUE(EstValeursNulles(Cellules("2")));
    // Rule 3 drops even a line of values, which stay readable by formulas.
    Tableau("tabp1([280;120][x][serie:PROD.DON+PROD-1:0:3])", 5);
    EXPECT_TRUE(EstValeursNulles(Valeurs(ctx, "serie:PROD.DON+PROD-1:0:3").cellules));
    EXPECT_FLOAT_EQ(Valeur(2, 5), 3.0f);
    // Column 0 counts in the test even when the table doesn't show it.
    ctx.etat.tableaux.valeursLignes[0][1] = 4.0f;
    EXPECT_FALSE(EstValeursNulles(Cellules("1")));
    EXPECT_TRUE(EstValeursNulles("valeurs nulles"));
    EXPECT_FALSE(EstValeursNulles("VALEURS NULLES "));
}

} // namespace
} // namespace verdane
