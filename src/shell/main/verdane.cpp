// verdane: the program. With a job on its command line it does that job and ends; with none it
// is the desktop bar.

#include "shell/Demarrage.h"
#include "shell/console/ConsoleUtilisateur.h"
#include "shell/main/DernierRecours.h"
#include "shell/main/Fenetres.h"
#include "shell/main/Memoire.h"
#include "shell/main/Plateforme.h"
#ifdef VERDANE_QT_SHELL
#include "shell/qt/UtilisateurQt.h"
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

int Programme(int argc, char** argv) {
    using namespace verdane;
    Plateforme plateforme(argc, argv); // outlives the run's state
    ConsoleUtilisateur console;
    // With a display the user is spoken to in windows; the context holds the port, which
    // outlives it.
    std::unique_ptr<PortUtilisateur> ecran;
#ifdef VERDANE_QT_SHELL
    ecran = qt::UtilisateurEcran(argc > 1);
#endif
    auto ctx = std::make_unique<Contexte>(ecran ? *ecran : static_cast<PortUtilisateur&>(console));
#ifdef VERDANE_QT_SHELL
    if (auto* q = dynamic_cast<qt::UtilisateurQt*>(ecran.get())) q->PoserContexte(ctx.get());
#endif
    const auto liens = plateforme.Brancher(*ctx);
    InscrireFenetres(*ctx); // nothing without a display
    Environnement env;
    env.dossierProgramme = Utf8VersCp1252(DossierDuProgramme(argc > 0 ? argv[0] : nullptr));
    if (const char* home = std::getenv("MARLO_HOME")) env.marloHome = Utf8VersCp1252(home);
    const auto ligne = LigneCommande::DepuisArguments(argc, argv);
    return ExecuterProgramme(*ctx, ligne, env);
}

} // namespace

int main(int argc, char** argv) {
    verdane::GarderMemoireLiberee();
    return verdane::DernierRecours("verdane", verdane::kSortieEchec,
                                   [&] { return Programme(argc, argv); });
}
