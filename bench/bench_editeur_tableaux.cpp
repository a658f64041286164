// The table editor's model on the largest library, 500 tables of 511 lines: opening it (names,
// folders and heads read, the tree of folders built), opening one table (its lines read), and
// writing the library back with that one table changed. Run:
// build-bench/bench/bench_editeur_tableaux (configure with -DVERDANE_BENCHMARKS=ON).

#include "support/GrandTableau.h"
#include "tables/BibliothequeTableaux.h"
#include "tables/EditeurTableaux.h"

#include <benchmark/benchmark.h>

namespace {

using namespace verdane;

std::string GrandeBibliotheque(int tableaux) {
    const Texte code = test::CodeGrandTableau(true, "PROD.DON+PROD-1");
    std::string texte;
    for (int t = 1; t <= tableaux; ++t) {
        texte += "[Tableau " + std::to_string(t) + "][Dossier " + std::to_string(t % 20) +
                 "][Sous-dossier " + std::to_string(t % 3) + "]\r\n#mrl(" + code + ")#\r\n\r\n";
    }
    return texte;
}

void OuvertureEditeur(benchmark::State& state) {
    const std::string texte = GrandeBibliotheque(500);
    for (auto _ : state) {
        const std::vector<TableauModele> tableaux = LireTexteTableaux(texte, false);
        const std::vector<NoeudTableau> arbre = ArbreTableaux(tableaux);
        if (tableaux.size() != 500) state.SkipWithError("library not read whole");
        benchmark::DoNotOptimize(arbre.data());
    }
    state.counters["Mo"] = static_cast<double>(texte.size()) / 1e6;
}
BENCHMARK(OuvertureEditeur)->Unit(benchmark::kMillisecond)->MinTime(2.0);

void OuvertureTableau(benchmark::State& state) {
    const std::vector<TableauModele> tableaux = LireTexteTableaux(GrandeBibliotheque(500), false);
    for (auto _ : state) {
        TableauModele tableau = tableaux[250];
        LireLignesEnAttente(tableau);
        if (tableau.nbLignes() != kMaxLignesTableau) state.SkipWithError("table not read whole");
        benchmark::DoNotOptimize(tableau.lignes.data());
    }
}
BENCHMARK(OuvertureTableau)->Unit(benchmark::kMillisecond);

void EnregistrementBibliotheque(benchmark::State& state) {
    std::vector<TableauModele> tableaux = LireTexteTableaux(GrandeBibliotheque(500), false);
    LireLignesEnAttente(tableaux[250]);
    tableaux[250].lignes[0].definition = "espace";
    const Options options;
    for (auto _ : state) {
        const Texte texte = TexteTableaux(tableaux, options);
        benchmark::DoNotOptimize(texte.data());
    }
}
BENCHMARK(EnregistrementBibliotheque)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
