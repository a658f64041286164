#pragma once
// The field interpreter: the value of one code, put in the place of its mark.

#include "shell/etat/Contexte.h"

namespace verdane {

// What the explanation mode tells the user about a code, kept for the dialogs.
struct Explication {
    Texte code;                 // "#mrl(<code>)#", the code as written
    Texte phrase;               // the main text of the message form
    Texte technique;            // its technical text, if any
    Texte valeur;               // the value for the linked dossier, "\par " turned into line breaks
    bool valeurCalculee = true; // false for tables: their value isn't computed in this mode
    bool tableau = false;       // a `tab` code: its model can be taken back into the editor
};

// Takes the code that stands in `texte` from `suite` to `fin` (exclusive; positions from 1,
// `debutMarque` being the mark's first character and `fin` the position of its close), works
// out its value and puts it in the place of the whole mark. `suite` comes back as the position
// where the scan goes on. `expliquer`: also tell the user what the code means (message form of
// kind "Aide"), and fill `explication` if given. `imbrique`: a code of a table cell, no
// annotation. Result: false only after a false condition.
bool InterpreterCode(Contexte& ctx, Texte& texte, long debutMarque, long& suite, long fin,
                     bool expliquer, bool imbrique, Explication* explication = nullptr);

} // namespace verdane
