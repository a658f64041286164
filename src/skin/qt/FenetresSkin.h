#pragma once
// The skin of the desktop. Called first at start when there is a display: from then on every
// window of the program (a top-level window or dialog) wears the skin of the installation's
// skin folder from its first show, and its push buttons are skinned buttons. A window keeps
// the toolkit's own frame when it carries the dynamic property "verdaneSansSkin" = true.

#include "shell/etat/Contexte.h"

class QWidget;

namespace verdane::qt {

void InscrireFenetresSkin(Contexte& ctx);

// Dresses one window now, for code that wants it explicitly (the hook does it for all). False
// when no skin is loaded or the window isn't a top-level one.
bool HabillerFenetre(QWidget* fenetre);

} // namespace verdane::qt
