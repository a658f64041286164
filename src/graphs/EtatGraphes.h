#pragma once
// State of the graph library and of the chart being drawn.

#include "graphs/ModeleGraph.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <random>

namespace verdane {

class SurfaceGraphique;
class FabriqueSurface;
class ImagesAVenir;

inline constexpr int kMaxGraphes = 50;

struct EtatGraphes {
    // The library in memory: indexes 1 to 50, as graph.txt numbers its records; slot 0 is
    // never used. Document generation parses each gph( code into slot 1.
    std::array<ModeleGraph, kMaxGraphes + 1> graphes;
    // Number of records of the library.
    std::int16_t nbGraphes = 0;
    // Index of the selected graph, 0 when none.
    std::int16_t grapheCourant = 0;

    // The values of the last series read, indexes 0 to 13.
    std::array<float, 14> valeursSerie{};

    // The chart in use (the editor's preview, or the print chart), and the hidden chart that
    // documents are drawn on. Not owned; null: no chart, nothing is drawn.
    SurfaceGraphique* graphCourant = nullptr;
    SurfaceGraphique* graphInsertion = nullptr;
    // The platform's maker of charts (not owned; null: none), and the hidden chart it made for
    // documents when no one had put graphInsertion.
    FabriqueSurface* fabriqueSurface = nullptr;
    std::shared_ptr<SurfaceGraphique> insertionCreee;
    // The missing chart is told once a run.
    bool absenceSurfaceSignalee = false;

    // Pictures of charts of the document being made that a second thread finishes (made at
    // the first one). Only while `differerImages`: the creation driver sets it around each
    // mark of the model, and a table cell's codes clear it, their text being reworked.
    std::shared_ptr<ImagesAVenir> aVenir;
    bool differerImages = false;
    // False: every picture is finished in place, on the one thread; the document is the same.
    bool imagesEnParallele = true;

    // True when the program runs one job of its command line: the editor's preview then draws
    // the values of the dossier, and not sample values. Set at start-up.
    bool avecArguments = false;

    // Uniform source in [0, 1) for the colours of series that have none. Empty: the generator
    // below; tests put their own.
    std::function<double()> hasard;
    std::mt19937 generateur{std::random_device{}()};
};

} // namespace verdane
