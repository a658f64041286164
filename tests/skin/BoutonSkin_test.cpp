#include "skin/BoutonSkin.h"

#include "skin/LectureSkin.h"

#include <gtest/gtest.h>

namespace verdane::skin {
namespace {

TEST(BoutonSkin, InfoDesImages) {
    BoutonSkin b;
    b.Pic1_Info("1,2,30,40");
    EXPECT_EQ(b.SourceHaut(), (Rectangle{1, 2, 30, 40}));
    // Without ",", the other three strings stay as they were.
    b.Pic1_Info("7");
    EXPECT_EQ(b.Pic1(), (std::array<Texte, 4>{"7", "2", "30", "40"}));
    // The split stops at the first missing ",".
    b.Pic1_Info("5,6");
    EXPECT_EQ(b.Pic1(), (std::array<Texte, 4>{"5", "6", "30", "40"}));
    for (const char* faux : {"0,0,x,4", "0,0,0,4"}) {
        b.Pic2_Info(faux);
        EXPECT_FALSE(b.SourceBas()) << faux;
    }
}

TEST(BoutonSkin, DonneesDuSkinEtEtats) {
    const auto skin = LireDescriptionSkin("button.mup = 0,20,80,24\n"
                                          "button.mdown = 80,20,80,24\n"
                                          "button.lblcolor = 255,65280\n",
                                          "")
                          .skin;
    BoutonSkin b;
    b.Fore_Color(123);
    EXPECT_EQ(b.CouleurLibelle(), 123);
    b.RecevoirSkin(skin);
    EXPECT_EQ(b.SourceHaut(), (Rectangle{0, 20, 80, 24}));
    EXPECT_EQ(b.SourceBas(), (Rectangle{80, 20, 80, 24}));
    EXPECT_EQ(b.CouleurLibelle(), 255);
    b.Appuyer();
    EXPECT_EQ(b.CouleurLibelle(), 65280);
    // Released off the button: no click, and up again.
    EXPECT_FALSE(b.Relacher(false));
    EXPECT_EQ(b.CouleurLibelle(), 255);
    // A release without a press (the press was elsewhere) is no click either.
    EXPECT_FALSE(b.Relacher(true));
    b.Appuyer();
    EXPECT_TRUE(b.Relacher(true));
    EXPECT_FALSE(b.Enfonce());
}

} // namespace
} // namespace verdane::skin
