#pragma once
// Start of the program: paths, options, parameters, then the job of the command line.

#include "links/RechercheEditeurs.h"
#include "shell/Arguments.h"
#include "shell/etat/Contexte.h"

namespace verdane {

// Exit statuses of the program.
inline constexpr int kSortieFaite = 0;
inline constexpr int kSortieEchec = 1; // the job could not be done (model, result)
inline constexpr int kSortieUsage = 2; // no such job in this build, or a bad command line

struct Environnement {
    Texte dossierProgramme; // the program's own folder
    Texte marloHome;        // MARLO_HOME, the Marlo folder, when set
    // The options are read and never written, a missing file not created.
    bool optionsEnLectureSeule = false;
    // Where the jobs that open a creation window look for a word processor, for a user who
    // never chose one.
    ParametresRecherche rechercheEditeurs = ParametresParDefaut();
};

// The common part of every start: folders, options, parameters. False when the program must
// end (the parameter file is missing).
bool Initialiser(Contexte& ctx, const Environnement& env);

// Takes argument 2 as the dossier path into slot 0 of the dossier tables, and loads it.
void PreparerDossierLigneCommande(Contexte& ctx, const LigneCommande& ligne);

// The whole run: common part, then the job. Returns the exit status.
int ExecuterProgramme(Contexte& ctx, const LigneCommande& ligne, const Environnement& env);

} // namespace verdane
