#pragma once
// The road of a composed code into the document: the cell of the table line editor while it is
// open, else the cursor of the linked word processor.

#include "shell/etat/Contexte.h"

namespace verdane {

// Sends ctx.etat.insertion.codeEnAttente: each blank becomes "_"; in cell mode the cell gets
// "%mrl(" + code + ")%", else the word processor gets "#mrl(" + code + ")#" at its cursor.
// True when the code went in; otherwise the user has been told why.
bool InsererCode(Contexte& ctx);

// Puts `texte` as it stands at the cursor of the linked word processor, with no font and no
// size; says so when no word processor is linked. True when the text went in.
bool InsererDansEditeur(Contexte& ctx, const Texte& texte);

} // namespace verdane
