#pragma once
// What the table walker asks of the domain tables (crops, perennial crops, free animal
// activities, investments and loans). The walker knows these kinds of line by name only; the
// domain tables answer through this interface. Every answer defaults to nothing: without a
// domain behind it, such lines give no row and their cells no value.

#include "tables/DefinitionLigne.h"
#include "utils/Texte.h"

namespace verdane {

class Contexte;

class LignesDomaine {
public:
    virtual ~LignesDomaine() = default;

    // The rows of a line `cultu`, `cultp` or `imemp` (line `ligne` of the table in slot 1),
    // each beginning with `prefixe` (the "\trowd..." of the line). Empty: no row.
    virtual Texte Lignes(Contexte& /*ctx*/, GenreLigne /*genre*/, int /*ligne*/,
                         const Texte& /*prefixe*/) {
        return {};
    }

    // The text of one value cell of kind `cultu`, `cultp`, `scult`, `scltp`, `ALani` or
    // `imemp` (without annex), for `reste` (the definition behind its kind, zero rule cut
    // off) and column `colonne`. The walker then records it as a number.
    virtual Texte Valeur(Contexte& /*ctx*/, GenreLigne /*genre*/, const Texte& /*reste*/,
                         int /*colonne*/) {
        return {};
    }

    // The label of the crop being repeated: the first label cell of a `scult` line in a table
    // whose header form is 1.
    virtual Texte LibelleCulture(Contexte& /*ctx*/) { return {}; }
};

} // namespace verdane
