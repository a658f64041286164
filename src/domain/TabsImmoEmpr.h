#pragma once
// The fixed tables of a row of kind `imemp`: immobilisations, subsidies, loans, the
// investments-financing table, and the dispatch to the PDE tables.

#include "shell/etat/Contexte.h"

namespace verdane {

// The RTF that takes the place of row `ligne` (1 to 511) of the table being rendered (slot 1),
// whose code is `imemp:<sub>` or `imemp:<sub>:<d>`; `prefixe` is the row prefix the table
// walk built ("\trowd..."). Empty for an unknown sub-code or a code without ":".
Texte LigneImemp(Contexte& ctx, int ligne, const Texte& prefixe);
// The same from the row's code itself.
Texte TableauImemp(Contexte& ctx, const Texte& code, const Texte& prefixe);

// The list tables, for variant "s"/"t"/"2" (both groups), "0" (new) or "1" (old).
Texte TableauImmobilisations(Contexte& ctx, char variante, int decimales, const Texte& prefixe);
Texte TableauSubventions(Contexte& ctx, char variante, int decimales, const Texte& prefixe);
Texte TableauEmprunts(Contexte& ctx, char variante, int decimales, const Texte& prefixe);
// "Tableau des investissements-financements".
Texte TableauInvestissements(Contexte& ctx, int decimales, const Texte& prefixe);

// A label of a list: trimmed, lower case, a blank behind; longer than 22 characters, cut to
// `garde` characters and "." added unless the last kept one is a blank.
Texte LibelleListe(std::string_view libelle, std::size_t garde);

} // namespace verdane
