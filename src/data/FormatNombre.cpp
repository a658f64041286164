#include "data/FormatNombre.h"

namespace verdane {

// Placeholder until the number formats are in.
Texte FormatNombre(float, std::int16_t, bool, const MarquesNombre&) {
    return {};
}
std::optional<double> LireNombre(std::string_view, const MarquesNombre&) {
    return std::nullopt;
}

} // namespace verdane
