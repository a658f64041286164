#include "tables/Totaliser.h"

#include "utils/Chaines.h"

#include <string>
#include <utility>

namespace verdane {

namespace {

constexpr const char* kTitreTotal = "Définition d'une ligne de totaux";

} // namespace

Totaliser::Totaliser(Contexte& ctx, const TableauModele& tableau, int ligneTotal, Texte formule)
    : ctx_(ctx), tableau_(tableau), ligneTotal_(ligneTotal), formule_(std::move(formule)) {}

std::vector<Texte> Totaliser::LignesProposees() const {
    std::vector<Texte> lignes;
    for (int n = 1; n < ligneTotal_ && n <= tableau_.nbLignes(); ++n) {
        Texte texte = "LG" + std::to_string(n);
        for (const CelluleModele& c : tableau_.Ligne(n)->cellules)
            if (!Rogner(c.texte).empty()) {
                texte += "  " + Rogner(c.texte);
                break;
            }
        lignes.push_back(std::move(texte));
    }
    return lignes;
}

bool Totaliser::AjouterLigne(int numero) {
    if (numero < 1 || numero >= ligneTotal_ || numero > tableau_.nbLignes()) {
        ctx_.utilisateur.Boite("Il s'agit obligatoirement d'une ligne précédent la ligne du "
                               "calcul !",
                               kTitreTotal, Icone::Attention);
        return false;
    }
    Ajouter("LG" + std::to_string(numero));
    return true;
}

bool Totaliser::AjouterSerie(const Texte& cle, AnneeSerie annee, int anneeFixe) {
    const std::size_t plus = cle.find('+');
    const Texte code = plus == Texte::npos ? Texte{} : Rogner(cle.substr(plus + 1));
    const std::size_t tiret = code.find('-');
    if (tiret == Texte::npos || tiret == 0 || tiret + 1 == code.size()) {
        ctx_.utilisateur.Boite("Veuillez d'abord sélectionner une série de données dans l'arbre.",
                               kTitreTotal, Icone::Information);
        return false;
    }
    Texte reference = "LG(" + code;
    if (annee == AnneeSerie::Precedente) reference += "!A-1";
    if (annee == AnneeSerie::Fixe) reference += "!A" + std::to_string(anneeFixe);
    Ajouter(reference + ")");
    return true;
}

void Totaliser::Ajouter(const Texte& reference) {
    formule_ = Rogner(formule_) + reference;
}

std::vector<Texte> TextesAnneesFixes() {
    std::vector<Texte> textes = {"année début", "1ère année"};
    for (int n = 2; n <= 13; ++n) textes.push_back(std::to_string(n) + "e année");
    return textes;
}

} // namespace verdane
