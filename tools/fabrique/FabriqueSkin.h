#pragma once
// The program's own skin, drawn here: the bitmap of the window frames and buttons with its
// description Skin.ini, the move cursor deplace.ico, and the bar's tab pictures SelOnglet1..6
// and FondDroit1..6. Each bitmap comes at 96 DPI and, named with "@2x", at 192 DPI.

#include "Fabrique.h"

#include <vector>

namespace verdane::fabrique {

std::vector<Fabrication> FabriquerSkin();

} // namespace verdane::fabrique
