#include "engine/LectureModele.h"

#include <gtest/gtest.h>

namespace verdane {

TEST(LectureModele, LesMorceauxDepassentMilleCaracteresSansCouperUneLigne) {
    std::string contenu;
    for (int i = 0; i < 30; ++i) contenu += std::string(99, 'a' + i % 26) + "\r\n";
    const auto m = DecouperModele(contenu);
    ASSERT_EQ(m.Morceaux.size(), 3u); // 11 + 11 + 8 lines of 99
    EXPECT_EQ(m.Morceaux[0].size(), 11u * 99u);
    EXPECT_EQ(m.Morceaux[1].size(), 11u * 99u);
    EXPECT_EQ(m.Morceaux[2].size(), 8u * 99u);
    EXPECT_EQ(m.Morceaux[0].find('\r'), std::string::npos);

    const auto longue = DecouperModele(std::string(5000, 'x') + "\nfin");
    ASSERT_EQ(longue.Morceaux.size(), 2u);
    EXPECT_EQ(longue.Morceaux[0].size(), 5000u);
    EXPECT_EQ(longue.Morceaux[1], "fin");
}

TEST(LectureModele, ToutesLesFinsDeLigneEtLesMarquesComptees) {
    const auto m = DecouperModele("a#mrl(x)#\rb#MRL(y)##mrl(z)#\nc#mrl\r\n(coupee)#");
    ASSERT_EQ(m.Morceaux.size(), 1u);
    EXPECT_EQ(m.Morceaux[0], "a#mrl(x)#b#MRL(y)##mrl(z)#c#mrl(coupee)#");
    EXPECT_EQ(m.NbCodes, 3); // a mark split by a line end isn't counted
    // ... but the driver finds it, where the pieces stand in the joined text.
    EXPECT_TRUE(m.marquesCompletes);
    EXPECT_EQ(m.marques, (std::vector<std::uint32_t>{1, 10, 18, 27}));
    EXPECT_EQ(m.MarqueApres(11), 18u);
    EXPECT_EQ(m.MarqueApres(28), Texte::npos);
    EXPECT_TRUE(DecouperModele("").Morceaux.empty());
    EXPECT_EQ(DecouperModele("\n\n").Morceaux.size(), 1u);
}

TEST(LectureModele, UneFinDeLigneQuiDelimitaitUnMotDeControleResteUnBlanc) {
    // "\b" then "old" on the next line must not become the word "\bold".
    EXPECT_EQ(DecouperModele("{\\b\nold}").Morceaux[0], "{\\b old}");
    EXPECT_EQ(DecouperModele("\\fs22\n5").Morceaux[0], "\\fs22 5");
    EXPECT_EQ(DecouperModele("\\par \nTexte").Morceaux[0], "\\par Texte");
    EXPECT_EQ(DecouperModele("\\\\b\ntexte").Morceaux[0], "\\\\btexte"); // an escaped backslash
    // A code at the start of a line will be text: "\par" must not swallow it.
    EXPECT_EQ(DecouperModele("\\par\n#mrl(x)#").Morceaux[0], "\\par #mrl(x)#");
    EXPECT_EQ(DecouperModele("\\par\n{\\b x}").Morceaux[0], "\\par{\\b x}");
}

TEST(LectureModele, UnModeleFaitDeMarquesGardeUneListeBornee) {
    Texte contenu;
    for (int i = 0; i < 2000; ++i) contenu += "#mrl(\r\n";
    const auto m = DecouperModele(contenu);
    EXPECT_EQ(m.NbCodes, 2000);
    EXPECT_FALSE(m.marquesCompletes);
    EXPECT_TRUE(m.marques.empty());
    ASSERT_EQ(m.Morceaux.size(), 10u);
    // The pieces lie end to end in the one text.
    EXPECT_EQ(m.Morceaux[0].data(), m.texte->data());
    EXPECT_EQ(m.Morceaux[1].data(), m.Morceaux[0].data() + m.Morceaux[0].size());
}

} // namespace verdane
