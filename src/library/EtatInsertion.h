#pragma once
// What the insertion dialogs share during a run: the code waiting to be sent, the table cell
// that takes it while the table line editor is open, and the last code read back from the
// document.

#include "utils/Texte.h"

#include <functional>

namespace verdane {

struct EtatInsertion {
    // The pending code, without its marks; every composer fills it, InsererCode sends it.
    Texte codeEnAttente;
    // True while the table line editor is open: codes then go into its focused cell.
    bool modeCellule = false;
    // Pastes a text into the focused cell of the table line editor (the focused text box
    // stands behind it); false when it could not.
    std::function<bool(const Texte&)> collerCellule;
    // The last code read from the document's selection, as "#mrl(...)#": the help entries
    // (chart preview, table or graph taken back) work on it.
    Texte codeSelectionne;
};

} // namespace verdane
