#include "library/FormesDate.h"

#include "engine/DatesCode.h"
#include "library/InsererCode.h"

#include <array>
#include <string>

namespace verdane {

namespace {

constexpr std::array<int, kNbFormesDate> kNumeros = {0,  2,  3,  5,  6,  7,  8,  9,
                                                     10, 11, 12, 13, 14, 15, 16, 17};

} // namespace

int NumeroFormeDate(int index) {
    if (index < 0 || index >= kNbFormesDate) return -1;
    return kNumeros[static_cast<std::size_t>(index)];
}

std::vector<Texte> ListeFormatsDate(const Instant& maintenant) {
    std::vector<Texte> liste;
    for (const int n : kNumeros) liste.push_back(DateCode(n, maintenant));
    return liste;
}

Texte TexteDateAInserer(int index, bool majAuto, const Instant& maintenant) {
    const int n = NumeroFormeDate(index);
    if (n < 0) return {};
    return majAuto ? "#mrl(date(" + std::to_string(n) + "))#" : DateCode(n, maintenant);
}

bool InsererDate(Contexte& ctx, int index, bool majAuto) {
    const Texte texte = TexteDateAInserer(index, majAuto, Maintenant(ctx));
    return !texte.empty() && InsererDansEditeur(ctx, texte);
}

Instant Maintenant(Contexte& ctx) {
    return ctx.extensions ? ctx.extensions->Maintenant() : MaintenantSysteme();
}

} // namespace verdane
