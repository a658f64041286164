#pragma once
// The desktop windows of `verdane`: each subsystem built with its Qt windows puts its forms in
// the run's registry, and does so only when there is a display to show them on. The list of
// those subsystems is kept by the build (cmake/Fenetres.cmake writes it); a build without Qt
// has none.

#include "shell/etat/Contexte.h"

#if __has_include("shell/main/FenetresInscrites.h")
#include "shell/main/FenetresInscrites.h"
#else
namespace verdane {
inline void InscrireFenetres(Contexte&) {}
} // namespace verdane
#endif
