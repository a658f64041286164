#include "Fabrique.h"

#include "data/EnrDossier.h"
#include "utils/Chaines.h"

namespace verdane::fabrique {

std::string FabriquerDossier(const std::vector<Section>& description) {
    Section d;
    for (const auto& s : description)
        if (EgalSansCasse(s.nom, "dossier")) d = s;
    EnrDossier e;
    e.chemin = d.Valeur("chemin");
    e.nom = d.Valeur("nom");
    e.nomExploitation = d.Valeur("nomExploitation");
    e.adresse = d.Valeur("adresse");
    e.commune = d.Valeur("commune");
    e.anneeDebut = static_cast<std::int16_t>(d.Entier("anneeDebut"));
    e.nbAnEtude = static_cast<std::int16_t>(d.Entier("nbAnEtude"));
    e.typeExploitation = static_cast<std::int32_t>(d.Entier("typeExploitation"));
    Texte projet;
    for (const auto& ligne : d.Valeurs("descProjet"))
        projet += (projet.empty() ? "" : "\r") + ligne;
    e.descProjet = projet;
    e.dateDebut = d.Valeur("dateDebut");
    e.conseiller = d.Valeur("conseiller");
    e.nbAssocies = static_cast<std::int16_t>(d.Entier("nbAssocies"));
    for (std::size_t i = 0; i <= 10; ++i) {
        const auto n = std::to_string(i);
        e.nomAssocie[i] = d.Valeur("nomAssocie" + n);
        e.jaAssocie[i] = static_cast<std::int16_t>(d.Entier("jaAssocie" + n));
        e.naissanceAssocie[i] = d.Valeur("naissanceAssocie" + n);
        e.situationAssocie[i] = d.Valeur("situationAssocie" + n);
    }
    e.regionAgri = d.Valeur("regionAgri");
    e.activAutre = d.Valeur("activAutre");
    e.banque = d.Valeur("banque");
    e.numAdh = d.Valeur("numAdh");
    for (std::size_t i = 0; i <= 6; ++i) {
        e.produit[i] = d.Valeur("produit" + std::to_string(i));
        e.modeCom[i] = d.Valeur("modeCom" + std::to_string(i));
    }
    e.moisTva = static_cast<std::int16_t>(d.Entier("moisTva"));
    e.devise = static_cast<std::int16_t>(d.Entier("devise", 1));
    e.tel = d.Valeur("tel");
    e.fax = d.Valeur("fax");
    return EcrireEnrDossier(e);
}

} // namespace verdane::fabrique
