#include "data/Champs.h"

#include <gtest/gtest.h>

#include <set>

namespace verdane {
namespace {

// Each field of the menu is inserted by its code: no two share one, and the organisation's
// fields, which take its suffix, are all of its kind.
TEST(ChargerChamps, CodesUniques) {
    std::set<Texte> codes;
    for (const auto& c : ChargerChamps()) {
        EXPECT_TRUE(codes.insert(c.code).second) << c.code;
        if (c.suffixe == SuffixeChamp::Organisme) {
            EXPECT_EQ(c.code.substr(0, 4), "Orga");
        }
    }
    EXPECT_EQ(codes.size(), 59u);
}

} // namespace
} // namespace verdane
