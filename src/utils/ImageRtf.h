#pragma once
// A picture (PNG, JPEG or BMP) written as a self-contained RTF "\pict" group, with its bytes in
// hexadecimal: the logos of the bodies and the charts go into documents this way.

#include "utils/Texte.h"

#include <optional>
#include <string_view>

namespace verdane {

enum class FormatImage { Png, Jpeg, Bmp };

struct InfoImage {
    FormatImage format = FormatImage::Png;
    int largeur = 0; // pixels
    int hauteur = 0;
};

// Format and size in pixels read from the header of the picture; nothing if it isn't a PNG,
// JPEG or BMP whose size can be read.
std::optional<InfoImage> LireInfoImage(std::string_view octets);

// The "{\pict...}" group of a picture held in memory; empty if it can't be read. Shown at 96
// pixels per inch, or `largeurTwips` wide (height in proportion) when above 0.
Texte ImageVersRtf(std::string_view octets, int largeurTwips = 0);

// The same for a picture file; empty if the file is missing or unreadable.
Texte ImageFichierVersRtf(std::string_view chemin, int largeurTwips = 0);

} // namespace verdane
