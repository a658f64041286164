#include "skin/ExpressionSkin.h"

#include <gtest/gtest.h>

#include <tuple>

namespace verdane::skin {
namespace {

TEST(ExpressionSkin, SuitLaTailleDeLaFenetreEtResteBornee) {
    const std::tuple<const char*, int, int, int> cas[] = {
        {"me.height", 300, 200, 200},
        {"ME.Width - 12", 300, 200, 288},
        {"me.width*3", 300, 200, 900},
        {"me.height+-5", 300, 200, 195},
        // Both names are added; the rest follows the width.
        {"me.height+me.width+1", 300, 200, 501},
        // A fraction is rounded half to even.
        {"me.height/2", 0, 101, 50},
        {"me.height/2", 0, 103, 52},
        {"-3", 300, 200, -3},
        {"2.5", 0, 0, 2},
        {"me.width*32767", 1'000'000, 0, kBorneValeur},
        {"me.width*-32768", 1'000'000, 0, -kBorneValeur},
        {"me.height+me.width", 2'000'000'000, 2'000'000'000, kBorneValeur},
    };
    for (const auto& [texte, largeur, hauteur, valeur] : cas)
        EXPECT_EQ(ValeurExpression(texte, largeur, hauteur), valeur) << texte;

    EXPECT_EQ(NombreSkin("&hFF&"), 255);
    EXPECT_EQ(NombreSkin("0x10"), 16);
    EXPECT_EQ(NombreSkin("&hFFFFFFFF"), -1);
    for (const char* faux : {"12abc", "", "&h"}) EXPECT_FALSE(NombreSkin(faux)) << faux;
}

TEST(ExpressionSkin, CeQuiNeVeutRienDireVautZeroEtDitPourquoi) {
    const std::pair<const char*, const char*> cas[] = {
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
    for (const auto& [texte, raison] : cas) {
        Texte erreur;
        const auto e = AnalyserExpression(texte, &erreur);
        EXPECT_FALSE(e.valide) << texte;
        EXPECT_NE(erreur.find(raison), Texte::npos) << texte << " : " << erreur;
        EXPECT_EQ(e.Valeur(300, 200), 0) << texte;
    }
}

} // namespace
} // namespace verdane::skin
