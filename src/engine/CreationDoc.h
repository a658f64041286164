#pragma once
// The one routine that turns a model into a finished document, and refreshes a finished one.

#include "shell/etat/Contexte.h"

namespace verdane {

enum class IssueCreation {
    Faite,              // the document was written
    Abandonnee,         // nothing to do: empty model path, or the user declined
    ModeleIllisible,    // the model can't be read
    ResultatImpossible, // the result can't be written
};

// `modele`: the model, or in an update the document to refresh; `resultat`: the result (the
// same document in an update). `miseAJour` selects the update; `sansOuverture` leaves the
// result unshown; `demanderRemplacement` asks before replacing an existing result.
IssueCreation CreerDocument(Contexte& ctx, const Texte& modele, const Texte& resultat,
                            bool miseAJour, bool sansOuverture, bool demanderRemplacement);

// The name of a document as the update gauge shows it: cut to its first 3 characters, "..."
// and its last 30 when longer than 32.
Texte NomJauge(const Texte& nom);

} // namespace verdane
