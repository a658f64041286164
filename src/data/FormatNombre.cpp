#include "data/FormatNombre.h"

#include "utils/Chaines.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace verdane {

namespace {

// The shortest plain text that reads back as the float, e.g. "0.125" or "-3".
std::string TexteCourt(float valeur) {
    char tampon[128];
    const auto r = std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::fixed);
    return r.ec == std::errc() ? std::string(tampon, r.ptr) : std::string();
}

// Decimals that AUTO shows, from the shortest plain text of the value.
int DecimalesAuto(std::string_view texte) {
    const auto point = texte.find('.');
    if (point == std::string_view::npos) return 0;
    const auto fraction = texte.substr(point + 1);
    if (fraction.size() == 1) return 1;
    if (fraction[0] == '0' && fraction[1] == '0') return 0;
    if (fraction[1] == '0') return 1;
    return 2;
}

// A plain decimal text ("-12.345") rounded to n places, half away from zero, as a display
// pattern rounds what it is given.
std::string ArrondiDecimal(std::string texte, int n) {
    const bool negatif = !texte.empty() && texte[0] == '-';
    if (negatif) texte.erase(0, 1);
    auto point = texte.find('.');
    if (point == std::string::npos) {
        point = texte.size();
        texte += '.';
    }
    const std::size_t garde = point + 1 + static_cast<std::size_t>(n);
    const bool monter = texte.size() > garde && texte[garde] >= '5';
    texte.resize(garde, '0');
    if (monter) {
        std::size_t i = texte.size();
        while (i-- > 0) {
            if (texte[i] == '.') continue;
            if (texte[i] != '9') {
                ++texte[i];
                break;
            }
            texte[i] = '0';
            if (i == 0) texte.insert(0, "1");
        }
    }
    if (n == 0) texte.pop_back();
    return negatif ? "-" + texte : texte;
}

// The integer digits with the thousands mark between groups of three.
Texte Grouper(std::string_view chiffres, const Texte& milliers) {
    Texte r;
    for (std::size_t i = 0; i < chiffres.size(); ++i) {
        if (i > 0 && (chiffres.size() - i) % 3 == 0) r += milliers;
        r += chiffres[i];
    }
    return r;
}

Texte NonFini(float valeur) {
    if (std::isnan(valeur)) return "NaN";
    return valeur < 0 ? "-Inf" : "Inf";
}

} // namespace

Texte FormatNombre(float valeur, std::int16_t decimales, bool videSiZero,
                   const MarquesNombre& marques) {
    if (valeur == 0.0f && videSiZero) return " ";
    if (!std::isfinite(valeur)) return NonFini(valeur);
    std::string plein;
    if (decimales >= 0 && decimales <= 6) {
        // The float's exact value rounded once to that many places, ties to even.
        char tampon[128];
        const auto r = std::to_chars(tampon, tampon + sizeof tampon, static_cast<double>(valeur),
                                     std::chars_format::fixed, decimales);
        if (r.ec != std::errc()) return "?";
        plein.assign(tampon, r.ptr);
    } else {
        // AUTO: nothing rounded first; the pattern chosen rounds the plain text half away
        // from zero.
        const std::string court = TexteCourt(valeur);
        if (court.empty()) return "?";
        plein = ArrondiDecimal(court, DecimalesAuto(court));
    }
    std::string_view texte(plein);
    const bool negatif = !texte.empty() && texte[0] == '-';
    if (negatif) texte.remove_prefix(1);
    const auto point = texte.find('.');
    const auto entiers = texte.substr(0, point);
    Texte resultat = Grouper(entiers, marques.milliers);
    if (point != std::string_view::npos)
        resultat += marques.decimale + Texte(texte.substr(point + 1));
    // A value rounded to zero shows no sign.
    if (negatif && texte.find_first_of("123456789") != std::string_view::npos)
        resultat = "-" + resultat;
    return resultat;
}

std::optional<double> LireNombre(std::string_view texte, const MarquesNombre& marques) {
    Texte t = RognerTout(texte);
    if (!marques.milliers.empty() && marques.milliers != marques.decimale)
        t = RemplacerExact(t, marques.milliers, "");
    Texte propre;
    for (char c : t)
        if (c != ' ' && c != '\xA0') propre += c;
    if (marques.decimale != ".") propre = RemplacerExact(propre, marques.decimale, ".");
    std::string_view s = propre;
    if (s.size() > 1 && s[0] == '+' && s[1] != '-') s.remove_prefix(1);
    if (s.empty()) return std::nullopt;
    double valeur = 0;
    const auto r = std::from_chars(s.data(), s.data() + s.size(), valeur);
    if (r.ec != std::errc() || r.ptr != s.data() + s.size()) return std::nullopt;
    return valeur;
}

MarquesNombre MarquesDeLocale(std::string_view nomLocale) {
    const auto fin = nomLocale.find_first_of("_.@-");
    const Texte langue = Minuscules(nomLocale.substr(0, fin));
    static constexpr std::string_view kPointVirgule[] = {"en", "ja", "zh", "ko", "th",
                                                         "he", "hi", "ms", "ga", "cy"};
    static constexpr std::string_view kVirgulePoint[] = {"de", "es", "it", "nl", "pt", "da",
                                                         "id", "tr", "el", "ro", "hr", "sl",
                                                         "sr", "ca", "eu", "gl"};
    for (auto l : kPointVirgule)
        if (langue == l) return MarquesNombre{".", ","};
    for (auto l : kVirgulePoint)
        if (langue == l) return MarquesNombre{",", "."};
    return MarquesNombre{};
}

MarquesNombre MarquesDuSysteme() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* valeur = std::getenv(variable);
        if (valeur != nullptr && *valeur != '\0') return MarquesDeLocale(valeur);
    }
    return MarquesNombre{};
}

} // namespace verdane
