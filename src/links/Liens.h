#pragma once
// What the rest of the program asks of "the" word processor: the dispatch on the linked one.

#include "shell/Contexte.h"

namespace verdane {

// The lower-case file name of the linked word processor: "winword.exe", "wordpro.exe",
// "soffice.exe" or anything else.
Texte EditeurCourant(const Etat& etat);
// The editor number of the linked word processor; Aucun when none of the three is linked.
Editeur EditeurLie(const Etat& etat);

// Opens a document in the linked word processor, or says that none is linked.
void OuvrirDansEditeur(Contexte& ctx, const Texte& chemin);
// Shows a created or refreshed document in the linked word processor.
void AfficherDocument(Contexte& ctx, const Texte& chemin);
// The one save-as of all links.
void SauverSous(Contexte& ctx, bool fermeture, Editeur editeur, const Texte& chemin,
                bool confirmer);

} // namespace verdane
