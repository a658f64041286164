#include "library/qt/FenetresBibliotheque.h"

namespace verdane::qt {

void InscrireFenetresInsertion(Contexte&) {}

} // namespace verdane::qt
