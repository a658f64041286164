#pragma once
// Catalogue files (Datacfg/*.CFG): records of 118 bytes, the first one the catalogue's head
// (its label, and in its tail whether it is shown), the others its series.

#include "data/Catalogue.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace verdane::test {

inline EnrCatalogue EnregistrementCatalogue(const Texte& code, const Texte& libelle,
                                            const Texte& dossier1 = "", const Texte& dossier2 = "",
                                            std::int16_t queue = 0) {
    return {.code = code,
            .libelle = libelle,
            .dossier1 = dossier1,
            .dossier2 = dossier2,
            .queue = queue};
}

inline std::string FichierCatalogue(const std::vector<EnrCatalogue>& enregistrements) {
    std::string octets;
    for (const auto& e : enregistrements) octets += EcrireEnrCatalogue(e);
    return octets;
}

// A catalogue of the label `tete`, shown when `queue` is 1, holding `series` (code, label).
inline std::string FichierCatalogue(const Texte& tete, std::int16_t queue,
                                    const std::vector<std::pair<Texte, Texte>>& series) {
    std::vector<EnrCatalogue> e{EnregistrementCatalogue("X", tete, "", "", queue)};
    for (const auto& [code, libelle] : series) e.push_back(EnregistrementCatalogue(code, libelle));
    return FichierCatalogue(e);
}

} // namespace verdane::test
