// The largest table: 511 lines, 9 label columns and 14 value columns (the start year and 13
// study years), with totals over the lines above, and with series read from the dossier. Its
// time is measured by bench/bench_moteur.

#include "EssaisRendu.h"
#include "tables/GenererTableau.h"

#include <gtest/gtest.h>


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

TEST_F(RenduTest, LePlusGrandTableauARangeeParLigne) {
    ctx.etat.nbAnEtude = 13;
    for (bool series : {false, true}) {
        const Texte rtf = GenererTableau(ctx, GrandTableau(series));
        std::size_t rangees = 0;
        for (auto p = rtf.find("\\row"); p != Texte::npos; p = rtf.find("\\row", p + 1)) ++rangees;
        EXPECT_EQ(rangees, 511u);
    }
    // Line 3: twice the series as displayed (1234, not 1234.5) plus the header line's 0.
    EXPECT_FLOAT_EQ(Valeur(3, 3), 2 * 1234.0f);
}

} // namespace
} // namespace verdane
