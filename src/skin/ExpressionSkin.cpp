#include "skin/ExpressionSkin.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <cmath>

namespace verdane::skin {

namespace {

constexpr std::string_view kHauteur = "me.height";
constexpr std::string_view kLargeur = "me.width";

Texte SansBlancs(std::string_view texte) {
    Texte t;
    t.reserve(texte.size());
    for (char c : texte)
        if (c != ' ' && c != '\t' && c != '\r' && c != '\n') t += Minuscule(c);
    return t;
}

long long Borner(long long v) {
    return std::clamp<long long>(v, -kBorneValeur, kBorneValeur);
}

// Rounds half to even, as the conversion of a fraction to a whole number does.
long long Arrondir(double v) {
    const double r = std::nearbyint(v); // default rounding mode: to nearest, ties to even
    return static_cast<long long>(std::clamp(r, -1e15, 1e15));
}

std::optional<long long> Hexadecimal(std::string_view chiffres) {
    if (chiffres.empty() || chiffres.size() > 8) return std::nullopt;
    long long v = 0;
    for (char c : chiffres) {
        int d;
        if (c >= '0' && c <= '9')
            d = c - '0';
        else if (c >= 'a' && c <= 'f')
            d = c - 'a' + 10;
        else
            return std::nullopt;
        v = v * 16 + d;
    }
    // Eight digits are a 32-bit pattern: "&hffffffff" is -1, as a Long holds it.
    if (chiffres.size() == 8 && v > 0x7fffffffLL) v -= 0x100000000LL;
    return v;
}

} // namespace

std::optional<long long> NombreSkin(std::string_view texte) {
    const Texte t = SansBlancs(texte);
    if (CommencePar(t, "&h")) {
        std::string_view c = std::string_view(t).substr(2);
        if (!c.empty() && c.back() == '&') c.remove_suffix(1);
        return Hexadecimal(c);
    }
    if (CommencePar(t, "0x")) return Hexadecimal(std::string_view(t).substr(2));
    std::size_t i = 0;
    bool negatif = false;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) negatif = t[i++] == '-';
    double v = 0;
    std::size_t chiffres = 0;
    for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i, ++chiffres)
        if (chiffres < 16) v = v * 10 + (t[i] - '0');
    if (i < t.size() && (t[i] == '.' || t[i] == ',')) {
        double echelle = 0.1;
        for (++i; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i, ++chiffres) {
            v += (t[i] - '0') * echelle;
            echelle /= 10;
        }
    }
    if (chiffres == 0 || chiffres > 15 || i != t.size()) return std::nullopt;
    return Arrondir(negatif ? -v : v);
}

ExpressionSkin AnalyserExpression(std::string_view texte, Texte* erreur) {
    ExpressionSkin e;
    e.texte = SansBlancs(texte);
    auto refuser = [&](const Texte& pourquoi) {
        if (erreur) *erreur = "« " + e.texte + " » : " + pourquoi;
        e.valide = false;
        e.operateur = 0;
        e.nombre = 0;
        return e;
    };
    const auto posHauteur = e.texte.find(kHauteur);
    const auto posLargeur = e.texte.find(kLargeur);
    e.hauteur = posHauteur != Texte::npos;
    e.largeur = posLargeur != Texte::npos;
    if (e.Constante()) {
        if (e.texte.empty()) return refuser("valeur vide");
        const auto n = NombreSkin(e.texte);
        if (!n) return refuser("ce n'est pas un nombre");
        if (*n < -kBorneValeur || *n > kBorneValeur) return refuser("nombre hors limites");
        e.nombre = *n;
        e.valide = true;
        return e;
    }
    // The rest follows the name read last: "me.width" when both are there.
    const std::size_t debutReste =
        e.largeur ? posLargeur + kLargeur.size() : posHauteur + kHauteur.size();
    const std::string_view reste = std::string_view(e.texte).substr(debutReste);
    if (reste.empty()) {
        e.valide = true;
        return e;
    }
    const char op = reste[0];
    if (op != '+' && op != '-' && op != '*' && op != '/')
        return refuser("opérateur inconnu (+, -, * ou / attendu)");
    const auto n = NombreSkin(reste.substr(1));
    if (!n || reste.find('.') != std::string_view::npos ||
        reste.find(',') != std::string_view::npos)
        return refuser("un nombre entier doit suivre l'opérateur");
    if (*n < -32768 || *n > 32767) return refuser("nombre hors limites (-32768 à 32767)");
    if (op == '/' && *n == 0) return refuser("division par zéro");
    e.operateur = op;
    e.nombre = *n;
    e.valide = true;
    return e;
}

int ExpressionSkin::Valeur(int largeurFenetre, int hauteurFenetre) const {
    if (!valide) return 0;
    if (Constante()) return static_cast<int>(nombre);
    long long base = 0;
    if (hauteur) base += hauteurFenetre;
    if (largeur) base += largeurFenetre;
    base = Borner(base);
    long long v = base;
    switch (operateur) {
    case '+':
        v = base + nombre;
        break;
    case '-':
        v = base - nombre;
        break;
    case '*':
        v = base * nombre;
        break;
    case '/':
        v = Arrondir(static_cast<double>(base) / static_cast<double>(nombre));
        break;
    default:
        break;
    }
    return static_cast<int>(Borner(v));
}

int ValeurExpression(std::string_view texte, int largeurFenetre, int hauteurFenetre) {
    return AnalyserExpression(texte).Valeur(largeurFenetre, hauteurFenetre);
}

} // namespace verdane::skin
