#include "tables/Calculateur.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace verdane {
namespace {

struct Cas {
    const char* expression;
    double attendu;
};

void VerifierValeurs(const std::vector<Cas>& cas) {
    for (const Cas& c : cas) {
        const auto v = Calculer(c.expression);
        ASSERT_TRUE(v.has_value()) << c.expression;
        EXPECT_NEAR(*v, c.attendu, 1e-9 * std::max(1.0, std::fabs(c.attendu))) << c.expression;
    }
}

TEST(Calculateur, PrioritesCommeUnTableur) {
    VerifierValeurs({{"1+2*3", 7},
                     {"(1+2)*3", 9},
                     {"10-2-3", 5},
                     {"12/2/3", 2},
                     {"-2^2", 4}, // the sign binds tighter than the power
                     {"0-2^2", -4},
                     {"2^-1", 0.5},
                     {"2^3^2", 64}, // left to right
                     {"3\xB2", 9},  // "²"
                     {"-3\xB2", 9},
                     {"2^3\xB2", 512},
                     {"50%", 0.5},
                     {"5--3", 8}, // a negative value put behind a minus
                     {"2*-3", -6},
                     {"--+-4", -4},
                     {"1&2", 12},
                     {"1&2+3", 15}, // & is looser than +
                     {"(150 + COS(45)) * 10^4", (150 + std::cos(45.0)) * 1e4},
                     // Comparisons give 1 or 0, looser than arithmetic, left to right.
                     {"2<=2", 1},
                     {"1<>1", 0},
                     {"2>1+2", 0},
                     {"0.1+0.2=0.3", 1},
                     {"(1<2)+(2<3)", 2},
                     {"1<2<3", 1},
                     {"3>2>1", 0}}); // (3>2)>1 is 1>1
}

TEST(Calculateur, NombresEtSeparateurs) {
    VerifierValeurs({{"1,5*2", 3},
                     {"1.5*2", 3},
                     {".5", 0.5},
                     {"1,5E+2", 150},
                     {" 1 +\t1 ", 2},
                     {"=1+1", 2},
                     {"MIN(1, 5)", 1},
                     {"SUM(1,2,3)", 1.2 + 3}, // a comma between digits is a decimal
                     {"007", 7}});
}

TEST(Calculateur, FonctionsAuxBordsDeLeurDomaine) {
    const double pi = std::numbers::pi;
    VerifierValeurs({{"INT(-2.5)", -3},
                     {"TRUNC(0.29;2)", 0.29},
                     {"ROUND(2.675;2)", 2.68},
                     {"ROUND(-2.5)", -3},
                     {"ROUND(1234;-2)", 1200},
                     {"ROUNDUP(1.21;1)", 1.3},
                     {"ROUNDDOWN(-1.29;1)", -1.2},
                     {"MOD(-1;3)", 2},
                     {"MOD(7;-3)", -2},
                     {"LOG(8;2)", 3},
                     {"ATAN2(-1;0)", pi},
                     {"IF(0;2)", 0},
                     {"OR(0;3)", 1},
                     {"sqrt(4)+Sum(1;1)", 4}, // names without regard to case
                     {"SI(ET(1;OU(0;1));ARRONDI(1.25;1);0)", 1.3},
                     {"RACINE(9)+ENT(-0.5)+PUISSANCE(2;2)", 6}});
}

TEST(Calculateur, CeQuiNeSeLitPasOuNeSeCalculePasDonneLeVide) {
    for (const char* e : {"",         "   ",      "(1+2",       "1+2)",        "1/0",     "1/(2-2)",
                          "FOO(1)",   "SQRT(-1)", "LN(0)",      "1+",          "*2",      "2 3",
                          "MOD(1;0)", "ROUND()",  "NOT(1;2)",   "PI",          "PI(1)",   "1e999",
                          "10^400",   "0^-1",     "(-8)^(1/3)", "IF(1/0;1;2)", "#REF!",   "LG",
                          "1|2",      "1..2",     ",5",         "SUM(1;;2)",   "SUM(1;)", "()",
                          "1=",       "LOG(1;1)", "ASIN(2)",    "1&-2",        "2(3)",    "1,",
                          "MAX()",    "=",        "1 2+3"})
        EXPECT_FALSE(Calculer(e).has_value()) << e;
}

TEST(Calculateur, SiNePrendQueLEchecDeSaBranche) {
    EXPECT_EQ(Calculer("IF(1;2;1/0)"), 2.0);
    EXPECT_EQ(Calculer("IF(0;1/0;3)"), 3.0);
    EXPECT_FALSE(Calculer("IF(1;1/0;3)").has_value());
    EXPECT_FALSE(Calculer("SUM(1;1/0)").has_value());
}

TEST(Calculateur, LisibleSeparentLaSyntaxeDuCalcul) {
    EXPECT_TRUE(CalculLisible("SQRT(-1)+1/0"));
    EXPECT_FALSE(CalculLisible("FOO(1)"));
    EXPECT_FALSE(CalculLisible("MOD(1)"));
}

TEST(Calculateur, ProfondeurBornee) {
    auto imbrique = [](int n) {
        return std::string(static_cast<std::size_t>(n), '(') + "1" +
               std::string(static_cast<std::size_t>(n), ')');
    };
    EXPECT_EQ(Calculer(imbrique(kProfondeurMaxCalcul)), 1.0);
    EXPECT_FALSE(Calculer(imbrique(kProfondeurMaxCalcul + 1)).has_value());
    EXPECT_FALSE(Calculer(std::string(100000, '(')).has_value());
    std::string fonctions;
    for (int i = 0; i < 20000; ++i) fonctions += "ABS(";
    EXPECT_FALSE(Calculer(fonctions + "1" + std::string(20000, ')')).has_value());
    // Long flat texts cost no depth.
    EXPECT_EQ(Calculer(std::string(100000, '-') + "1"), 1.0);
    std::string somme = "1";
    for (int i = 0; i < 30000; ++i) somme += "+1";
    EXPECT_EQ(Calculer(somme), 30001.0);
}

} // namespace
} // namespace verdane
