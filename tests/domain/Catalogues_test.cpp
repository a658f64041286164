#include "domain/Catalogues.h"

#include <gtest/gtest.h>

#include <set>

namespace verdane {
namespace {

const ElementCatalogue* Trouver(const std::vector<ElementCatalogue>& l, const Texte& cle) {
    for (const auto& e : l) {
        if (e.cle == cle) return &e;
        if (const auto* f = Trouver(e.enfants, cle)) return f;
    }
    return nullptr;
}

TEST(Catalogues, ElementsEtNumerotation) {
    EXPECT_EQ(CatalogueCultures().size(), 28u);
    EXPECT_EQ(CatalogueAssolement().size(), 28u);
    EXPECT_EQ(Trouver(CatalogueCultures(), "@14")->libelle, "Marge ou coût net opé. /ha");
    const auto* femelles = Trouver(CatalogueAnimaux(), "femelles");
    ASSERT_NE(femelles, nullptr);
    EXPECT_EQ(femelles->enfants.front().libelle, "Achat ani. 1");
    EXPECT_EQ((std::vector<Texte>{femelles->enfants.front().cle, femelles->enfants[9].cle,
                                  femelles->enfants.back().cle,
                                  Trouver(CatalogueAnimaux(), "venteprod")->enfants.back().cle,
                                  Trouver(CataloguePerennes(), "CHtransfo")->enfants[2].cle}),
              (std::vector<Texte>{"@56", "@65", "@81", "@315", "@78x86/100/46t"}));
    EXPECT_EQ(Trouver(CatalogueAnimaux(), "consomales")->enfants[1].libelle,
              "Aliments - 1 an (kg)");
}

TEST(Catalogues, ArbreAvecClesUniques) {
    const auto noeuds = ArbreElements(CatalogueAnimaux(), 1);
    std::set<Texte> cles, dossiers;
    for (const auto& n : noeuds) {
        EXPECT_TRUE(cles.insert(n.cle).second) << n.cle;
        if (n.image == "rep") dossiers.insert(n.cle);
        // Every parent is a folder laid before its children.
        if (!n.parent.empty()) {
            EXPECT_TRUE(dossiers.count(n.parent)) << n.parent;
        }
    }
    EXPECT_EQ(noeuds[0].image, "rep");
    EXPECT_EQ(noeuds[1].cle.rfind("ALani:24#", 0), 0u);
}

} // namespace
} // namespace verdane
