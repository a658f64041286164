#pragma once
// A dossier "Ferme" in a scratch folder as slot 0, with writers of its domain files.

#include "data/EnrDon.h"
#include "domain/EnrCultures.h"
#include "domain/EnrInvest.h"
#include "domain/TabsImmoEmpr.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "support/Morceaux.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace verdane::test {

class DossierDomaine : public ::testing::Test {
protected:
    DossierDomaine() : ctx(u) {
        ctx.etat.RepDossier[0] = d.Chemin();
        ctx.etat.NomDossier[0] = "Ferme";
        ctx.etat.nbAnEtude = 5;
        ctx.etat.anneeDebut = 2024;
        ctx.etat.marques = MarquesNombre{",", " "};
        std::filesystem::create_directories(d.Systeme() / "Ferme");
    }

    template <typename Enr, typename Ecrivain>
    void EcrireListe(const std::string& nom, const std::vector<Enr>& liste, Ecrivain ecrire) {
        std::string octets;
        for (const auto& e : liste) octets += ecrire(e);
        d.Ecrire("Ferme/" + nom, octets);
    }
    // The dossier's lists, each in its file.
    void Immos(const std::vector<EnrImmo>& l) { EcrireListe("Immo.imm", l, EcrireEnrImmo); }
    void Subs(const std::vector<EnrImmo>& l) { EcrireListe("Sub.sub", l, EcrireEnrImmo); }
    void Emprunts(const std::vector<EnrEmprunt>& l) {
        EcrireListe("Emprunt.emp", l, EcrireEnrEmprunt);
    }
    void Plans(const std::vector<EnrPlan>& l) { EcrireListe("PlanF.fin", l, EcrireEnrPlan); }
    void Cultures(const std::vector<EnrCulture>& l) {
        EcrireListe("cult.clt", l, EcrireEnrCulture);
    }
    void Perennes(const std::vector<EnrCulturePerenne>& l) {
        EcrireListe("CltP.cpD", l, EcrireEnrCulturePerenne);
    }
    // A .don file whose records are given by number: values by year index.
    void Don(const std::string& nom, const std::map<int, std::vector<float>>& enregistrements) {
        int dernier = enregistrements.empty() ? 0 : enregistrements.rbegin()->first;
        std::string octets;
        for (int n = 1; n <= dernier; ++n) {
            EnrDon e;
            e.code = "X-" + std::to_string(n) + ":0";
            e.libelle = "Série " + std::to_string(n);
            if (auto it = enregistrements.find(n); it != enregistrements.end())
                for (std::size_t k = 0; k < it->second.size() && k < 14; ++k)
                    e.valeur[k] = it->second[k];
            octets += EcrireEnrDon(e);
        }
        d.Ecrire("Ferme/" + nom, octets);
    }

    static EnrImmo Immo(const char* libelle, float montant, int nouvelle, float plan = 0) {
        EnrImmo e;
        e.libelle = libelle;
        e.montant = montant;
        e.nouvelle = nouvelle;
        e.numPlan = plan;
        e.dateRealisation = "15/03/2025";
        return e;
    }
    static EnrEmprunt Emprunt(const char* libelle, float montant, int nouvelle,
                              std::int16_t plan = 0) {
        EnrEmprunt e;
        e.libelle = libelle;
        e.montant = montant;
        e.nouvelle = nouvelle;
        e.numPlan = plan;
        e.taux1 = 2.5f;
        e.duree1 = 40;
        e.periode = 3;
        e.dateRealisation = "01/10/2024";
        return e;
    }
    static EnrPlan Plan(const char* libelle, float pourcentage = 0, float direct = 0) {
        EnrPlan p;
        p.libelle = libelle;
        p.pourcentage = pourcentage;
        p.montantDirect = direct;
        return p;
    }

    // An investment table (immobilisations, subsidies, loans, plans) as a model's line asks it.
    std::string Rendre(const std::string& code) {
        return TableauImemp(ctx, code, "\\plain \\trowd\\trgaph120\\trrh280\\trleft0");
    }

    DossierTemporaire d;
    FauxUtilisateur u;
    Contexte ctx;
};

} // namespace verdane::test
