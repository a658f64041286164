// libFuzzer entry: bytes taken as a table library (tableaux.txt). Written back untouched, a
// library is its entries byte for byte and reads back the same; with every table opened and
// rewritten from its model, what is written reads back as tables that write the same text.

#include "shell/etat/Etat.h"
#include "tables/BibliothequeTableaux.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace verdane;

// The tables of `texte`, each opened and cut from its entry, as edited tables are.
std::vector<TableauModele> Modeles(std::string_view texte) {
    std::vector<TableauModele> tableaux = LireTexteTableaux(texte, true);
    for (TableauModele& t : tableaux) t.source = {};
    return tableaux;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    const Options options;

    const auto lus = LireTexteTableaux(octets, false);
    const Texte tel = TexteTableaux(lus, options);
    if (TexteTableaux(LireTexteTableaux(tel, false), options) != tel) std::abort();
    if (LireTexteTableaux(tel, false) != lus) std::abort();

    const auto modeles = Modeles(octets);
    const Texte texte = TexteTableaux(modeles, options);
    const auto relus = Modeles(texte);
    if (relus.size() != modeles.size()) std::abort();
    if (TexteTableaux(relus, options) != texte) std::abort();
    return 0;
}
