#include "tables/Cellules.h"

#include "EssaisRendu.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using essais_rendu::BordsDroits;
using essais_rendu::RenduTest;
using essais_rendu::TextesCellules;

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
    std::vector<Texte> vus;
    ctx.etat.tableaux.codesImbriques = [&](Texte& t) {
        vus.push_back(t);
        t = Remplacer(t, "%mrl(nomExplSoc)%", "GAEC_du_Pré");
    };
    Texte definitions, cellules;
    int position = 1500;
    std::int16_t mode = 0;
    // Size 0 prints at 8 points; the fields after the fifteenth are ignored.
    AjouterCellules(ctx, "Ferme %mrl(nomExplSoc)%;4000;0;2;1;1;0;0;0;c;2;0;0;0;16;9;9", definitions,
                    cellules, position, true, mode);
    EXPECT_EQ(vus.size(), 1u);
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

TEST_F(RenduTest, SerieParAnneeAvecLargeursEtValeursRelues) {
    // Three study years: three cells of 7200 / 3, values read back with their thousands mark.
    Tableau("tabp1;larg1500;larg7200([280;120][x][serie:PROD.DON+PROD-1:2:0" + Texte(kValeur) +
            "])");
    Texte definitions, cellules;
    int position = 1500;
    std::int16_t mode = 0;
    AjouterCellules(ctx, "serie:PROD.DON+PROD-1:2:0" + Texte(kValeur), definitions, cellules,
                    position, false, mode);
    EXPECT_EQ(TextesCellules(cellules), (std::vector<Texte>{"2,00", "3,00",
                                                            "1\xA0"
                                                            "234,50"}));
    EXPECT_EQ(BordsDroits(definitions), (std::vector<int>{3900, 6300, 8700}));
    EXPECT_EQ(position, 8700);
    EXPECT_FLOAT_EQ(Valeur(3, 1), 1234.5f);
    EXPECT_FLOAT_EQ(Valeur(1, 1), 2.0f);
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(RenduTest, ModesAnnees) {
    // Mode 1 with ten years: eleven cells, each a tenth of the block (wider than the block).
    ctx.etat.nbAnEtude = 10;
    Tableau("tabp11;larg1000;larg7200([280;120][x][serie:PROD.DON+PROD-1:0:0])");
    Texte definitions, cellules;
    int position = 0;
    std::int16_t mode = kAnneeDebutEtToutes;
    AjouterCellules(ctx, "serie:PROD.DON+PROD-1:0:0" + Texte(kValeur), definitions, cellules,
                    position, false, mode);
    const auto bords = BordsDroits(definitions);
    ASSERT_EQ(bords.size(), 11u);
    EXPECT_EQ(bords.front(), 720);
    EXPECT_EQ(bords.back(), 7920);
    EXPECT_EQ(TextesCellules(cellules)[0], "1"); // column 0: the start year

    // Mode 2 with three years: first and last, each a third of the block; the middle zeroed.
    ctx.etat.nbAnEtude = 3;
    ctx.etat.tableaux.valeursLignes[2][1] = 99.0f;
    definitions.clear();
    cellules.clear();
    position = 0;
    mode = kPremiereEtDerniere;
    AjouterCellules(ctx, "serie:PROD.DON+PROD-1:0:0" + Texte(kValeur), definitions, cellules,
                    position, false, mode);
    EXPECT_EQ(TextesCellules(cellules), (std::vector<Texte>{"2", "1\xA0"
                                                                 "234"}));
    EXPECT_EQ(BordsDroits(definitions), (std::vector<int>{2400, 4800}));
    EXPECT_EQ(Valeur(2, 1), 0.0f);

    // Mode 3: no value cell at all.
    definitions.clear();
    cellules.clear();
    mode = kSansValeurs;
    AjouterCellules(ctx, "serie:PROD.DON+PROD-1:0:0" + Texte(kValeur), definitions, cellules,
                    position, false, mode);
    EXPECT_TRUE(cellules.empty());
    EXPECT_TRUE(definitions.empty());
}

TEST_F(RenduTest, LargeurArrondieAuPairEtBornee) {
    ctx.etat.nbAnEtude = 4;
    Tableau("tabp1;larg1000;larg10([280;120][x][inconnu])"); // 10 / 4 = 2.5 -> 2
    Texte definitions, cellules;
    int position = 0;
    std::int16_t mode = 0;
    AjouterCellules(ctx, "inconnu", definitions, cellules, position, false, mode);
    EXPECT_EQ(BordsDroits(definitions), (std::vector<int>{2, 4, 6, 8}));
    // An unknown kind prints its definition in each cell.
    EXPECT_EQ(TextesCellules(cellules), (std::vector<Texte>(4, "inconnu")));

    Tableau("tabp1;larg1000;larg30000([280;120][x][inconnu])");
    definitions.clear();
    position = 30000;
    AjouterCellules(ctx, "inconnu", definitions, cellules, position, false, mode);
    EXPECT_EQ(position, kPositionMax);
}

TEST_F(RenduTest, NegatifsEnRougeEtZerosVides) {
    ctx.etat.decalageCouleurs = 2;
    Texte definitions, cellules;
    int position = 0;
    std::int16_t mode = 0;
    // Without "r" a negative value keeps the format's colour.
    Tableau("tabp1([280;120][x][serie:PROD.DON+PROD-2:0:0])");
    AjouterCellules(ctx, "serie:PROD.DON+PROD-2:0:0;5006;10;4;0;0;0;0;0;r;1;1;1;1;8", definitions,
                    cellules, position, false, mode);
    EXPECT_EQ(cellules.find("\\cf8"), Texte::npos);
    EXPECT_NE(cellules.find("\\cf6"), Texte::npos);
    // With "r" every negative cell turns red (6 + shift).
    Tableau("tabp1r([280;120][x][serie:PROD.DON+PROD-2:0:0])");
    cellules.clear();
    AjouterCellules(ctx, "serie:PROD.DON+PROD-2:0:0;5006;10;4;0;0;0;0;0;r;1;1;1;1;8", definitions,
                    cellules, position, false, mode);
    EXPECT_EQ(cellules.find("\\cf6 "), Texte::npos);
    EXPECT_EQ(TextesCellules(cellules), (std::vector<Texte>{"-2", "-3", "-4"}));
    std::size_t rouges = 0;
    for (auto p = cellules.find("\\cf8 "); p != Texte::npos; p = cellules.find("\\cf8 ", p + 1))
        ++rouges;
    EXPECT_EQ(rouges, 3u);

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
    Texte definitions, cellules;
    int position = 0;
    std::int16_t mode = 0;
    auto Cellules = [&](const Texte& regle, int ligne) {
        Tableau("tabp1([280;120][Rien][" + zeros + regle + "])", ligne);
        definitions.clear();
        cellules.clear();
        AjouterCellules(ctx, zeros + regle + kValeur, definitions, cellules, position, false, mode);
        return cellules;
    };
    EXPECT_TRUE(EstValeursNulles(Cellules("1", 1)));
    EXPECT_FALSE(EstValeursNulles(Cellules("0", 1)));
    EXPECT_FALSE(EstValeursNulles(Cellules("9", 1)));
    EXPECT_TRUE(u.questions.empty());
    // Rule 2 asks, and the default answer keeps the line.
    EXPECT_FALSE(EstValeursNulles(Cellules("2", 1)));
    ASSERT_EQ(u.questions.size(), 1u);
    EXPECT_EQ(u.questions[0].texte, "La ligne serie 'Rien' d'un tableau ne contient que des "
                                    "valeurs nulles. \r\nSouhaitez-vous l'afficher dans le "
                                    "document ?");
    EXPECT_EQ(u.questions[0].parDefaut, Reponse::Oui);
    u.reponses.push_back(Reponse::Non);
    EXPECT_TRUE(EstValeursNulles(Cellules("2", 1)));
    // Rule 3 drops even a line of values, which stay readable by formulas.
    Tableau("tabp1([280;120][x][serie:PROD.DON+PROD-1:0:3])", 5);
    cellules.clear();
    AjouterCellules(ctx, "serie:PROD.DON+PROD-1:0:3", definitions, cellules, position, false, mode);
    EXPECT_TRUE(EstValeursNulles(cellules));
    EXPECT_FLOAT_EQ(Valeur(2, 5), 3.0f);
    // Column 0 counts in the test even when the table doesn't show it.
    ctx.etat.tableaux.valeursLignes[0][1] = 4.0f;
    EXPECT_FALSE(EstValeursNulles(Cellules("1", 1)));
    EXPECT_TRUE(EstValeursNulles("valeurs nulles"));
    EXPECT_FALSE(EstValeursNulles("VALEURS NULLES "));
}

TEST_F(RenduTest, TraceDeLAuteur) {
    Texte definitions, cellules;
    int position = 0;
    std::int16_t mode = 0;
    AjouterCellules(ctx, "voir ChatXXX", definitions, cellules, position, true, mode);
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_NE(u.messages[0].texte.find("voir ChatXXX"), Texte::npos);
}

} // namespace
} // namespace verdane
