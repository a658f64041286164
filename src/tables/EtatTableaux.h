#pragma once
// State of the table engine kept between tables of one run.

#include <array>
#include <cstdint>

namespace verdane {

struct EtatTableaux {
    // Values of the rendered lines, by column 0 to 15 and line 1 to 511; kept from one table
    // to the next (formulas of a table may read the lines of the one before).
    std::array<std::array<float, 512>, 16> valeursLignes{};
};

} // namespace verdane
