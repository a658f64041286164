#include "data/EnrDon.h"

#include "data/FluxEnregistrement.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

template <typename Flux, typename Enr> void Parcourir(Flux& f, Enr& e) {
    f.Chaine(e.code, 12);
    f.Chaine(e.libelle, 22);
    for (auto& v : e.valeur) f.F32(v);
}

} // namespace

EnrDon LireEnrDon(std::string_view octets) {
    EnrDon enr;
    FluxLecture lecture{LecteurBinaire(octets)};
    Parcourir(lecture, enr);
    return enr;
}

std::string EcrireEnrDon(const EnrDon& enr) {
    FluxEcriture ecriture;
    Parcourir(ecriture, enr);
    return ecriture.e.Octets();
}

std::optional<EnrDon> LireEnregistrementDon(std::string_view fichier, long long numero) {
    // Far beyond any series file, and keeps the offset within range.
    if (numero < 1 || numero > 100000000LL) return std::nullopt;
    const auto position = static_cast<std::uint64_t>(numero - 1) * EnrDon::kTaille;
    const auto octets = LireOctets(fichier, position, EnrDon::kTaille);
    if (!octets || octets->size() != EnrDon::kTaille) return std::nullopt;
    return LireEnrDon(*octets);
}

} // namespace verdane
