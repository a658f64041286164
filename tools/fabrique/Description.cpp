#include "Description.h"

#include "utils/Chaines.h"

namespace verdane::fabrique {

Texte Section::Valeur(std::string_view cle, std::string_view defaut) const {
    for (auto it = entrees.rbegin(); it != entrees.rend(); ++it)
        if (EgalSansCasse(it->cle, cle)) return it->valeur;
    return Texte(defaut);
}

std::vector<Texte> Section::Valeurs(std::string_view cle) const {
    std::vector<Texte> v;
    for (const auto& e : entrees)
        if (EgalSansCasse(e.cle, cle)) v.push_back(e.valeur);
    return v;
}

long long Section::Entier(std::string_view cle, long long defaut) const {
    const auto v = EntierStrict(Valeur(cle));
    return v ? *v : defaut;
}

std::vector<Section> LireDescription(std::string_view utf8) {
    std::vector<Section> sections(1);
    const Texte texte = Utf8VersCp1252(utf8);
    for (const Texte& brute : Couper(texte, '\n')) {
        const Texte ligne = RognerTout(brute);
        if (ligne.empty() || ligne[0] == '#') continue;
        if (ligne.front() == '[' && ligne.back() == ']') {
            sections.push_back({RognerTout(ligne.substr(1, ligne.size() - 2)), {}});
            continue;
        }
        const auto egal = ligne.find('=');
        if (egal == Texte::npos) continue;
        sections.back().entrees.push_back(
            {RognerTout(ligne.substr(0, egal)), RognerTout(ligne.substr(egal + 1))});
    }
    return sections;
}

std::vector<Texte> Couper(std::string_view texte, char separateur) {
    std::vector<Texte> parties;
    std::size_t debut = 0;
    for (;;) {
        const auto p = texte.find(separateur, debut);
        parties.emplace_back(texte.substr(debut, p == std::string_view::npos ? p : p - debut));
        if (p == std::string_view::npos) break;
        debut = p + 1;
    }
    return parties;
}

} // namespace verdane::fabrique
