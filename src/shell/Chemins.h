#pragma once
// The folder tree of the installation, derived once at start.

#include "shell/etat/Etat.h"

namespace verdane {

// Address of the user guide when the installation has no guide folder.
inline constexpr const char* kAdresseGuide = "https://www.verdane.fr/guide/";

// Sets the folders of `chemins`. `dossierProgramme` is the program's own folder: the Marlo
// folder is the part of it up to the word "verdane" (found in lower case), empty when the word
// isn't there. `marloHome`, when not empty (the MARLO_HOME of the environment), names the
// Marlo folder itself and takes the place of what the program's folder would reveal.
void InitialiserChemins(Etat& etat, const Texte& dossierProgramme, const Texte& marloHome);

} // namespace verdane
