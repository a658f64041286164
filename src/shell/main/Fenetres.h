#pragma once
// The desktop windows of `verdane`: each subsystem built with its Qt windows puts its forms in
// the run's registry. Each does so only when there is a display to show them on.

#include "shell/etat/Contexte.h"

#ifdef VERDANE_QT_SKIN
#include "skin/qt/FenetresSkin.h"
#endif
#ifdef VERDANE_QT_SHELL
#include "shell/qt/FenetresShell.h"
#endif
#ifdef VERDANE_QT_LINKS
#include "links/qt/FenetresLiens.h"
#endif
#ifdef VERDANE_QT_LIBRARY
#include "library/qt/FenetresBibliotheque.h"
#endif
#ifdef VERDANE_QT_TABLES
#include "tables/qt/FenetresTableaux.h"
#endif
#ifdef VERDANE_QT_GRAPHS_EDITEUR
#include "graphs/qt/FenetresGraphes.h"
#endif

namespace verdane {

inline void InscrireFenetres([[maybe_unused]] Contexte& ctx) {
#ifdef VERDANE_QT_SKIN
    qt::InscrireFenetresSkin(ctx);
#endif
#ifdef VERDANE_QT_SHELL
    qt::InscrireFenetresShell(ctx);
#endif
#ifdef VERDANE_QT_LINKS
    qt::InscrireFenetresLiens(ctx);
#endif
#ifdef VERDANE_QT_LIBRARY
    qt::InscrireFenetresBibliotheque(ctx);
#endif
#ifdef VERDANE_QT_TABLES
    qt::InscrireFenetresTableaux(ctx);
#endif
#ifdef VERDANE_QT_GRAPHS_EDITEUR
    qt::InscrireFenetresGraphes(ctx);
#endif
}

} // namespace verdane
