#pragma once
// The codes named by an exact word: fields and lists of the dossier record, page counter, page
// break, study-year dates.

#include "engine/Champ.h"
#include "engine/ExtensionsCode.h"
#include "shell/etat/Contexte.h"

#include <optional>
#include <vector>

namespace verdane {

// The value and sentence of an exact-word code, from the dossier record in ctx.etat; nothing
// if `code` isn't one. `numPage2` moves the page counter. Throws std::runtime_error when a
// date of the dossier can't be read or the dossier folder is missing (`dateDossier`).
std::optional<Champ> ChampDossier(Contexte& ctx, const Texte& code, const Instant& maintenant);

// The project text split at its carriage returns, lines trimmed.
std::vector<Texte> LignesProjet(const Texte& descProjet);

} // namespace verdane
