#pragma once
// The windows of other parts of the program that the library's dialogs open, by their name in
// the run's registry.

#include "shell/etat/Contexte.h"

#include <vector>

namespace verdane::qt {

// Opens the form `nom` with `arguments`; when the run has no such form, says so.
void OuvrirAutreFenetre(Contexte& ctx, const Texte& nom, const std::vector<Texte>& arguments);

} // namespace verdane::qt
