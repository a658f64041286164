#pragma once
// The PDE Cerfa pages: the page list, the model of each page, and the fixed tables that the
// pages hold as rows of kind `imemp` (`finap`, `finan`, `finaa`, `inve1`, `empr2`, `empr3`).

#include "shell/etat/Contexte.h"

#include <array>

namespace verdane {

// The texts of the page list, index 0 (the whole document) to 15.
const std::array<const char*, 16>& PagesPDE();
// The model of a page under the models folder: index 0 "PDE\PDECerfa<suffix>.vdm", else
// "PDE\PDE<index>.vdm". Empty outside 0 to 15.
Texte ModelePDE(int index, bool societe);
// The proposed name of the result: "PDECerfa" for index 0, else the page's text.
Texte NomResultatPDE(int index);
// Whether the company pages are shown: always for a company; for an individual farm the user
// is asked (Yes: the company model).
bool SuffixeSocietePDE(Contexte& ctx);

// The tables; `prefixe` is the row prefix with its gap set to 5.
Texte TableauPlansFinancement(Contexte& ctx, int decimales, const Texte& prefixe);
Texte TableauFinancements(Contexte& ctx, char variante, int decimales, const Texte& prefixe);
Texte TableauEcheancier(Contexte& ctx, bool jeuneAgriculteur, int decimales, const Texte& prefixe);
Texte TableauInve1(Contexte& ctx, const Texte& prefixe);

// Empty rows that bring a list of `lignes` lines to the official page length of 27: groups of
// three, (27 - lines) / 3 of them.
int GroupesBourrage(int lignes);

} // namespace verdane
