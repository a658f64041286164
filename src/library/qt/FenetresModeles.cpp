#include "library/qt/FenetresBibliotheque.h"

namespace verdane::qt {

void InscrireFenetresModeles(Contexte&) {}

} // namespace verdane::qt
