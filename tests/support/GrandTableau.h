#pragma once
// The code of the largest table: 511 lines of 9 label columns and 14 value columns. Lines are
// totals over the two lines above or, with `series`, in two lines out of three the series
// `codeSerie` (a data code such as "PROD.DON+PROD-1").

#include "utils/Texte.h"

#include <string>

namespace verdane::test {

inline Texte CodeGrandTableau(bool series, const Texte& codeSerie) {
    const Texte format = ";5006;10;1;0;0;0;0;0;r;1;1;1;1;8";
    Texte code = "tabp9c1";
    for (int c = 0; c < 9; ++c) code += ";larg900";
    code += ";larg14000(";
    for (int n = 1; n <= 511; ++n) {
        if (n > 1) code += "#";
        code += "[280;120]";
        for (int c = 0; c < 9; ++c) code += "[L" + std::to_string(n) + format + "]";
        Texte definition =
            "totalC:LG" + std::to_string(n - 1) + "*2+LG" + std::to_string(n - 2) + ":2:0";
        if (n == 2 || (series && n % 3 != 0)) definition = "serie:" + codeSerie + ":0:0";
        if (n == 1) definition = "entete:1";
        code += "[" + definition + format + "]";
    }
    return code + ")";
}

} // namespace verdane::test
