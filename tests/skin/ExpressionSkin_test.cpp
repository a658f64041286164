#include "skin/ExpressionSkin.h"

#include <gtest/gtest.h>

namespace verdane::skin {
namespace {

TEST(ExpressionSkin, SuitLaTailleDeLaFenetre) {
    EXPECT_EQ(ValeurExpression("me.height", 300, 200), 200);
    EXPECT_EQ(ValeurExpression("me.width-12", 300, 200), 288);
    EXPECT_EQ(ValeurExpression("ME.Width - 12", 300, 200), 288);
    EXPECT_EQ(ValeurExpression("me.height/2", 300, 200), 100);
    EXPECT_EQ(ValeurExpression("me.width*3", 300, 200), 900);
    EXPECT_EQ(ValeurExpression("me.height+-5", 300, 200), 195);
    // Both names are added; the rest follows the width.
    EXPECT_EQ(ValeurExpression("me.height+me.width+1", 300, 200), 501);
    // A fraction is rounded half to even.
    EXPECT_EQ(ValeurExpression("me.height/2", 0, 101), 50);
    EXPECT_EQ(ValeurExpression("me.height/2", 0, 103), 52);
}

TEST(ExpressionSkin, NombresSimples) {
    EXPECT_EQ(ValeurExpression("42", 300, 200), 42);
    EXPECT_EQ(ValeurExpression("-3", 300, 200), -3);
    EXPECT_EQ(ValeurExpression("2.5", 0, 0), 2);
    EXPECT_EQ(NombreSkin("&hFF&"), 255);
    EXPECT_EQ(NombreSkin("0x10"), 16);
    EXPECT_EQ(NombreSkin("&hFFFFFFFF"), -1);
    EXPECT_FALSE(NombreSkin("12abc"));
    EXPECT_FALSE(NombreSkin(""));
    EXPECT_FALSE(NombreSkin("&h"));
}

TEST(ExpressionSkin, CeQuiNeVeutRienDireVautZeroEtDitPourquoi) {
    const struct {
        const char* texte;
        const char* raison;
    } cas[] = {
        {"abc", "pas un nombre"},
        {"", "vide"},
        {"me.width/0", "division par zéro"},
        {"me.width%3", "opérateur inconnu"},
        {"me.width-", "entier"},
        {"me.width-1.5", "entier"},
        {"me.width-99999", "hors limites"},
        {"99999999999", "hors limites"},
        {"me.heightx", "opérateur inconnu"},
    };
    for (const auto& c : cas) {
        Texte erreur;
        const auto e = AnalyserExpression(c.texte, &erreur);
        EXPECT_FALSE(e.valide) << c.texte;
        EXPECT_NE(erreur.find(c.raison), Texte::npos) << c.texte << " : " << erreur;
        EXPECT_EQ(e.Valeur(300, 200), 0) << c.texte;
    }
}

TEST(ExpressionSkin, LesValeursRestentBornees) {
    EXPECT_EQ(ValeurExpression("me.width*32767", 1'000'000, 0), kBorneValeur);
    EXPECT_EQ(ValeurExpression("me.width*-32768", 1'000'000, 0), -kBorneValeur);
    EXPECT_EQ(ValeurExpression("me.height+me.width", 2'000'000'000, 2'000'000'000), kBorneValeur);
}

} // namespace
} // namespace verdane::skin
