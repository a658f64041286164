#pragma once
// The dossiers compared by a multi-dossier table: its value columns are dossier slots 1 to
// `nbDossiers`, chosen once per document for a given count.

#include "tables/TableauModele.h"

namespace verdane {

class Contexte;

inline constexpr const char* kTitreMultiDossier =
    "Construction d'un tableau multi-dossier dans un document RTF";
inline constexpr const char* kConsigneMultiDossier =
    "- Sélection des dossiers Marlo pour le tableau en cours -";

// For a table in mode "d": keeps the dossiers of the preceding multi-dossier table of the
// document when it had the same count; takes the dossiers imposed by the caller
// (ctx.etat.nbDossiersImposes: the table shows at most that many); otherwise asks the user,
// who may change the count of the table. Sets ctx.etat.tableaux.nbDossiersChoisis once chosen.
void SelectionnerDossiers(Contexte& ctx, TableauModele& tableau);

} // namespace verdane
