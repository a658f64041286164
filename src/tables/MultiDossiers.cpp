#include "tables/MultiDossiers.h"

#include "shell/etat/Contexte.h"

#include <algorithm>
#include <vector>

namespace verdane {

namespace {
constexpr int kMaxDossiers = 9;
}

void SelectionnerDossiers(Contexte& ctx, TableauModele& tableau) {
    if (tableau.multiDossier != 1) return;
    Etat& e = ctx.etat;
    std::int16_t& choisis = e.tableaux.nbDossiersChoisis;
    if (choisis != 0 && choisis == tableau.nbDossiers) return;

    if (e.nbDossiersImposes > 0) {
        const auto imposes =
            static_cast<std::int16_t>(std::min<int>(e.nbDossiersImposes, kMaxDossiers));
        if (tableau.nbDossiers < 1 || tableau.nbDossiers > imposes) tableau.nbDossiers = imposes;
        choisis = tableau.nbDossiers;
        return;
    }

    std::vector<DossierCompare> dossiers;
    for (std::size_t slot = 1; slot <= kMaxDossiers; ++slot)
        dossiers.push_back({e.RepDossier[slot], e.NomDossier[slot]});
    int nombre = std::clamp<int>(tableau.nbDossiers, 1, kMaxDossiers);
    if (!ctx.utilisateur.ChoisirDossiers(kTitreMultiDossier, kConsigneMultiDossier, nombre,
                                         dossiers))
        return;
    nombre = std::clamp(nombre, 1, kMaxDossiers);
    for (std::size_t k = 0; k < dossiers.size() && k < static_cast<std::size_t>(kMaxDossiers);
         ++k) {
        e.RepDossier[k + 1] = dossiers[k].repertoire;
        e.NomDossier[k + 1] = dossiers[k].nom;
    }
    tableau.nbDossiers = static_cast<std::int16_t>(nombre);
    choisis = tableau.nbDossiers;
}

} // namespace verdane
