#pragma once
// The bar as a dock of the X11 desktop: window type DOCK and a strut that reserves its height
// at the top of the screen, so that maximised windows stay below it.

class QWidget;

namespace verdane::qt {

// True when the program draws on X11.
bool SurX11();
// Marks `fenetre` (its native window made if need be) as a dock, before it is shown.
void MarquerDock(QWidget& fenetre);
// Reserves `hauteur` pixels at the top of the screen over the screen's width (0 frees it).
// Does nothing off X11.
void ReserverHaut(QWidget& fenetre, int hauteur);

} // namespace verdane::qt
