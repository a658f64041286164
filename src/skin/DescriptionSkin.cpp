#include "skin/DescriptionSkin.h"

namespace verdane::skin {

Rectangle Trace::Destination(int l, int h) const {
    return {valeurs[0].Valeur(l, h), valeurs[1].Valeur(l, h), valeurs[2].Valeur(l, h),
            valeurs[3].Valeur(l, h)};
}

Rectangle Trace::Source(int l, int h) const {
    return {valeurs[4].Valeur(l, h), valeurs[5].Valeur(l, h), valeurs[6].Valeur(l, h),
            valeurs[7].Valeur(l, h)};
}

std::optional<Rvb> CouleurRvb(std::int32_t couleur) {
    if (couleur < 0) return std::nullopt;
    return Rvb{couleur & 0xff, (couleur >> 8) & 0xff, (couleur >> 16) & 0xff};
}

} // namespace verdane::skin
