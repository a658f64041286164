// The sample builder's descriptions of the dossier lists, read back by the program's readers.

#include "Fabrique.h"
#include "domain/EnrCultures.h"
#include "domain/EnrInvest.h"
#include "domain/FichiersDomaine.h"
#include "support/OctetsPlaces.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

TEST(FabriqueDomaine, PlansEmpruntsEtCultures) {
    const auto plans = fabrique::Fabriquer(
        "PlanF.fin.txt",
        "[0]\nlibelle=hors\n[21]\nlibelle=hors\n[x]\nlibelle=hors\n[3]\nlibelle=Hangar "
        "[H1]\npourcentage=100\nmontantDirect=12,5\n",
        "");
    ASSERT_TRUE(plans);
    EXPECT_EQ(plans->nom, "PlanF.fin");
    ASSERT_EQ(plans->octets.size(), 20u * 116u);
    std::array<EnrPlan, EnrPlan::kNbPlans> lus{};
    EXPECT_EQ(LirePlans(plans->octets, lus), 3);
    EXPECT_EQ(lus[2].libelle, "Hangar [H1]");
    EXPECT_EQ(lus[2].montantDirect, 12.5f);

    const auto emprunts = fabrique::Fabriquer(
        "Emprunt.emp.txt", "[1]\nlibelle=Prêt\nbonifie=-1\nplan=2\nannuite=0;10;20\n[2]\n", "");
    ASSERT_TRUE(emprunts);
    ASSERT_EQ(emprunts->octets.size(), 2u * 1096u);
    const EnrEmprunt e = LireEnrEmprunt(emprunts->octets);
    EXPECT_EQ((std::vector<float>{float(e.bonifie), float(e.numPlan), e.annuite[2]}),
              (std::vector<float>{-1, 2, 20}));

    const auto cultures =
        fabrique::Fabriquer("cult.clt.txt", "[a]\ngenre=3\nassolement=1;2;3\n", "");
    ASSERT_TRUE(cultures);
    ASSERT_EQ(cultures->octets.size(), 2u * 1674u); // the record, then the end of the list
    const EnrCulture c = LireEnrCulture(cultures->octets);
    EXPECT_EQ(c.series[static_cast<std::size_t>(IndexSerieCulture("assolement"))][2], 3.0f);
    EXPECT_EQ(LireEnrCulture(std::string_view(cultures->octets).substr(1674)).genre, 0);
    const auto perennes = fabrique::Fabriquer("CltP.cpD.txt", "[v]\nlibelle=Vigne\n", "");
    ASSERT_TRUE(perennes);
    EXPECT_EQ(perennes->nom, "CltP.cpD");
    EXPECT_EQ(LireEnrCulturePerenne(perennes->octets).genre, 1);
}

TEST(FabriqueDomaine, DrapeauxEtGenresEnFloat32) {
    // Flags, kinds and amortisation kinds are 4-byte numbers, so float32, as Marlo writes them.
    const auto immos = fabrique::Fabriquer(
        "Immo.imm.txt", "[1]\nnouvelle=1\ntype=3\namortissement=1\nlibelle=Stabulation\n", "");
    ASSERT_TRUE(immos);
    EXPECT_EQ(immos->octets, test::OctetsPlaces(3096)
                                 .F32(0, 1)
                                 .F32(12, 3)
                                 .Chaine(16, "Stabulation", 40)
                                 .Chaine(56, "", 10)
                                 .F32(74, 1)
                                 .Chaine(78, "", 10)
                                 .Octets());
    const auto emprunts = fabrique::Fabriquer("Emprunt.emp.txt", "[1]\nnouvelle=2\n", "");
    ASSERT_TRUE(emprunts);
    EXPECT_EQ(emprunts->octets.substr(0, 4), test::OctetsPlaces(4).F32(0, 2).Octets());
}

} // namespace
} // namespace verdane
