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

using Textes = std::vector<Texte>;

// French marks with a plain space, easier to read in the expectations.
Texte Fr(float v, int d, bool vide = false) {
    return FormatNombre(v, static_cast<std::int16_t>(d), vide, MarquesNombre{",", " "});
}
// Each value with `d` decimals (7, or any value out of 0..6: AUTO).
Textes Fr(int d, std::initializer_list<float> valeurs) {
    Textes t;
    for (float v : valeurs) t.push_back(Fr(v, d));
    return t;
}

TEST(FormatNombre, ArrondiAuPairSurLaValeurExacteDuFloat) {
    EXPECT_EQ(Fr(0, {2.5f, 3.5f, -2.5f, 999.5f, -1234.0f, 123.0f}),
              (Textes{"2", "4", "-2", "1 000", "-1 234", "123"}));
    EXPECT_EQ(Fr(2, {0.125f, 0.375f}), (Textes{"0,12", "0,38"}));
    // 1234.5678f is 1234.5677490234375: no tie, the exact value decides.
    EXPECT_EQ(Fr(1234.5678f, 3), "1 234,568");
    EXPECT_EQ(Fr(1234.5678f, 6), "1 234,567749");
    // 0.15f lies above 0.15, so it goes up although a decimal tie would go to even.
    EXPECT_EQ(Fr(1, {0.15f, 0.25f}), (Textes{"0,2", "0,2"}));
    EXPECT_EQ(Fr(0.5f, 4), "0,5000");
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false), "1\xA0"
                                                  "234\xA0"
                                                  "567,00");
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false, kAnglais), "1,234,567.00");
}

TEST(FormatNombre, ZeroEtSigne) {
    EXPECT_EQ(Fr(0.0f, 2, true), " ");
    EXPECT_EQ(Fr(-0.0f, 2, true), " ");
    // Rounded to nothing: no "-0".
    EXPECT_EQ(Fr(2, {0.0f, -0.004f}), (Textes{"0,00", "0,00"}));
    EXPECT_EQ(Fr(-0.0f, 0), "0");
    // A small value isn't zero for the blank rule.
    EXPECT_EQ(Fr(0.001f, 0, true), "0");
}

TEST(FormatNombre, Auto) {
    // "00" behind the separator: none; "50": a "0" second alone goes; "06": two places.
    EXPECT_EQ(
        Fr(7, {100.0f, 1.5f, 1234.5678f, 2.001f, 2.5039f, 2.0625f, 0.1f, 0.12f, 1e-10f, -3.75f}),
        (Textes{"100", "1,5", "1 234,57", "2", "2,5", "2,06", "0,1", "0,12", "0", "-3,75"}));
    EXPECT_EQ(Fr(2.5039f, 8), "2,5");
    EXPECT_EQ(Fr(2.5039f, -1), "2,5");
    // Nothing is rounded first: the pattern rounds halves away from zero, where the explicit
    // rounding of 0 to 6 decimals goes to even (0.125 with 2 decimals, above). The shortest
    // text decides, not the float's binary value (2.67499995...). Carries go through the
    // integer part and its thousands.
    EXPECT_EQ(Fr(7, {0.125f, -0.125f, 2.675f, -2.675f, 2.674f, 0.995f, 999.995f, -9999.995f}),
              (Textes{"0,13", "-0,13", "2,68", "-2,68", "2,67", "1,00", "1 000,00", "-10 000,00"}));
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
    for (const char* t : {"", "   ", " ", "abc", "12abc", "-"}) EXPECT_FALSE(LireNombre(t)) << t;
    EXPECT_EQ(LireNombre(" 12,5 "), 12.5);
    EXPECT_EQ(LireNombre("+3"), 3.0);
    EXPECT_EQ(LireNombre("-1 234,5"), -1234.5);
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

TEST(MarquesNombre, SelonLaLocaleEtLEnvironnement) {
    const auto fr = MarquesDeLocale("fr_FR.UTF-8");
    EXPECT_EQ(fr.decimale, ",");
    EXPECT_EQ(fr.milliers, "\xA0");
    EXPECT_EQ(MarquesDeLocale("en_US.UTF-8").decimale, ".");
    EXPECT_EQ(MarquesDeLocale("en_GB").milliers, ",");
    EXPECT_EQ(MarquesDeLocale("de_DE@euro").milliers, ".");
    for (const char* nom : {"C", "POSIX", "", "C.UTF-8", "xx_YY", "_"})
        EXPECT_EQ(MarquesDeLocale(nom).decimale, ",") << nom;

    // From the environment: LC_ALL, then LC_NUMERIC, then LANG; French when none says.
    Environnement env;
    for (const char* nom : {"LC_ALL", "LC_NUMERIC", "LANG"}) env.Poser(nom, nullptr);
    const std::tuple<const char*, const char*, const char*> etapes[] = {
        // variable, value, decimal mark
        {"LANG", nullptr, ","},
        {"LANG", "en_US.UTF-8", "."},
        {"LC_NUMERIC", "fr_FR.UTF-8", ","},
        {"LC_ALL", "en_GB", "."},
        {"LC_ALL", "", ","}};
    for (const auto& [nom, valeur, decimale] : etapes) {
        env.Poser(nom, valeur);
        EXPECT_EQ(MarquesDuSysteme().decimale, decimale) << nom << "=" << (valeur ? valeur : "");
    }
}

} // namespace
} // namespace verdane
