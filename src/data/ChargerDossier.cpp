#include "data/ChargerDossier.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

Texte DossierComplet(const Etat& etat, int slot) {
    const auto i = static_cast<std::size_t>(slot);
    return AjouterBarre(AjouterBarre(etat.RepDossier[i]) + Rogner(etat.NomDossier[i]));
}

void ChargerDossier(Contexte& ctx) {
    Etat& e = ctx.etat;
    if (Rogner(e.RepDossier[0]).empty() || Rogner(e.NomDossier[0]).empty()) return;
    const Texte fichier = DossierComplet(e, 0) + Rogner(e.NomDossier[0]);
    if (!FichierExiste(fichier)) e.NomDossier[0].clear();
    if (!DossierExiste(e.RepDossier[0])) e.RepDossier[0].clear();
    if (Rogner(e.RepDossier[0]).empty() || Rogner(e.NomDossier[0]).empty()) return;
    const auto octets = LireOctets(fichier, 0, EnrDossier::kTaille);
    if (!octets) return;
    e.enrDossier = LireEnrDossier(*octets);
    e.nbAnEtude = e.enrDossier.nbAnEtude;
    e.anneeDebut = e.enrDossier.anneeDebut;
}

} // namespace verdane
