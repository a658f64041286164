// verdane-lot: makes a named dossier's document without a dialog.

#include "shell/Lot.h"
#include "shell/console/ConsoleUtilisateur.h"
#include "shell/main/DernierRecours.h"
#include "shell/main/Memoire.h"
#include "shell/main/Plateforme.h"
#include "utils/EcritureSure.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

int Programme(int argc, char** argv) {
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

    Plateforme plateforme(argc, argv); // outlives the run's state
    ConsoleUtilisateur console;
    console.ImposerReponse(options.reponse);
    UtilisateurEnregistre enregistre(console);
    auto ctx = std::make_unique<Contexte>(enregistre);
    const auto liens = plateforme.Brancher(*ctx);
    Environnement env;
    if (const char* home = std::getenv("MARLO_HOME")) env.marloHome = Utf8VersCp1252(home);

    const BilanLot bilan = ExecuterLot(*ctx, options, env);
    if (!options.rapport.empty() &&
        !EcrireFichierSur(options.rapport, RapportJson(options, bilan, enregistre.Evenements(),
                                                       enregistre.Omis()))) {
        std::fprintf(stderr, "verdane-lot : %s\n",
                     TexteConsole("impossible d'écrire le rapport " + options.rapport).c_str());
    }
    return bilan.statut;
}

} // namespace

int main(int argc, char** argv) {
    verdane::GarderMemoireLiberee();
    return verdane::DernierRecours("verdane-lot", verdane::kSortieEchec,
                                   [&] { return Programme(argc, argv); });
}
