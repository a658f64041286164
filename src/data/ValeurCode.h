#pragma once
// The reader of data codes: `VLVB.don+VLVB-3a12`, `@c12-3a` and the other forms.

#include "shell/etat/Contexte.h"

#include <cstdint>

namespace verdane {

// `code` may be shortened by the reader; `posTiret` is the position, counted from 1, of the
// "-" that matters (the last one, or the second when there are more); `annee` and
// `decimales` are -1 when not given and may be set by the reader; `dossier` is the slot.
Texte ValeurCode(Contexte& ctx, Texte& code, int posTiret, std::int16_t& annee,
                 std::int16_t& decimales, int dossier);

// For tables and formulas: `<tag>-<record>[!A<k>]`, the value of year `annee`, slot 0. "!A-1"
// asks for the year before `annee`, which a table starting at year index 1
// (`tableauDebuteAnnee1`) cannot give: that is told, and gives 0; "!A<k>" asks for year k.
float ValeurSerie(Contexte& ctx, const Texte& code, int annee, bool tableauDebuteAnnee1 = false);
// The trimmed label of `<tag>-<record>`, or "Enregistrement n°R de TAG".
Texte LibelleSerie(Contexte& ctx, const Texte& code);
// The family of a series file, by its tag ("VL", "OV", ... or "redrep").
Texte FamilleDonnee(const Texte& fichier);

} // namespace verdane
