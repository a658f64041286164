#include "data/LectureDon.h"

namespace verdane {

std::optional<EnrDon> LireEnregistrementDon(CacheFichiers& fichiers, std::string_view fichier,
                                            long long numero) {
    // Far beyond any series file, and keeps the offset within range.
    if (numero < 1 || numero > 100000000LL) return std::nullopt;
    char octets[EnrDon::kTaille];
    const auto position = static_cast<std::uint64_t>(numero - 1) * EnrDon::kTaille;
    if (fichiers.LireDans(fichier, position, octets, sizeof octets) !=
        static_cast<long>(sizeof octets))
        return std::nullopt;
    return LireEnrDon(std::string_view(octets, sizeof octets));
}

bool FichierDon::Present() {
    char octet;
    return fichiers_.LireDans(chemin_, 0, &octet, 1) == 1;
}

} // namespace verdane
