#pragma once
// The user's files kept in order: document models, text documents, table and graph models.
// Copies, transfers, renames and deletions, each told to the user as it goes. A library is
// never changed in place: its new content is written beside it and renamed over it, so a
// failure anywhere leaves both the source and the destination as they were.

#include "library/ListeFichiers.h"
#include "shell/etat/Contexte.h"

#include <vector>

namespace verdane {

// Copies the rows `choix` of the list `tag` of `source` into `destination`, after asking.
// Files are copied whole, tables and graphs appended to the destination's library. Returns the
// number of items copied.
int TransfererSelection(Contexte& ctx, const Texte& source, const Texte& destination,
                        const Texte& tag, const std::vector<LigneListe>& choix);

// Appends the graph named `nom` (the first of that name) of source's graph.txt behind the last
// record of destination's, asking first when the destination holds that name already.
bool CopierGraphe(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom);
// Appends the table named `nom` of source's tableaux.txt to destination's.
bool CopierTableau(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom);

// Renames the file `ancien` (its path) to `nouveau` (a name, in the same folder); the extension
// stays. True when renamed.
bool RenommerDocument(Contexte& ctx, const Texte& ancien, const Texte& nouveau);

// Deletes the rows `choix` of the list `tag` of `dossier`, each after its question. Returns
// the number deleted.
int SupprimerSelection(Contexte& ctx, const Texte& dossier, const Texte& tag,
                       const std::vector<LigneListe>& choix);
// Deletes every item of the list `tag` of `dossier` after one question: the files, or the
// library file itself for tables and graphs. True when done.
bool SupprimerTout(Contexte& ctx, const Texte& dossier, const Texte& tag);

// The deletions without their questions, for dialogs that ask their own: the rows `choix`, or
// (empty `choix`) all. Each deletion is told. Returns the number deleted.
int SupprimerElements(Contexte& ctx, const Texte& dossier, const Texte& tag,
                      const std::vector<LigneListe>& choix);
int SupprimerTousElements(Contexte& ctx, const Texte& dossier, const Texte& tag);

// Converts the document `chemin` to the format of letter `lettre` (see FormatsDocument.h)
// through the word processor, after asking. True when converted.
bool ConvertirEnFormat(Contexte& ctx, const Texte& chemin, char lettre);

} // namespace verdane
