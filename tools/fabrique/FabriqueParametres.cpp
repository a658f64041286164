#include "Fabrique.h"

#include "shell/Options.h"
#include "shell/Parametres.h"
#include "utils/Chaines.h"

namespace verdane::fabrique {

std::string FabriquerParametres(const std::vector<Section>& description) {
    std::vector<EnrOrganisme> organismes;
    for (const auto& s : description) {
        if (!CommenceParSansCasse(s.nom, "organisme")) continue;
        EnrOrganisme o;
        o.nom = s.Valeur("nom");
        o.rue = s.Valeur("rue");
        o.ville = s.Valeur("ville");
        o.sigle = s.Valeur("sigle");
        o.tel = s.Valeur("tel");
        o.fax = s.Valeur("fax");
        o.logo = s.Valeur("logo");
        organismes.push_back(o);
    }
    return EcrireOctetsParametres(organismes);
}

std::string FabriquerOptions(const std::vector<Section>& description) {
    Etat etat;
    auto& o = etat.options;
    for (const auto& s : description) {
        o.CheminEditeur = s.Valeur("CheminEditeur", o.CheminEditeur);
        o.PositionBarre = static_cast<std::int16_t>(s.Entier("PositionBarre", o.PositionBarre));
        o.sautParagraphe = static_cast<std::int16_t>(s.Entier("sautParagraphe", o.sautParagraphe));
        o.SansDemarrage = static_cast<std::int16_t>(s.Entier("SansDemarrage", o.SansDemarrage));
        o.ConvertirViaOO = static_cast<std::int16_t>(s.Entier("ConvertirViaOO", o.ConvertirViaOO));
        o.TailleDefaut = static_cast<std::int16_t>(s.Entier("TailleDefaut", o.TailleDefaut));
        o.RepDocuments = s.Valeur("RepDocuments", o.RepDocuments);
        for (std::size_t i = 0; i < 6; ++i) {
            etat.RepDossier[i] = s.Valeur("RepDossier" + std::to_string(i), etat.RepDossier[i]);
            etat.NomDossier[i] = s.Valeur("NomDossier" + std::to_string(i), etat.NomDossier[i]);
        }
    }
    return OctetsOptions(etat);
}

} // namespace verdane::fabrique
