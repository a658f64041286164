#pragma once
// The document that verdane-lot makes of a model and a dossier, to compare with the one a
// dialog makes of the same inputs.

#include "shell/Lot.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"

namespace verdane::test {

// Runs verdane-lot's creation into `resultat`; its content, or "" when it failed.
inline std::string DocumentDeVerdaneLot(const InstallationTemporaire& i, const Texte& dossier,
                                        const Texte& modele, const std::string& resultat) {
    FauxUtilisateur muet;
    Contexte lot(muet);
    OptionsLot o;
    o.dossier = i.Dossier(dossier);
    o.modele = modele;
    o.resultat = i.d / resultat;
    o.remplacer = true;
    if (ExecuterLot(lot, o, i.env).statut != kSortieFaite) return {};
    return i.d.Lire(resultat);
}

} // namespace verdane::test
