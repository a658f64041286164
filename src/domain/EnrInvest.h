#pragma once
// The records of the investment files of a dossier: immobilisations (`Immo.imm`) and
// subsidies (`Sub.sub`) share one record, loans (`Emprunt.emp`), financing plans
// (`PlanF.fin`). Fixed strings are kept as read; trim at use. A 4-byte number is a float32
// unless its comment says otherwise; codes kept as floats (flags, kinds) name an entry only
// when they hold its whole number exactly (see CodeEntier).

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

struct EnrImmo {
    static constexpr std::size_t kTaille = 3096;
    float nouvelle = 0;    // 1 new, 0 old
    float type = 0;        // immobilisation "F","A","C","I","M","S","D"; subsidy 0,1
    Texte libelle;         // 40
    Texte dateRealisation; // 10
    float montant = 0;
    float duree = 0;         // years
    float amortissement = 0; // 0 Lin., 1 Dég., 2 Dér., 3 Lib.
    Texte dateRevente;       // 10; a subsidy's due date
    float montantRevente = 0;
    float numPlan = 0;
    float differe = 0;
    float lsm = 0;
    double plusValue1 = 0;
    double plusValue2 = 0;
};

struct EnrEmprunt {
    static constexpr std::size_t kTaille = 1096;
    static constexpr std::size_t kNbAnnees = 27;
    float nouvelle = 0;       // 1 new, 0 old, 2 the further kind of the young farmer's page
    std::int16_t type = 0;    // 0 "F", 1 "M", 2 "CT"
    Texte libelle;            // 40
    std::int16_t bonifie = 0; // -1: bonified loan (MTS-JA)
    Texte dateRealisation;    // 10
    Texte date2;              // 10
    Texte date3;              // 10
    Texte dateFin;            // 10
    float montant = 0;
    float taux1 = 0;
    float duree1 = 0;
    float taux2 = 0;
    float duree2 = 0;
    float duree3 = 0;
    float periode = 0; // months of one instalment: 1, 2, 3, 6, 12
    float differe = 0;
    std::int16_t numPlan = 0;
    std::array<float, kNbAnnees> annuite{};
    std::array<float, kNbAnnees> interets{};
    std::array<float, kNbAnnees> capitalRestant{};
    float differe1 = 0;
    float echeance1 = 0;
    float echeance2 = 0;
};

struct EnrPlan {
    static constexpr std::size_t kTaille = 116;
    static constexpr int kNbPlans = 20;
    float numero = 0;
    Texte libelle; // 50; may hold "[code]"
    float pourcentage = 0;
    float montantDirect = 0;
    float reserve = 0;
    Texte libelle2; // 50
};

// The entry a code stored as a float names: its value when it is a whole number from 0 to
// 1000, else -1 (names nothing, prints empty).
int CodeEntier(float code);

EnrImmo LireEnrImmo(std::string_view octets);
std::string EcrireEnrImmo(const EnrImmo& enr);
EnrEmprunt LireEnrEmprunt(std::string_view octets);
std::string EcrireEnrEmprunt(const EnrEmprunt& enr);
EnrPlan LireEnrPlan(std::string_view octets);
std::string EcrireEnrPlan(const EnrPlan& enr);

} // namespace verdane
