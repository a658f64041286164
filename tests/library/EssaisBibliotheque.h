#pragma once
// Libraries written from their layouts for the tests of the library operations: graph records
// of 1224 bytes (title at byte 2 on 60 bytes, kind at byte 62 on 2 bytes, little-endian) and
// table entries of three lines.

#include "utils/Texte.h"

#include <cstdint>
#include <string>

namespace verdane::test {

inline std::string EnregistrementGraphe(const std::string& titre, std::int16_t type,
                                        char remplissage = '\0') {
    std::string r(1224, remplissage);
    std::string t = titre.substr(0, 60);
    t.resize(60, ' ');
    r.replace(2, 60, t);
    r[62] = static_cast<char>(type & 0xFF);
    r[63] = static_cast<char>((type >> 8) & 0xFF);
    return r;
}

inline std::string EntreeTableau(const std::string& nom, const std::string& dossier,
                                 const std::string& code) {
    return "[" + nom + "][" + dossier + "][]\r\n#mrl(" + code + ")#\r\n\r\n";
}

} // namespace verdane::test
