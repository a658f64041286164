// The investment and crop files of a dossier written as Marlo writes them, field by field at
// the offsets and in the types of their layouts (float32 unless a field says otherwise): the
// readers take every field, the program's own writers give back the same bytes, and the lists
// show every record with its letters and words.

#include "DossierDomaine.h"
#include "support/Morceaux.h"
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

// Floats and texts of a record, compared as lists: a field read at the wrong offset shows.
using Flottants = std::vector<float>;
using Textes = std::vector<std::string>;

TEST(DispositionsListes, ImmobilisationEmpruntEtPlanLusChampParChamp) {
    const std::string immo = OctetsImmo(1, 3, "Stabulation", 120000, 1, 2);
    const EnrImmo i = LireEnrImmo(immo);
    EXPECT_EQ((Flottants{i.nouvelle, i.type, i.montant, i.duree, i.amortissement, i.montantRevente,
                         i.numPlan, i.differe, i.lsm}),
              (Flottants{1, 3, 120000, 12, 1, 1500, 2, 2, -300}));
    EXPECT_EQ((Textes{i.libelle.substr(0, 12), i.dateRealisation, i.dateRevente}),
              (Textes{"Stabulation ", "15/03/2025", "01/01/2035"}));
    EXPECT_EQ(i.plusValue1 + i.plusValue2, 150.75);
    EXPECT_EQ(EcrireEnrImmo(i), immo);

    const std::string emprunt = OctetsEmprunt(2, -1, "Prêt JA", 150000, 3);
    const EnrEmprunt e = LireEnrEmprunt(emprunt);
    EXPECT_EQ((std::vector<int>{e.type, e.bonifie, e.numPlan}), (std::vector<int>{2, -1, 3}));
    EXPECT_EQ((Textes{e.libelle.substr(0, 8), e.dateRealisation, e.dateFin}),
              (Textes{"Prêt JA ", "01/10/2024", "01/10/2039"}));
    EXPECT_EQ((Flottants{e.nouvelle, e.montant, e.taux1, e.duree1 + e.duree2 + e.duree3, e.taux2,
                         e.periode, e.differe, e.annuite[26], e.interets[0], e.interets[26],
                         e.capitalRestant[1], e.differe1, e.echeance1, e.echeance2}),
              (Flottants{2, 150000, 2.5f, 96, 3, 3, 6, 1260, 200, 70, 145000, 4, 2500, 2600}));
    EXPECT_EQ(EcrireEnrEmprunt(e), emprunt);

    const std::string plan = OctetsPlan(4, "Hangar [H1]", 100, 12.5f);
    const EnrPlan p = LireEnrPlan(plan);
    EXPECT_EQ((Flottants{p.numero, p.pourcentage, p.montantDirect, p.reserve}),
              (Flottants{4, 100, 12.5f, 7}));
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
    EXPECT_EQ((Textes{c.libelle, c.codeCourt, c.unite}),
              (Textes{"Blé tendre             ", "BLE   ", "1"}));
    auto serie = [&](const char* nom) {
        return c.series[static_cast<std::size_t>(IndexSerieCulture(nom))];
    };
    EXPECT_EQ((Flottants{c.numero, float(c.derobee), float(c.genre), serie("rendement")[10],
                         serie("assolement")[0], serie("assolement")[10], serie("autrecharge")[10],
                         serie("creance")[10]}),
              (Flottants{3, 1, 4, 80, 10, 15, -11, 5}));
    EXPECT_EQ(EcrireEnrCulture(c), octets);
    EXPECT_EQ(EcrireEnrCulturePerenne(EnrCulturePerenne{}).size(), 52u);
    // A code stored as a float names an entry only when it is a whole number.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    std::vector<int> codes;
    for (float f : {0.0f, 6.0f, -0.0f, 2.5f, -1.0f, 1e30f, nan}) codes.push_back(CodeEntier(f));
    EXPECT_EQ(codes, (std::vector<int>{0, 6, 0, -1, -1, -1, -1}));
}

using ListesDeMarlo = DossierDomaine;

TEST_F(ListesDeMarlo, ChaqueEnregistrementAvecSesLettresEtSesMots) {
    d.Ecrire("Ferme/Immo.imm", OctetsImmo(0, 0, "Hangar", 30000, 0, 0) +
                                   OctetsImmo(1, 3, "Stabulation", 120000, 1, 1) +
                                   OctetsImmo(1, 6, "Fumière", 20000, 3, 1));
    d.Ecrire("Ferme/Sub.sub", OctetsImmo(1, 1, "PCAE", 8000, 0, 1));
    d.Ecrire("Ferme/Emprunt.emp", OctetsEmprunt(1, 0, "Prêt bâtiment", 90000, 1) +
                                      OctetsEmprunt(2, -1, "Prêt JA", 40000, 1));
    d.Ecrire("Ferme/PlanF.fin", OctetsPlan(1, "Stabulation [BAT1]", 0, 0));

    const std::string nouvelles = Rendre("imemp:immo0:0");
    EXPECT_TRUE(Contient(nouvelles, {" stabulation }\\cell", " fumière }\\cell", " I}\\cell",
                                     " D}\\cell", " Dég.}\\cell", " Lib.}\\cell"}));
    EXPECT_TRUE(Exclut(nouvelles, {"hangar"}));
    EXPECT_TRUE(Contient(Rendre("imemp:empt0:0"), {" prêt bâtiment }\\cell", " CT}\\cell"}));
    // The investments-financing table holds the new records of the plan.
    const std::string inves = Rendre("imemp:inves:0");
    EXPECT_TRUE(u.questions.empty()) << u.ToutCeQuiAEteDit();
    EXPECT_TRUE(Contient(inves, {" 120 000}\\cell", " 20 000}\\cell", " 8 000}\\cell",
                                 " 90 000}\\cell", " 40 000}\\cell", " 140 000}\\cell"}));
}

} // namespace
} // namespace verdane::test
