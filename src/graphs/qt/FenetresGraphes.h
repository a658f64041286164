#pragma once
// The graph editor's window, put in the run's registry when there is a display.

#include "shell/etat/Contexte.h"

namespace verdane::qt {

// "FrmGraphik": {"GRAPH", dossier} from the job of the command line, titled with the dossier's
// name and drawing its values; otherwise {title[, graph index]} from the bar's menus, or
// {title, gph( code} for a graph taken back from a document into the library.
void InscrireFenetresGraphes(Contexte& ctx);

// Opens the editor, modal, as the registry's arguments ask.
int OuvrirFrmGraphik(Contexte& ctx, const std::vector<Texte>& arguments);

} // namespace verdane::qt
