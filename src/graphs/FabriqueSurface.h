#pragma once
// What a platform gives the core to draw charts on: a maker of chart surfaces. The program
// installs one at start-up; without it, documents get no chart pictures.

#include "graphs/SurfaceGraphique.h"

#include <memory>

namespace verdane {

class FabriqueSurface {
public:
    virtual ~FabriqueSurface() = default;
    // A new chart, hidden, ready to be drawn and copied; null when the platform can't make one.
    virtual std::unique_ptr<SurfaceGraphique> Creer() = 0;
};

} // namespace verdane
