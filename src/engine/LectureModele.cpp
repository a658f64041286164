#include "engine/LectureModele.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace verdane {
namespace {

bool EstLettre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

// True if `texte` ends with an RTF control word (backslash, letters, optional signed number)
// that nothing delimits yet.
bool FinitParMotDeControle(std::string_view texte) {
    std::size_t i = texte.size();
    while (i > 0 && EstChiffre(texte[i - 1])) --i;
    if (i > 0 && i < texte.size() && texte[i - 1] == '-') --i;
    const std::size_t finLettres = i;
    while (i > 0 && EstLettre(texte[i - 1])) --i;
    if (i == finLettres || i == 0 || texte[i - 1] != '\\') return false;
    // An escaped backslash before it makes it text.
    std::size_t barres = 0;
    for (std::size_t k = i; k > 0 && texte[k - 1] == '\\'; --k) ++barres;
    return barres % 2 == 1;
}

// A line that starts with one of these needs no blank to end the control word before it. Any
// other start does, "#" included: a code there becomes text that may begin with a letter.
bool DelimiteDeja(char c) {
    return c == ' ' || c == '\\' || c == '{' || c == '}';
}

bool EstMarque(std::string_view texte, std::size_t p) {
    static constexpr std::string_view kMarque = "#mrl(";
    if (p + kMarque.size() > texte.size()) return false;
    for (std::size_t k = 0; k < kMarque.size(); ++k)
        if (Majuscule(texte[p + k]) != Majuscule(kMarque[k])) return false;
    return true;
}

} // namespace

std::size_t ModeleEnMorceaux::MarqueApres(std::size_t position) const {
    const auto it = std::lower_bound(marques.begin(), marques.end(), position);
    return it == marques.end() ? Texte::npos : *it;
}

ModeleEnMorceaux DecouperModele(Texte contenu) {
    ModeleEnMorceaux modele;
    Texte& t = *modele.texte;
    t = std::move(contenu);
    if (t.empty()) return modele;
    // Lines are moved down over the line ends in place: what is written never overtakes what is
    // read, a blank put for a line end taking at most its room.
    const std::size_t taille = t.size();
    // Positions are kept on 32 bits, and at most one for 32 characters.
    const std::size_t limiteMarques = taille <= UINT32_MAX ? taille / 32 + 16 : 0;
    std::vector<std::size_t> debuts{0}; // start of each piece
    std::size_t ecrit = 0;              // end of the text kept
    std::size_t examine = 0;            // marks are looked for from here
    std::size_t i = 0;
    while (i < taille) {
        // One line: up to CR LF, CR or LF.
        std::size_t fin = i;
        while (fin < taille && t[fin] != '\r' && t[fin] != '\n') ++fin;
        const std::size_t longueur = fin - i;
        const std::size_t debut = i;
        if (fin < taille) {
            const bool crlf = t[fin] == '\r' && fin + 1 < taille && t[fin + 1] == '\n';
            fin += crlf ? 2 : 1;
        }
        i = fin;
        if (ecrit - debuts.back() > 1000) debuts.push_back(ecrit);
        const std::string_view courant(t.data() + debuts.back(), ecrit - debuts.back());
        if (longueur > 0 && !DelimiteDeja(t[debut]) && FinitParMotDeControle(courant))
            t[ecrit++] = ' ';
        const std::size_t debutEcrit = ecrit;
        if (ecrit != debut) std::memmove(t.data() + ecrit, t.data() + debut, longueur);
        ecrit += longueur;
        // Marks ending in this line; those that began on an earlier line are found, not counted.
        const std::string_view fait(t.data(), ecrit);
        for (std::size_t p = examine; p + 5 <= ecrit; ++p) {
            p = fait.find('#', p);
            if (p == Texte::npos) break;
            if (!EstMarque(fait, p)) continue;
            if (p >= debutEcrit) ++modele.NbCodes;
            if (modele.marques.size() < limiteMarques)
                modele.marques.push_back(static_cast<std::uint32_t>(p));
            else
                modele.marquesCompletes = false;
        }
        examine = ecrit >= 4 ? std::max(examine, ecrit - 4) : examine;
    }
    t.resize(ecrit);
    if (!modele.marquesCompletes) modele.marques = {};
    debuts.push_back(ecrit);
    for (std::size_t k = 0; k + 1 < debuts.size(); ++k)
        modele.Morceaux.emplace_back(t.data() + debuts[k], debuts[k + 1] - debuts[k]);
    return modele;
}

} // namespace verdane
