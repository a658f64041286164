#pragma once
// What the creation dialog decides: the model of a PDE page, the result's path, the checks
// before a creation in their order, and the creation itself through the driver.

#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"

#include <optional>

namespace verdane {

struct DemandeCreation {
    Texte modele;          // path of the model picked by hand
    Texte dossierResultat; // folder of the result
    Texte nomResultat;     // name of the result, with or without its extension
    char format = 'R';     // format letter (FormatsDocument.h)
    // The entry of the PDE page list, 0 to 15; -1 when the list isn't used. It replaces the
    // model picked by hand.
    int pagePDE = -1;
    // The study length typed in the PDE frame (0: five years); nothing outside the PDE.
    std::optional<int> anneesPDE;
};

// The result's path: folder, name and the format's extension (kept once when the name holds
// it already).
Texte CheminResultat(const DemandeCreation& demande);

// The model of a PDE page under the models folder, for a company or not.
Texte ModeleDePage(const Etat& etat, int page, bool societe);

// The paths of a creation once its checks pass, in this order: a dossier chosen; its record
// there; a model; a result name and folder; for the whole PDE on an individual farm, the
// question of the company pages. Each failed check is told and gives nothing.
struct CheminsCreation {
    Texte modele;
    Texte resultat;
};
std::optional<CheminsCreation> VerifierCreation(Contexte& ctx, const DemandeCreation& demande);

// The checks, then the driver; the result isn't shown (the export dialog follows). Nothing
// when a check failed.
std::optional<IssueCreation> LancerCreation(Contexte& ctx, const DemandeCreation& demande,
                                            Texte& resultat);

} // namespace verdane
