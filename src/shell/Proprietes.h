#pragma once
// The properties menu: what it shows of the options and what its controls change, and the
// full-access password of the about window.

#include "shell/etat/Contexte.h"

namespace verdane {

struct VueProprietes {
    Texte editeur;       // "Traitement de texte utilisé"
    bool aLaLigne;       // "insertion à la ligne", else "insertion à la suite"
    bool popupDemarrage; // "Popup d'aide au démarrage"
};

VueProprietes LireProprietes(const Etat& etat);
// The choices of the menu into the options (not yet saved).
void AppliquerProprietes(Etat& etat, bool aLaLigne, bool popupDemarrage);

// The administrator password of the full access.
inline constexpr const char* kMotDePasseAccesTotal = "482915";

// comAccesTotal: true when the password is to be asked; false, after saying so, when the
// access is already total.
bool DemanderAccesTotal(Contexte& ctx);
// The text typed in the password dialog: an exact match gives the full access for the run.
// Either way the user is told. True when it matched.
bool ValiderMotDePasse(Contexte& ctx, const Texte& saisie);

// The message of a second start of the bar.
Message MessageDejaOuverte();

} // namespace verdane
