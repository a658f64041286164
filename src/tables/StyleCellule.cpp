#include "tables/StyleCellule.h"

#include "tables/CodeTableau.h"
#include "tables/TableauModele.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace verdane {

namespace {

std::vector<Texte> Champs(const Texte& format) {
    std::vector<Texte> champs(1);
    for (char c : format) {
        if (c == ';')
            champs.emplace_back();
        else
            champs.back() += c;
    }
    return champs;
}

int Entier(const Texte& texte) {
    const long long v = ValEntier(texte);
    return static_cast<int>(
        std::clamp<long long>(v, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

Texte Drapeau(bool actif) {
    return actif ? "1" : "0";
}

} // namespace

StyleCellule LireStyleCellule(const Texte& formatTexte, const Texte& formatCadre,
                              const Options& options) {
    const auto texte = Champs(FormatComplet(formatTexte, FormatTexteDefaut(options)));
    const auto cadre = Champs(FormatComplet(formatCadre, kCadreVide));
    StyleCellule s;
    s.police = Entier(texte[0]);
    if (s.police < kPremierePolice) s.police = kPoliceDefaut;
    s.taille = Entier(texte[1]);
    s.couleur = Entier(texte[2]);
    s.gras = texte[3] == "1";
    s.italique = texte[4] == "1";
    s.souligne = texte[5] == "1";
    s.barre = texte[6] == "1";
    s.ombre = texte[7] == "1";
    s.alignement = texte[8];
    s.haut = Entier(cadre[0]);
    s.bas = Entier(cadre[1]);
    s.gauche = Entier(cadre[2]);
    s.droite = Entier(cadre[3]);
    s.fond = Entier(cadre[4]);
    return s;
}

Texte FormatTexteDe(const StyleCellule& s) {
    return std::to_string(s.police) + ';' + std::to_string(s.taille) + ';' +
           std::to_string(s.couleur) + ';' + Drapeau(s.gras) + ';' + Drapeau(s.italique) + ';' +
           Drapeau(s.souligne) + ';' + Drapeau(s.barre) + ';' + Drapeau(s.ombre) + ';' +
           s.alignement;
}

Texte FormatCadreDe(const StyleCellule& s) {
    return std::to_string(s.haut) + ';' + std::to_string(s.bas) + ';' + std::to_string(s.gauche) +
           ';' + std::to_string(s.droite) + ';' + std::to_string(s.fond);
}

} // namespace verdane
