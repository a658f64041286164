// libFuzzer entry: bytes taken as a table library (tableaux.txt). What is read writes back as a
// library that reads the same again.

#include "shell/etat/Etat.h"
#include "tables/BibliothequeTableaux.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    const Options options;
    for (bool detail : {false, true}) {
        const auto tableaux = LireTexteTableaux(octets, detail);
        const Texte texte = TexteTableaux(tableaux, options);
        const Texte relu = TexteTableaux(LireTexteTableaux(texte, detail), options);
        if (detail && relu != texte) std::abort();
    }
    return 0;
}
