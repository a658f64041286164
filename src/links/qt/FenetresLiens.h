#pragma once
// The link's windows, put in the run's registry when there is a display: the editor choice
// ("FrmChoixEditeur").

#include "shell/etat/Contexte.h"

namespace verdane::qt {

void InscrireFenetresLiens(Contexte& ctx);

} // namespace verdane::qt
