#include "graphs/FichierGraph.h"

#include "graphs/CodeGraph.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {

namespace {

constexpr const char* kTitreBibliotheque = "Bibliothèque de graphiques";

ModeleGraph& Graphe(EtatGraphes& eg, int i) {
    return eg.graphes[static_cast<std::size_t>(i)];
}

} // namespace

Texte CheminFichierGraph(const Etat& etat) {
    if (Rogner(etat.chemins.RepModelGraph).empty()) return {};
    return AjouterBarre(etat.chemins.RepModelGraph) + kFichierGraphes;
}

int ChargerGraphes(EtatGraphes& eg, std::string_view octets) {
    const auto nombre = octets.size() / kTailleEnrGraph;
    const int pris = nombre > kMaxGraphes ? kMaxGraphes : static_cast<int>(nombre);
    for (int i = 1; i <= pris; ++i)
        Graphe(eg, i) = LireEnrGraph(
            octets.substr(static_cast<std::size_t>(i - 1) * kTailleEnrGraph, kTailleEnrGraph));
    eg.nbGraphes = static_cast<std::int16_t>(pris);
    return static_cast<int>(std::min<std::size_t>(nombre, kMaxGraphes + 1));
}

std::string OctetsGraphes(const EtatGraphes& eg) {
    std::string octets;
    const int n = eg.nbGraphes < 0 ? 0 : std::min<int>(eg.nbGraphes, kMaxGraphes);
    octets.reserve(static_cast<std::size_t>(n) * kTailleEnrGraph);
    for (int i = 1; i <= n; ++i) octets += EcrireEnrGraph(eg.graphes[static_cast<std::size_t>(i)]);
    return octets;
}

void NormaliserNoms(EtatGraphes& eg) {
    const int n = std::min<int>(eg.nbGraphes, kMaxGraphes);
    for (int i = 1; i <= n; ++i) {
        int numero = 2;
        for (int j = i + 1; j <= n; ++j) {
            const Texte titre = Rogner(Graphe(eg, j).titre);
            if (Rogner(Graphe(eg, i).titre) != titre) continue;
            Graphe(eg, j).titre = ChampFixe(titre + std::to_string(numero++), kLargeurTitreGraph);
        }
    }
}

void LireFichierGraph(Contexte& ctx) {
    auto& eg = ctx.etat.graphes;
    const Texte chemin = CheminFichierGraph(ctx.etat);
    eg.nbGraphes = 0;
    if (chemin.empty()) return;
    if (!DossierExiste(ctx.etat.chemins.RepModelGraph)) CreerChemin(chemin);
    if (!FichierExiste(chemin)) EcrireFichierSur(chemin, {});
    const auto octets = LireFichier(chemin);
    if (!octets) {
        ctx.utilisateur.Boite("Le fichier des graphiques " + chemin + " n'a pas pu être lu.",
                              kTitreBibliotheque, Icone::Attention);
        return;
    }
    if (ChargerGraphes(eg, *octets) > kMaxGraphes)
        ctx.utilisateur.Boite("Le fichier des graphiques " + chemin + " contient plus de 50" +
                                  " graphiques : seuls les 50 premiers sont chargés." + "\r\n" +
                                  "Les suivants seront perdus au prochain enregistrement de la" +
                                  " bibliothèque.",
                              kTitreBibliotheque, Icone::Attention);
}

bool EcrireFichierGraph(Contexte& ctx) {
    auto& eg = ctx.etat.graphes;
    const Texte chemin = CheminFichierGraph(ctx.etat);
    if (chemin.empty()) return false;
    NormaliserNoms(eg);
    if (!DossierExiste(ctx.etat.chemins.RepModelGraph)) CreerChemin(chemin);
    if (EcrireFichierSur(chemin, OctetsGraphes(eg))) return true;
    ctx.utilisateur.Boite("Le fichier des graphiques " + chemin +
                              " n'a pas pu être enregistré : les modifications des graphiques" +
                              " sont perdues.",
                          kTitreBibliotheque, Icone::Critique);
    return false;
}

int AjouterCodeAuFichier(Contexte& ctx, std::string_view code) {
    auto& eg = ctx.etat.graphes;
    LireFichierGraph(ctx);
    if (eg.nbGraphes >= kMaxGraphes) {
        ctx.utilisateur.Boite("La bibliothèque compte déjà 50 graphiques : ce graphique ne peut"
                              " pas y être ajouté.",
                              kTitreBibliotheque, Icone::Attention);
        return 0;
    }
    if (CommenceParSansCasse(code, "gph(") && FinitPar(code, ")"))
        code = code.substr(4, code.size() - 5);
    const int index = eg.nbGraphes + 1;
    eg.nbGraphes = static_cast<std::int16_t>(index);
    Graphe(eg, index) = ModeleGraph{};
    LireCodeGraph(ctx, index, code);
    if (!EcrireFichierGraph(ctx)) return 0;
    return index;
}

} // namespace verdane
