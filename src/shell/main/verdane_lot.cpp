// verdane-lot: makes a named dossier's document without a dialog.

#include "shell/Lot.h"
#include "shell/console/ConsoleUtilisateur.h"
#ifdef VERDANE_AVEC_UNO
#include "links/uno/LiensSysteme.h"
#else
#include "links/LiensSansOffice.h"
#endif
#include "utils/EcritureSure.h"

#ifdef VERDANE_AVEC_QT
#include "graphs/qt/ApplicationQt.h"
#include "graphs/qt/SurfaceQt.h"
#endif

#include <cstdio>
#include <cstdlib>
#include <memory>

int main(int argc, char** argv) {
    using namespace verdane;
    std::vector<Texte> arguments;
    for (int i = 1; i < argc; ++i) arguments.push_back(Utf8VersCp1252(argv[i]));
    const auto lecture = LireOptionsLot(arguments);
    if (!lecture.options) {
        std::fprintf(stderr, "verdane-lot : %s\n%s", TexteConsole(lecture.erreur).c_str(),
                     TexteConsole(AideLot()).c_str());
        return kSortieUsage;
    }
    const OptionsLot& options = *lecture.options;
    if (options.aide) {
        std::fputs(TexteConsole(AideLot()).c_str(), stdout);
        return kSortieFaite;
    }
    if (options.version) {
        std::printf("verdane-lot %s\n", VERDANE_VERSION);
        return kSortieFaite;
    }

#ifdef VERDANE_AVEC_QT
    // Made before the run's state, which may hold charts, and so outliving it.
    qt::ApplicationQt applicationQt(argc, argv);
    qt::FabriqueSurfaceQt fabriqueSurface;
#endif
    ConsoleUtilisateur console;
    console.ImposerReponse(options.reponse);
    UtilisateurEnregistre enregistre(console);
    auto ctx = std::make_unique<Contexte>(enregistre);
#ifdef VERDANE_AVEC_UNO
    LiensSysteme liens(*ctx);
#else
    LiensSansOffice liens(*ctx);
#endif
#ifdef VERDANE_AVEC_QT
    ctx->etat.graphes.fabriqueSurface = &fabriqueSurface;
#endif
    Environnement env;
    if (const char* home = std::getenv("MARLO_HOME")) env.marloHome = Utf8VersCp1252(home);

    const BilanLot bilan = ExecuterLot(*ctx, options, env);
    if (!options.rapport.empty() &&
        !EcrireFichierSur(options.rapport, RapportJson(options, bilan, enregistre.Evenements()))) {
        std::fprintf(stderr, "verdane-lot : %s\n",
                     TexteConsole("impossible d'écrire le rapport " + options.rapport).c_str());
    }
    return bilan.statut;
}
