// libFuzzer entry: bytes taken as a picture (the logo of a body, a chart): its header is read
// and the picture becomes an RTF group of hexadecimal digits, or nothing.

#include "utils/ImageRtf.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    const auto info = LireInfoImage(octets);
    const int largeur = taille > 0 ? (donnees[0] - 128) * 100 : 0;
    const Texte rtf = ImageVersRtf(octets, largeur);
    if (!info && !rtf.empty()) std::abort();
    // Two digits a byte, and a head and a tail of bounded size.
    if (rtf.size() > 2 * taille + taille / 32 + 1000) std::abort();
    return 0;
}
