// The investment and crop files of a dossier written as Marlo writes them, field by field at
// the offsets and in the types of their layouts (float32 unless a field says otherwise): the
// readers take every field, the program's own writers give back the same bytes, and the lists
// show every record with its letters and words.

#include "DossierDomaine.h"
#include "domain/TabsImmoEmpr.h"
#include "support/OctetsPlaces.h"

#include <limits>

namespace verdane::test {
namespace {

// An immobilisation or subsidy record.
std::string OctetsImmo(float nouvelle, float type, std::string_view libelle, float montant,
                       float amortissement, float plan) {
    return OctetsPlaces(3096)
        .F32(0, nouvelle)
        .F32(12, type)
        .Chaine(16, libelle, 40)
        .Chaine(56, "15/03/2025", 10)
        .F32(66, montant)
        .F32(70, 12)
        .F32(74, amortissement)
        .Chaine(78, "01/01/2035", 10)
        .F32(88, 1500)
        .F32(92, plan)
        .F32(96, 2)
        .F32(100, -300)
        .F64(114, 100.25)
        .F64(122, 50.5)
        .Octets();
}

std::string OctetsEmprunt(float nouvelle, std::int16_t bonifie, std::string_view libelle,
                          float montant, std::int16_t plan) {
    return OctetsPlaces(1096)
        .F32(0, nouvelle)
        .I16(12, 2)
        .Chaine(14, libelle, 40)
        .I16(56, bonifie)
        .Chaine(58, "01/10/2024", 10)
        .Chaine(68, "01/10/2025", 10)
        .Chaine(78, "01/10/2026", 10)
        .Chaine(88, "01/10/2039", 10)
        .F32(98, montant)
        .F32(104, 2.5f)
        .F32(108, 60)
        .F32(112, 3)
        .F32(116, 24)
        .F32(124, 12)
        .F32(136, 3)
        .F32(140, 6)
        .I16(160, plan)
        .F32s(192, 27, 1000, 10)
        .F32s(300, 27, 200, -5)
        .F32s(732, 27, montant, -5000)
        .F32(1056, 4)
        .F32(1060, 2500)
        .F32(1064, 2600)
        .Octets();
}

std::string OctetsPlan(float numero, std::string_view libelle, float pourcentage, float direct) {
    return OctetsPlaces(116)
        .F32(0, numero)
        .Chaine(4, libelle, 50)
        .F32(54, pourcentage)
        .F32(58, direct)
        .F32(62, 7)
        .Chaine(66, "note", 50)
        .Octets();
}

TEST(DispositionsListes, ImmobilisationLueChampParChamp) {
    const std::string octets = OctetsImmo(1, 3, "Stabulation", 120000, 1, 2);
    const EnrImmo e = LireEnrImmo(octets);
    EXPECT_EQ(e.nouvelle, 1.0f);
    EXPECT_EQ(e.type, 3.0f);
    EXPECT_EQ(e.libelle.substr(0, 12), "Stabulation ");
    EXPECT_EQ(e.dateRealisation, "15/03/2025");
    EXPECT_EQ(e.montant, 120000.0f);
    EXPECT_EQ(e.duree, 12.0f);
    EXPECT_EQ(e.amortissement, 1.0f);
    EXPECT_EQ(e.dateRevente, "01/01/2035");
    EXPECT_EQ(e.montantRevente, 1500.0f);
    EXPECT_EQ(e.numPlan, 2.0f);
    EXPECT_EQ(e.differe, 2.0f);
    EXPECT_EQ(e.lsm, -300.0f);
    EXPECT_EQ(e.plusValue1 + e.plusValue2, 150.75);
    EXPECT_EQ(EcrireEnrImmo(e), octets);
}

TEST(DispositionsListes, EmpruntEtPlanLusChampParChamp) {
    const std::string octets = OctetsEmprunt(2, -1, "Prêt JA", 150000, 3);
    const EnrEmprunt e = LireEnrEmprunt(octets);
    EXPECT_EQ(e.nouvelle, 2.0f);
    EXPECT_EQ(e.type, 2);
    EXPECT_EQ(e.libelle.substr(0, 8), "Prêt JA ");
    EXPECT_EQ(e.bonifie, -1);
    EXPECT_EQ(e.dateRealisation, "01/10/2024");
    EXPECT_EQ(e.dateFin, "01/10/2039");
    EXPECT_EQ(e.montant, 150000.0f);
    EXPECT_EQ(e.taux1, 2.5f);
    EXPECT_EQ(e.duree1 + e.duree2 + e.duree3, 96.0f);
    EXPECT_EQ(e.taux2, 3.0f);
    EXPECT_EQ(e.periode, 3.0f);
    EXPECT_EQ(e.differe, 6.0f);
    EXPECT_EQ(e.numPlan, 3);
    EXPECT_EQ(e.annuite[26], 1260.0f);
    EXPECT_EQ(e.interets[0], 200.0f);
    EXPECT_EQ(e.interets[26], 70.0f);
    EXPECT_EQ(e.capitalRestant[1], 145000.0f);
    EXPECT_EQ(e.differe1, 4.0f);
    EXPECT_EQ(e.echeance1, 2500.0f);
    EXPECT_EQ(e.echeance2, 2600.0f);
    EXPECT_EQ(EcrireEnrEmprunt(e), octets);

    const std::string plan = OctetsPlan(4, "Hangar [H1]", 100, 12.5f);
    const EnrPlan p = LireEnrPlan(plan);
    EXPECT_EQ(p.numero, 4.0f);
    EXPECT_EQ(p.pourcentage, 100.0f);
    EXPECT_EQ(p.montantDirect, 12.5f);
    EXPECT_EQ(p.reserve, 7.0f);
    EXPECT_EQ(p.libelle2.substr(0, 5), "note ");
    EXPECT_EQ(EcrireEnrPlan(p), plan);
}

TEST(DispositionsListes, CultureLueChampParChamp) {
    const std::string octets = OctetsPlaces(1674)
                                   .F32(0, 3)
                                   .Chaine(4, "Blé tendre", 23)
                                   .Chaine(27, "BLE", 6)
                                   .Chaine(33, "1", 1)
                                   .I16(38, 1)
                                   .I16(40, 4)
                                   .F32s(42, 11, 70, 1)
                                   .F32s(86, 11, 10, 0.5f)
                                   .F32s(1278, 11, -1, -1)
                                   .F32s(1630, 11, 5, 0)
                                   .Octets();
    const EnrCulture c = LireEnrCulture(octets);
    EXPECT_EQ(c.numero, 3.0f);
    EXPECT_EQ(c.libelle, "Blé tendre             ");
    EXPECT_EQ(c.codeCourt, "BLE   ");
    EXPECT_EQ(c.unite, "1");
    EXPECT_EQ(c.derobee, 1);
    EXPECT_EQ(c.genre, 4);
    auto serie = [&](const char* nom) {
        return c.series[static_cast<std::size_t>(IndexSerieCulture(nom))];
    };
    EXPECT_EQ(serie("rendement")[10], 80.0f);
    EXPECT_EQ(serie("assolement")[0], 10.0f);
    EXPECT_EQ(serie("assolement")[10], 15.0f);
    EXPECT_EQ(serie("autrecharge")[10], -11.0f);
    EXPECT_EQ(serie("creance")[10], 5.0f);
    EXPECT_EQ(EcrireEnrCulture(c), octets);
    EXPECT_EQ(EcrireEnrCulturePerenne(EnrCulturePerenne{}).size(), 52u);
}

TEST(DispositionsListes, CodesEntiersSeulementExacts) {
    EXPECT_EQ(CodeEntier(0.0f), 0);
    EXPECT_EQ(CodeEntier(6.0f), 6);
    EXPECT_EQ(CodeEntier(-0.0f), 0);
    EXPECT_EQ(CodeEntier(2.5f), -1);
    EXPECT_EQ(CodeEntier(-1.0f), -1);
    EXPECT_EQ(CodeEntier(1e30f), -1);
    EXPECT_EQ(CodeEntier(std::numeric_limits<float>::quiet_NaN()), -1);
}

class ListesDeMarlo : public DossierDomaine {
protected:
    std::string Rendre(const std::string& code) {
        return TableauImemp(ctx, code, "\\plain \\trowd\\trgaph120\\trrh280\\trleft0");
    }
};

TEST_F(ListesDeMarlo, ChaqueEnregistrementAvecSesLettresEtSesMots) {
    d.Ecrire("Ferme/Immo.imm", OctetsImmo(0, 0, "Hangar", 30000, 0, 0) +
                                   OctetsImmo(1, 3, "Stabulation", 120000, 1, 1) +
                                   OctetsImmo(1, 6, "Fumière", 20000, 3, 1));
    d.Ecrire("Ferme/Sub.sub", OctetsImmo(1, 1, "PCAE", 8000, 0, 1));
    d.Ecrire("Ferme/Emprunt.emp", OctetsEmprunt(1, 0, "Prêt bâtiment", 90000, 1) +
                                      OctetsEmprunt(2, -1, "Prêt JA", 40000, 1));
    std::string plans = OctetsPlan(1, "Stabulation [BAT1]", 0, 0);
    for (int i = 2; i <= 20; ++i) plans += OctetsPlan(0, "", 0, 0);
    d.Ecrire("Ferme/PlanF.fin", plans);

    const std::string nouvelles = Rendre("imemp:immo0:0");
    EXPECT_NE(nouvelles.find(" stabulation }\\cell"), std::string::npos);
    EXPECT_NE(nouvelles.find(" fumière }\\cell"), std::string::npos);
    EXPECT_EQ(nouvelles.find("hangar"), std::string::npos);
    EXPECT_NE(nouvelles.find(" I}\\cell"), std::string::npos);
    EXPECT_NE(nouvelles.find(" D}\\cell"), std::string::npos);
    EXPECT_NE(nouvelles.find(" Dég.}\\cell"), std::string::npos);
    EXPECT_NE(nouvelles.find(" Lib.}\\cell"), std::string::npos);
    const std::string anciennes = Rendre("imemp:immo1:0");
    EXPECT_NE(anciennes.find(" hangar }\\cell"), std::string::npos);
    EXPECT_NE(anciennes.find(" F}\\cell"), std::string::npos);
    EXPECT_NE(anciennes.find(" Lin.}\\cell"), std::string::npos);

    const std::string sub = Rendre("imemp:subv0:0");
    EXPECT_NE(sub.find(" pcae }\\cell"), std::string::npos);
    EXPECT_NE(sub.find(" Lin.}\\cell"), std::string::npos);
    const std::string emprunts = Rendre("imemp:empt0:0");
    EXPECT_NE(emprunts.find(" prêt bâtiment }\\cell"), std::string::npos);
    EXPECT_NE(emprunts.find(" CT}\\cell"), std::string::npos);

    // The investments-financing table holds the new records of the plan.
    const std::string inves = Rendre("imemp:inves:0");
    EXPECT_TRUE(u.questions.empty()) << u.ToutCeQuiAEteDit();
    for (const char* montant : {" 120 000}\\cell", " 20 000}\\cell", " 8 000}\\cell",
                                " 90 000}\\cell", " 40 000}\\cell", " 140 000}\\cell"})
        EXPECT_NE(inves.find(montant), std::string::npos) << montant;

    // The PDE's financing plans list the plan's immobilisations.
    const std::string finap = Rendre("imemp:finap:0");
    EXPECT_NE(finap.find(" Stabulation}\\cell"), std::string::npos);
    EXPECT_NE(finap.find(" Fumière}\\cell"), std::string::npos);
    EXPECT_EQ(finap.find("Hangar"), std::string::npos);

    // Loan schedules: flag 1 on page 9's first table, flag 2 on the young farmer's.
    const std::string empr2 = Rendre("imemp:empr2:0");
    EXPECT_NE(empr2.find(" Prêt bâtiment}\\cell"), std::string::npos);
    EXPECT_EQ(empr2.find("Prêt JA"), std::string::npos);
    EXPECT_NE(Rendre("imemp:empr3:0").find(" Prêt JA}\\cell"), std::string::npos);
}

} // namespace
} // namespace verdane::test
