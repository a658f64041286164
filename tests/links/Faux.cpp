#include "links/Faux.h"

namespace verdane::essai {

std::string Decrire(const Valeur& v) {
    if (std::holds_alternative<bool>(v)) return std::get<bool>(v) ? "Vrai" : "Faux";
    if (std::holds_alternative<long>(v)) return std::to_string(std::get<long>(v));
    if (std::holds_alternative<Texte>(v)) return "\"" + std::get<Texte>(v) + "\"";
    if (std::holds_alternative<RefObjet>(v)) return "<objet>";
    if (std::holds_alternative<double>(v)) return std::to_string(std::get<double>(v));
    return "Rien";
}

Valeur FauxObjet::Lire(const Texte& membre) {
    const std::string chemin = chemin_ + "." + membre;
    auto it = monde_.valeurs.find(chemin);
    if (it != monde_.valeurs.end()) return it->second;
    return std::make_shared<FauxObjet>(monde_, chemin);
}

void FauxObjet::Ecrire(const Texte& membre, const Valeur& valeur) {
    const std::string chemin = chemin_ + "." + membre;
    monde_.journal.push_back(chemin + " = " + Decrire(valeur));
    monde_.valeurs[chemin] = valeur;
}

Valeur FauxObjet::Appeler(const Texte& membre, const std::vector<Argument>& arguments) {
    std::string chemin = chemin_ + "." + membre;
    std::string appel = chemin + "(";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i) appel += ", ";
        if (!arguments[i].nom.empty()) appel += arguments[i].nom + ":=";
        appel += Decrire(arguments[i].valeur);
    }
    monde_.journal.push_back(appel + ")");
    if (monde_.apresAppel) monde_.apresAppel(chemin);
    auto it = monde_.valeurs.find(chemin + "()");
    if (it != monde_.valeurs.end()) return it->second;
    return std::make_shared<FauxObjet>(monde_, chemin + "()");
}

} // namespace verdane::essai
