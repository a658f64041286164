// verdane: the program, started with a job on its command line.

#include "shell/Demarrage.h"
#include "shell/console/ConsoleUtilisateur.h"
#ifdef VERDANE_AVEC_UNO
#include "links/uno/LiensSysteme.h"
#else
#include "links/LiensSansOffice.h"
#endif

#ifdef VERDANE_AVEC_QT
#include "graphs/qt/ApplicationQt.h"
#include "graphs/qt/SurfaceQt.h"
#endif

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace {

std::string DossierDuProgramme(const char* argv0) {
    std::error_code ec;
    auto chemin = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (ec) chemin = std::filesystem::absolute(argv0 ? argv0 : "", ec);
    return chemin.parent_path().string() + "/";
}

} // namespace

int main(int argc, char** argv) {
    using namespace verdane;
#ifdef VERDANE_AVEC_QT
    // Made before the run's state, which may hold charts, and so outliving it.
    qt::ApplicationQt applicationQt(argc, argv);
    qt::FabriqueSurfaceQt fabriqueSurface;
#endif
    ConsoleUtilisateur console;
    auto ctx = std::make_unique<Contexte>(console);
    // The word-processor links live as long as the run; the office they start ends with them.
#ifdef VERDANE_AVEC_UNO
    LiensSysteme liens(*ctx);
#else
    LiensSansOffice liens(*ctx);
#endif
#ifdef VERDANE_AVEC_QT
    ctx->etat.graphes.fabriqueSurface = &fabriqueSurface;
#endif
    Environnement env;
    env.dossierProgramme = Utf8VersCp1252(DossierDuProgramme(argc > 0 ? argv[0] : nullptr));
    if (const char* home = std::getenv("MARLO_HOME")) env.marloHome = Utf8VersCp1252(home);
    const auto ligne = LigneCommande::DepuisArguments(argc, argv);
    return ExecuterProgramme(*ctx, ligne, env);
}
