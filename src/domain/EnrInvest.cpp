#include "domain/EnrInvest.h"

#include "domain/FluxDomaine.h"

namespace verdane {

namespace {

constexpr auto kDispositionImmo = [](auto& f, auto& e) {
    f.F32(e.nouvelle);
    f.Aller(12);
    f.F32(e.type);
    f.Chaine(e.libelle, 40);
    f.Chaine(e.dateRealisation, 10);
    f.F32(e.montant);
    f.F32(e.duree);
    f.F32(e.amortissement);
    f.Chaine(e.dateRevente, 10);
    f.F32(e.montantRevente);
    f.F32(e.numPlan);
    f.F32(e.differe);
    f.F32(e.lsm);
    f.Aller(114);
    f.F64(e.plusValue1);
    f.F64(e.plusValue2);
};

constexpr auto kDispositionEmprunt = [](auto& f, auto& e) {
    f.F32(e.nouvelle);
    f.Aller(12);
    f.I16(e.type);
    f.Chaine(e.libelle, 40);
    f.Aller(56);
    f.I16(e.bonifie);
    f.Chaine(e.dateRealisation, 10);
    f.Chaine(e.date2, 10);
    f.Chaine(e.date3, 10);
    f.Chaine(e.dateFin, 10);
    f.F32(e.montant);
    f.Aller(104);
    f.F32(e.taux1);
    f.F32(e.duree1);
    f.F32(e.taux2);
    f.F32(e.duree2);
    f.Aller(124);
    f.F32(e.duree3);
    f.Aller(136);
    f.F32(e.periode);
    f.F32(e.differe);
    f.Aller(160);
    f.I16(e.numPlan);
    f.Aller(192);
    f.F32s(e.annuite);
    f.F32s(e.interets);
    f.Aller(732);
    f.F32s(e.capitalRestant);
    f.Aller(1056);
    f.F32(e.differe1);
    f.F32(e.echeance1);
    f.F32(e.echeance2);
};

constexpr auto kDispositionPlan = [](auto& f, auto& e) {
    f.F32(e.numero);
    f.Chaine(e.libelle, 50);
    f.F32(e.pourcentage);
    f.F32(e.montantDirect);
    f.F32(e.reserve);
    f.Chaine(e.libelle2, 50);
};

} // namespace

int CodeEntier(float code) {
    if (!(code >= 0.0f && code <= 1000.0f)) return -1;
    const int n = static_cast<int>(code);
    return static_cast<float>(n) == code ? n : -1;
}

EnrImmo LireEnrImmo(std::string_view o) {
    return LireEnrDomaine<EnrImmo>(o, kDispositionImmo);
}
std::string EcrireEnrImmo(const EnrImmo& e) {
    return EcrireEnrDomaine(e, EnrImmo::kTaille, kDispositionImmo);
}
EnrEmprunt LireEnrEmprunt(std::string_view o) {
    return LireEnrDomaine<EnrEmprunt>(o, kDispositionEmprunt);
}
std::string EcrireEnrEmprunt(const EnrEmprunt& e) {
    return EcrireEnrDomaine(e, EnrEmprunt::kTaille, kDispositionEmprunt);
}
EnrPlan LireEnrPlan(std::string_view o) {
    return LireEnrDomaine<EnrPlan>(o, kDispositionPlan);
}
std::string EcrireEnrPlan(const EnrPlan& e) {
    return EcrireEnrDomaine(e, EnrPlan::kTaille, kDispositionPlan);
}

} // namespace verdane
