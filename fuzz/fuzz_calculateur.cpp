// libFuzzer entry for the calculator of formulas and the substitution of references in front
// of it. Not part of the normal build; from the root of the repository:
//
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -Isrc \
//       fuzz/fuzz_calculateur.cpp src/tables/Calcul*.cpp src/tables/Formule*.cpp \
//       src/data/*.cpp src/utils/*.cpp src/shell/etat/Contexte.cpp src/engine/*.cpp \
//       -o fuzz_calculateur
//   ./fuzz_calculateur -max_len=4096
//
// Checks beyond "no crash": a value is a finite number, and a text that gives a value reads.

#include "shell/etat/Contexte.h"
#include "tables/Calculateur.h"
#include "tables/Formules.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    const std::string_view texte(reinterpret_cast<const char*>(donnees), taille);

    const auto valeur = verdane::Calculer(texte);
    if (valeur && (!std::isfinite(*valeur) || !verdane::CalculLisible(texte))) __builtin_trap();

    static verdane::UtilisateurMuet muet;
    static verdane::Contexte ctx{muet};
    verdane::TableauFormule tableau;
    tableau.valeurSerie = [](const verdane::Texte&, int annee) { return 1.5f * annee; };
    tableau.libelleSerie = [](const verdane::Texte& code) { return code; };
    tableau.libelleLigne = [](int ligne) { return verdane::Texte(ligne % 2 ? "LG1" : "x"); };
    const int colonne = taille > 0 ? donnees[0] % 20 - 2 : 0;
    verdane::SubstituerFormule(ctx, verdane::Texte(texte), colonne, tableau);
    verdane::EvaluerFormule(ctx, verdane::Texte(texte), colonne < 0 ? 1 : colonne, tableau);
    return 0;
}
