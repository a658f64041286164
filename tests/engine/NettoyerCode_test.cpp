#include "engine/NettoyerCode.h"

#include <gtest/gtest.h>

#include <random>

namespace verdane::test {
namespace {

Texte Nettoye(Texte c) {
    NettoyerCode(c);
    return c;
}

// The bookmark and OLE link removals done literally, one at a time, each from the start of the
// code: the cleaner must give the same text in one pass.
Texte RetraitsUnParUn(Texte code) {
    constexpr std::string_view signets[] = {"kmkstartDDE_LINK", "bkmkendDDE_LINK",
                                            "kmkendDDE_LINK"};
    while (code.find("kmk") != Texte::npos) {
        bool retire = false;
        for (auto mot : signets)
            if (!retire && RetirerMotRtf(code, mot) == 1) retire = true;
        if (!retire) code.erase(code.find("kmk"), 3);
    }
    while (code.find("endOLE") != Texte::npos)
        if (RetirerMotRtf(code, "endOLE_LINK") != 1) code.erase(code.find("endOLE"), 11);
    return code;
}

TEST(NettoyerCode, OrdreDesRetraits) {
    const auto net = Nettoye;
    // "fs20" without its backslash: the backslash goes with a later rule.
    EXPECT_EQ(net("a\\fs20 b"), "ab");
    EXPECT_EQ(net("{\\plain\\caps\\lang2057 x}"), "x");
    EXPECT_EQ(net("\\sect\\page y"), "y");
    EXPECT_EQ(net("d\\s5\\lotusoutlinelevel0 z"), "z");
    EXPECT_EQ(net("l\\rquote an\\lquote s \\'80"), "l'an's\x80");
    EXPECT_EQ(net("a{\\*\\bkmkend DDE_LINK27}b"), "ab");
    EXPECT_EQ(net("a{\\*\\bkmkstart OLE_LINK3}b{\\*\\bkmkend OLE_LINK3}c"), "astartOLE_LINK3bc");
    EXPECT_EQ(net("kmkstartDDE_kmkLINK5y"), "startDDE_LINK5y");
    EXPECT_EQ(net(""), "");
    EXPECT_EQ(net("VLVB.don+VLVB-3a12:2"), "VLVB.don+VLVB-3a12:2");
}

TEST(NettoyerCode, SignetsCommeRetiresUnParUn) {
    // Pieces of the words, so that removals bring new words together, before digits and
    // after a "b".
    const std::string_view morceaux[] = {"kmk",
                                         "km",
                                         "k",
                                         "mk",
                                         "b",
                                         "start",
                                         "sta",
                                         "rt",
                                         "end",
                                         "DDE_",
                                         "LINK",
                                         "DDE_LINK",
                                         "K",
                                         "1",
                                         "27",
                                         "x",
                                         "endOLE",
                                         "_LINK",
                                         "OLE",
                                         "endOL",
                                         "E_LINK",
                                         "e",
                                         "kmkstartDDE_LINK",
                                         "bkmkendDDE_LINK",
                                         "kmkendDDE_LINK",
                                         "endOLE_LINK"};
    std::mt19937 alea(20240611);
    std::uniform_int_distribution<std::size_t> piece(0, std::size(morceaux) - 1);
    std::uniform_int_distribution<int> longueur(1, 16);
    for (int essai = 0; essai < 40000; ++essai) {
        Texte code;
        for (int n = longueur(alea); n > 0; --n) code += morceaux[piece(alea)];
        ASSERT_EQ(Nettoye(code), RetraitsUnParUn(code)) << code;
    }
}

} // namespace
} // namespace verdane::test
