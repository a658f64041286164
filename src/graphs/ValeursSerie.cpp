#include "graphs/ValeursSerie.h"

#include "data/ChargerDossier.h"
#include "data/ValeurCode.h"
#include "utils/Binaire.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <string>

namespace verdane {

namespace {

constexpr std::size_t kTailleEnrDon = 90;
constexpr std::size_t kLargeurCodeDon = 12;

} // namespace

std::size_t EnregistrementDuCode(std::string_view octets, std::string_view code) {
    for (std::size_t n = 1; (n - 1) * kTailleEnrDon < octets.size(); ++n) {
        LecteurBinaire l(octets, (n - 1) * kTailleEnrDon);
        if (Rogner(l.Chaine(kLargeurCodeDon)) == code) return n;
    }
    return 0;
}

void LireValeursSerie(Contexte& ctx, const Texte& fichier, const Texte& code) {
    auto& valeurs = ctx.etat.graphes.valeursSerie;
    valeurs.fill(0.0f);
    const Texte nom = Rogner(fichier);
    const Texte cherche = Rogner(code);
    // The series reader names a data file by its tag, the name before ".don".
    const auto point = nom.find('.');
    if (point == Texte::npos || !EgalSansCasse(nom.substr(point), ".don")) return;
    if (Rogner(ctx.etat.RepDossier[0]).empty() || Rogner(ctx.etat.NomDossier[0]).empty()) return;
    const auto octets = ctx.etat.fichiers.LireFichier(DossierComplet(ctx.etat, 0) + nom);
    if (!octets) return;
    const std::size_t enregistrement = EnregistrementDuCode(*octets, cherche);
    if (enregistrement == 0) return;
    const Texte serie = nom.substr(0, point) + "-" + std::to_string(enregistrement);
    for (std::size_t k = 0; k < valeurs.size(); ++k)
        valeurs[k] = ValeurSerie(ctx, serie, static_cast<int>(k));
}

} // namespace verdane
