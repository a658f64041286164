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

TEST(Catalogues, NumerotationEtArbreAvecClesUniques) {
    // The animal folders number their records on from one another.
    const auto* femelles = Trouver(CatalogueAnimaux(), "femelles");
    ASSERT_NE(femelles, nullptr);
    EXPECT_EQ((std::vector<Texte>{femelles->enfants.front().cle, femelles->enfants.back().cle,
                                  Trouver(CatalogueAnimaux(), "venteprod")->enfants.back().cle,
                                  Trouver(CataloguePerennes(), "CHtransfo")->enfants[2].cle}),
              (std::vector<Texte>{"@56", "@81", "@315", "@78x86/100/46t"}));

    std::set<Texte> cles, dossiers;
    const auto noeuds = ArbreElements(CatalogueAnimaux(), 1);
    for (const auto& n : noeuds) {
        EXPECT_TRUE(cles.insert(n.cle).second) << n.cle;
        if (n.image == "rep") dossiers.insert(n.cle);
        // Every parent is a folder laid before its children.
        EXPECT_TRUE(n.parent.empty() || dossiers.count(n.parent)) << n.parent;
    }
    EXPECT_EQ(noeuds[1].cle.rfind("ALani:24#", 0), 0u);
}

} // namespace
} // namespace verdane
