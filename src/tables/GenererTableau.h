#pragma once
// A table code of a document (`tab...`, as the mark #mrl(tab...)# holds it) turned into the RTF
// rows that replace the mark; and the value of a "formule:" code.

#include "utils/Texte.h"

namespace verdane {

class Contexte;

// The RTF of the table: blanks of the code deleted ("_" stands for them), RTF escapes of
// accented letters turned into letters, the code read into slot 1 (the only slot left; a
// repetition prefix, when the code carries one, is read too), the dossiers of a multi-dossier
// table selected, then each line rendered in order. Dropped lines leave nothing.
Texte GenererTableau(Contexte& ctx, const Texte& code);

// The value of a code "formule:<year>a:<formula>[:<decimals>]", given what follows
// "formule:": the formula computed for that year. A code without its "a" or its ":" gives
// kCodeMalRenseigne (the interpreter tells the user).
Texte ValeurCodeFormule(Contexte& ctx, const Texte& reste);

inline constexpr const char* kCodeMalRenseigne = "<Code Mal renseigné : valeur non calculée>";

} // namespace verdane
