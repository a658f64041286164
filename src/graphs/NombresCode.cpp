#include "graphs/NombresCode.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace verdane {

Texte TexteReel(float valeur, std::string_view decimale) {
    if (!std::isfinite(valeur)) return "0";
    std::array<char, 64> tampon{};
    const auto fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur).ptr;
    Texte t;
    for (const char* p = tampon.data(); p != fin; ++p) {
        if (*p == '.')
            t += decimale;
        else if (*p == 'e')
            t += 'E';
        else
            t += *p;
    }
    return t;
}

namespace {

bool Chiffre(char c) {
    return c >= '0' && c <= '9';
}

// The text in the form the standard reader takes, or nothing if it isn't a number.
std::optional<std::string> FormeNormale(std::string_view texte) {
    while (!texte.empty() && texte.front() == ' ') texte.remove_prefix(1);
    while (!texte.empty() && texte.back() == ' ') texte.remove_suffix(1);
    std::string forme;
    std::size_t i = 0;
    if (i < texte.size() && (texte[i] == '+' || texte[i] == '-')) {
        if (texte[i] == '-') forme += '-';
        ++i;
    }
    int chiffres = 0;
    for (; i < texte.size() && Chiffre(texte[i]); ++i, ++chiffres) forme += texte[i];
    if (i < texte.size() && (texte[i] == ',' || texte[i] == '.')) {
        forme += '.';
        for (++i; i < texte.size() && Chiffre(texte[i]); ++i, ++chiffres) forme += texte[i];
    }
    if (chiffres == 0) return std::nullopt;
    if (i < texte.size() && (texte[i] == 'E' || texte[i] == 'e')) {
        forme += 'e';
        ++i;
        if (i < texte.size() && (texte[i] == '+' || texte[i] == '-')) forme += texte[i++];
        const std::size_t debut = i;
        for (; i < texte.size() && Chiffre(texte[i]); ++i) forme += texte[i];
        if (i == debut) return std::nullopt;
    }
    if (i != texte.size()) return std::nullopt;
    return forme;
}

// Parsed straight into the type asked for, so that a real reads back to the very number its
// shortest text was made from. Too large: nothing; too small: 0.
template <typename T> std::optional<T> Convertir(std::string_view texte) {
    const auto forme = FormeNormale(texte);
    if (!forme) return std::nullopt;
    T valeur = 0;
    const auto r = std::from_chars(forme->data(), forme->data() + forme->size(), valeur);
    if (r.ec == std::errc::result_out_of_range) {
        if (forme->find("e-") == std::string::npos) return std::nullopt;
        return T{0};
    }
    if (r.ec != std::errc{} || !std::isfinite(valeur)) return std::nullopt;
    return valeur;
}

} // namespace

std::optional<double> LireNombreCode(std::string_view texte) {
    return Convertir<double>(texte);
}

std::optional<std::int16_t> LireEntierCode(std::string_view texte) {
    const auto v = LireNombreCode(texte);
    if (!v) return std::nullopt;
    const double arrondi = std::nearbyint(*v);
    if (arrondi < std::numeric_limits<std::int16_t>::min() ||
        arrondi > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<std::int16_t>(arrondi);
}

std::optional<float> LireReelCode(std::string_view texte) {
    return Convertir<float>(texte);
}

} // namespace verdane
