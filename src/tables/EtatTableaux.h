#pragma once
// State of the table engine kept between tables of one run.

#include "tables/TableauModele.h"

#include <array>
#include <cstdint>
#include <vector>

namespace verdane {

struct EtatTableaux {
    // Values of the rendered lines, by column 0 to 15 and line 1 to 511; kept from one table
    // to the next (formulas of a table may read the lines of the one before).
    std::array<std::array<float, 512>, 16> valeursLignes{};

    // The loaded tables: the library of the editor, or the single table being generated in
    // slot 1. Table n is TableauxCourants[n-1].
    std::vector<TableauModele> TableauxCourants;

    // Table n counted from 1; null when there is no such slot.
    TableauModele* Tableau(int numero) {
        return numero >= 1 && static_cast<std::size_t>(numero) <= TableauxCourants.size()
                   ? &TableauxCourants[static_cast<std::size_t>(numero - 1)]
                   : nullptr;
    }
};

} // namespace verdane
