#pragma once
// The shell's windows, put in the run's registry when there is a display: the bar
// ("frmBarre") and the about window ("FrmAPropos").

#include "shell/etat/Contexte.h"

namespace verdane::qt {

void InscrireFenetresShell(Contexte& ctx);

// The normal start of the bar and its life: one bar per display, the start steps, the dock,
// the news window, then the bar's events until it closes. Returns the exit status.
int OuvrirBarre(Contexte& ctx);

} // namespace verdane::qt
