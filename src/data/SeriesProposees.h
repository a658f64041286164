#pragma once
// The tree of series offered by the dialogs that pick a series (table lines, formulas,
// graphs): every catalogue of the installation's Datacfg folder, in name order.

#include "data/Catalogue.h"

#include <vector>

namespace verdane {

// The names of the catalogues (*.CFG files) of a configuration folder, in name order whatever
// their case; none when the folder is missing.
std::vector<Texte> FichiersCatalogues(const Texte& repDatacfg);

// `repDatacfg` ends with its separator, as the state's paths do. A missing folder gives the
// bare root "Séries proposées".
ArbreCatalogue SeriesProposees(const Texte& repDatacfg);

} // namespace verdane
