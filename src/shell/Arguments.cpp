#include "shell/Arguments.h"

#include "utils/Chaines.h"

namespace verdane {

LigneCommande LigneCommande::DepuisArguments(int argc, const char* const* argv) {
    Texte ligne;
    for (int i = 1; i < argc; ++i) {
        const Texte a = Utf8VersCp1252(argv[i] ? argv[i] : "");
        if (!ligne.empty()) ligne += ' ';
        if (a.empty() || a.find(' ') != Texte::npos)
            ligne += '"' + a + '"';
        else
            ligne += a;
    }
    return LigneCommande(ligne);
}

std::int16_t LigneCommande::Parcourir(std::int16_t jusqua, Texte* dernier) const {
    std::int16_t compte = 0;
    bool dedans = false;
    bool guillemets = false;
    Texte courant;
    auto fermer = [&]() {
        dedans = false;
        if (compte < 0x7FFF) ++compte;
        if (dernier) *dernier = courant;
        courant.clear();
        return jusqua != 0 && compte == jusqua;
    };
    for (char c : ligne_) {
        if (!dedans) {
            if (c == '"') {
                dedans = true;
                guillemets = true;
            } else if (c != ' ') {
                dedans = true;
                guillemets = false;
                courant += c;
            }
        } else if (guillemets ? c == '"' : c == ' ') {
            if (fermer()) return compte;
        } else if (c != '"') {
            courant += c; // a quote is never part of an argument
        }
    }
    if (dedans) fermer();
    return compte;
}

std::int16_t LigneCommande::NbArguments() const {
    return Parcourir(0, nullptr);
}

Texte LigneCommande::Argument(std::int16_t n) const {
    if (n < 1) return {};
    Texte dernier;
    if (Parcourir(n, &dernier) < n) return {};
    return dernier;
}

} // namespace verdane
