#pragma once
// The value of a code and the words that explain it.

#include "utils/Texte.h"

namespace verdane {

struct Champ {
    Texte valeur;
    // The end of "... est le code pour afficher " + phrase.
    Texte phrase;
    // A list: lines separated by "\par ", shown one a line in the explanation.
    bool liste = false;
};

} // namespace verdane
