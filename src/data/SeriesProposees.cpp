#include "data/SeriesProposees.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <filesystem>

namespace verdane {

ArbreCatalogue SeriesProposees(const Texte& repDatacfg) {
    ArbreCatalogue arbre;
    arbre.racine.texte = "Séries proposées";
    std::vector<Texte> fichiers;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(CheminSysteme(repDatacfg), ec), fin;
         !ec && it != fin; it.increment(ec)) {
        const Texte nom = CheminTexte(it->path().filename());
        if (FinitParSansCasse(nom, ".CFG") && it->is_regular_file(ec))
            fichiers.push_back(repDatacfg + nom);
    }
    std::sort(fichiers.begin(), fichiers.end());
    for (const Texte& f : fichiers) ChargerCatalogue(f, arbre);
    return arbre;
}

} // namespace verdane
