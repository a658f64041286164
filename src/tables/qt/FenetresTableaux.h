#pragma once
// The table editor's window, put in the run's registry when there is a display.

#include "shell/etat/Contexte.h"

namespace verdane::qt {

// "FrmInserTab": {} opens the editor on the library; {code} recovers a table code taken from a
// document into it first.
void InscrireFenetresTableaux(Contexte& ctx);

} // namespace verdane::qt
