#pragma once
// The job GRAPH of the command line where the graph editor can't be shown (no display): the
// first graph of the library drawn with the values of the loaded dossier, into a PNG picture.

#include "shell/etat/Contexte.h"

namespace verdane {

// Picture of the job: "<dossier name>-graphique.png", beside the dossier's folder.
Texte CheminGraphDossier(const Etat& etat);

// Reads the library, draws its first graph with the dossier's values and writes the picture.
// Tells the user where it went, or why nothing was drawn; true when the picture was written.
bool DessinerGraphDossier(Contexte& ctx);

} // namespace verdane
