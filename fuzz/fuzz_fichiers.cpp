// libFuzzer entry: bytes taken as the options file, the parameter file and the records of a
// dossier. Reading never fails; what was read writes back the same way.

#include "data/EnrDon.h"
#include "data/EnrDossier.h"
#include "data/FormatNombre.h"
#include "shell/Options.h"
#include "shell/Parametres.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);

    Etat etat;
    LireOctetsOptions(etat, octets);
    const std::string ecrit = OctetsOptions(etat);
    Etat relu;
    LireOctetsOptions(relu, ecrit);
    if (OctetsOptions(relu) != ecrit) std::abort();

    Etat parametres;
    LireOctetsParametres(parametres, octets);

    const EnrDossier dossier = LireEnrDossier(octets);
    if (EcrireEnrDossier(dossier).size() != EnrDossier::kTaille) std::abort();
    const EnrDon don = LireEnrDon(octets);

    // A number written by FormatNombre reads back to itself at the decimals asked.
    if (taille >= 5) {
        float valeur;
        std::memcpy(&valeur, donnees, sizeof valeur);
        const auto decimales = static_cast<std::int16_t>(donnees[4] % 8);
        const Texte texte = FormatNombre(valeur, decimales, false);
        const auto lu = LireNombre(texte);
        if (!lu) std::abort();
        if (std::isfinite(valeur) && std::fabs(valeur) < 1e15f && decimales < 7 &&
            std::fabs(*lu - valeur) > 0.51 * std::pow(10.0, -decimales) + std::fabs(valeur) * 1e-6)
            std::abort();
    }
    (void)don;
    return 0;
}
