// libFuzzer target of the table code reader, not built by default. Build by hand from the
// repository's root, for instance:
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -Isrc
//     fuzz/fuzz_code_tableau.cpp src/tables/LectureCode.cpp src/tables/CodeTableau.cpp
//     src/utils/Chaines.cpp -o fuzz_code_tableau
// The bytes are a code; the model read from them is written and read again, and the number of
// lines must hold.

#include "shell/etat/Etat.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view code(reinterpret_cast<const char*>(donnees), taille);
    const TableauModele lu = LireCodeTableau(code);
    if (lu.nbLignes() > kMaxLignesTableau || lu.nbColonnes < 0 ||
        lu.nbColonnes > kMaxColonnesLibelle)
        std::abort();
    int incomplete = 0;
    const Texte ecrit = CodeModele(lu, Options{}, incomplete);
    const TableauModele relu = LireCodeTableau(ecrit);
    if (relu.nbLignes() != (incomplete == 0 ? lu.nbLignes() : incomplete - 1)) std::abort();
    return 0;
}
