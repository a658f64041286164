#pragma once
// What the table editor's preview grid shows of a table model: one row per line, its label
// cells and its value columns as they will print, with sample numbers for the values.

#include "tables/TableauModele.h"

#include <vector>

namespace verdane {

struct RangeeApercu {
    std::vector<Texte> cellules; // label columns, then value columns
    bool gras = false;           // label cells in bold
    bool espace = false;         // a spacing or page-break line: no cells
};

struct ApercuTableau {
    int colonnesLibelle = 0;
    std::vector<Texte> entetes; // captions of every column
    std::vector<RangeeApercu> rangees;
};

// The preview of `t` over a study of `nbAnnees` years from `anneeDebut` (5 years from this
// year's when no dossier gives them).
ApercuTableau Apercu(const TableauModele& t, int nbAnnees, int anneeDebut);

} // namespace verdane
