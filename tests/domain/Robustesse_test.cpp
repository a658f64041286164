// Dossier lists holding values out of every range (NaN, infinities, huge kinds, unclosed
// codes): every table still renders.

#include "DossierDomaine.h"
#include "domain/CadreDomaine.h"
#include "domain/LignesDomaineMarlo.h"
#include "domain/TabsActiLibres.h"
#include "domain/TabsCultures.h"
#include "domain/TabsImmoEmpr.h"

#include <cmath>
#include <limits>

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

TEST_F(RobustesseTest, ValeursExtremes) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    EnrImmo i = Immo("Ééééééééééééééééééééééééééééééééééééééé", nan, 1, inf);
    i.type = -5, i.amortissement = 1 << 30, i.duree = -inf, i.plusValue1 = 1e300;
    Immos({i, Immo("x", 3e38f, 0, 1)});
    EnrEmprunt e = Emprunt("Prêt [sans fin", inf, 2, 1);
    e.periode = 0, e.duree1 = nan, e.type = -1, e.taux1 = -inf;
    Emprunts({e});
    Plans({Plan("Plan [AB", 100, nan), Plan("Plan ]", inf, 0)});
    ctx.etat.nbAnEtude = 40;
    ToutRendre();
    EXPECT_EQ(TexteDuree(7, true, 0), "7 mois") << "a loan period of 0 speaks in months";
}

} // namespace
} // namespace verdane::test
