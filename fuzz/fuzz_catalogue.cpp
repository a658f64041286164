// libFuzzer entry: bytes taken as a .CFG catalogue of series (118-byte records), loaded into the
// tree of the data dialogs, twice: the second load adds nothing.

#include "FichiersFuzz.h"
#include "data/Catalogue.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string_view>

namespace {

std::size_t Noeuds(const verdane::NoeudCatalogue& n) {
    std::size_t total = 1;
    for (const auto& e : n.enfants) total += Noeuds(e);
    return total;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    const EnrCatalogue enr = LireEnrCatalogue(octets);
    if (EcrireEnrCatalogue(enr).size() != 118) std::abort();
    const std::string fichier = fuzz::Ecrire("Datacfg/VL.CFG", octets);
    ArbreCatalogue arbre;
    ChargerCatalogue(fichier, arbre);
    const std::size_t avant = Noeuds(arbre.racine);
    ChargerCatalogue(fichier, arbre);
    if (Noeuds(arbre.racine) != avant) std::abort();
    return 0;
}
