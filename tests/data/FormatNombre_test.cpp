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

TEST(FormatNombre, ArrondiZeroEtAuto) {
    // 0 to 6 decimals round to even on the float's exact value: 1234.5678f is
    // 1234.5677490234375, no tie; 0.15f lies above 0.15, so it goes up. Rounded to nothing gives
    // no "-0"; a blank is asked for zero only.
    EXPECT_EQ(Fr(0, {2.5f, 3.5f, -2.5f, 999.5f, -1234.0f, -0.0f}),
              (Textes{"2", "4", "-2", "1 000", "-1 234", "0"}));
    EXPECT_EQ(
        (Textes{Fr(0.125f, 2), Fr(0.375f, 2), Fr(-0.004f, 2), Fr(1234.5678f, 3), Fr(1234.5678f, 6),
                Fr(0.15f, 1), Fr(0.5f, 4), Fr(-0.0f, 2, true), Fr(0.001f, 0, true)}),
        (Textes{"0,12", "0,38", "0,00", "1 234,568", "1 234,567749", "0,2", "0,5000", " ", "0"}));
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false), "1\xA0"
                                                  "234\xA0"
                                                  "567,00");
    EXPECT_EQ(FormatNombre(1234567.0f, 2, false, kAnglais), "1,234,567.00");

    // AUTO (7, or any value out of 0..6): "00" behind the separator, none; "50", a "0" second
    // alone goes; "06", two places. Nothing is rounded first: the pattern rounds halves away
    // from zero on the shortest text, not on the float's binary value (2.67499995...), and
    // carries go through the integer part and its thousands.
    EXPECT_EQ(Fr(7, {100.0f, 1.5f, 1234.5678f, 2.001f, 2.0625f, 0.1f, 1e-10f, -3.75f, 0.125f,
                     -2.675f, 2.674f, 999.995f, -9999.995f}),
              (Textes{"100", "1,5", "1 234,57", "2", "2,06", "0,1", "0", "-3,75", "0,13", "-2,68",
                      "2,67", "1 000,00", "-10 000,00"}));
    EXPECT_EQ(Fr(2.5039f, 8) + "|" + Fr(2.5039f, -1), "2,5|2,5");
}

TEST(FormatNombre, ValeursExtremesDonnentUnTexte) {
    const float max = std::numeric_limits<float>::max();
    const float inf = std::numeric_limits<float>::infinity();
    const Texte grand = Fr(max, 6);
    EXPECT_EQ(grand.substr(0, 8) + grand.substr(grand.size() - 7), "340 282 ,000000");
    for (const auto& [v, decimales] : {std::pair{-max, 7},
                                       {std::nanf(""), 2},
                                       {inf, 0},
                                       {std::numeric_limits<float>::denorm_min(), 6}})
        EXPECT_FALSE(Fr(v, decimales).empty()) << v;
    EXPECT_NE(Fr(inf, 0), Fr(-inf, 0));
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
    for (const char* t : {"", "   ", "abc", "12abc", "-"}) EXPECT_FALSE(LireNombre(t)) << t;
    EXPECT_EQ(*LireNombre(" 12,5 ") + *LireNombre("+3"), 15.5);
    EXPECT_EQ(LireNombre("-1 234,5"), -1234.5);
}

// Sets environment variables for one test and puts them back.
struct Environnement {
    void Poser(const char* nom, const char* valeur) {
        const char* ancien = std::getenv(nom);
        anciens.emplace_back(nom, ancien ? std::optional<std::string>(ancien) : std::nullopt);
        valeur ? setenv(nom, valeur, 1) : unsetenv(nom);
    }
    ~Environnement() {
        for (auto it = anciens.rbegin(); it != anciens.rend(); ++it)
            it->second ? setenv(it->first.c_str(), it->second->c_str(), 1)
                       : unsetenv(it->first.c_str());
    }
    std::vector<std::pair<std::string, std::optional<std::string>>> anciens;
};

TEST(MarquesNombre, SelonLaLocaleEtLEnvironnement) {
    const auto fr = MarquesDeLocale("fr_FR.UTF-8");
    EXPECT_EQ(fr.decimale + fr.milliers, ",\xA0");
    EXPECT_EQ(MarquesDeLocale("en_US.UTF-8").decimale + MarquesDeLocale("en_GB").milliers +
                  MarquesDeLocale("de_DE@euro").milliers,
              ".,.");
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
