#include "data/EnrDon.h"

#include "utils/FluxEnregistrement.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

// One description of the layout serves the reader and the writer.
constexpr auto kDisposition = [](auto& f, auto& e) {
    f.Chaine(e.code, 12);
    f.Chaine(e.libelle, 22);
    for (auto& v : e.valeur) f.F32(v);
};

} // namespace

EnrDon LireEnrDon(std::string_view octets) {
    return LireSelon<EnrDon>(octets, kDisposition);
}

std::string EcrireEnrDon(const EnrDon& enr) {
    return EcrireSelon(enr, kDisposition);
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
