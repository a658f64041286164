#include "data/Catalogue.h"

#include "data/ValeurCode.h"
#include "utils/Chaines.h"
#include "utils/FluxEnregistrement.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {

namespace {

// One description of the layout serves the reader and the writer.
constexpr auto kDisposition = [](auto& f, auto& e) {
    f.Chaine(e.code, 12);
    f.Chaine(e.libelle, 22);
    f.Chaine(e.dossier1, 40);
    f.Chaine(e.dossier2, 40);
    f.I16(e.queue);
    f.I16(e.queue2);
};

template <typename Noeud> Noeud* TrouverDans(Noeud& noeud, std::string_view cle) {
    if (noeud.cle == cle) return &noeud;
    for (auto& enfant : noeud.enfants)
        if (auto* n = TrouverDans(enfant, cle)) return n;
    return nullptr;
}

// The folder of key `cle` under `parent`, made the first time that it is met.
NoeudCatalogue& Dossier(ArbreCatalogue& arbre, NoeudCatalogue& parent, const Texte& cle,
                        const Texte& texte, const Texte& image) {
    if (auto* n = arbre.Trouver(cle)) return *n;
    parent.enfants.push_back({cle, texte, image, {}});
    return parent.enfants.back();
}

} // namespace

NoeudCatalogue* ArbreCatalogue::Trouver(std::string_view cle) {
    return TrouverDans(racine, cle);
}

EnrCatalogue LireEnrCatalogue(std::string_view octets) {
    return LireSelon<EnrCatalogue>(octets, kDisposition);
}

std::string EcrireEnrCatalogue(const EnrCatalogue& enr) {
    return EcrireSelon(enr, kDisposition);
}

namespace {

// Adds the catalogue `fichier` under the root with `libelle`, then its series in file order.
// The head record has been looked at by the caller.
void AjouterCatalogue(std::string_view fichier, std::string_view octets, ArbreCatalogue& arbre,
                      const Texte& libelle) {
    const std::size_t nb = std::min<std::size_t>(octets.size() / EnrCatalogue::kTaille, 32767);
    const auto enr = [&](std::size_t i) {
        return LireEnrCatalogue(octets.substr(i * EnrCatalogue::kTaille, EnrCatalogue::kTaille));
    };
    const Texte nom = NomFichier(fichier);
    if (arbre.Trouver(nom)) return;
    const Texte famille = FamilleDonnee(nom);
    arbre.racine.enfants.push_back({nom, libelle, famille, {}});
    const std::size_t position = arbre.racine.enfants.size() - 1;

    const auto cfg = TrouverSansCasse(nom, ".CFG");
    const Texte fichierDon = nom.substr(0, cfg) + ".DON";
    for (std::size_t i = 1; i < nb; ++i) {
        const EnrCatalogue e = enr(i);
        const Texte libelleSerie = Rogner(e.libelle);
        if (e.code.find('-') == Texte::npos || libelleSerie == "[ sans nom ]") continue;
        const Texte cle = fichierDon + "+" + Rogner(e.code);
        if (arbre.Trouver(cle)) continue;
        // Folders may have been added to the tree: find the catalogue's node again.
        NoeudCatalogue* parent = &arbre.racine.enfants[position];
        const Texte dossier1 = Rogner(e.dossier1);
        const Texte dossier2 = Rogner(e.dossier2);
        if (!dossier1.empty()) {
            const Texte cle1 = nom + "\\" + dossier1;
            parent = &Dossier(arbre, *parent, cle1, dossier1, famille);
            if (!dossier2.empty())
                parent = &Dossier(arbre, *parent, cle1 + "\\" + dossier2, dossier2, famille);
        }
        parent->enfants.push_back({cle, libelleSerie, "puce", {}});
    }
}

} // namespace

void ChargerCatalogue(std::string_view fichier, ArbreCatalogue& arbre) {
    const auto contenu = LireFichier(fichier);
    if (!contenu || contenu->size() < EnrCatalogue::kTaille) return;
    const EnrCatalogue tete =
        LireEnrCatalogue(std::string_view(*contenu).substr(0, EnrCatalogue::kTaille));
    if (tete.queue == 0 || EgalSansCasse(NomFichier(fichier), "RESSUP.CFG")) return;
    AjouterCatalogue(fichier, *contenu, arbre, Rogner(tete.libelle));
}

void ChargerCatalogueSupplementaire(std::string_view fichier, ArbreCatalogue& arbre,
                                    const Texte& libelleParDefaut) {
    const auto contenu = LireFichier(fichier);
    if (!contenu || contenu->size() < EnrCatalogue::kTaille) return;
    const Texte libelle = Rogner(
        LireEnrCatalogue(std::string_view(*contenu).substr(0, EnrCatalogue::kTaille)).libelle);
    AjouterCatalogue(fichier, *contenu, arbre, libelle.empty() ? libelleParDefaut : libelle);
}

} // namespace verdane
