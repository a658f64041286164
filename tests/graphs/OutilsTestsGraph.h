#pragma once
// Helpers of the graph tests: a graph model with every field away from its default.

#include "graphs/CodeGraph.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/OutilsFichiers.h"

namespace verdane::test {

using UtilisateurNote = FauxUtilisateur;

// Three series, odd values in every field, reals with fractions.
inline ModeleGraph GrapheComplet() {
    UtilisateurMuet muet;
    Contexte ctx(muet);
    LireCodeGraph(ctx, 1,
                  "Marge brute;10;1;3;-1;Produits et charges en €;1;7;-3;300;"
                  "0,125;1234,5;-7,75;99;10,1;2000,3;15,7;1500,9;0,001;3E+07;0;0,33333334;"
                  "-1,5;2,5;3,25;4;30,5;-12,25;0;3;0;4;Axe 0;9;20;Axe 1;10;21;Axe 2;11;22;"
                  "Axe 3;12;23;22;[CODE1;Produits;1;DONNEES.DON;0;1;2;3;2;0]"
                  "[CODE2;Charges;2;DONNEES.DON;0;11;22;33;3;1]"
                  "[CODE3;Marge;3;DONNEES.DON;1;21;42;63;4;2]");
    return ctx.etat.graphes.graphes[1];
}

} // namespace verdane::test
