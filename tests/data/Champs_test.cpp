#include "data/Champs.h"

#include <gtest/gtest.h>

#include <set>

namespace verdane {
namespace {

TEST(ChargerChamps, ListeDuMenu) {
    const auto champs = ChargerChamps();
    ASSERT_EQ(champs.size(), 59u);
    EXPECT_EQ(champs.front().libelle, "Nom exploitant/société");
    EXPECT_EQ(champs.front().code, "nomExplSoc");
    EXPECT_EQ(champs.back().code, "OrgaLogo");
    std::set<Texte> codes;
    int annees = 0, organismes = 0;
    for (const auto& c : champs) {
        EXPECT_TRUE(codes.insert(c.code).second) << c.code;
        annees += c.suffixe == SuffixeChamp::Annee;
        organismes += c.suffixe == SuffixeChamp::Organisme;
        if (c.suffixe == SuffixeChamp::Organisme) {
            EXPECT_EQ(c.code.substr(0, 4), "Orga");
        }
    }
    EXPECT_EQ(annees, 9);
    EXPECT_EQ(organismes, 7);
    EXPECT_EQ(champs[23].libelle, "Nom du 1er associé");
    EXPECT_EQ(champs[24].libelle, "Nom du 2ème associé");
    EXPECT_EQ(champs[32].code, "nomAss10");
    EXPECT_EQ(champs[33].code, "dateDebut");
}

} // namespace
} // namespace verdane
