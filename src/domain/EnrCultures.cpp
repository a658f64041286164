#include "domain/EnrCultures.h"

#include "domain/FluxDomaine.h"

namespace verdane {

namespace {

constexpr std::array<SerieCulture, kNbSeriesCulture> kSeries = {{
    {"rendement", 42},     {"assolement", 86},    {"qterecolte", 130},   {"qtepreleve", 174},
    {"prixunitaire", 218}, {"autreproduit", 262}, {"primeetdiv", 306},   {"produitunit", 350},
    {"chargeunit", 394},   {"margeunit", 438},    {"margeglobale", 482}, {"stockfin", 526},
    {"qtevendue", 570},    {"qteachat", 614},     {"varstock", 658},     {"valeurstock", 706},
    {"prixmoyen", 750},    {"prixvente", 794},    {"prixachat", 838},    {"prixcession", 882},
    {"varinv", 1014},      {"engrais", 1058},     {"semence", 1102},     {"traitement", 1146},
    {"travaux", 1190},     {"taxe1", 1234},       {"autrecharge", 1278}, {"creance", 1630},
}};

constexpr auto kDispositionCulture = [](auto& f, auto& e) {
    f.F32(e.numero);
    f.Chaine(e.libelle, 23);
    f.Chaine(e.codeCourt, 6);
    f.Chaine(e.unite, 1);
    f.Aller(38);
    f.I16(e.derobee);
    f.I16(e.genre);
    for (std::size_t i = 0; i < kSeries.size(); ++i) {
        f.Aller(kSeries[i].position);
        f.F32s(e.series[i]);
    }
};

// Beyond the number, the label and the kind, the layout of this record is the program's own
// choice: kind, unit code, years to full production, years of amortisation.
constexpr auto kDispositionPerenne = [](auto& f, auto& e) {
    f.F32(e.numero);
    f.Chaine(e.libelle, 30);
    f.I16(e.genre);
    f.I16(e.unite);
    f.F32(e.pleineProduction);
    f.F32(e.dureeAmortissement);
};

} // namespace

const std::array<SerieCulture, kNbSeriesCulture>& SeriesCulture() {
    return kSeries;
}

int IndexSerieCulture(std::string_view nom) {
    for (std::size_t i = 0; i < kSeries.size(); ++i)
        if (nom == kSeries[i].nom) return static_cast<int>(i);
    return -1;
}

EnrCulture LireEnrCulture(std::string_view o) {
    return LireEnrDomaine<EnrCulture>(o, kDispositionCulture);
}
std::string EcrireEnrCulture(const EnrCulture& e) {
    return EcrireEnrDomaine(e, EnrCulture::kTaille, kDispositionCulture);
}
EnrCulturePerenne LireEnrCulturePerenne(std::string_view o) {
    return LireEnrDomaine<EnrCulturePerenne>(o, kDispositionPerenne);
}
std::string EcrireEnrCulturePerenne(const EnrCulturePerenne& e) {
    return EcrireEnrDomaine(e, EnrCulturePerenne::kTaille, kDispositionPerenne);
}

} // namespace verdane
