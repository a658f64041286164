#include "tables/FormatsLigne.h"

#include "tables/DialoguesCellule.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <utility>

namespace verdane {

FormatsLigne::FormatsLigne(LigneModele ligne, int nbColonnes, const Options& options)
    : ligne_(std::move(ligne)), nbColonnes_(std::clamp(nbColonnes, 0, kMaxColonnesLibelle)),
      options_(&options) {}

Texte& FormatsLigne::FormatTexte() {
    return cellule_ == 0 ? ligne_.formatTexte
                         : ligne_.cellules[static_cast<std::size_t>(cellule_ - 1)].formatTexte;
}

Texte& FormatsLigne::FormatCadre() {
    return cellule_ == 0 ? ligne_.formatCadre
                         : ligne_.cellules[static_cast<std::size_t>(cellule_ - 1)].formatCadre;
}

void FormatsLigne::Choisir(int cellule) {
    cellule_ = std::clamp(cellule, 0, nbColonnes_);
    if (cellule_ == 0) return;
    if (Rogner(FormatTexte()).empty()) FormatTexte() = kFormatTexteSaisie;
    if (Rogner(FormatCadre()).empty()) FormatCadre() = kCadreVide;
}

StyleCellule FormatsLigne::Style() const {
    const Texte& texte = cellule_ == 0
                             ? ligne_.formatTexte
                             : ligne_.cellules[static_cast<std::size_t>(cellule_ - 1)].formatTexte;
    StyleCellule s = LireStyleCellule(texte, {}, *options_);
    s.alignement = AlignementDeTexte(TexteAlignement(s.alignement));
    return s;
}

void FormatsLigne::Modifier(const StyleCellule& style) {
    StyleCellule s = style;
    s.police = std::clamp(s.police, kPremierePolice, kPremierePolice + 156);
    s.taille = std::max(s.taille, 1);
    s.couleur = std::clamp(s.couleur, 1, 16);
    s.alignement = AlignementDeTexte(TexteAlignement(s.alignement));
    FormatTexte() = FormatTexteDe(s);
}

} // namespace verdane
