#include "engine/AnalyserCodes.h"
#include "engine/InsererValeur.h"

#include "FauxUtilisateurMoteur.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace verdane::test {
namespace {

class Annotations : public ::testing::Test {
protected:
    void SetUp() override { m.ctx.etat.enrDossier.tel = "  0102  "; }
    MoteurDeTest m;
};

TEST_F(Annotations, ValeurNueSansAnnotation) {
    EXPECT_EQ(m.Developper("a #mrl(tel)# b"), "a 0102 b");
    EXPECT_EQ(m.Developper("a #mrl(fax)# b"), "a \\~ b"); // a field never vanishes
}

TEST_F(Annotations, BrancheAvecAnnotation) {
    m.ctx.etat.options.SansAnnotation = 0;
    m.ctx.etat.options.CouleurAnnotation = 2;
    EXPECT_EQ(m.Developper("a #mrl(t el)# b"),
              "a {\\fs22 {\\*\\atrfstart 47317183}0102}{\\cs15\\v\\cf2\\fs18 {\\*\\atrfend "
              "47317183}{\\*\\atnid MRL}{\\*\\atnauthor Code Verdane pour la construction de la "
              "donnée }\\chatn {\\*\\annotation {\\*\\atnref 47317183}{#mrl(t el)#}}} b");

    // A nested value goes in bare.
    Texte cellule = "x%mrl(tel)%y";
    AnalyserCodesImbriques(m.ctx, cellule);
    EXPECT_EQ(cellule, "x0102y");
}

TEST_F(Annotations, InfoBulle) {
    const Texte attendu = "{\\fs22 {\\*\\atrfstart 47317183}mot}{\\cs15\\v\\fs20 {\\*\\atrfend "
                          "47317183}{\\*\\atnid MRL}{\\*\\atnauthor Titre long }\\chatn "
                          "{\\*\\annotation {\\*\\atnref 47317183}{Le texte}}}";
    EXPECT_EQ(m.Developper("#mrl(INFO:MRL:10:Titre_long:Le_texte:mot)#"), attendu);
    // Two in a row share the number; the annotation branch gives way to the tooltip.
    m.ctx.etat.options.SansAnnotation = 0;
    EXPECT_EQ(m.Developper("#mrl(INFO:MRL:10:Titre_long:Le_texte:mot)##mrl(Info:MRL:10:Titre_long:"
                           "Le_texte:mot)#"),
              attendu + attendu);
}

TEST_F(Annotations, InfoBulleIncompleteOuTailleIllisible) {
    EXPECT_EQ(m.Developper("a #mrl(INFO:MRL:10:Titre)# b"), "a \\~ b");
    EXPECT_EQ(m.Developper("#mrl(INFO:MRL:10:T:I:)#"),
              "{\\fs22 {\\*\\atrfstart 47317183}\\~}{\\cs15\\v\\fs20 {\\*\\atrfend "
              "47317183}{\\*\\atnid MRL}{\\*\\atnauthor T }\\chatn {\\*\\annotation "
              "{\\*\\atnref 47317183}{I}}}");
    EXPECT_EQ(m.Developper("#mrl(INFO:MRL:dix:T:I:m)# et #mrl(tel)#"),
              "#mrl(INFO:MRL:dix:T:I:m)# et 0102");
    EXPECT_EQ(m.Developper("#mrl(INFO:MRL:1e9:T:I:m)#"), "#mrl(INFO:MRL:1e9:T:I:m)#");
    EXPECT_NE(m.Developper("#mrl(INFO:MRL:7,5:T:I:m)#").find("\\fs15 "), Texte::npos);
}

TEST_F(Annotations, PositionRendue) {
    Texte texte = "ab#mrl(x)#cd";
    EXPECT_EQ(InsererValeur(m.ctx, texte, 3, 9, "VAL", true), 6);
    EXPECT_EQ(texte, "abVALcd");
    // Positions out of the text are held inside it.
    texte = "ab";
    EXPECT_EQ(InsererValeur(m.ctx, texte, 10, 20, "v", true), 4);
    EXPECT_EQ(texte, "abv");
}

TEST(RtfVersTexte, LettresAccentuees) {
    Texte t = "d\\'e9j\\'e0 \\'c9t\\'e9 \\'E8 \\'";
    RtfVersTexte(t);
    EXPECT_EQ(t, "déjà té è ");
    t = "fin\\'e";
    RtfVersTexte(t);
    EXPECT_EQ(t, "fin");
}

// The escapes taken one at a time from the start of the text, as the rule says: the one
// routine made faster must give the same text whatever the mix of backslashes and quotes.
TEST(RtfVersTexte, CommeLesEchappementsPrisUnAUnDepuisLeDebut) {
    auto unAUn = [](Texte t) {
        for (auto n = t.find("\\'"); n != Texte::npos; n = t.find("\\'")) {
            const Texte code = Minuscules(t.substr(n + 2, 2));
            const Texte codes = "e0e2e7e8e9eaeef4f9fb", lettres = "àâçèéêîôùû";
            const auto k = code.size() == 2 ? codes.find(code) : Texte::npos;
            const Texte lettre = k != Texte::npos && k % 2 == 0 ? lettres.substr(k / 2, 1) : "";
            t = t.substr(0, n) + lettre + t.substr(std::min(t.size(), n + 4));
        }
        return t;
    };
    std::mt19937 gen(13);
    const std::string alphabet = "\\'eE90x";
    for (int essai = 0; essai < 20000; ++essai) {
        Texte t;
        for (std::size_t i = gen() % 14; i > 0; --i) t += alphabet[gen() % alphabet.size()];
        Texte r = t;
        RtfVersTexte(r);
        ASSERT_EQ(r, unAUn(t)) << t;
    }
}

} // namespace
} // namespace verdane::test
