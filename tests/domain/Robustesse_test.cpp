// Damaged dossier files: every table still renders, whatever the bytes.

#include "DossierDomaine.h"
#include "domain/CadreDomaine.h"
#include "domain/LignesDomaineMarlo.h"
#include "domain/TabsActiLibres.h"
#include "domain/TabsCultures.h"
#include "domain/TabsImmoEmpr.h"

#include <cmath>
#include <limits>
#include <random>

namespace verdane::test {
namespace {

const char* const kSousCodes[] = {"inve1", "inves", "finan", "finaa", "finap", "immos", "immo0",
                                  "immo1", "immo2", "subvt", "subv0", "subv1", "subv2", "emprt",
                                  "empt0", "empt1", "empt2", "empr2", "empr3"};

class RobustesseTest : public DossierDomaine {
protected:
    RobustesseTest() {
        BrancherDomaine(ctx);
        TableauModele t;
        LigneModele l;
        l.definition = "cultu:assolement";
        t.lignes = {l, l};
        t.lignes[1].definition = "cultp:x";
        t.modeAnnees = kAnneeDebutEtToutes;
        ctx.etat.tableaux.TableauxCourants = {t};
    }
    void ToutRendre() {
        for (const char* s : kSousCodes) {
            TableauImemp(ctx, std::string("imemp:") + s, "\\trowd\\trgaph");
            TableauImemp(ctx, std::string("imemp:") + s + ":9", "\\trgaph12");
        }
        LignesCultures(ctx, 1, "");
        LignesCulturesPerennes(ctx, 2, "");
        const RenduTableau rien = [](Contexte&, const Texte&) { return Texte(); };
        TableauCultures(ctx, "culture17tab", rien);
        TableauCultures(ctx, "cultper2", rien);
        TableauActivites(ctx, "actlibr", rien);
    }
};

TEST_F(RobustesseTest, OctetsAuHasard) {
    std::mt19937 alea(1234);
    const char* const fichiers[] = {"Immo.imm", "Sub.sub",  "Emprunt.emp", "PlanF.fin",
                                    "cult.clt", "CltP.cpD", "IMMORES.DON", "Cult0.don"};
    for (int essai = 0; essai < 12; ++essai) {
        for (const char* f : fichiers) {
            std::string octets(std::uniform_int_distribution<int>(0, 9000)(alea), '\0');
            for (auto& c : octets) c = static_cast<char>(alea());
            d.Ecrire(std::string("Ferme/") + f, octets);
        }
        ctx.etat.nbAnEtude = static_cast<std::int16_t>(essai * 7 - 20); // negative and huge
        ToutRendre();
    }
    SUCCEED();
}

TEST_F(RobustesseTest, ValeursExtremes) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    EnrImmo i = Immo("Ééééééééééééééééééééééééééééééééééééééé", nan, 1, inf);
    i.type = -5;
    i.amortissement = 1 << 30;
    i.duree = -inf;
    i.plusValue1 = 1e300;
    Immos({i, Immo("x", 3e38f, 0, 1)});
    EnrEmprunt e = Emprunt("Prêt [sans fin", inf, 2, 1);
    e.periode = 0;
    e.duree1 = nan;
    e.type = -1;
    e.taux1 = -inf;
    Emprunts({e});
    Plans({Plan("Plan [AB", 100, nan), Plan("Plan ]", inf, 0)});
    ctx.etat.nbAnEtude = 40;
    ToutRendre();
    // A loan period of 0 speaks in months.
    EXPECT_EQ(TexteDuree(7, true, 0), "7 mois");
}

} // namespace
} // namespace verdane::test
