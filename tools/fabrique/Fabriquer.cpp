#include "Fabrique.h"

#include "utils/Chaines.h"

namespace verdane::fabrique {

std::optional<Fabrication> Fabriquer(const std::string& nomDescription, std::string_view utf8,
                                     std::string_view racine) {
    if (!FinitPar(nomDescription, ".txt")) return std::nullopt;
    const std::string souche = nomDescription.substr(0, nomDescription.size() - 4);
    const auto point = souche.rfind('.');
    if (point == std::string::npos) return std::nullopt;
    const std::string genre = Minuscules(souche.substr(point + 1));
    // "${MARLO}" in a description stands for the folder of the installation being made.
    const std::string texte = RemplacerExact(utf8, "${MARLO}", racine);
    const auto description = LireDescription(texte);
    if (genre == "dossier")
        return Fabrication{souche.substr(0, point), FabriquerDossier(description)};
    if (genre == "don") return Fabrication{souche, FabriquerDon(description)};
    if (genre == "cfg") return Fabrication{souche, FabriquerCatalogue(description)};
    if (genre == "par") return Fabrication{souche, FabriquerParametres(description)};
    if (genre == "svg") return Fabrication{souche, FabriquerOptions(description)};
    if (genre == "imm" || genre == "sub")
        return Fabrication{souche, FabriquerImmobilisations(description)};
    if (genre == "emp") return Fabrication{souche, FabriquerEmprunts(description)};
    if (genre == "fin") return Fabrication{souche, FabriquerPlans(description)};
    if (genre == "clt") return Fabrication{souche, FabriquerCultures(description)};
    if (genre == "cpd") return Fabrication{souche, FabriquerCulturesPerennes(description)};
    if (genre == "gph") return Fabrication{souche.substr(0, point) + ".txt", FabriquerGraph(texte)};
    return std::nullopt;
}

} // namespace verdane::fabrique
