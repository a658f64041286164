#include "utils/Chaines.h"
#include "utils/Texte.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(Texte, ChaqueOctetSurvitAuPassageParUtf8) {
    std::string tous;
    for (int c = 1; c < 256; ++c) tous += static_cast<char>(c);
    EXPECT_EQ(Utf8VersCp1252(Cp1252VersUtf8(tous)), tous);
}

TEST(Texte, LesLettresDuFrancaisOntLeursOctets) {
    // Literals of the program are compiled to Windows-1252.
    EXPECT_EQ(Texte("é"), "\xE9");
    EXPECT_EQ(Texte("€uro"), "\x80uro");
    // Literals are Windows-1252: UTF-8 is written out in bytes.
    EXPECT_EQ(Cp1252VersUtf8("\x80 \x9C \xE0"), "\xE2\x82\xAC \xC5\x93 \xC3\xA0");
    EXPECT_EQ(Utf8VersCp1252("\xE2\x80\x99\xE2\x80\xA6\xC2\xA0"), "\x92\x85\xA0");
}

TEST(Texte, UnUtf8InvalideEstPrisOctetParOctet) {
    EXPECT_EQ(Utf8VersCp1252("caf\xE9"), "caf\xE9");   // already Windows-1252
    EXPECT_EQ(Utf8VersCp1252("\xC3"), "\xC3");         // cut sequence
    EXPECT_EQ(Utf8VersCp1252("\xC0\x80"), "\xC0\x80"); // overlong NUL
    EXPECT_EQ(Utf8VersCp1252("\xE4\xB8\xAD"), "?");    // no place in Windows-1252
}

TEST(Chaines, LaCasseSePlieAussiSurLesAccents) {
    EXPECT_EQ(Majuscules("élève œuvre"), "ÉLÈVE ŒUVRE");
    EXPECT_EQ(Minuscules("ÀÉÎÕÜ"), "àéîõü");
    EXPECT_TRUE(EgalSansCasse("Société", "SOCIÉTÉ"));
    EXPECT_EQ(Majuscule('\xF7'), '\xF7'); // the division sign has no case
    EXPECT_EQ(TrouverSansCasse("abc#MRL(x)#", "#mrl("), 3u);
    EXPECT_EQ(TrouverSansCasse("abc", "abcd"), Texte::npos);
    EXPECT_EQ(TrouverSansCasse("abc", "c", 5), Texte::npos);
}

TEST(Chaines, RemplacerNeBouclePasEtIgnoreLaCasse) {
    EXPECT_EQ(Remplacer("aXa", "a", "aa"), "aaXaa");
    EXPECT_EQ(Remplacer("C:\\a#ESP#b", "#esp#", " "), "C:\\a b");
    EXPECT_EQ(Remplacer("rien", "", "x"), "rien");
    EXPECT_EQ(Remplacer("", "a", "b"), "");
    EXPECT_EQ(RemplacerExact("aAa", "a", "b"), "bAb");
}

TEST(Chaines, LesEntiersSeLisentCommeValLesLit) {
    EXPECT_EQ(ValEntier("  42abc"), 42);
    EXPECT_EQ(ValEntier("-7"), -7);
    EXPECT_EQ(ValEntier("x1"), 0);
    EXPECT_EQ(ValEntier("99999999999999999999999"), ValEntier("999999999999999999"));
    EXPECT_EQ(EntierStrict(" 12 "), 12);
    EXPECT_FALSE(EntierStrict("12a").has_value());
    EXPECT_FALSE(EntierStrict("-").has_value());
    EXPECT_EQ(Rogner("  a b  "), "a b");
    EXPECT_EQ(Rogner("    "), "");
}

} // namespace verdane
