#include "data/FormatNombre.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

namespace verdane {
namespace {

const MarquesNombre kAnglais{".", ","};

// French marks with a plain space, easier to read in the expectations.
Texte Fr(float v, int d, bool vide = false) {
    return FormatNombre(v, static_cast<std::int16_t>(d), vide, MarquesNombre{",", " "});
}

TEST(FormatNombre, ArrondiAuPairSurLaValeurExacteDuFloat) {
    EXPECT_EQ(Fr(2.5f, 0), "2");
    EXPECT_EQ(Fr(3.5f, 0), "4");
    EXPECT_EQ(Fr(-2.5f, 0), "-2");
    EXPECT_EQ(Fr(0.125f, 2), "0,12");
    EXPECT_EQ(Fr(0.375f, 2), "0,38");
    // 1234.5678f is 1234.5677490234375: no tie, the exact value decides.
    EXPECT_EQ(Fr(1234.5678f, 3), "1 234,568");
    EXPECT_EQ(Fr(1234.5678f, 6), "1 234,567749");
    // 0.15f lies above 0.15, so it goes up although a decimal tie would go to even.
    EXPECT_EQ(Fr(0.15f, 1), "0,2");
    EXPECT_EQ(Fr(0.25f, 1), "0,2");
    EXPECT_EQ(Fr(999.5f, 0), "1 000");
}

TEST(FormatNombre, MilliersEtDecimales) {
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false), "1\xA0"
                                                  "234\xA0"
                                                  "567,00");
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false, kAnglais), "1,234,567.00");
    EXPECT_EQ(Fr(-1234.0f, 0), "-1 234");
    EXPECT_EQ(Fr(123.0f, 0), "123");
    EXPECT_EQ(Fr(0.5f, 4), "0,5000");
}

TEST(FormatNombre, ZeroEtSigne) {
    EXPECT_EQ(Fr(0.0f, 2, true), " ");
    EXPECT_EQ(Fr(-0.0f, 2, true), " ");
    EXPECT_EQ(Fr(0.0f, 2, false), "0,00");
    EXPECT_EQ(Fr(-0.0f, 0), "0");
    // Rounded to nothing: no "-0".
    EXPECT_EQ(Fr(-0.004f, 2), "0,00");
    // A small value isn't zero for the blank rule.
    EXPECT_EQ(Fr(0.001f, 0, true), "0");
}

TEST(FormatNombre, Auto) {
    EXPECT_EQ(Fr(100.0f, 7), "100");
    EXPECT_EQ(Fr(1.5f, 7), "1,5");
    EXPECT_EQ(Fr(1234.5678f, 7), "1 234,57");
    EXPECT_EQ(Fr(2.001f, 7), "2");     // "00" behind the separator
    EXPECT_EQ(Fr(2.5039f, 7), "2,5");  // "50": a "0" second alone
    EXPECT_EQ(Fr(2.0625f, 7), "2,06"); // "06": two places
    EXPECT_EQ(Fr(2.5039f, 8), "2,5");  // any value out of 0..6 is AUTO
    EXPECT_EQ(Fr(2.5039f, -1), "2,5");
    EXPECT_EQ(Fr(0.1f, 7), "0,1");
    EXPECT_EQ(Fr(0.12f, 7), "0,12");
    EXPECT_EQ(Fr(1e-10f, 7), "0");
    EXPECT_EQ(Fr(-3.75f, 7), "-3,75");
}

TEST(FormatNombre, AutoArrondiParLeMotifLoinDeZero) {
    // Nothing is rounded first: the pattern rounds halves away from zero, where the explicit
    // rounding of 0 to 6 decimals goes to even.
    EXPECT_EQ(Fr(0.125f, 7), "0,13");
    EXPECT_EQ(Fr(-0.125f, 7), "-0,13");
    EXPECT_EQ(Fr(0.125f, 2), "0,12");
    // The shortest text decides, not the float's binary value (2.67499995...).
    EXPECT_EQ(Fr(2.675f, 7), "2,68");
    EXPECT_EQ(Fr(-2.675f, 7), "-2,68");
    EXPECT_EQ(Fr(2.674f, 7), "2,67");
    // Carries through the integer part and its thousands.
    EXPECT_EQ(Fr(0.995f, 7), "1,00");
    EXPECT_EQ(Fr(999.995f, 7), "1 000,00");
    EXPECT_EQ(Fr(-9999.995f, 7), "-10 000,00");
}

TEST(FormatNombre, ValeursExtremesDonnentUnTexte) {
    const float max = std::numeric_limits<float>::max();
    const Texte grand = Fr(max, 6);
    EXPECT_EQ(grand.substr(0, 8), "340 282 ");
    EXPECT_EQ(grand.substr(grand.size() - 7), ",000000");
    EXPECT_FALSE(Fr(-max, 7).empty());
    EXPECT_FALSE(Fr(std::numeric_limits<float>::denorm_min(), 6).empty());
    EXPECT_FALSE(Fr(std::nanf(""), 2).empty());
    EXPECT_FALSE(Fr(std::numeric_limits<float>::infinity(), 0).empty());
    EXPECT_NE(Fr(std::numeric_limits<float>::infinity(), 0),
              Fr(-std::numeric_limits<float>::infinity(), 0));
}

TEST(LireNombre, RelitCeQueFormatNombreEcrit) {
    const float valeurs[] = {0.0f, 1.0f,    -1.0f,   0.5f,  1234.5678f, -98765.4321f,
                             1e9f, -0.015f, 3.4e38f, 7.25f, 1e-7f};
    for (const MarquesNombre& m : {MarquesNombre{}, kAnglais, MarquesNombre{",", "."}}) {
        for (float v : valeurs) {
            for (int d = 0; d <= 7; ++d) {
                const Texte t = FormatNombre(v, static_cast<std::int16_t>(d), false, m);
                const auto relu = LireNombre(t, m);
                ASSERT_TRUE(relu) << t;
                // Within the rounding of the shown decimals.
                const double tolerance = d <= 6 ? 0.5 * std::pow(10.0, -d) : 0.5;
                EXPECT_NEAR(*relu, static_cast<double>(v), std::abs(v) * 1e-7 + tolerance) << t;
            }
        }
    }
    EXPECT_TRUE(std::isnan(*LireNombre(Fr(std::nanf(""), 2))));
    EXPECT_EQ(*LireNombre(FormatNombre(-std::numeric_limits<float>::infinity(), 0, false)),
              -std::numeric_limits<double>::infinity());
}

TEST(LireNombre, RefuseCeQuiNEstPasUnNombre) {
    EXPECT_FALSE(LireNombre(""));
    EXPECT_FALSE(LireNombre("   "));
    EXPECT_FALSE(LireNombre(" "));
    EXPECT_FALSE(LireNombre("abc"));
    EXPECT_FALSE(LireNombre("12abc"));
    EXPECT_FALSE(LireNombre("-"));
    EXPECT_EQ(LireNombre(" 12,5 "), 12.5);
    EXPECT_EQ(LireNombre("+3"), 3.0);
    EXPECT_EQ(LireNombre("-1 234,5"), -1234.5);
}

TEST(MarquesNombre, SelonLaLangueDeLaLocale) {
    const auto fr = MarquesDeLocale("fr_FR.UTF-8");
    EXPECT_EQ(fr.decimale, ",");
    EXPECT_EQ(fr.milliers, "\xA0");
    EXPECT_EQ(MarquesDeLocale("en_US.UTF-8").decimale, ".");
    EXPECT_EQ(MarquesDeLocale("en_GB").milliers, ",");
    EXPECT_EQ(MarquesDeLocale("de_DE@euro").milliers, ".");
    for (const char* nom : {"C", "POSIX", "", "C.UTF-8", "xx_YY", "_"})
        EXPECT_EQ(MarquesDeLocale(nom).decimale, ",") << nom;
}

// Sets environment variables for one test and puts them back.
class Environnement {
public:
    void Poser(const char* nom, const char* valeur) {
        const char* ancien = std::getenv(nom);
        anciens_.push_back({nom, ancien ? std::optional<std::string>(ancien) : std::nullopt});
        if (valeur)
            setenv(nom, valeur, 1);
        else
            unsetenv(nom);
    }
    ~Environnement() {
        for (auto it = anciens_.rbegin(); it != anciens_.rend(); ++it) {
            if (it->second)
                setenv(it->first.c_str(), it->second->c_str(), 1);
            else
                unsetenv(it->first.c_str());
        }
    }

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> anciens_;
};

TEST(MarquesNombre, DuSysteme) {
    Environnement env;
    env.Poser("LC_ALL", nullptr);
    env.Poser("LC_NUMERIC", nullptr);
    env.Poser("LANG", nullptr);
    EXPECT_EQ(MarquesDuSysteme().decimale, ",");
    env.Poser("LANG", "en_US.UTF-8");
    EXPECT_EQ(MarquesDuSysteme().decimale, ".");
    env.Poser("LC_NUMERIC", "fr_FR.UTF-8");
    EXPECT_EQ(MarquesDuSysteme().decimale, ",");
    env.Poser("LC_ALL", "en_GB");
    EXPECT_EQ(MarquesDuSysteme().decimale, ".");
    env.Poser("LC_ALL", "");
    EXPECT_EQ(MarquesDuSysteme().decimale, ",");
}

} // namespace
} // namespace verdane
