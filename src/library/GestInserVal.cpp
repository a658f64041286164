#include "library/GestInserVal.h"

#include "data/SeriesProposees.h"
#include "domain/Catalogues.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {

namespace {

struct DescriptionFamille {
    FamilleInsertion famille;
    const char* tag;
    const char* arbre;
    const char* unite;
    const char* libelle;
};

constexpr DescriptionFamille kFamilles[] = {
    {FamilleInsertion::Classic, "CLASSIC", "", "", ""},
    {FamilleInsertion::Culture, "CULTURE", "Données Cultures", " Unité de la culture",
     " Libellé de la culture"},
    {FamilleInsertion::CultPer, "CULTPER", "Données Cultures pérennes",
     " Unité de la culture pérenne", " Libellé de la culture pérenne"},
    {FamilleInsertion::AliBani, "ALIBANI", "Données Activités libres animales",
     " Unité de l'activité libre ani.", " Libellé de l'activité libre ani."},
};

const DescriptionFamille& Description(FamilleInsertion famille) {
    for (const auto& d : kFamilles)
        if (d.famille == famille) return d;
    return kFamilles[0];
}

NoeudCatalogue NoeudDeLElement(const ElementCatalogue& e) {
    NoeudCatalogue n{e.cle, e.libelle, e.dossier ? "rep" : "puce", {}};
    for (const auto& enfant : e.enfants) n.enfants.push_back(NoeudDeLElement(enfant));
    return n;
}

// The catalogues of the configuration folder, by name; the extra results apart.
void ChargerCataloguesDossier(const Etat& etat, ArbreCatalogue& arbre) {
    const Texte dossier = etat.chemins.RepDatacfg;
    std::vector<Texte> fichiers;
    Texte supplementaire;
    for (Texte& nom : FichiersCatalogues(dossier)) {
        if (EgalSansCasse(nom, "RESSUP.CFG"))
            supplementaire = std::move(nom);
        else
            fichiers.push_back(std::move(nom));
    }
    for (const auto& nom : fichiers) ChargerCatalogue(AjouterBarre(dossier) + nom, arbre);
    if (!supplementaire.empty())
        ChargerCatalogueSupplementaire(AjouterBarre(dossier) + supplementaire, arbre,
                                       "Résultats supplémentaires");
}

bool SansFeuille(const NoeudCatalogue& n) {
    if (n.image == "puce") return false;
    return std::all_of(n.enfants.begin(), n.enfants.end(), SansFeuille);
}

} // namespace

std::optional<FamilleInsertion> FamilleDuTag(const Texte& tag) {
    for (const auto& d : kFamilles)
        if (EgalSansCasse(tag, d.tag)) return d.famille;
    return std::nullopt;
}

Texte TagFamille(FamilleInsertion famille) {
    return Description(famille).tag;
}

Texte TexteUniteFamille(FamilleInsertion famille) {
    return Description(famille).unite;
}

Texte TexteLibelleFamille(FamilleInsertion famille) {
    return Description(famille).libelle;
}

ArbreCatalogue ChargerArbreInsertion(const Etat& etat, FamilleInsertion famille) {
    ArbreCatalogue arbre;
    if (famille == FamilleInsertion::Classic) {
        ChargerCataloguesDossier(etat, arbre);
        return arbre;
    }
    const DescriptionFamille& d = Description(famille);
    NoeudCatalogue noeud{d.tag, d.arbre, "rep", {}};
    noeud.enfants.push_back({kCleUniteFamille, d.unite, "puce", {}});
    noeud.enfants.push_back({kCleLibelleFamille, d.libelle, "puce", {}});
    const auto& catalogue = famille == FamilleInsertion::Culture   ? CatalogueCultures()
                            : famille == FamilleInsertion::CultPer ? CataloguePerennes()
                                                                   : CatalogueAnimaux();
    for (const auto& e : catalogue) noeud.enfants.push_back(NoeudDeLElement(e));
    arbre.racine.enfants.push_back(std::move(noeud));
    return arbre;
}

bool ArbreSansFeuille(const ArbreCatalogue& arbre) {
    return SansFeuille(arbre.racine);
}

std::vector<OngletChamps> ChargerOngletsChamps() {
    // Each tab runs from its first field to the first field of the next, in the catalogue's
    // order.
    struct Debut {
        const char* titre;
        const char* premier;
    };
    constexpr Debut kOnglets[] = {{"Exploitation", "nomExplSoc"}, {"Associés", "associes"},
                                  {"Etude", "dateDebut"},         {"Dossier", "nomDossier"},
                                  {"Exercices", "date"},          {"Organismes", "OrgaSigle"}};
    std::vector<OngletChamps> onglets;
    for (const ChampDonnee& champ : ChargerChamps()) {
        for (const auto& o : kOnglets)
            if (champ.code == o.premier) onglets.push_back({o.titre, {}});
        if (!onglets.empty()) onglets.back().champs.push_back(champ);
    }
    return onglets;
}

std::vector<OrganismeListe> OrganismesNommes(const Etat& etat) {
    std::vector<OrganismeListe> liste;
    for (std::size_t i = 0; i < etat.Organismes.size(); ++i) {
        const Texte nom = Rogner(etat.Organismes[i].sigle);
        if (!nom.empty()) liste.push_back({static_cast<int>(i), nom});
    }
    return liste;
}

} // namespace verdane
