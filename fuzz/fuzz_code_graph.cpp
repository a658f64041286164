// libFuzzer entry: bytes taken as the text of a gph( code and as the content of graph.txt.
// Whatever comes in, reading must not fail, and what was read must write back and read again
// into the same text, unless one of its text fields holds a ";" (which shifts what follows).
//
// Not part of the default build. From the top of the repository, with clang (which keeps
// literals in UTF-8: only the texts of messages differ from the program's), on one line:
//   clang++ -std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -Isrc
//       fuzz/fuzz_code_graph.cpp $(find src -name '*.cpp' -not -path '*/console/*'
//       -not -path '*/main/*' -not -path '*/qt/*' -not -path '*/uno/*') -o fuzz_code_graph
//   ./fuzz_code_graph -max_total_time=60

#include "graphs/CodeGraph.h"
#include "graphs/FichierGraph.h"
#include "shell/etat/Contexte.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* donnees, std::size_t taille) {
    using namespace verdane;
    const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
    static UtilisateurMuet muet;
    static Contexte ctx(muet);
    auto& eg = ctx.etat.graphes;

    // The text form, into a slot that holds a whole graph already.
    eg.graphes[1] = ModeleGraph{};
    LireCodeGraph(ctx, 1, octets);
    if (eg.graphes[1].nbSeries < 0 || eg.graphes[1].nbSeries > kMaxSeriesGraph) std::abort();
    if (EcrireEnrGraph(eg.graphes[1]).size() != kTailleEnrGraph) std::abort();
    eg.grapheCourant = 1;
    const Texte code = EcrireCodeGraph(ctx);
    eg.graphes[2] = eg.graphes[1]; // the reader changes only what the text holds
    LireCodeGraph(ctx, 2, std::string_view(code).substr(4, code.size() - 5));
    eg.grapheCourant = 2;
    if (EcrireCodeGraph(ctx) != code) {
        const ModeleGraph& g = eg.graphes[1];
        Texte textes = g.titre + g.commentaire;
        for (const auto& a : g.axes) textes += a.titreAxe;
        for (const auto& s : g.series) textes += s.codeSerie + s.nomSerie + s.fichierSerie;
        if (textes.find(';') == Texte::npos) std::abort();
    }

    // The library file.
    ChargerGraphes(eg, octets);
    if (eg.nbGraphes < 0 || eg.nbGraphes > kMaxGraphes) std::abort();
    NormaliserNoms(eg);
    const std::string ecrit = OctetsGraphes(eg);
    if (ecrit.size() != static_cast<std::size_t>(eg.nbGraphes) * kTailleEnrGraph) std::abort();
    return 0;
}
