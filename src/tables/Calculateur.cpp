#include "tables/Calculateur.h"

#include "tables/CalculFonctions.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace verdane {

namespace {

constexpr double kEchec = std::numeric_limits<double>::quiet_NaN();
constexpr char kCarre = '\xB2'; // "²" in Windows-1252

// Thrown inside the reader only, when the text can't be read; never leaves this file.
struct Illisible {};

double Fini(double x) {
    return std::isfinite(x) ? x : kEchec;
}

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}
bool EstLettre(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
bool EstBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\xA0';
}

// A number as a spreadsheet shows it in General format, for the "&" operator.
std::string TexteGeneral(double x) {
    char tampon[40];
    auto r = std::to_chars(tampon, tampon + sizeof tampon, x, std::chars_format::general, 15);
    return std::string(tampon, r.ptr);
}

double LireDouble(const std::string& texte) {
    double x = 0;
    auto r = std::from_chars(texte.data(), texte.data() + texte.size(), x);
    if (r.ec != std::errc{} || r.ptr != texte.data() + texte.size()) return kEchec;
    return Fini(x);
}

// Recursive descent over the text; each level of the grammar is one member. Values are
// doubles, NaN standing for a failed calculation that goes on to the result.
class Lecteur {
public:
    explicit Lecteur(std::string_view texte) : texte_(texte) {}

    double Tout() {
        Blancs();
        if (pos_ < texte_.size() && texte_[pos_] == '=') ++pos_;
        double v = Comparaison();
        Blancs();
        if (pos_ != texte_.size()) throw Illisible{};
        return v;
    }

private:
    std::string_view texte_;
    std::size_t pos_ = 0;
    int profondeur_ = 0;

    void Blancs() {
        while (pos_ < texte_.size() && EstBlanc(texte_[pos_])) ++pos_;
    }
    char Voir() {
        Blancs();
        return pos_ < texte_.size() ? texte_[pos_] : '\0';
    }
    char Suivant() const { return pos_ + 1 < texte_.size() ? texte_[pos_ + 1] : '\0'; }

    double Comparaison() {
        double a = Concatenation();
        for (;;) {
            const char c = Voir();
            const char d = Suivant();
            int op; // 0 =, 1 <>, 2 <, 3 >, 4 <=, 5 >=
            if (c == '=')
                op = 0;
            else if (c == '<' && d == '>')
                op = 1;
            else if (c == '<' && d == '=')
                op = 4;
            else if (c == '>' && d == '=')
                op = 5;
            else if (c == '<')
                op = 2;
            else if (c == '>')
                op = 3;
            else
                return a;
            pos_ += (op == 1 || op >= 4) ? 2 : 1;
            const double b = Concatenation();
            if (std::isnan(a) || std::isnan(b)) {
                a = kEchec;
                continue;
            }
            const bool egal = calcul::Egaux(a, b);
            bool vrai = false;
            switch (op) {
            case 0:
                vrai = egal;
                break;
            case 1:
                vrai = !egal;
                break;
            case 2:
                vrai = !egal && a < b;
                break;
            case 3:
                vrai = !egal && a > b;
                break;
            case 4:
                vrai = egal || a < b;
                break;
            default:
                vrai = egal || a > b;
                break;
            }
            a = vrai ? 1 : 0;
        }
    }

    double Concatenation() {
        double a = Addition();
        while (Voir() == '&') {
            ++pos_;
            const double b = Addition();
            a = (std::isnan(a) || std::isnan(b)) ? kEchec
                                                 : LireDouble(TexteGeneral(a) + TexteGeneral(b));
        }
        return a;
    }

    double Addition() {
        double a = Produit();
        for (char c = Voir(); c == '+' || c == '-'; c = Voir()) {
            ++pos_;
            const double b = Produit();
            a = Fini(c == '+' ? a + b : a - b);
        }
        return a;
    }

    double Produit() {
        double a = Puissance();
        for (char c = Voir(); c == '*' || c == '/'; c = Voir()) {
            ++pos_;
            const double b = Puissance();
            if (c == '*')
                a = Fini(a * b);
            else
                a = b == 0 ? kEchec : Fini(a / b);
        }
        return a;
    }

    double Puissance() {
        double a = Postfixe();
        while (Voir() == '^') {
            ++pos_;
            const double b = Postfixe();
            a = (a == 0 && b < 0) ? kEchec : Fini(std::pow(a, b));
        }
        return a;
    }

    double Postfixe() {
        double a = Signes();
        for (char c = Voir(); c == '%' || c == kCarre; c = Voir()) {
            ++pos_;
            a = Fini(c == '%' ? a / 100 : a * a);
        }
        return a;
    }

    // Signs in front of an operand, read in a loop so that a long run costs no stack.
    double Signes() {
        bool negatif = false;
        for (char c = Voir(); c == '-' || c == '+'; c = Voir()) {
            if (c == '-') negatif = !negatif;
            ++pos_;
        }
        const double v = Operande();
        return negatif ? -v : v;
    }

    double Operande() {
        const char c = Voir();
        if (c == '(') {
            ++pos_;
            Entrer();
            const double v = Comparaison();
            if (Voir() != ')') throw Illisible{};
            ++pos_;
            --profondeur_;
            return v;
        }
        if (EstChiffre(c) || (c == '.' && EstChiffre(Suivant()))) return Nombre();
        if (EstLettre(c)) return Appel();
        throw Illisible{};
    }

    void Entrer() {
        if (++profondeur_ > kProfondeurMaxCalcul) throw Illisible{};
    }

    double Nombre() {
        std::string chiffres;
        auto prendreChiffres = [&] {
            while (pos_ < texte_.size() && EstChiffre(texte_[pos_])) chiffres += texte_[pos_++];
        };
        prendreChiffres();
        const bool entier = !chiffres.empty();
        if (pos_ < texte_.size()) {
            const char c = texte_[pos_];
            if (c == '.' || (c == ',' && entier && EstChiffre(Suivant()))) {
                chiffres += '.';
                ++pos_;
                prendreChiffres();
            }
        }
        if (pos_ < texte_.size() && (texte_[pos_] == 'e' || texte_[pos_] == 'E')) {
            std::size_t p = pos_ + 1;
            if (p < texte_.size() && (texte_[p] == '+' || texte_[p] == '-')) ++p;
            if (p < texte_.size() && EstChiffre(texte_[p])) {
                chiffres.append(texte_.substr(pos_, p - pos_));
                pos_ = p;
                prendreChiffres();
            }
        }
        return LireDouble(chiffres);
    }

    double Appel() {
        const std::size_t debut = pos_;
        while (pos_ < texte_.size() && (EstLettre(texte_[pos_]) || EstChiffre(texte_[pos_]) ||
                                        texte_[pos_] == '.' || texte_[pos_] == '_'))
            ++pos_;
        const calcul::Fonction* f = calcul::TrouverFonction(texte_.substr(debut, pos_ - debut));
        if (f == nullptr || Voir() != '(') throw Illisible{};
        ++pos_;
        Entrer();
        std::vector<double> arguments;
        if (Voir() == ')') {
            ++pos_;
        } else {
            for (;;) {
                arguments.push_back(Comparaison());
                const char c = Voir();
                ++pos_;
                if (c == ')') break;
                if (c != ';' && c != ',') throw Illisible{};
            }
        }
        --profondeur_;
        const auto n = static_cast<int>(arguments.size());
        if (n < f->minimum || (f->maximum >= 0 && n > f->maximum)) throw Illisible{};
        if (calcul::EstCondition(*f)) {
            if (std::isnan(arguments[0])) return kEchec;
            if (arguments[0] != 0) return arguments[1];
            return n > 2 ? arguments[2] : 0;
        }
        for (double x : arguments)
            if (std::isnan(x)) return kEchec;
        return Fini(f->calcul(arguments));
    }
};

} // namespace

std::optional<double> Calculer(std::string_view expression) noexcept {
    try {
        const double v = Lecteur(expression).Tout();
        if (std::isnan(v)) return std::nullopt;
        return v;
    } catch (...) {
        return std::nullopt;
    }
}

bool CalculLisible(std::string_view expression) noexcept {
    try {
        Lecteur(expression).Tout();
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace verdane
