#pragma once
// The value of a code put in the place of its mark, with its annotation when the options ask for
// one, and the tooltip of the `INFO:` codes.

#include "shell/etat/Contexte.h"

namespace verdane {

// The number of every annotation this program writes.
inline constexpr const char* kIdAnnotation = "47317183";

// Replaces the mark that starts at `debutMarque` (from 1) and closes at `fin` (the position of
// its ")#") by `valeur`, trimmed, "\~" when blank. Outside a table cell (`imbrique` false) the
// value may carry an annotation holding ctx.etat.CodeEnCours, and an `INFO:` code becomes a
// tooltip. Result: the position (from 1) just behind the inserted text. Throws
// std::runtime_error, `texte` untouched, when the size of a tooltip isn't a number.
long InsererValeur(Contexte& ctx, Texte& texte, long debutMarque, long fin, const Texte& valeur,
                   bool imbrique);

// Turns the "\'xx" escapes of the accented letters of French back into letters, in place; any
// other escape is dropped.
void RtfVersTexte(Texte& texte);

} // namespace verdane
