#pragma once
// State of the table engine kept between tables of one run.

#include "tables/TableauModele.h"
#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace verdane {

class LignesDomaine;

struct EtatTableaux {
    // Values of the rendered lines, by column 0 to 15 and line 1 to 511; kept from one table
    // to the next (formulas of a table may read the lines of the one before).
    std::array<std::array<float, 512>, 16> valeursLignes{};

    // The loaded tables: the library of the editor, or the single table being generated in
    // slot 1. Table n is TableauxCourants[n-1].
    std::vector<TableauModele> TableauxCourants;

    // Number (from 1) of the line of slot 1 being rendered; 0 outside a table.
    std::int16_t ligneCourante = 0;

    // How many dossiers the multi-dossier tables of this document compare (slots 1 to this
    // count); 0 until the first such table of a generation has asked.
    std::int16_t nbDossiersChoisis = 0;

    // Hooks that the document engine and the domain tables plug in (not set: nothing).
    // Expands the marks %mrl(...)% of a cell text in place.
    std::function<void(Texte&)> codesImbriques;
    // Rows and values of the crop, activity and investment lines.
    LignesDomaine* lignesDomaine = nullptr;

    // Table n counted from 1; null when there is no such slot.
    TableauModele* Tableau(int numero) {
        return numero >= 1 && static_cast<std::size_t>(numero) <= TableauxCourants.size()
                   ? &TableauxCourants[static_cast<std::size_t>(numero - 1)]
                   : nullptr;
    }
};

} // namespace verdane
