#include "engine/InsererValeur.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <string>

namespace verdane {

namespace {

const Texte kDebutAnnotation = Texte("{\\fs22 {\\*\\atrfstart ") + kIdAnnotation + "}";
const Texte kAncreAnnotation =
    Texte("}\\chatn {\\*\\annotation {\\*\\atnref ") + kIdAnnotation + "}";

// The size of a tooltip in points, doubled for RTF half-points.
long DemiPoints(const Texte& taille) {
    const Texte t = Rogner(taille);
    std::size_t lu = 0;
    double points = 0;
    try {
        points = std::stod(Texte(RemplacerExact(t, ",", ".")), &lu);
    } catch (const std::exception&) {
        lu = 0;
    }
    if (t.empty() || lu != t.size() || !std::isfinite(points) || std::fabs(points) > 16000)
        throw std::runtime_error("taille d'info-bulle illisible : " + t);
    return std::lround(points * 2);
}

// The tooltip of an "#mrl(INFO:id:taille:titre:infos:repere)#"; nothing if a field is missing.
bool InfoBulle(const Texte& codeEnCours, const Texte& debut, Texte& avant) {
    Texte reste = codeEnCours;
    if (FinitPar(reste, ")#")) reste.resize(reste.size() - 2);
    const auto deuxPoints = reste.find(':');
    if (deuxPoints == Texte::npos) return false;
    reste = RemplacerExact(reste.substr(deuxPoints + 1), "_", " ");

    std::array<Texte, 5> champs;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto n = reste.find(':');
        if (n == Texte::npos) return false;
        champs[i] = reste.substr(0, n);
        reste.erase(0, n + 1);
    }
    champs[4] = reste;
    const Texte& id = champs[0];
    const Texte& titre = champs[2];
    const Texte& infos = champs[3];
    Texte repere = champs[4];
    if (Rogner(repere).empty()) repere = "\\~";

    avant = debut + kDebutAnnotation + repere + "}{\\cs15\\v\\fs" +
            std::to_string(DemiPoints(champs[1])) + " {\\*\\atrfend " + kIdAnnotation +
            "}{\\*\\atnid " + Rogner(id) + "}{\\*\\atnauthor " + titre + " " + kAncreAnnotation +
            "{" + infos + "}}}";
    return true;
}

char LettreAccentuee(std::string_view hex) {
    const Texte h = Minuscules(hex);
    static constexpr std::pair<std::string_view, char> kLettres[] = {
        {"e0", '\xE0'}, {"e2", '\xE2'}, {"e7", '\xE7'}, {"e8", '\xE8'}, {"e9", '\xE9'},
        {"ea", '\xEA'}, {"ee", '\xEE'}, {"f4", '\xF4'}, {"f9", '\xF9'}, {"fb", '\xFB'}};
    for (const auto& [code, lettre] : kLettres)
        if (code == h) return lettre;
    return '\0';
}

} // namespace

long InsererValeur(Contexte& ctx, Texte& texte, long debutMarque, long fin, const Texte& valeur,
                   bool imbrique) {
    const auto taille = static_cast<long>(texte.size());
    debutMarque = std::clamp(debutMarque, 1L, taille + 1);
    fin = std::clamp(fin, debutMarque - 1, taille + 1);
    const Texte debut = texte.substr(0, static_cast<std::size_t>(debutMarque - 1));
    const auto& options = ctx.etat.options;
    const Texte& codeEnCours = ctx.etat.CodeEnCours;

    Texte v = Rogner(valeur);
    if (v.empty()) v = "\\~";

    Texte avant = debut;
    const bool annoter = !imbrique && options.SansAnnotation == 0;
    if (annoter) avant += kDebutAnnotation;
    avant += v;
    if (!imbrique) {
        if (annoter) {
            const int couleur = options.CouleurAnnotation;
            avant += "}{\\cs15\\v\\cf" + std::to_string(couleur) + "\\fs" +
                     std::to_string(couleur + 16) + " {\\*\\atrfend " + kIdAnnotation +
                     "}{\\*\\atnid MRL}{\\*\\atnauthor " +
                     "Code Verdane pour la construction de la donnée " + kAncreAnnotation + "{" +
                     codeEnCours + "}}}";
        }
        if (CommencePar(Majuscules(codeEnCours), "#MRL(INFO:"))
            InfoBulle(codeEnCours, debut, avant);
    }

    const auto reprise = static_cast<std::size_t>(fin + 1);
    texte = avant + (reprise < texte.size() ? texte.substr(reprise) : Texte());
    return static_cast<long>(avant.size()) + 1;
}

void RtfVersTexte(Texte& texte) {
    // The escapes are taken from the first, and the text they leave is looked at again from
    // the start: an escape removed may join a "\" before it to a "'" behind it. Building the
    // result as a stack gives the same text in one pass: each escape is replaced as soon as
    // its two characters have come, and what is kept never holds a whole escape.
    Texte r;
    r.reserve(texte.size());
    for (char c : texte) {
        r += c;
        const std::size_t n = r.size();
        if (n >= 4 && r[n - 4] == '\\' && r[n - 3] == '\'') {
            const char lettre = LettreAccentuee(std::string_view(r).substr(n - 2));
            r.resize(n - 4);
            if (lettre != '\0') r += lettre;
        }
    }
    // An escape cut short by the end of the text goes with what is left of it.
    for (;;) {
        const std::size_t n = r.size();
        if (n >= 2 && r[n - 2] == '\\' && r[n - 1] == '\'')
            r.resize(n - 2);
        else if (n >= 3 && r[n - 3] == '\\' && r[n - 2] == '\'')
            r.resize(n - 3);
        else
            break;
    }
    texte = std::move(r);
}

} // namespace verdane
