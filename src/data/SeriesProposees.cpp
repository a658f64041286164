#include "data/SeriesProposees.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <filesystem>

namespace verdane {

std::vector<Texte> FichiersCatalogues(const Texte& repDatacfg) {
    std::vector<Texte> noms;
    if (Rogner(repDatacfg).empty()) return noms;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(CheminSysteme(repDatacfg), ec), fin;
         !ec && it != fin; it.increment(ec)) {
        const Texte nom = CheminTexte(it->path().filename());
        if (FinitParSansCasse(nom, ".CFG") && it->is_regular_file(ec)) noms.push_back(nom);
    }
    std::sort(noms.begin(), noms.end(),
              [](const Texte& a, const Texte& b) { return Majuscules(a) < Majuscules(b); });
    return noms;
}

ArbreCatalogue SeriesProposees(const Texte& repDatacfg) {
    ArbreCatalogue arbre;
    arbre.racine.texte = "Séries proposées";
    for (const Texte& nom : FichiersCatalogues(repDatacfg))
        ChargerCatalogue(repDatacfg + nom, arbre);
    return arbre;
}

} // namespace verdane
