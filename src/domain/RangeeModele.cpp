#include "domain/RangeeModele.h"

#include "domain/CadreDomaine.h"
#include "tables/StyleCellule.h"
#include "utils/Chaines.h"

#include <cmath>
#include <string>

namespace verdane {

namespace {

CelluleFixe DuStyle(const StyleCellule& s) {
    CelluleFixe c;
    c.police = std::to_string(s.police);
    c.taille = s.taille <= 0 ? 16 : s.taille * 2;
    c.couleur = s.couleur;
    c.gras = s.gras;
    c.italique = s.italique;
    c.souligne = s.souligne;
    c.barre = s.barre;
    c.ombre = s.ombre;
    c.alignement = s.alignement;
    c.haut = std::to_string(s.haut);
    c.bas = std::to_string(s.bas);
    c.gauche = std::to_string(s.gauche);
    c.droite = std::to_string(s.droite);
    c.fond = s.fond;
    return c;
}

// A label's text with trailing blanks cut; one blank when nothing is left.
Texte TexteLibelle(std::string_view texte) {
    std::size_t fin = texte.size();
    while (fin > 0 && texte[fin - 1] == ' ') --fin;
    return fin == 0 ? Texte(1, ' ') : Texte(texte.substr(0, fin));
}

} // namespace

ColonnesValeurs ColonnesDuTableau(const TableauModele& t, int nbAnEtude) {
    ColonnesValeurs r;
    const int nb = t.modeAnnees == kSansValeurs ? 1 : nbAnEtude;
    r.largeur = nb > 0 ? static_cast<int>(std::nearbyint(t.largeurValeurs / double(nb))) : 0;
    if (t.modeAnnees == kSansValeurs || nbAnEtude < 1) return r;
    if (t.modeAnnees == kPremiereEtDerniere) {
        r.colonnes.push_back(1);
        if (nbAnEtude > 1) r.colonnes.push_back(nbAnEtude);
        return r;
    }
    for (int c = t.modeAnnees == kAnneeDebutEtToutes ? 0 : 1; c <= nbAnEtude && c <= 13; ++c)
        r.colonnes.push_back(c);
    return r;
}

Texte RangeeModele(const Etat& etat, const TableauModele& tableau, const LigneModele& ligne,
                   const Texte& prefixe, const std::vector<Texte>& libelles,
                   const std::function<float(int)>& valeur, int decimales) {
    Texte def = prefixe, corps;
    int position = 0;
    for (int c = 0; c < tableau.ColonnesLibelle(); ++c) {
        const auto& cellule = ligne.cellules[static_cast<std::size_t>(c)];
        position += tableau.largeurs[static_cast<std::size_t>(c)];
        const Texte texte = TexteLibelle(static_cast<std::size_t>(c) < libelles.size()
                                             ? libelles[static_cast<std::size_t>(c)]
                                             : RemplacerExact(cellule.texte, "_", " "));
        CelluleTexte(
            etat, def, corps,
            DuStyle(LireStyleCellule(cellule.formatTexte, cellule.formatCadre, etat.options)),
            position, texte);
    }
    const CelluleFixe style =
        DuStyle(LireStyleCellule(ligne.formatTexte, ligne.formatCadre, etat.options));
    const auto colonnes = ColonnesDuTableau(tableau, etat.nbAnEtude);
    for (int col : colonnes.colonnes) {
        position += colonnes.largeur;
        const float v = valeur(col);
        CelluleFixe c = style;
        if (v < 0 && tableau.rouge == 1) c.couleur = 6;
        CelluleTexte(etat, def, corps, c, position, TexteNombre(etat, v, decimales, true));
    }
    return def + corps + kFinLigneSerree;
}

} // namespace verdane
