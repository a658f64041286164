// The largest table: 511 lines, 9 label columns and 14 value columns (the start year and 13
// study years), with totals over the lines above, and with series read from the dossier. Its
// time is measured by bench/bench_moteur.

#include "EssaisRendu.h"
#include "support/GrandTableau.h"
#include "tables/GenererTableau.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using essais_rendu::RenduTest;

TEST_F(RenduTest, LePlusGrandTableauARangeeParLigne) {
    ctx.etat.nbAnEtude = 13;
    for (bool series : {false, true}) {
        const Texte rtf = GenererTableau(ctx, test::CodeGrandTableau(series, "PROD.DON+PROD-1"));
        std::size_t rangees = 0;
        for (auto p = rtf.find("\\row"); p != Texte::npos; p = rtf.find("\\row", p + 1)) ++rangees;
        EXPECT_EQ(rangees, 511u);
    }
    // Line 3: twice the series as displayed (1234, not 1234.5) plus the header line's 0.
    EXPECT_FLOAT_EQ(Valeur(3, 3), 2 * 1234.0f);
}

} // namespace
} // namespace verdane
