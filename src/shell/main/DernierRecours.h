#pragma once
// The last guard of both programs: a failure that no routine of the run caught ends the
// program with a message in French and the status of a job that could not run, never with an
// abort. Everything of the run is unwound first, so no temporary file stays behind.

#include "shell/console/ConsoleUtilisateur.h"

#include <cstdio>
#include <exception>
#include <new>

namespace verdane {

template <typename Programme> int DernierRecours(const char* nom, int statutEchec, Programme p) {
    try {
        return p();
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "%s : %s\n", nom,
                     TexteConsole("mémoire insuffisante : le travail est abandonné.").c_str());
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s : %s\n%s\n", nom,
                     TexteConsole("erreur imprévue : le travail est abandonné.").c_str(), e.what());
    }
    return statutEchec;
}

} // namespace verdane
