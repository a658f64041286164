#pragma once
// What a program of Verdane puts behind the core's ports for a run: the word-processor links
// (LibreOffice when the program is built with it) and the chart surfaces (Qt when built with
// it). Made before the run's state, so that it outlives it; the links it gives are kept by the
// caller after the state is made, so that they end (and the office they started) before it.

#include "shell/etat/Contexte.h"

#ifdef VERDANE_AVEC_UNO
#include "links/uno/LiensSysteme.h"
#else
#include "links/LiensSansOffice.h"
#endif
#ifdef VERDANE_AVEC_QT
#include "graphs/qt/ApplicationQt.h"
#include "graphs/qt/SurfaceQt.h"
#endif

#include <memory>

namespace verdane {

#ifdef VERDANE_AVEC_UNO
using LiensPlateforme = LiensSysteme;
#else
using LiensPlateforme = LiensSansOffice;
#endif

class Plateforme {
public:
    Plateforme([[maybe_unused]] int& argc, [[maybe_unused]] char** argv)
#ifdef VERDANE_AVEC_QT
        : applicationQt_(argc, argv)
#endif
    {
    }

    // Puts the platform's services behind the ports of `ctx`; the links returned serve as long
    // as they live.
    [[nodiscard]] std::unique_ptr<LiensPlateforme> Brancher(Contexte& ctx) {
#ifdef VERDANE_AVEC_QT
        ctx.etat.graphes.fabriqueSurface = &fabriqueSurface_;
#endif
        return std::make_unique<LiensPlateforme>(ctx);
    }

private:
#ifdef VERDANE_AVEC_QT
    qt::ApplicationQt applicationQt_;
    qt::FabriqueSurfaceQt fabriqueSurface_;
#endif
};

} // namespace verdane
