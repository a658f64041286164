#pragma once
// The codes known by their beginning (`ORGA`, `INFO:`, `INI:`, `date(`, tables, graphs,
// formulas) and the data codes, once no exact word matched.

#include "engine/Champ.h"
#include "engine/ExtensionsCode.h"
#include "shell/etat/Contexte.h"

namespace verdane {

enum class FormeExplication {
    Exemple,           // "... est le code pour afficher " + phrase + example of the value
    Seule,             // the mark + phrase, nothing more
    Phrase,            // the phrase alone (it names its code itself)
    PhraseAvecExemple, // the phrase, then the example
    Tableau,           // the code cut to 50 characters + "... " + phrase; no value
};

// What the dispatch of one code found.
struct Issue {
    bool inserer = true; // false: nothing inserted, the code stays as text
    Champ champ;
    FormeExplication explication = FormeExplication::Exemple;
    Texte technique; // second text of the explanation
    bool tableau = false;
};

// The value of a prefixed or data code. Messages for the malformed ones.
Issue CodeAPrefixe(Contexte& ctx, const Texte& code, bool expliquer, const Instant& maintenant);

// Position (from 1) of the "-" of a data code: the first, or the second if there is one; 0 if
// none.
int PositionTiret(const Texte& code);

// The code as a message shows it: cut to 50 characters and "..." when longer.
Texte CodeCourt(const Texte& code);

// The message form of an error in a model, with the advice to change it.
void MessageErreurCode(Contexte& ctx, const Texte& texte);

} // namespace verdane
