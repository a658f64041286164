#pragma once
// The domain tables as the table walker sees them: the rows of the lines `cultu`, `cultp` and
// `imemp`, the values of the cells of the crop, activity and investment kinds, and the label
// of the crop being repeated.

#include "tables/LignesDomaine.h"

namespace verdane {

class LignesDomaineMarlo : public LignesDomaine {
public:
    Texte Lignes(Contexte& ctx, GenreLigne genre, int ligne, const Texte& prefixe) override;
    Texte Valeur(Contexte& ctx, GenreLigne genre, const Texte& reste, int colonne) override;
    Texte LibelleCulture(Contexte& ctx) override;
};

// Plugs the domain tables into the table walker of `ctx`. The object holds no state: every
// run may share it.
void BrancherDomaine(Contexte& ctx);

} // namespace verdane
