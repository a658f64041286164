#pragma once
// State of the crop and activity loops: which crop or module is being expanded. The loops set
// these fields; the `@` data codes read them.

#include "utils/Texte.h"

namespace verdane {

struct EtatDomaine {
    // Current annual crop: its number (a float in the crop list, giving `Cult<n>.don`), its
    // label (fixed string of 23) and its surface unit ("ha", "are" or "m²").
    float numCulture = 0;
    Texte libelleCulture;
    Texte uniteCulture;
    // Current perennial crop: number (giving `CltP<n>.don`), label (fixed string of 30), unit.
    float numCulturePerenne = 0;
    Texte libelleCulturePerenne;
    Texte uniteCulturePerenne;
    // Current animal module (giving `AL<NN>AL.don`) and its activity name.
    int numModuleAnimal = 0;
    Texte libelleModuleAnimal;
};

} // namespace verdane
