// libFuzzer entry: bytes taken as the head of a model, whose font and colour tables receive the
// program's own entries. The text is only ever added to, each table once.

#include "utils/GestFontTable.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    const std::size_t debut = taille > 0 ? donnees[0] % (taille + 1) : 0;
    Texte texte(octets);
    AjouterPolices(texte, debut);
    const std::size_t apresPolices = texte.size();
    AjouterCouleurs(texte, debut);
    if (texte.size() < apresPolices || apresPolices < taille) std::abort();
    // The part before `debut` is never touched.
    if (texte.compare(0, debut, octets.substr(0, debut)) != 0) std::abort();
    for (char c : octets) NumeroPolice(std::string_view(&c, 1));
    NumeroPolice(octets);
    return 0;
}
