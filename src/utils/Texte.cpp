#include "utils/Texte.h"

#include <array>
#include <cstdint>

namespace verdane {
namespace {

// Code points of the bytes 0x80 to 0x9F; the others are the same as Latin-1.
constexpr std::array<char32_t, 32> kPlage80 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t PointDeCode(unsigned char c) {
    if (c >= 0x80 && c <= 0x9F) return kPlage80[c - 0x80];
    return c;
}

void AjouterUtf8(std::string& sortie, char32_t cp) {
    if (cp < 0x80) {
        sortie += static_cast<char>(cp);
    } else if (cp < 0x800) {
        sortie += static_cast<char>(0xC0 | (cp >> 6));
        sortie += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        sortie += static_cast<char>(0xE0 | (cp >> 12));
        sortie += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        sortie += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

char OctetCp1252(char32_t cp) {
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
    for (std::size_t i = 0; i < kPlage80.size(); ++i)
        if (kPlage80[i] == cp) return static_cast<char>(0x80 + i);
    return '?';
}

} // namespace

std::string Cp1252VersUtf8(std::string_view texte) {
    std::string sortie;
    sortie.reserve(texte.size() + texte.size() / 8);
    for (char c : texte) AjouterUtf8(sortie, PointDeCode(static_cast<unsigned char>(c)));
    return sortie;
}

Texte Utf8VersCp1252(std::string_view utf8) {
    Texte sortie;
    sortie.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        std::size_t n = 0;
        char32_t cp = 0;
        if (c < 0x80) {
            n = 1;
            cp = c;
        } else if ((c & 0xE0) == 0xC0) {
            n = 2;
            cp = c & 0x1F;
        } else if ((c & 0xF0) == 0xE0) {
            n = 3;
            cp = c & 0x0F;
        } else if ((c & 0xF8) == 0xF0) {
            n = 4;
            cp = c & 0x07;
        }
        bool valide = n > 0 && i + n <= utf8.size();
        for (std::size_t k = 1; valide && k < n; ++k) {
            const auto suite = static_cast<unsigned char>(utf8[i + k]);
            if ((suite & 0xC0) != 0x80) valide = false;
            cp = (cp << 6) | (suite & 0x3F);
        }
        if (valide && n > 1 && cp < 0x80) valide = false; // overlong form
        if (!valide) {
            sortie += static_cast<char>(c);
            ++i;
            continue;
        }
        sortie += OctetCp1252(cp);
        i += n;
    }
    return sortie;
}

} // namespace verdane
