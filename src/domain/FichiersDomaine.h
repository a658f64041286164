#pragma once
// Readers of the dossier's own lists: investment files, crop lists, animal modules. Files
// are opened, read whole and closed at each call; a missing or short file gives fewer
// records, never a fault. A record cut short by the end of a file isn't read.

#include "domain/EnrCultures.h"
#include "domain/EnrInvest.h"
#include "shell/etat/Contexte.h"

#include <optional>
#include <vector>

namespace verdane {

// A file of the current dossier's folder (slot 0); empty when no dossier is chosen.
Texte FichierDossier(const Etat& etat, std::string_view nom);

// Reads one investment file into its list of EtatDomaine, by key letter: "i" `Immo.imm`,
// "s" `Sub.sub`, "e" `Emprunt.emp`, "p" `PlanF.fin`. Result: the number of records; for
// "p", the highest slot 1 to 20 whose label isn't empty; a missing `PlanF.fin` reads as 20
// empty slots, and nothing is written. Any other letter gives 0.
int LireFichierInvest(Contexte& ctx, char cle);
// The four files at once.
void LireFichiersInvest(Contexte& ctx);

// The 20 slots of a plan file's bytes (missing slots empty, labels trimmed), and the count.
int LirePlans(std::string_view octets, std::array<EnrPlan, EnrPlan::kNbPlans>& plans);

// Annual crops of `cult.clt`, up to the first kind below 1.
std::vector<EnrCulture> LireCultures(const Etat& etat);
// Perennial crops of `CltP.cpD` (the name in either case), up to the first kind below 1.
std::vector<EnrCulturePerenne> LireCulturesPerennes(const Etat& etat);

// The `.don` file of a crop: `Cult<n>.don` or `CltP<n>.don`, with "t" after the number when
// asked (`Cult<n>t.don`).
Texte FichierDonCulture(const Etat& etat, float numero, bool perenne, bool suffixeT = false);
// The `.don` file of animal module i: `AL<NN>AL.don`.
Texte FichierDonModule(const Etat& etat, int module);
// Value at a year index of record `numero` of a `.don` file; nothing when the file or the
// record isn't there. An index outside 0 to 13 gives 0.
std::optional<float> ValeurDon(const Etat& etat, std::string_view fichier, long long numero,
                               int annee);

struct ModuleAnimal {
    int numero = 0;
    bool actif = false;
    Texte nom;
};
// The modules 1 to `NumLastMod` of `ModAniLib.ini` (at most 99); none when the file is missing.
std::vector<ModuleAnimal> LireModulesAnimaux(const Etat& etat);

} // namespace verdane
