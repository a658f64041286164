#pragma once
// A row laid with the cells of a line of the table model: its label columns with their
// formats, and its value columns by the table's year mode. The crop rows and the PDE
// investments table lay their rows so.

#include "shell/etat/Contexte.h"
#include "tables/TableauModele.h"

#include <functional>
#include <vector>

namespace verdane {

// The value columns of a table: their indexes (year 0 in year mode 1, first and last in year
// mode 2, none in year mode 3) and the width of each.
struct ColonnesValeurs {
    std::vector<int> colonnes;
    int largeur = 0;
};
ColonnesValeurs ColonnesDuTableau(const TableauModele& tableau, int nbAnEtude);

// `libelles` replaces the texts of the label columns (missing ones keep the line's own);
// `valeur` gives the number of a value column; `decimales` as the number text takes them.
Texte RangeeModele(const Etat& etat, const TableauModele& tableau, const LigneModele& ligne,
                   const Texte& prefixe, const std::vector<Texte>& libelles,
                   const std::function<float(int)>& valeur, int decimales);

} // namespace verdane
