#include "domain/FichiersDomaine.h"

#include "data/ChargerDossier.h"
#include "data/EnrDon.h"
#include "data/LectureDon.h"
#include "utils/Chaines.h"
#include "utils/ClsIni.h"
#include "utils/OutilsFichiers.h"

#include <charconv>
#include <string>

namespace verdane {

namespace {

constexpr int kModulesMax = 99;

// The records of a file's bytes: length / record length, truncated.
template <typename Enr, typename Lecteur>
std::vector<Enr> Enregistrements(std::string_view octets, Lecteur lire) {
    std::vector<Enr> liste;
    for (std::size_t p = 0; p + Enr::kTaille <= octets.size(); p += Enr::kTaille)
        liste.push_back(lire(octets.substr(p, Enr::kTaille)));
    return liste;
}

template <typename Enr, typename Lecteur>
std::vector<Enr> LireListe(const Etat& etat, std::string_view nom, Lecteur lire) {
    const auto octets = etat.fichiers.LireFichier(FichierDossier(etat, nom));
    return octets ? Enregistrements<Enr>(*octets, lire) : std::vector<Enr>{};
}

// The records up to the first kind below 1.
template <typename Enr> void CouperALaFin(std::vector<Enr>& liste) {
    for (std::size_t i = 0; i < liste.size(); ++i)
        if (liste[i].genre < 1) {
            liste.resize(i);
            return;
        }
}

// A crop number as the plain text of a float: 3 gives "3".
Texte TexteNumero(float n) {
    char tampon[64];
    const auto r = std::to_chars(tampon, tampon + sizeof tampon, n);
    return r.ec == std::errc() ? Texte(tampon, r.ptr) : Texte("0");
}

} // namespace

Texte FichierDossier(const Etat& etat, std::string_view nom) {
    // No dossier chosen: no path at all, never a file of the current or root folder.
    if (Rogner(etat.RepDossier[0]).empty() || Rogner(etat.NomDossier[0]).empty()) return {};
    return DossierComplet(etat, 0) + Texte(nom);
}

int LirePlans(std::string_view octets, std::array<EnrPlan, EnrPlan::kNbPlans>& plans) {
    int nb = 0;
    for (std::size_t i = 0; i < plans.size(); ++i) {
        const std::size_t p = i * EnrPlan::kTaille;
        plans[i] = p + EnrPlan::kTaille <= octets.size()
                       ? LireEnrPlan(octets.substr(p, EnrPlan::kTaille))
                       : EnrPlan{};
        plans[i].libelle = Rogner(plans[i].libelle);
        if (!plans[i].libelle.empty()) nb = static_cast<int>(i) + 1;
    }
    return nb;
}

int LireFichierInvest(Contexte& ctx, char cle) {
    auto& d = ctx.etat.domaine;
    switch (cle) {
    case 'i':
        d.immobilisations = LireListe<EnrImmo>(ctx.etat, "Immo.imm", LireEnrImmo);
        return static_cast<int>(d.immobilisations.size());
    case 's':
        d.subventions = LireListe<EnrImmo>(ctx.etat, "Sub.sub", LireEnrImmo);
        return static_cast<int>(d.subventions.size());
    case 'e':
        d.emprunts = LireListe<EnrEmprunt>(ctx.etat, "Emprunt.emp", LireEnrEmprunt);
        return static_cast<int>(d.emprunts.size());
    case 'p': {
        // The dossier is Marlo's and only read: a missing plan file is twenty empty plans.
        const auto octets = LireFichier(FichierDossier(ctx.etat, "PlanF.fin"));
        d.nbPlans = LirePlans(octets ? std::string_view(*octets) : std::string_view{}, d.plans);
        return d.nbPlans;
    }
    default:
        return 0;
    }
}

void LireFichiersInvest(Contexte& ctx) {
    for (char cle : {'i', 's', 'e', 'p'}) LireFichierInvest(ctx, cle);
}

std::vector<EnrCulture> LireCultures(const Etat& etat) {
    auto liste = LireListe<EnrCulture>(etat, "cult.clt", LireEnrCulture);
    CouperALaFin(liste);
    return liste;
}

std::vector<EnrCulturePerenne> LireCulturesPerennes(const Etat& etat) {
    auto liste = LireListe<EnrCulturePerenne>(etat, "CltP.cpD", LireEnrCulturePerenne);
    CouperALaFin(liste);
    return liste;
}

Texte FichierDonCulture(const Etat& etat, float numero, bool perenne, bool suffixeT) {
    return FichierDossier(etat, (perenne ? "CltP" : "Cult") + TexteNumero(numero) +
                                    (suffixeT ? "t" : "") + ".don");
}

Texte FichierDonModule(const Etat& etat, int module) {
    const Texte n = std::to_string(module);
    return FichierDossier(etat, "AL" + ((module >= 0 && module < 10) ? "0" + n : n) + "AL.don");
}

std::optional<float> ValeurDon(const Etat& etat, std::string_view fichier, long long numero,
                               int annee) {
    const auto enr = LireEnregistrementDon(etat.fichiers, fichier, numero);
    if (!enr) return std::nullopt;
    if (annee < 0 || annee >= static_cast<int>(EnrDon::kNbValeurs)) return 0.0f;
    return enr->valeur[static_cast<std::size_t>(annee)];
}

std::vector<ModuleAnimal> LireModulesAnimaux(const Etat& etat) {
    const Texte fichier = FichierDossier(etat, "ModAniLib.ini");
    std::vector<ModuleAnimal> modules;
    const auto contenu = etat.fichiers.LireFichier(fichier);
    if (!contenu) return modules;
    long long dernier = ValEntier(ClsIni::LireDans(*contenu, "GLOBAL", "NumLastMod", "0"));
    if (dernier > kModulesMax) dernier = kModulesMax;
    for (int i = 1; i <= dernier; ++i) {
        const Texte section = "MOD" + std::to_string(i);
        modules.push_back({i, Rogner(ClsIni::LireDans(*contenu, section, "ACTIF")) == "1",
                           ClsIni::LireDans(*contenu, section, "Nom")});
    }
    return modules;
}

} // namespace verdane
