#include "shell/Arguments.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(Arguments, GuillemetsEtBlancs) {
    const std::pair<const char*, std::vector<Texte>> cas[] = {
        {R"(INI "C:\a b\m.vdm" "C:\a b\r.rtf" ouvrir remplacer)",
         {"INI", "C:\\a b\\m.vdm", "C:\\a b\\r.rtf", "ouvrir", "remplacer"}},
        {"", {}},
        {"    ", {}},
        // An empty pair of quotes is an argument.
        {R"(INI "" b)", {"INI", "", "b"}},
        // A quoted argument still open at the end counts; quotes are never kept.
        {R"(a "b c)", {"a", "b c"}},
        {R"(a"b c")", {"ab", "c"}},
        // Quote right behind a quoted argument opens nothing by itself.
        {R"("a"b)", {"a", "b"}},
    };
    for (const auto& [ligne, attendus] : cas) {
        const LigneCommande l(ligne);
        std::vector<Texte> lus;
        for (int i = 1; i <= l.NbArguments(); ++i) lus.push_back(l.Argument(i));
        EXPECT_EQ(lus, attendus) << ligne;
        // Out of range: empty.
        EXPECT_EQ(l.Argument(0), "");
        EXPECT_EQ(l.Argument(l.NbArguments() + 1), "");
    }
}

TEST(Arguments, DepuisLesArgumentsDuSysteme) {
    const char* argv[] = {"verdane", "INI", "/tmp/a b/m.vdm", "", "r\xC3\xA9sultat"};
    const auto l = LigneCommande::DepuisArguments(5, argv);
    EXPECT_EQ(l.NbArguments(), 4);
    EXPECT_EQ(l.Argument(2), "/tmp/a b/m.vdm");
    EXPECT_EQ(l.Argument(3), "");
    EXPECT_EQ(l.Argument(4), "résultat"); // UTF-8 from the system
}

} // namespace verdane
