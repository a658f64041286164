// The time of the largest table: 511 lines, 9 label columns and 14 value columns (the start
// year and 13 study years). Two figures are printed: the renderer alone (totals over the lines
// above), and with a series read from the dossier in two lines out of three (each value reads
// its .don file anew, path resolution without regard to case included).

#include "EssaisRendu.h"
#include "tables/GenererTableau.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>

namespace verdane {
namespace {

using essais_rendu::RenduTest;

Texte GrandTableau(bool series) {
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
        if (n == 2 || (series && n % 3 != 0)) definition = "serie:PROD.DON+PROD-1:0:0";
        if (n == 1) definition = "entete:1";
        code += "[" + definition + format + "]";
    }
    return code + ")";
}

TEST_F(RenduTest, PlusGrandTableau) {
    ctx.etat.nbAnEtude = 13;
    for (bool series : {false, true}) {
        const Texte code = GrandTableau(series);
        const auto debut = std::chrono::steady_clock::now();
        const Texte rtf = GenererTableau(ctx, code);
        const double ms =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - debut)
                .count();
        std::printf("[ mesure  ] 511 lignes x (9 + 14) cellules, %s : %.1f ms, %zu octets\n",
                    series ? "séries du dossier" : "totaux seuls", ms, rtf.size());
        std::size_t rangees = 0;
        for (auto p = rtf.find("\\row"); p != Texte::npos; p = rtf.find("\\row", p + 1)) ++rangees;
        EXPECT_EQ(rangees, 511u);
        // Generous bound for a loaded machine; the figure is what counts.
        EXPECT_LT(ms, series ? 5000.0 : 1000.0);
    }
    // Line 3: twice the series as displayed (1234, not 1234.5) plus the header line's 0.
    EXPECT_FLOAT_EQ(Valeur(3, 3), 2 * 1234.0f);
}

} // namespace
} // namespace verdane
