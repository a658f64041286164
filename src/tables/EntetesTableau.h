#pragma once
// Titles of the value columns of a header line: made from the column's year and the dossier's
// start date, or from the dossier compared in the column.

#include "utils/Texte.h"

namespace verdane {

class Contexte;

// Title of year column `colonne` (0 the year before the study) in header form `forme` "1" to
// "7", from the start date of the current dossier, as RTF text ("\par " between two lines).
// Any other form tells the user and gives an empty title.
Texte TitreAnnee(Contexte& ctx, int colonne, const Texte& forme);

// Title of dossier column `colonne` (dossier slot `colonne`) in header form `forme` "1" to
// "6"; empty for any other form.
Texte TitreDossier(Contexte& ctx, int colonne, const Texte& forme);

// "Jan." to "Déc." for 1 to 12; empty otherwise.
Texte NomMois(int mois);

} // namespace verdane
