#pragma once
// The date dialog: today's date in each of its forms, inserted as text, or as a date code that
// the engine writes anew at each generation.

#include "engine/ExtensionsCode.h"
#include "shell/etat/Contexte.h"

#include <vector>

namespace verdane {

// The number of forms in the list.
inline constexpr int kNbFormesDate = 16;

// The number of the `date(n)` code that writes the form at `index` of the list: long, medium
// and short date, "dd - mm - yyyy", "dd-mm-yy", "dd/mm/yy", "dd/mm/yyyy", "dd/mm", "dd",
// general date, long, short and medium time, "hh-mm-ss", "hh.mm.ss", "hh-mm". -1 out of range.
int NumeroFormeDate(int index);

// `maintenant` in each form of the list, in its order.
std::vector<Texte> ListeFormatsDate(const Instant& maintenant);

// What the dialog inserts for the form at `index`: "#mrl(date(<n>))#" when it is refreshed at
// each generation, else the date as the list shows it. Empty out of range.
Texte TexteDateAInserer(int index, bool majAuto, const Instant& maintenant);

// Inserts it at the cursor of the word processor, as it stands. True when it went in.
bool InsererDate(Contexte& ctx, int index, bool majAuto);

// The clock of the run.
Instant Maintenant(Contexte& ctx);

} // namespace verdane
