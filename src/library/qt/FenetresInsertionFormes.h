#pragma once
// The insertion windows and entries, put in the registry whatever the display: for the run's
// start when there is one, and for tests that open them off screen.

#include "shell/etat/Contexte.h"

namespace verdane::qt {

// "FrmInserVal" {tag}, "FrmDate", "FrmInfoBulle", "InsererCode" {code}, and the help entries
// on a selected code: "lblRecupMdl1", "lblVoirGraph", "lblVoirMdlGraph", "lblRecupTab".
void InscrireFormesInsertion(Contexte& ctx);

} // namespace verdane::qt
