#pragma once
// State of the crop and activity loops: which crop or module is being expanded. The loops set
// these fields; the `@` data codes read them. Also the lists of the investment files, read
// anew by each table that needs them.

#include "domain/EnrCultures.h"
#include "domain/EnrInvest.h"
#include "utils/Texte.h"

#include <array>
#include <vector>

namespace verdane {

struct EtatDomaine {
    // Current annual crop: its number (a float in the crop list, giving `Cult<n>.don`), its
    // label (fixed string of 23) and its surface unit ("ha", "are" or "m²").
    float numCulture = 0;
    Texte libelleCulture;
    Texte uniteCulture;
    // Current perennial crop: number (giving `CltP<n>.don`), label (fixed string of 30), unit.
    float numCulturePerenne = 0;
    Texte libelleCulturePerenne;
    Texte uniteCulturePerenne;
    // Current animal module (giving `AL<NN>AL.don`) and its activity name.
    int numModuleAnimal = 0;
    Texte libelleModuleAnimal;

    // The whole record of the crop being expanded, and its kind (1 to 4), for the row labels.
    EnrCulture cultureCourante;
    EnrCulturePerenne culturePerenneCourante;

    // A perennial crop whose yearly data (record 74, years 1 to 6) sum to 0 gets no table.
    bool ignorerPerennesVides = true;

    // Surface unit of the dossier: 0 "ha", 1 "are", 2 "m²".
    int uniteSurface = 0;

    // Sums of `assolement` by group for the `totalvente`, `totalfourr`, `totalmarai` codes.
    std::array<float, 14> totalVente{};
    std::array<float, 14> totalFourrager{};
    std::array<float, 14> totalMaraicher{};

    // The module whose missing data file was already told, so it is told once per table.
    int moduleSignale = 0;

    // Running number of the repeated tables of a document (crops and activities).
    int compteurTableaux = 0;

    // The lists of the investment files, from 1: element i-1 is record i.
    std::vector<EnrImmo> immobilisations;
    std::vector<EnrImmo> subventions;
    std::vector<EnrEmprunt> emprunts;
    std::array<EnrPlan, EnrPlan::kNbPlans> plans{};
    int nbPlans = 0;
};

} // namespace verdane
