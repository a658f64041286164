#include "data/DonneesIni.h"

namespace verdane {

// Placeholder until the INI reader is in.
Texte LireDonneesIni(Contexte&, const Texte&) {
    return {};
}

} // namespace verdane
