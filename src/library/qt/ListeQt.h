#pragma once
// A list of the library (ListeFichiers) in a tree widget of five columns: name, type, size,
// date, time. An empty list shows its one row, which can't be selected.

#include "library/ListeFichiers.h"

#include <QTreeWidget>

#include <vector>

namespace verdane::qt {

// Fills `arbre` with `liste`; with `cases` each row has a check box.
void RemplirListe(QTreeWidget& arbre, const ListeFichiers& liste, bool cases);
// The rows chosen: those ticked when the rows have check boxes, else those selected.
std::vector<LigneListe> LignesChoisies(const QTreeWidget& arbre, const ListeFichiers& liste);
// Ticks or unticks every row.
void CocherTout(QTreeWidget& arbre, bool coche);

} // namespace verdane::qt
