#include "utils/GestFontTable.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(GestFontTable, LesPolicesSeNommentEtSeNumerotent) {
    EXPECT_EQ(NomPolice(5000), "Abadi MT Condensed Light");
    EXPECT_EQ(NomPolice(5006), "Arial");
    EXPECT_EQ(NomPolice(5156), "Wonton ICG");
    EXPECT_EQ(NomPolice(5157), "Arial");
    EXPECT_EQ(NomPolice(4999), "Arial");
    EXPECT_EQ(NumeroPolice("Times New Roman"), "5138");
    EXPECT_EQ(NumeroPolice("times new roman"), "5006"); // exact name only
    EXPECT_EQ(NumeroPolice(""), "5006");
}

TEST(GestFontTable, LesPolicesPassentDevantCellesDuModele) {
    Texte t = "{\\rtf1{\\fonttbl{\\f0 Times;}}";
    AjouterPolices(t);
    EXPECT_EQ(t.find("{\\fonttbl{\\f5000\\fnil Abadi MT Condensed Light;}"), 6u);
    EXPECT_NE(t.find("{\\f5156\\fnil Wonton ICG;}{\\f0 Times;}}"), Texte::npos);
    Texte sans = "{\\rtf1 rien}";
    EXPECT_FALSE(AjouterPolices(sans));
    EXPECT_EQ(sans, "{\\rtf1 rien}");
}

TEST(GestFontTable, LesCouleursSAjoutentEtLeDecalageCompteJusquALaFin) {
    Texte t = "{\\colortbl;\\red0\\green0\\blue0;\\red255\\green0\\blue0;}";
    EXPECT_EQ(AjouterCouleurs(t).value_or(-1), 2);
    EXPECT_NE(t.find("\\red255\\green0\\blue0;\\red0\\green0\\blue0;\\red0\\green0\\blue255;"),
              Texte::npos);
    EXPECT_TRUE(t.ends_with(";\\red192\\green192\\blue192;}"));

    // A ";\" further on in the text raises the shift: it stays so.
    Texte plus = "{\\colortbl;\\red1\\green1\\blue1;}{\\f1 a;\\b b}";
    EXPECT_EQ(AjouterCouleurs(plus).value_or(-1), 2);

    Texte vide = "{\\colortbl;}";
    EXPECT_EQ(AjouterCouleurs(vide).value_or(-1), 0);
    EXPECT_TRUE(vide.starts_with("{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;"));

    Texte sans = "{\\colortbl\\red0;}"; // no ";" behind the word: not the table looked for
    EXPECT_FALSE(AjouterCouleurs(sans).has_value());
    EXPECT_EQ(sans, "{\\colortbl\\red0;}");
    Texte ouverte = "{\\colortbl;\\red0";
    EXPECT_FALSE(AjouterCouleurs(ouverte).has_value());
}

} // namespace verdane
