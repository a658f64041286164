#pragma once
// What the rest of the program asks of "the" word processor: the dispatch on the linked one,
// the one save-as of all links, and the names it is known by.

#include "shell/etat/Contexte.h"

namespace verdane {

// The lower-case file name of the linked word processor: "winword.exe", "wordpro.exe",
// "soffice.exe" or anything else. The LibreOffice executables of this system ("soffice",
// "libreoffice", with or without a version behind) count as "soffice.exe".
Texte EditeurCourant(const Etat& etat);
// The editor number of the linked word processor; Aucun when none of the three is linked.
Editeur EditeurLie(const Etat& etat);
// The editor number of an executable's file name as EditeurCourant gives it.
Editeur EditeurDuNom(const Texte& nomExecutable);

// The name shown for a word processor path: "Aucun", "Microsoft Word", "Lotus Word Pro",
// "Sun OpenOffice", or the file name less its extension, capitalised.
Texte NomEditeurAffiche(const Texte& cheminEditeur);

// The file URL of a path the way the office takes it: "\" to "/", ":" to "|", blanks to
// "%20", "file:///" in front. A path of this system starting with "/" keeps three slashes.
Texte CheminVersURL(const Texte& chemin);

// The format of a save told by the last three letters of the path.
FormatDocument FormatDuChemin(const Texte& chemin);

// Opens a document in the linked word processor, or says that none is linked.
void OuvrirDansEditeur(Contexte& ctx, const Texte& chemin);
// Shows a created or refreshed document in the linked word processor.
void AfficherDocument(Contexte& ctx, const Texte& chemin);

// The one save-as of all links: saves the active document of word processor `editeur` under
// `chemin` (a dialog asks when it is empty). `fermeture` closes the document after;
// `confirmer` asks before a change of format. A model (".vdm") is saved as RTF and renamed.
// True when the document was saved.
bool SauverSous(Contexte& ctx, bool fermeture, Editeur editeur, const Texte& chemin,
                bool confirmer);

// The text shown when no word processor is linked, and its technical text and caption.
void SignalerAucunEditeur(Contexte& ctx);

} // namespace verdane
