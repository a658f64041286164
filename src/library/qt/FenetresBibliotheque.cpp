#include "library/qt/FenetresBibliotheque.h"

namespace verdane::qt {

void InscrireFenetresBibliotheque(Contexte& ctx) {
    InscrireFenetresModeles(ctx);
    InscrireFenetresInsertion(ctx);
}

} // namespace verdane::qt
