// Benchmarks of the document engine: a letter for a dossier, a large model, series values and
// number texts. Run: build-bench/bench/bench_moteur (configure with -DVERDANE_BENCHMARKS=ON).

#include "Fabrique.h"
#include "data/EnrDon.h"
#include "data/FormatNombre.h"
#include "data/ValeurCode.h"
#include "engine/AnalyserCodes.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "support/GrandTableau.h"
#include "tables/GenererTableau.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace verdane;

// A dossier with one series file, in a folder of its own.
struct Banc {
    Banc() {
        racine = std::filesystem::temp_directory_path() / "verdane-banc";
        std::filesystem::create_directories(racine / "D");
        std::ofstream(racine / "D" / "D", std::ios::binary)
            << fabrique::FabriquerDossier(fabrique::LireDescription(
                   "[dossier]\nnom=D\nnomExploitation=GAEC\nnbAnEtude=6\nanneeDebut=2024\n"
                   "dateDebut=01/01/2024\ntypeExploitation=1\nnbAssocies=2\nnomAssocie1=A\n"
                   "nomAssocie2=B\n"));
        std::string don;
        for (int r = 1; r <= 200; ++r) {
            EnrDon e;
            e.code = "VL-" + std::to_string(r) + ":0";
            e.libelle = "Série " + std::to_string(r);
            for (std::size_t k = 0; k < e.valeur.size(); ++k) e.valeur[k] = 1000.5f * (r + k);
            don += EcrireEnrDon(e);
        }
        std::ofstream(racine / "D" / "VL.don", std::ios::binary) << don;
        ctx.etat.RepDossier[0] = racine.string() + "/";
        ctx.etat.NomDossier[0] = "D";
    }
    ~Banc() { std::filesystem::remove_all(racine); }
    std::filesystem::path racine;
    UtilisateurMuet muet;
    Contexte ctx{muet};
};

std::string Lettre(int paragraphes) {
    std::string m = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\r\n";
    for (int i = 0; i < paragraphes; ++i)
        m += "Le GAEC #mrl(nomExplSoc)# de #mrl(commune)#, associ\\'e9s : #mrl(nomAssocies)# "
             "livre #mrl(VL.don+VL-3a" +
             std::to_string(i % 200 + 1) +
             ":0)# litres en "
             "#mrl(an4Deb3)#.\\par\r\n";
    return m + "}\r\n";
}

void CreationDUneLettre(benchmark::State& etat, int paragraphes) {
    Banc banc;
    const auto modele = banc.racine / "modele.vdm";
    std::ofstream(modele, std::ios::binary) << Lettre(paragraphes);
    const Texte resultat = (banc.racine / "resultat.rtf").string();
    for (auto _ : etat) CreerDocument(banc.ctx, modele.string(), resultat, false, true, false);
    etat.SetItemsProcessed(etat.iterations() * paragraphes * 5);
    etat.SetLabel("codes");
}
BENCHMARK_CAPTURE(CreationDUneLettre, lettre_20_paragraphes, 20)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(CreationDUneLettre, rapport_2000_paragraphes, 2000)
    ->Unit(benchmark::kMillisecond);

void ValeurDUneSerie(benchmark::State& etat) {
    Banc banc;
    for (auto _ : etat) {
        Texte code = "VL.don+VL-3a57";
        std::int16_t annee = -1, decimales = -1;
        benchmark::DoNotOptimize(ValeurCode(banc.ctx, code, 7, annee, decimales, 0));
    }
}
BENCHMARK(ValeurDUneSerie);

void TexteDUnNombre(benchmark::State& etat) {
    float v = 1234567.891f;
    for (auto _ : etat) {
        benchmark::DoNotOptimize(FormatNombre(v, 2, false));
        v += 0.37f;
    }
}
BENCHMARK(TexteDUnNombre);

void GrosModeleSansCode(benchmark::State& etat) {
    Banc banc;
    const auto modele = banc.racine / "gros.vdm";
    {
        std::ofstream f(modele, std::ios::binary);
        f << "{\\rtf1\r\n";
        for (int i = 0; i < 100000; ++i)
            f << "Un paragraphe sans code, rien que du texte.\\par\r\n";
        f << "}\r\n";
    }
    const Texte resultat = (banc.racine / "resultat.rtf").string();
    for (auto _ : etat) CreerDocument(banc.ctx, modele.string(), resultat, false, true, false);
    etat.SetBytesProcessed(etat.iterations() *
                           static_cast<std::int64_t>(std::filesystem::file_size(modele)));
}
BENCHMARK(GrosModeleSansCode)->Unit(benchmark::kMillisecond);

// The largest table: 511 lines of 9 labels and 14 values, totals over the lines above, or a
// series of the dossier in two lines out of three.
void PlusGrandTableau(benchmark::State& etat, bool series) {
    Banc banc;
    banc.ctx.etat.nbAnEtude = 13;
    const Texte code = test::CodeGrandTableau(series, "VL.don+VL-7");
    for (auto _ : etat) benchmark::DoNotOptimize(GenererTableau(banc.ctx, code));
}
BENCHMARK_CAPTURE(PlusGrandTableau, totaux, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PlusGrandTableau, series, true)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
