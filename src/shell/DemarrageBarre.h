#pragma once
// The start and the end of the desktop bar, without the windows: what the program loads and
// decides before the bar is shown, and what closing it asks.

#include "links/RechercheEditeurs.h"
#include "shell/etat/Contexte.h"

namespace verdane {

// The word-processor choice as the program starts with windows: a chosen word processor of
// this system that is gone is told and forgotten, a user who never chose one gets this
// system's office when it is installed (else the editor choice opens, when this build has it).
void AppliquerChoixEditeur(Contexte& ctx, const ParametresRecherche& recherche);

// Steps of the normal start that need no window: the word processor becomes the user's, the
// graph library is loaded, the word-processor choice is applied, the current dossier is
// loaded. Returns true when the news window is to be shown.
bool PreparerBarre(Contexte& ctx, const ParametresRecherche& recherche);

// The close button: asks whether to remove the bar. True on yes.
bool ConfirmerFermeture(Contexte& ctx);

} // namespace verdane
