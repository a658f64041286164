#include "library/EntreesTableaux.h"

#include "utils/Chaines.h"

namespace verdane {

namespace {

// One line of `contenu` from `debut`: its text and the position behind its line end.
struct Ligne {
    std::string_view texte;
    std::size_t suite;
};

Ligne LigneEn(std::string_view contenu, std::size_t debut) {
    const std::size_t fin = contenu.find_first_of("\r\n", debut);
    if (fin == std::string_view::npos) return {contenu.substr(debut), contenu.size()};
    const bool crlf = contenu[fin] == '\r' && fin + 1 < contenu.size() && contenu[fin + 1] == '\n';
    return {contenu.substr(debut, fin - debut), fin + (crlf ? 2 : 1)};
}

bool EstMarque(std::string_view ligne) {
    const Texte t = RognerTout(ligne);
    return t.size() >= 7 && CommencePar(t, "#mrl(") && FinitPar(t, ")#");
}

// The text inside the `n`-th pair of brackets of a head line (from 0); false when it isn't
// closed.
bool Crochet(std::string_view tete, int n, Texte& dedans) {
    std::size_t p = 0;
    for (int i = 0;; ++i) {
        const std::size_t ouvre = tete.find('[', p);
        if (ouvre == std::string_view::npos) return false;
        const std::size_t ferme = tete.find(']', ouvre);
        if (ferme == std::string_view::npos) return false;
        if (i == n) {
            dedans = Texte(tete.substr(ouvre + 1, ferme - ouvre - 1));
            return true;
        }
        p = ferme + 1;
    }
}

} // namespace

LectureTableaux LireEntreesTableaux(std::string_view contenu) {
    LectureTableaux lu;
    std::size_t p = 0;
    while (p < contenu.size()) {
        const Ligne tete = LigneEn(contenu, p);
        if (tete.texte.empty() || tete.texte[0] != '[') {
            p = tete.suite;
            continue;
        }
        EntreeTableau e;
        e.debut = p;
        const Ligne code = LigneEn(contenu, tete.suite);
        if (!Crochet(tete.texte, 0, e.nom) || tete.suite >= contenu.size() ||
            !EstMarque(code.texte)) {
            lu.illisibles.push_back(Texte(tete.texte.substr(0, 60)));
            p = tete.suite;
            continue;
        }
        if (!Crochet(tete.texte, 1, e.dossier) || Rogner(e.dossier).empty()) e.dossier = "Divers";
        e.tailleCode = code.texte.size();
        e.fin = code.suite;
        // The empty line that closes an entry goes with it.
        if (e.fin < contenu.size()) {
            const Ligne vide = LigneEn(contenu, e.fin);
            if (RognerTout(vide.texte).empty()) e.fin = vide.suite;
        }
        lu.entrees.push_back(std::move(e));
        p = lu.entrees.back().fin;
    }
    return lu;
}

Texte AjouterEntree(std::string_view contenu, std::string_view source,
                    const EntreeTableau& entree) {
    Texte texte(contenu);
    if (!texte.empty() && texte.back() != '\n' && texte.back() != '\r') texte += "\r\n";
    Texte ajout(source.substr(entree.debut, entree.fin - entree.debut));
    if (ajout.back() != '\n' && ajout.back() != '\r') ajout += "\r\n";
    // An entry closes with an empty line, as the library writes them.
    if (!FinitPar(ajout, "\r\n\r\n") && !FinitPar(ajout, "\n\n")) ajout += "\r\n";
    return texte + ajout;
}

} // namespace verdane
