#include "data/ValeurCode.h"

namespace verdane {

// Placeholders until the readers of series files are in.
Texte ValeurCode(Contexte&, Texte&, int, std::int16_t&, std::int16_t&, int) {
    return {};
}
float ValeurSerie(Contexte&, const Texte&, int) {
    return 0.0f;
}
Texte LibelleSerie(Contexte&, const Texte&) {
    return {};
}
Texte FamilleDonnee(const Texte&) {
    return "redrep";
}

} // namespace verdane
