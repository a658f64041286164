#pragma once
// The tree of series offered by the dialogs that pick a series (table lines, formulas,
// graphs): every catalogue of the installation's Datacfg folder, in name order.

#include "data/Catalogue.h"

namespace verdane {

// `repDatacfg` ends with its separator, as the state's paths do. A missing folder gives the
// bare root "Séries proposées".
ArbreCatalogue SeriesProposees(const Texte& repDatacfg);

} // namespace verdane
