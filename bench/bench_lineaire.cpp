// Growth of the engine's costs with the shape of a model: each case runs at sizes doubling from
// one step to the next, and the fit Google Benchmark makes of the times against N (the "BigO"
// and "RMS" lines) tells whether they grow in proportion: a linear cost keeps the same time per
// unit at every size and fits N with an RMS of a few per cent.
// Run: build-bench/bench/bench_lineaire (configure with -DVERDANE_BENCHMARKS=ON).

#include "engine/AnalyserCodes.h"
#include "engine/CreationDoc.h"
#include "engine/NettoyerCode.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "tables/GenererTableau.h"

#include <benchmark/benchmark.h>

namespace {

using namespace verdane;

std::string Repeter(std::string_view motif, std::int64_t fois) {
    std::string s;
    s.reserve(motif.size() * static_cast<std::size_t>(fois));
    for (std::int64_t i = 0; i < fois; ++i) s += motif;
    return s;
}

// One creation of `modele`, again and again, with a dossier that has nothing in it.
void Creer(benchmark::State& etat, const std::string& modele) {
    test::DossierTemporaire d;
    const Texte chemin = d.Ecrire("modele.vdm", modele);
    UtilisateurMuet muet;
    Contexte ctx{muet};
    for (auto _ : etat) CreerDocument(ctx, chemin, d / "resultat.rtf", false, true, false);
    etat.SetComplexityN(etat.range(0));
    etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(modele.size()));
}

// False conditions all on one line, each hiding a short paragraph.
void ConditionsFaussesSurUneLigne(benchmark::State& etat) {
    Creer(etat,
          "{\\rtf1 " + Repeter("#mrl(si(0<>0)alors:x)#cach\\'e9\\par ", etat.range(0)) + "}\r\n");
}
BENCHMARK(ConditionsFaussesSurUneLigne)
    ->RangeMultiplier(2)
    ->Range(8 << 10, 64 << 10)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// False conditions on one line with no paragraph end behind them.
void ConditionsFaussesSansParagraphe(benchmark::State& etat) {
    Creer(etat, "{\\rtf1 " + Repeter("#mrl(si(0<>0)alors:x)#sans fin ", etat.range(0)) + "}\r\n");
}
BENCHMARK(ConditionsFaussesSansParagraphe)
    ->RangeMultiplier(2)
    ->Range(8 << 10, 64 << 10)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// The codes of one table cell: many in a row, or opened many times before one close.
void CodesDUneCellule(benchmark::State& etat, bool imbriques) {
    UtilisateurMuet muet;
    Contexte ctx{muet};
    const std::int64_t n = etat.range(0);
    const Texte cellule = imbriques ? Repeter("%mrl(", n) + "saut2page" + Repeter(")%", n)
                                    : Repeter("a %mrl(saut2page)% b ", n);
    for (auto _ : etat) {
        Texte t = cellule;
        AnalyserCodesImbriques(ctx, t);
        benchmark::DoNotOptimize(t);
    }
    etat.SetComplexityN(n);
}
BENCHMARK_CAPTURE(CodesDUneCellule, a_la_suite, false)
    ->RangeMultiplier(2)
    ->Range(10 << 10, 80 << 10)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(CodesDUneCellule, imbriques, true)
    ->RangeMultiplier(2)
    ->Range(10 << 10, 80 << 10)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// A table code full of backslashes and quotes: escapes that each removal may bring together.
void EchappementsDUnTableau(benchmark::State& etat) {
    UtilisateurMuet muet;
    Contexte ctx{muet};
    const std::int64_t n = etat.range(0);
    const Texte code = "tab" + Repeter("\\", n) + Repeter("'", n) + Repeter("\\'", n);
    for (auto _ : etat) benchmark::DoNotOptimize(GenererTableau(ctx, code));
    etat.SetComplexityN(n);
}
BENCHMARK(EchappementsDUnTableau)
    ->RangeMultiplier(2)
    ->Range(16 << 10, 128 << 10)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

// A code that the word processor filled with bookmarks: Word's own, one after the other; words
// nested in one another, each appearing when the one inside it goes; OLE links.
void CodePleinDeSignets(benchmark::State& etat, std::string_view forme) {
    const std::int64_t n = etat.range(0);
    Texte code;
    if (forme == "word")
        code = Repeter("{\\*\\bkmkstart DDE_LINK12}a{\\*\\bkmkend DDE_LINK12}", n);
    else if (forme == "imbriques")
        code = Repeter("kmkstartDDE_LIN", n) + Repeter("K7", n);
    else
        code = Repeter("{\\*\\bkmkend endOLE_LINK34}", n) + Repeter("endOLE", n);
    for (auto _ : etat) {
        Texte t = code;
        NettoyerCode(t);
        benchmark::DoNotOptimize(t);
    }
    etat.SetComplexityN(n);
    etat.SetBytesProcessed(etat.iterations() * static_cast<std::int64_t>(code.size()));
}
// 1, 2, 4 and 8 times 3072 bookmarks: 1.2 MB for the largest of Word's.
void UnADeuxQuatreHuit(benchmark::internal::Benchmark* b) {
    for (std::int64_t fois : {1, 2, 4, 8}) b->Arg(fois * (3 << 10));
    b->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}
BENCHMARK_CAPTURE(CodePleinDeSignets, word, "word")->Apply(UnADeuxQuatreHuit);
BENCHMARK_CAPTURE(CodePleinDeSignets, imbriques, "imbriques")->Apply(UnADeuxQuatreHuit);
BENCHMARK_CAPTURE(CodePleinDeSignets, ole, "ole")->Apply(UnADeuxQuatreHuit);

} // namespace

BENCHMARK_MAIN();
