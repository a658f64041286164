#pragma once
// Dates of the codes: the study years of the dossier, today's date in its forms, ages.

#include "engine/Champ.h"
#include "engine/ExtensionsCode.h"
#include "utils/Calendrier.h"

#include <ctime>
#include <optional>

namespace verdane {

// A time of the system's clock, in local time.
Instant InstantLocal(std::time_t t);

// "dd/mm/yyyy" (one or two digits for day and month); nothing if it isn't a real date.
std::optional<DateSimple> LireDate(const Texte& texte);
// "Jan.", "Fév.", "Mars" ...
Texte MoisCourt(int mois);

// The codes `date0`..`date9`, `an2Deb<Y>`, `an2Fin<Y>`, `an4Deb<Y>`, `an4Fin<Y>`,
// `mois2Deb<Y>`, `mois2Fin<Y>`, `moisCDeb<Y>`, `moisCFin<Y>` for a study starting at
// `dateDebut`; nothing for any other code. Throws std::runtime_error if `dateDebut` isn't a
// date.
std::optional<Champ> DateExercice(const Texte& code, const Texte& dateDebut);

// Today's date or time in form `n` of the `date(n)` codes; empty above 17.
Texte DateCode(int n, const Instant& maintenant);
// The general date "dd/mm/yyyy hh:mm:ss".
Texte DateGenerale(const Instant& moment);

// Age in whole years from a birth date "dd/mm/yyyy", by the program's rule (months of 30.5
// days, years of 365); empty for an unknown date ("**/**/****" or blank). Throws
// std::runtime_error for a date that can't be read.
Texte Age(const Texte& naissance, const Instant& maintenant);

} // namespace verdane
