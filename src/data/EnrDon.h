#pragma once
// The series record of Marlo's .don files: 90 bytes, a record number being the whole identity
// of a series. Fixed strings are kept as read, padding included; trim at use.

#include "utils/Texte.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace verdane {

struct EnrDon {
    static constexpr std::size_t kTaille = 90;
    static constexpr std::size_t kNbValeurs = 14;

    Texte code;    // 12: "<anything>:<d>", d the decimals to show the series with
    Texte libelle; // 22: may hold a "|" between the label and its unit
    // Index 0 is the year before the study, 1 the first study year.
    std::array<float, kNbValeurs> valeur{};
};

EnrDon LireEnrDon(std::string_view octets);
std::string EcrireEnrDon(const EnrDon& enr);

// Record `numero` (from 1) of a .don file, which is opened, read and closed here: no handle and
// no cache, so a change made between two reads is seen. Nothing for a missing file, a record
// number below 1, or a record past the end of the file or cut short by it.
std::optional<EnrDon> LireEnregistrementDon(std::string_view fichier, long long numero);

} // namespace verdane
