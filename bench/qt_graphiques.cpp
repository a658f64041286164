// Benchmarks of a document's chart (1280 x 840 pixels, the chart of the end-to-end model):
// where its time goes, the drawing by Qt Charts, a conversion of the picture and the PNG
// encoding under several settings (filter 0 none, 1 left, 2 up; zlib level; strategy 0
// default, 3 runs only). Run: build-bench/bench/qt_graphiques.

#include "graphs/qt/ApplicationQt.h"
#include "graphs/qt/EncodagePng.h"
#include "graphs/qt/RenduGraphique.h"
#include "graphs/qt/SurfaceQt.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

namespace {

using namespace verdane;
using namespace verdane::qt;

// One line series over seven years, titles and a legend, as the generated model draws.
SurfaceQt Graphique(int type) {
    SurfaceQt s;
    s.PoserTypeGraphique(type);
    s.PoserTitre("Lait vendu");
    s.PoserNote("Livraisons");
    s.PoserAfficherLegende(true);
    s.PoserNombreColonnes(1);
    s.PoserNombreLignes(7);
    s.PoserColonne(1);
    s.PoserLibelleColonne("Lait vendu");
    for (int l = 1; l <= 7; ++l) {
        s.PoserLigne(l);
        s.PoserDonnee(1000.0 + 137.0 * l * (l % 3));
        s.PoserLibelleLigne(std::to_string(2023 + l));
    }
    s.PoserCouleurTrait(1, {60, 150, 80});
    s.PoserEpaisseurTrait(1, 1);
    s.PoserTitreAxe(0, "Années");
    s.PoserTitreAxe(1, "Litres");
    return s;
}

const QSize kTaille(kLargeurGraphique, kHauteurGraphique);

void Dessin(benchmark::State& state) {
    const SurfaceQt s = Graphique(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(RendreGraphique(s.Reglages(), kTaille));
}
BENCHMARK(Dessin)->Arg(kCourbes2D)->Arg(kBarres2D)->Arg(kBarres3D)->Unit(benchmark::kMillisecond);

void Chaine(benchmark::State& state) {
    SurfaceQt s = Graphique(kCourbes2D);
    for (auto _ : state) benchmark::DoNotOptimize(s.CopierImage());
}
BENCHMARK(Chaine)->Unit(benchmark::kMillisecond);

// What converting the drawn picture to an opaque one cost, when the chart was drawn with alpha.
void Conversion(benchmark::State& state) {
    const QImage image = RendreGraphique(Graphique(kCourbes2D).Reglages(), kTaille)
                             .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) benchmark::DoNotOptimize(image.convertToFormat(QImage::Format_RGB32));
}
BENCHMARK(Conversion)->Unit(benchmark::kMillisecond);

// Filter mask, level, strategy.
void Encodage(benchmark::State& state) {
    const QImage image = RendreGraphique(Graphique(kCourbes2D).Reglages(), kTaille);
    const ReglagesPng r{static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                        static_cast<int>(state.range(2))};
    std::size_t taille = 0;
    for (auto _ : state) {
        const std::string png = EncoderPng(image, r);
        taille = png.size();
    }
    state.counters["octets"] = static_cast<double>(taille);
}
BENCHMARK(Encodage)
    ->Args({1, 1, Z_DEFAULT_STRATEGY})
    ->Args({0, 1, Z_DEFAULT_STRATEGY})
    ->Args({2, 1, Z_DEFAULT_STRATEGY})
    ->Args({1, 1, Z_RLE})
    ->Args({2, 1, Z_RLE})
    ->Args({0, 1, Z_RLE})
    ->Args({1, 3, Z_RLE})
    ->Args({1, 0, Z_DEFAULT_STRATEGY})
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    int n = 1;
    char* args[] = {argv[0], nullptr};
    ApplicationQt application(n, args);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
