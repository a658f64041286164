#pragma once
// The records of the crop lists of a dossier: annual crops (`cult.clt`, 1674 bytes) and
// perennial crops (`CltP.cpD`, 52 bytes). A kind below 1 ends a list.

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

inline constexpr std::size_t kNbSeriesCulture = 28;
inline constexpr std::size_t kValeursSerieCulture = 11; // index 0 (start year) to 10

// The series of an annual crop by the lower-case name the codes use, in record order.
struct SerieCulture {
    const char* nom;
    std::size_t position; // offset of index 0 in the record
};
const std::array<SerieCulture, kNbSeriesCulture>& SeriesCulture();
// Index of a series in SeriesCulture(), or -1.
int IndexSerieCulture(std::string_view nom);

struct EnrCulture {
    static constexpr std::size_t kTaille = 1674;
    float numero = 0; // gives `Cult<n>.don`
    Texte libelle;    // 23
    Texte codeCourt;  // 6
    Texte unite;      // 1: "0" qx, "1" T, "2" kg, "3" U
    std::int16_t derobee = 0;
    std::int16_t genre = 0; // 1 vente, 2 vente avec aliment prélevé, 3 fourragère, 4 maraîchère
    std::array<std::array<float, kValeursSerieCulture>, kNbSeriesCulture> series{};
};

struct EnrCulturePerenne {
    static constexpr std::size_t kTaille = 52;
    float numero = 0; // gives `CltP<n>.don`
    Texte libelle;    // 30
    std::int16_t genre = 0;
    std::int16_t unite = 0;       // 0 "hl", 1 "T", 2 "kg", 3 "q"
    float pleineProduction = 0;   // years to full production
    float dureeAmortissement = 0; // years
};

EnrCulture LireEnrCulture(std::string_view octets);
std::string EcrireEnrCulture(const EnrCulture& enr);
EnrCulturePerenne LireEnrCulturePerenne(std::string_view octets);
std::string EcrireEnrCulturePerenne(const EnrCulturePerenne& enr);

} // namespace verdane
