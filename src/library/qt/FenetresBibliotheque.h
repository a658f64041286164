#pragma once
// The forms of the model library, put in the run's registry when there is a display.

#include "shell/etat/Contexte.h"

namespace verdane::qt {

void InscrireFenetresBibliotheque(Contexte& ctx);

// The open, create, export and library dialogs.
void InscrireFenetresModeles(Contexte& ctx);
// The data, date and annotation insertion dialogs, and the reading of a selected code.
void InscrireFenetresInsertion(Contexte& ctx);

} // namespace verdane::qt
