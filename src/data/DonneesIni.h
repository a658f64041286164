#pragma once
// Free texts of donnees.INI, for the `INI:` codes.

#include "shell/etat/Contexte.h"

namespace verdane {

// `code` is the text of the code from "INI:" on: "INI:Nom" reads key Nom of section
// "Général", "INI:Banque:Nom" key Nom of section Banque.
Texte LireDonneesIni(Contexte& ctx, const Texte& code);

} // namespace verdane
