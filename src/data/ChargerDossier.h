#pragma once
// The dossier of a slot: its folder, and the record of the current dossier.

#include "shell/etat/Contexte.h"

namespace verdane {

// RepDossier(slot) + NomDossier(slot), each through AjouterBarre: the dossier's own folder.
Texte DossierComplet(const Etat& etat, int slot);

// Loads record 1 of the current dossier (slot 0) into etat.enrDossier, with its study period.
// Blank names do nothing; a missing record file blanks NomDossier(0), a missing folder
// blanks RepDossier(0).
void ChargerDossier(Contexte& ctx);

} // namespace verdane
