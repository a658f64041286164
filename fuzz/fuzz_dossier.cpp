// libFuzzer entry: bytes taken as the lists of a dossier (investments, loans, plans, crops,
// perennial crops), written into a dossier folder, then every domain table made from them.
// Whatever the files hold, nothing may fail or read out of bounds.

#include "domain/FichiersDomaine.h"
#include "domain/TabsCultures.h"
#include "domain/TabsImmoEmpr.h"
#include "shell/etat/Contexte.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

const std::filesystem::path& Dossier() {
    static const std::filesystem::path racine = [] {
        auto r = std::filesystem::temp_directory_path() / "verdane-fuzz-dossier";
        std::filesystem::create_directories(r / "F");
        return r;
    }();
    return racine;
}

void Ecrire(const char* nom, std::string_view octets) {
    std::ofstream(Dossier() / "F" / nom, std::ios::binary | std::ios::trunc)
        .write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    std::string_view reste(reinterpret_cast<const char*>(donnees), taille);
    // Each file takes a share of the input, its length told by one leading byte (x 64).
    for (const char* nom :
         {"Immo.imm", "Sub.sub", "Emprunt.emp", "PlanF.fin", "cult.clt", "CltP.cpD"}) {
        std::size_t n = 0;
        if (!reste.empty()) {
            n = static_cast<unsigned char>(reste[0]) * std::size_t{64};
            reste.remove_prefix(1);
        }
        n = std::min(n, reste.size());
        Ecrire(nom, reste.substr(0, n));
        reste.remove_prefix(n);
    }
    UtilisateurMuet muet;
    Contexte ctx(muet);
    ctx.etat.RepDossier[0] = Dossier().string() + "/";
    ctx.etat.NomDossier[0] = "F";
    ctx.etat.nbAnEtude = 5;
    ctx.etat.anneeDebut = 2024;
    ctx.etat.enrDossier.dateDebut = "01/01/2024";
    LireFichiersInvest(ctx);
    for (char v : {'1', '2', '3'}) {
        TableauImmobilisations(ctx, v, 0, "");
        TableauSubventions(ctx, v, 0, "");
        TableauEmprunts(ctx, v, 0, "");
    }
    TableauInvestissements(ctx, 0, "");
    LireCultures(ctx.etat);
    LireCulturesPerennes(ctx.etat);
    TableauCultures(ctx, "culture1tabp1;larg2000;larg7000([280;120][x][cultu:ASSOL:0])");
    return 0;
}
