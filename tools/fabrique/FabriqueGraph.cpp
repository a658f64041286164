#include "Fabrique.h"

#include "graphs/CodeGraph.h"
#include "graphs/FichierGraph.h"
#include "utils/Chaines.h"

#include <cstdio>

namespace verdane::fabrique {

namespace {

// What reading a code tells goes to the error output: a sample with a faulty code is seen.
class UtilisateurErreurs : public UtilisateurMuet {
public:
    void AfficherMessage(const Message& m) override {
        std::fprintf(stderr, "graph : %s %s\n", Cp1252VersUtf8(m.texte).c_str(),
                     Cp1252VersUtf8(m.technique).c_str());
    }
};

} // namespace

std::string FabriquerGraph(std::string_view utf8) {
    UtilisateurErreurs erreurs;
    Contexte ctx(erreurs);
    EtatGraphes& eg = ctx.etat.graphes;
    for (const Texte& brute : Couper(Utf8VersCp1252(utf8), '\n')) {
        Texte ligne = Rogner(RemplacerExact(brute, "\r", ""));
        if (ligne.empty() || ligne[0] == '#' || eg.nbGraphes >= kMaxGraphes) continue;
        if (CommencePar(ligne, "gph(") && FinitPar(ligne, ")"))
            ligne = ligne.substr(4, ligne.size() - 5);
        ++eg.nbGraphes;
        LireCodeGraph(ctx, eg.nbGraphes, ligne);
    }
    return OctetsGraphes(eg);
}

} // namespace verdane::fabrique
