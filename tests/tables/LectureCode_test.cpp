#include "tables/LectureCode.h"

#include "shell/etat/Contexte.h"

#include <gtest/gtest.h>

#include <string>

namespace verdane {
namespace {

constexpr const char* kFormat = "5006;10;1;0;0;0;0;0;c;1;1;1;1;8";

Texte CodeUneLigne(const Texte& tete, const Texte& ligne) {
    return tete + "(" + ligne + ")";
}

TEST(NombreTableau, LectureToleranteAuxErreurs) {
    EXPECT_EQ(NombreTableau("1200"), 1200);
    EXPECT_EQ(NombreTableau("  -35 "), -35);
    // Decimals are rounded half to even, with either decimal mark.
    EXPECT_EQ(NombreTableau("12.5"), 12);
    EXPECT_EQ(NombreTableau("13.5"), 14);
    EXPECT_EQ(NombreTableau("12,51"), 13);
    EXPECT_EQ(NombreTableau("-2.5"), -2);
    EXPECT_EQ(NombreTableau("32767"), 32767);
    EXPECT_EQ(NombreTableau("-32768"), -32768);
    // Whatever isn't a 16-bit number reads 0.
    for (const char* texte : {"", " ", "abc", "12abc", "1e3", "-", ".", "32768", "-32769",
                              "99999999999999999999999999", "1 2", "nan", "inf"})
        EXPECT_EQ(NombreTableau(texte), 0) << texte;
}

TEST(LirePrefixeTableau, RepetitionsEtValeursParDefaut) {
    struct Cas {
        const char* code;
        std::int16_t genre, typeEntete, pageDebut;
        const char* reste;
    };
    const Cas cas[] = {
        {"taba2p1(x)", 0, 1, -1, "taba2p1(x)"},
        {"culture2tabp1", 1, 2, -1, "tabp1"},
        {"cultper012tabp1", 2, 0, 12, "tabp1"},
        {"actlibr17tab", 3, 1, 7, "tab"},
        {"culturetab", 1, 1, -1, "tab"},
        {"culture", 1, 1, -1, ""},
        {"culture3", 1, 3, -1, ""},
        {"culture2xy", 1, 2, 0, ""},
        {"Culture2tab", 0, 1, -1, "Culture2tab"}, // case matters
    };
    for (const Cas& c : cas) {
        TableauModele t;
        t.genre = 9;
        t.pageDebut = 44;
        Texte code = c.code;
        LirePrefixeTableau(code, t);
        EXPECT_EQ(t.genre, c.genre) << c.code;
        EXPECT_EQ(t.typeEntete, c.typeEntete) << c.code;
        EXPECT_EQ(t.pageDebut, c.pageDebut) << c.code;
        EXPECT_EQ(code, c.reste) << c.code;
    }
}

TEST(LireEnteteTableau, PiecesPresentesAbsentesOuIllisibles) {
    struct Cas {
        const char* code;
        std::int16_t multiDossier, nbDossiers, nbColonnes, centre, rouge, modeAnnees;
        std::array<std::int16_t, 3> largeurs;
        std::int16_t largeurValeurs;
    };
    const Cas cas[] = {
        // clang-format off
        {"tabd4p3cr2;larg1500;larg900;larg700;larg8000([280;120])", 1, 4, 3, 1, 1, 2,
         {1500, 900, 700}, 8000},
        // clang-format on
        {"tab([280;120][a;b])", 0, 2, 1, 0, 0, 0, {1000, 1000, 1000}, 7200},
        // Missing label widths stay at 1000, a value width without its ";larg" at 7200.
        {"taba2p3;larg2000(", 0, 2, 3, 0, 0, 0, {2000, 1000, 1000}, 7200},
        // Another letter in place of the dossier mode consumes nothing.
        {"tabp2c;larg1;larg2;larg3(", 0, 2, 2, 1, 0, 0, {1, 2, 1000}, 3},
        {"taba2p2;larg12cm;larg99999999;larg-40(", 0, 2, 2, 0, 0, 0, {0, 0, 1000}, -40},
        // Label columns: one character, a non-digit reads 0; "p12" is 1 column, year mode 2.
        {"taba2p0;larg5000(", 0, 2, 0, 0, 0, 0, {1000, 1000, 1000}, 5000},
        {"taba2p12", 0, 2, 1, 0, 0, 2, {1000, 1000, 1000}, 7200},
        {"taba", 0, 0, 1, 0, 0, 0, {1000, 1000, 1000}, 7200},
        {"", 0, 2, 1, 0, 0, 0, {1000, 1000, 1000}, 7200},
    };
    for (const Cas& c : cas) {
        TableauModele t;
        t.centre = t.rouge = t.modeAnnees = 3;
        t.largeurs.fill(5);
        t.lignes.resize(2);
        LireEnteteTableau(c.code, t);
        EXPECT_EQ(t.multiDossier, c.multiDossier) << c.code;
        EXPECT_EQ(t.nbDossiers, c.nbDossiers) << c.code;
        EXPECT_EQ(t.nbColonnes, c.nbColonnes) << c.code;
        EXPECT_EQ(t.centre, c.centre) << c.code;
        EXPECT_EQ(t.rouge, c.rouge) << c.code;
        EXPECT_EQ(t.modeAnnees, c.modeAnnees) << c.code;
        for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(t.largeurs[i], c.largeurs[i]) << c.code;
        EXPECT_EQ(t.largeurValeurs, c.largeurValeurs) << c.code;
        EXPECT_EQ(t.nbLignes(), 2); // the head leaves the lines alone
    }
}

TEST(LireLignesTableau, CellulesEtFormats) {
    TableauModele t;
    const Texte code = CodeUneLigne(
        "taba2p2;larg1000;larg1000;larg7200",
        "[300;40][Chiffre_d'affaires_é;5006;12;3;1;0;0;0;0;l;2;0;1;0;8][__;1;2][serie:A.DON+"
        "A-1:0:1;5006;10;1;0;0;0;0;0;r;1;1;1;1;16;extra]#[280;120][x][espace]");
    LireEnteteTableau(code, t);
    LireLignesTableau(code, t);
    ASSERT_EQ(t.nbLignes(), 2);
    const auto cellule = [](const CelluleModele& c) {
        return c.texte + "|" + c.formatTexte + "|" + c.formatCadre;
    };
    const LigneModele& l = *t.Ligne(1);
    EXPECT_EQ(l.hauteur, 300);
    EXPECT_EQ(l.retrait, 40);
    EXPECT_EQ(cellule(l.cellules[0]), "Chiffre d'affaires é|5006;12;3;1;0;0;0;0;l|2;0;1;0;8");
    // Fewer than fourteen fields: all of them are the text format.
    EXPECT_EQ(cellule(l.cellules[1]), "  |1;2|");
    EXPECT_EQ(l.definition + "|" + l.formatTexte + "|" + l.formatCadre,
              "serie:A.DON+A-1:0:1|5006;10;1;0;0;0;0;0;r|1;1;1;1;16;extra");
    EXPECT_EQ(l.annee, 0);
    // Brackets without ";": the text or definition is the whole bracket, no format; the third
    // bracket missing from the line reads "erreur".
    const LigneModele& m = *t.Ligne(2);
    EXPECT_EQ(cellule(m.cellules[0]) + cellule(m.cellules[1]), "x||espace||");
    EXPECT_EQ(m.definition + "|" + m.formatTexte + "|" + m.formatCadre, "erreur||");
}

TEST(LireLignesTableau, AnneesDesLignesMultiDossier) {
    // In mode "a" a label keeps its "@"; a definition loses it whatever the mode.
    const TableauModele a = LireCodeTableau(Texte("taba2p1;larg1;larg2([280;120][3@Label;") +
                                            kFormat + "][5@serie:A.DON+A-1:0;" + kFormat + "])");
    EXPECT_EQ(a.Ligne(1)->cellules[0].texte, "3@Label");
    EXPECT_EQ(a.Ligne(1)->definition, "serie:A.DON+A-1:0");
    EXPECT_EQ(a.Ligne(1)->annee, 5);
    // A label year is kept when the definition has none.
    const TableauModele e = LireCodeTableau("tabd3p1;larg1;larg2([0;0][7@x;1][espace])");
    EXPECT_EQ(e.Ligne(1)->annee, 7);
    EXPECT_EQ(e.Ligne(1)->cellules[0].texte, "x");
}

TEST(LireLignesTableau, CrochetsDesequilibres) {
    // A line whose first bracket can't be taken ends the lines; the others read "erreur".
    struct Cas {
        const char* lignes;
        int nbLignes;
        const char* definition; // of the last line read
    };
    const Cas cas[] = {
        {"[280;120][a;b][c;d]#280;120][a][b]", 2, "erreur"},
        {"[280;120][a;b][c;d]#[280;120", 1, "c"},
        {"[280;120][a;b][c;d#]", 1, "erreur"},
        {"[280;120][a;b][c;d][[x]#[1;1]]]][y][z]", 2, "z"},
        {"[280;120]]][a][[c]", 1, "[c"},
        {"[280;120]", 1, "erreur"},
        {"##", 0, ""},
        {"", 0, ""},
        {"[[[[", 0, ""},
    };
    for (const Cas& c : cas) {
        const TableauModele t = LireCodeTableau(Texte("taba2p1(") + c.lignes + ")");
        ASSERT_EQ(t.nbLignes(), c.nbLignes) << c.lignes;
        if (c.nbLignes > 0) {
            EXPECT_EQ(t.lignes.back().definition, c.definition) << c.lignes;
        }
    }
    // Heights and gaps that aren't numbers, or have no ";".
    const TableauModele t = LireCodeTableau("taba2p1([AUTO;x][a][b]#[99999][a][b]#[;][a][b])");
    ASSERT_EQ(t.nbLignes(), 3);
    EXPECT_EQ(t.Ligne(1)->hauteur, 0);
    EXPECT_EQ(t.Ligne(1)->retrait, 0);
    EXPECT_EQ(t.Ligne(2)->hauteur, 0);
    EXPECT_EQ(t.Ligne(2)->retrait, 0);
    // No "(": no lines, the head still reads.
    const TableauModele sans = LireCodeTableau("tabd5p2c");
    EXPECT_EQ(sans.nbLignes(), 0);
    EXPECT_EQ(sans.nbDossiers, 5);
}

TEST(LireLignesTableau, ColonnesDeLibelleDuModeleOuDeLEmplacement) {
    // The lines are read with the label columns the slot holds, which a caller may change.
    UtilisateurMuet utilisateur;
    Contexte ctx(utilisateur);
    ctx.etat.tableaux.TableauxCourants.resize(1);
    Texte code = "culture23tabd3p2;larg1;larg2([1;2][a][b][4@serie:X;c])";
    LirePrefixeTableau(ctx, code, 1);
    LireEnteteTableau(ctx, code, 1);
    LireLignesTableau(ctx, code, 1);
    const TableauModele& lu = ctx.etat.tableaux.TableauxCourants[0];
    EXPECT_EQ(lu.genre, kTableauCulture);
    EXPECT_EQ(lu.Ligne(1)->definition, "serie:X");
    EXPECT_EQ(lu.Ligne(1)->annee, 4);
    ctx.etat.tableaux.Tableau(1)->nbColonnes = 0;
    LireLignesTableau(ctx, code, 1);
    EXPECT_EQ(lu.Ligne(1)->definition, "a");
    // No such slot: nothing happens.
    for (int numero : {0, 2, -1}) {
        LirePrefixeTableau(ctx, code, numero);
        LireLignesTableau(ctx, code, numero);
    }
    EXPECT_EQ(ctx.etat.tableaux.TableauxCourants.size(), 1u);
    TableauModele t;
    t.nbColonnes = 40; // beyond the nine cells a line holds
    LireLignesTableau(code, t);
    EXPECT_EQ(t.Ligne(1)->cellules[8].texte, "erreur");
}

} // namespace
} // namespace verdane
