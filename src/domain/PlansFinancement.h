#pragma once
// The financing plans of a dossier with what belongs to each: the immobilisations, subsidies
// and loans that name the plan's number.

#include "domain/EtatDomaine.h"

#include <vector>

namespace verdane {

// At most this many investments, subsidies or loans are taken for one plan.
inline constexpr std::size_t kMaxParPlan = 50;

struct PlanRassemble {
    int numero = 0; // 1 to 20
    const EnrPlan* plan = nullptr;
    // The amounts of the investment lines: the immobilisations' amounts, or, for a plan at
    // 100 % or more, its direct amount on each line (one line more than the immobilisations).
    std::vector<float> investissements;
    std::vector<const EnrImmo*> immobilisations;
    std::vector<const EnrImmo*> subventions;
    std::vector<const EnrEmprunt*> emprunts;
};

// Plans 1 to `nbPlans`, from the lists already read into `domaine`.
std::vector<PlanRassemble> RassemblerPlans(const EtatDomaine& domaine);

// A plan's label may hold a code in square brackets: "Bâtiment [AB12] neuf" gives the label
// "Bâtiment" and the code "AB12". Without "]" the label stays whole; without "[" too.
struct LibellePlan {
    Texte libelle;
    Texte code;
};
LibellePlan LireLibellePlan(std::string_view libelle);

} // namespace verdane
