#include "links/Automation.h"

#include <cmath>
#include <string>

namespace verdane {

RefObjet ObjetDe(const Valeur& v, const char* membre) {
    RefObjet objet = ObjetOuRien(v);
    if (!objet) throw ErreurEditeur(Texte("Objet requis : ") + membre);
    return objet;
}

RefObjet ObjetOuRien(const Valeur& v) {
    if (const auto* o = std::get_if<RefObjet>(&v)) return *o;
    return nullptr;
}

long EntierDe(const Valeur& v) {
    if (const auto* i = std::get_if<long>(&v)) return *i;
    if (const auto* b = std::get_if<bool>(&v)) return *b ? -1 : 0;
    if (const auto* d = std::get_if<double>(&v))
        return std::isfinite(*d) && std::fabs(*d) < 2e9 ? std::lround(*d) : 0;
    if (const auto* t = std::get_if<Texte>(&v)) {
        try {
            return std::stol(*t);
        } catch (...) {
            return 0;
        }
    }
    return 0;
}

bool BooleenDe(const Valeur& v) {
    if (const auto* b = std::get_if<bool>(&v)) return *b;
    return EntierDe(v) != 0;
}

Texte TexteDe(const Valeur& v) {
    if (const auto* t = std::get_if<Texte>(&v)) return *t;
    if (const auto* i = std::get_if<long>(&v)) return std::to_string(*i);
    if (const auto* b = std::get_if<bool>(&v)) return *b ? "Vrai" : "Faux";
    return {};
}

} // namespace verdane
