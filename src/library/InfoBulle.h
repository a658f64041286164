#pragma once
// The annotation dialog: a tooltip code "INFO:<id>:<size>:<title>:<text>:<annotated word>",
// composed from the user's pieces after their checks.

#include "shell/etat/Contexte.h"

#include <optional>

namespace verdane {

inline constexpr std::size_t kTitreInfoBulleMax = 50;

struct PiecesInfoBulle {
    Texte titre;
    Texte commentaire;
    Texte texteAnnote; // the word the tooltip stands on; may be empty
    Texte codeAffiche; // the initials shown on the annotation mark; "MRL" when empty
    int taille = 10;   // points
};

// The code without its marks, or nothing when a check failed (told in the message form): a
// title over 50 characters, an empty title or comment, a ":" in any piece.
std::optional<Texte> ComposerInfoBulle(Contexte& ctx, const PiecesInfoBulle& pieces);

// Composes the code and sends it to the document. True when it went in.
bool InsererInfoBulle(Contexte& ctx, const PiecesInfoBulle& pieces);

// At the dialog's opening: tells users of OpenOffice that it shows no tooltips from RTF.
// True when it was told.
bool AvertirInfoBullesOpenOffice(Contexte& ctx);

} // namespace verdane
