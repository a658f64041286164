#include "shell/Arguments.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(Arguments, GuillemetsEtBlancs) {
    LigneCommande l(R"(INI "C:\a b\m.vdm" "C:\a b\r.rtf" ouvrir remplacer)");
    EXPECT_EQ(l.NbArguments(), 5);
    EXPECT_EQ(l.Argument(1), "INI");
    EXPECT_EQ(l.Argument(2), "C:\\a b\\m.vdm");
    EXPECT_EQ(l.Argument(3), "C:\\a b\\r.rtf");
    EXPECT_EQ(l.Argument(5), "remplacer");
    EXPECT_EQ(l.Argument(6), "");
    EXPECT_EQ(l.Argument(0), "");
}

TEST(Arguments, CasLimites) {
    EXPECT_EQ(LigneCommande("").NbArguments(), 0);
    EXPECT_EQ(LigneCommande("    ").NbArguments(), 0);
    // An empty pair of quotes is an argument.
    LigneCommande vide(R"(INI "" b)");
    EXPECT_EQ(vide.NbArguments(), 3);
    EXPECT_EQ(vide.Argument(2), "");
    EXPECT_EQ(vide.Argument(3), "b");
    // A quoted argument still open at the end counts; quotes are never kept.
    LigneCommande ouverte(R"(a "b c)");
    EXPECT_EQ(ouverte.NbArguments(), 2);
    EXPECT_EQ(ouverte.Argument(2), "b c");
    LigneCommande collee(R"(a"b c")");
    EXPECT_EQ(collee.NbArguments(), 2);
    EXPECT_EQ(collee.Argument(1), "ab");
    EXPECT_EQ(collee.Argument(2), "c");
    // Quote right behind a quoted argument opens nothing by itself.
    LigneCommande suite(R"("a"b)");
    EXPECT_EQ(suite.Argument(1), "a");
    EXPECT_EQ(suite.Argument(2), "b");
}

TEST(Arguments, DepuisLesArgumentsDuSysteme) {
    const char* argv[] = {"verdane", "INI", "/tmp/a b/m.vdm", "", "remplacer"};
    const auto l = LigneCommande::DepuisArguments(5, argv);
    EXPECT_EQ(l.NbArguments(), 4);
    EXPECT_EQ(l.Argument(2), "/tmp/a b/m.vdm");
    EXPECT_EQ(l.Argument(3), "");
    EXPECT_EQ(l.Argument(4), "remplacer");
    const char* accent[] = {"verdane", "r\xC3\xA9sultat"}; // UTF-8 from the system
    EXPECT_EQ(LigneCommande::DepuisArguments(2, accent).Argument(1), "résultat");
}

} // namespace verdane
