#include "engine/LectureModele.h"

#include "utils/Chaines.h"

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

int CompterMarques(std::string_view ligne) {
    int n = 0;
    for (auto p = TrouverSansCasse(ligne, "#mrl("); p != std::string_view::npos;
         p = TrouverSansCasse(ligne, "#mrl(", p + 5))
        ++n;
    return n;
}

} // namespace

ModeleEnMorceaux DecouperModele(std::string_view contenu) {
    ModeleEnMorceaux modele;
    if (contenu.empty()) return modele;
    Texte courant;
    std::size_t i = 0;
    while (i < contenu.size()) {
        // One line: up to CR LF, CR or LF.
        std::size_t fin = i;
        while (fin < contenu.size() && contenu[fin] != '\r' && contenu[fin] != '\n') ++fin;
        const std::string_view ligne = contenu.substr(i, fin - i);
        if (fin < contenu.size()) {
            const bool crlf =
                contenu[fin] == '\r' && fin + 1 < contenu.size() && contenu[fin + 1] == '\n';
            fin += crlf ? 2 : 1;
        }
        i = fin;
        if (courant.size() > 1000) {
            modele.Morceaux.push_back(std::move(courant));
            courant.clear();
        }
        if (!ligne.empty() && !DelimiteDeja(ligne.front()) && FinitParMotDeControle(courant))
            courant += ' ';
        courant.append(ligne);
        modele.NbCodes += CompterMarques(ligne);
    }
    modele.Morceaux.push_back(std::move(courant));
    return modele;
}

} // namespace verdane
