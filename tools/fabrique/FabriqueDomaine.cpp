// Makers of the dossier's own lists: immobilisations and subsidies, loans, financing plans,
// annual and perennial crops. One section a record, in order ([1], [2] ... or any names).

#include "Fabrique.h"

#include "domain/EnrCultures.h"
#include "domain/EnrInvest.h"
#include "utils/Chaines.h"

#include <charconv>

namespace verdane::fabrique {

namespace {

float Reel(const Texte& t) {
    const Texte v = RemplacerExact(RognerTout(t), ",", ".");
    float f = 0.0f;
    std::from_chars(v.data(), v.data() + v.size(), f);
    return f;
}

float Reel(const Section& s, std::string_view cle) {
    return Reel(s.Valeur(cle));
}

template <std::size_t N>
void Reels(const Section& s, std::string_view cle, std::array<float, N>& a) {
    const auto valeurs = Couper(s.Valeur(cle), ';');
    for (std::size_t i = 0; i < N; ++i) a[i] = i < valeurs.size() ? Reel(valeurs[i]) : 0.0f;
}

// The sections that describe records: every one but the lines before the first header.
template <typename Faire> std::string ParSection(const std::vector<Section>& d, Faire faire) {
    std::string octets;
    for (std::size_t i = 1; i < d.size(); ++i) octets += faire(d[i]);
    return octets;
}

} // namespace

std::string FabriquerImmobilisations(const std::vector<Section>& d) {
    return ParSection(d, [](const Section& s) {
        EnrImmo e;
        e.nouvelle = Reel(s, "nouvelle");
        e.type = Reel(s, "type");
        e.libelle = s.Valeur("libelle");
        e.dateRealisation = s.Valeur("dateRealisation");
        e.montant = Reel(s, "montant");
        e.duree = Reel(s, "duree");
        e.amortissement = Reel(s, "amortissement");
        e.dateRevente = s.Valeur("dateRevente");
        e.montantRevente = Reel(s, "montantRevente");
        e.numPlan = Reel(s, "plan");
        e.differe = Reel(s, "differe");
        e.lsm = Reel(s, "lsm");
        e.plusValue1 = Reel(s, "plusValue1");
        e.plusValue2 = Reel(s, "plusValue2");
        return EcrireEnrImmo(e);
    });
}

std::string FabriquerEmprunts(const std::vector<Section>& d) {
    return ParSection(d, [](const Section& s) {
        EnrEmprunt e;
        e.nouvelle = Reel(s, "nouvelle");
        e.type = static_cast<std::int16_t>(s.Entier("type"));
        e.libelle = s.Valeur("libelle");
        e.bonifie = static_cast<std::int16_t>(s.Entier("bonifie"));
        e.dateRealisation = s.Valeur("dateRealisation");
        e.dateFin = s.Valeur("dateFin");
        e.montant = Reel(s, "montant");
        e.taux1 = Reel(s, "taux1");
        e.duree1 = Reel(s, "duree1");
        e.taux2 = Reel(s, "taux2");
        e.duree2 = Reel(s, "duree2");
        e.duree3 = Reel(s, "duree3");
        e.periode = Reel(s, "periode");
        e.differe = Reel(s, "differe");
        e.numPlan = static_cast<std::int16_t>(s.Entier("plan"));
        Reels(s, "annuite", e.annuite);
        Reels(s, "interets", e.interets);
        Reels(s, "capitalRestant", e.capitalRestant);
        e.differe1 = Reel(s, "differe1");
        e.echeance1 = Reel(s, "echeance1");
        e.echeance2 = Reel(s, "echeance2");
        return EcrireEnrEmprunt(e);
    });
}

std::string FabriquerPlans(const std::vector<Section>& d) {
    std::array<EnrPlan, EnrPlan::kNbPlans> plans{};
    for (std::size_t i = 1; i < d.size(); ++i) {
        const auto n = EntierStrict(d[i].nom);
        if (!n || *n < 1 || *n > EnrPlan::kNbPlans) continue;
        EnrPlan& p = plans[static_cast<std::size_t>(*n - 1)];
        p.numero = static_cast<float>(*n);
        p.libelle = d[i].Valeur("libelle");
        p.pourcentage = Reel(d[i], "pourcentage");
        p.montantDirect = Reel(d[i], "montantDirect");
    }
    std::string octets;
    for (const auto& p : plans) octets += EcrireEnrPlan(p);
    return octets;
}

std::string FabriquerCultures(const std::vector<Section>& d) {
    return ParSection(d,
                      [](const Section& s) {
                          EnrCulture c;
                          c.numero = Reel(s, "numero");
                          c.libelle = s.Valeur("libelle");
                          c.codeCourt = s.Valeur("codeCourt");
                          c.unite = s.Valeur("unite", "0");
                          c.derobee = static_cast<std::int16_t>(s.Entier("derobee"));
                          c.genre = static_cast<std::int16_t>(s.Entier("genre"));
                          for (std::size_t i = 0; i < SeriesCulture().size(); ++i)
                              Reels(s, SeriesCulture()[i].nom, c.series[i]);
                          return EcrireEnrCulture(c);
                      }) +
           EcrireEnrCulture(EnrCulture{}); // kind 0 ends the list
}

std::string FabriquerCulturesPerennes(const std::vector<Section>& d) {
    return ParSection(d,
                      [](const Section& s) {
                          EnrCulturePerenne c;
                          c.numero = Reel(s, "numero");
                          c.libelle = s.Valeur("libelle");
                          c.genre = static_cast<std::int16_t>(s.Entier("genre", 1));
                          c.unite = static_cast<std::int16_t>(s.Entier("unite"));
                          c.pleineProduction = Reel(s, "pleineProduction");
                          c.dureeAmortissement = Reel(s, "dureeAmortissement");
                          return EcrireEnrCulturePerenne(c);
                      }) +
           EcrireEnrCulturePerenne(EnrCulturePerenne{});
}

} // namespace verdane::fabrique
