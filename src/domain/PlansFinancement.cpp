#include "domain/PlansFinancement.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <cmath>

namespace verdane {

namespace {

bool DuPlan(float numPlan, int numero) {
    return std::isfinite(numPlan) && std::lround(numPlan) == numero;
}

} // namespace

std::vector<PlanRassemble> RassemblerPlans(const EtatDomaine& d) {
    std::vector<PlanRassemble> plans;
    const int nb = std::clamp(d.nbPlans, 0, EnrPlan::kNbPlans);
    for (int p = 1; p <= nb; ++p) {
        PlanRassemble r;
        r.numero = p;
        r.plan = &d.plans[static_cast<std::size_t>(p - 1)];
        for (const auto& e : d.immobilisations)
            if (DuPlan(e.numPlan, p) && r.immobilisations.size() < kMaxParPlan)
                r.immobilisations.push_back(&e);
        for (const auto& e : d.subventions)
            if (DuPlan(e.numPlan, p) && r.subventions.size() < kMaxParPlan)
                r.subventions.push_back(&e);
        for (const auto& e : d.emprunts)
            if (e.numPlan == p && r.emprunts.size() < kMaxParPlan) r.emprunts.push_back(&e);
        if (r.plan->pourcentage >= 100) {
            r.investissements.assign(r.immobilisations.size() + 1, r.plan->montantDirect);
        } else {
            for (const auto* e : r.immobilisations) r.investissements.push_back(e->montant);
        }
        plans.push_back(std::move(r));
    }
    return plans;
}

LibellePlan LireLibellePlan(std::string_view libelle) {
    const Texte t = Rogner(libelle);
    const auto ouvre = t.find('[');
    if (ouvre == Texte::npos || t.find(']', ouvre) == Texte::npos) return {t, ""};
    return {Rogner(t.substr(0, ouvre)), t.substr(ouvre + 1, 4)};
}

} // namespace verdane
