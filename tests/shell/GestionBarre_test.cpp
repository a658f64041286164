#include "shell/GestionBarre.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

// A menu form that only keeps what the roll-down does to it.
class FormeEssai : public FormeDeroulante {
public:
    int Hauteur() const override { return hauteur; }
    void PoserHauteur(int twips) override { hauteur = twips; }
    bool Visible() const override { return visible; }
    void Placer(int gaucheTwips) override { gauche = gaucheTwips; }
    void Montrer() override { visible = true; }
    void Retirer() override { visible = false; }
    int hauteur = 0;
    int gauche = -1;
    bool visible = false;
};

int TicsJusquAuRepos(GestionBarre& g) {
    int tics = 0;
    while (g.EnMouvement() && tics < 1000) {
        g.Tic();
        ++tics;
    }
    return tics;
}

TEST(GestionBarre, ChaqueOngletDerouleSonMenuASaPlaceEtSaHauteur) {
    const int gauches[] = {210, 2050, 3700, 5670, 7480, 8790};
    const int hauteurs[] = {2580, 2830, 1565, 1515, 1905, 4630};
    for (int i = 0; i < kNbOnglets; ++i) {
        GestionBarre g;
        FormeEssai f;
        ASSERT_TRUE(g.CliquerOnglet(i, f));
        EXPECT_TRUE(f.visible);
        EXPECT_EQ(f.gauche, gauches[i]);
        EXPECT_EQ(g.Jeton(), Definition(MenuOnglet(i)).ouverture);
        TicsJusquAuRepos(g);
        // Stops exactly on its target, whatever the remainder of the last step.
        EXPECT_EQ(f.hauteur, hauteurs[i]) << i;
        EXPECT_TRUE(g.Jeton().empty());
    }
}

TEST(GestionBarre, OuvertureParPasDe350EtArretAMoinsDUnDemiPas) {
    GestionBarre g;
    FormeEssai f;
    g.CliquerOnglet(2, f); // 1565
    std::vector<int> vues;
    while (g.EnMouvement()) {
        g.Tic();
        vues.push_back(f.hauteur);
    }
    // 350, 700, 1050, 1400: 165 left, under half a step, so the form is set to its target.
    EXPECT_EQ(vues, (std::vector<int>{350, 700, 1050, 1565}));
}

TEST(GestionBarre, FermetureParPasDe300PuisRetrait) {
    GestionBarre g;
    FormeEssai f;
    f.visible = true;
    f.hauteur = 900;
    g.PoserJeton("closedoc", f);
    EXPECT_EQ(g.Jeton(), "CLOSEDOC");
    g.Tic();
    EXPECT_EQ(f.hauteur, 600);
    g.Tic();
    g.Tic();
    EXPECT_EQ(f.hauteur, 0);
    EXPECT_TRUE(f.visible);
    g.Tic();
    EXPECT_FALSE(f.visible);
    EXPECT_FALSE(g.EnMouvement());

    // Under one step, the form goes at the next tick with no step taken.
    FormeEssai g299;
    g299.visible = true;
    g299.hauteur = 299;
    g.PoserJeton("CLOSEAIDE", g299);
    g.Tic();
    EXPECT_FALSE(g299.visible);
    EXPECT_FALSE(g.EnMouvement());
}

TEST(GestionBarre, UnClicSurLeMenuOuvertNeChangeRien) {
    GestionBarre g;
    FormeEssai f;
    g.CliquerOnglet(0, f);
    TicsJusquAuRepos(g);
    f.gauche = -1;
    EXPECT_FALSE(g.CliquerOnglet(0, f));
    EXPECT_EQ(f.gauche, -1);
    EXPECT_FALSE(g.EnMouvement());
    EXPECT_EQ(f.hauteur, 2580);

    // A form still rolling is open too.
    FormeEssai h;
    g.CliquerOnglet(1, h);
    g.Tic();
    EXPECT_FALSE(g.CliquerOnglet(1, h));
    EXPECT_EQ(h.hauteur, 350);
}

TEST(GestionBarre, UnNouveauMenuAbandonneLePrecedentASaHauteur) {
    GestionBarre g;
    FormeEssai doc, outils;
    g.CliquerOnglet(0, doc);
    g.Tic();
    g.Tic();
    g.CliquerOnglet(4, outils);
    TicsJusquAuRepos(g);
    EXPECT_EQ(doc.hauteur, 700);
    EXPECT_TRUE(doc.visible);
    EXPECT_EQ(outils.hauteur, 1905);
    // Opening a menu closes none: the first stays until its own close.
    g.PoserJeton("CLOSEDOC", doc);
    TicsJusquAuRepos(g);
    EXPECT_FALSE(doc.visible);
    EXPECT_TRUE(outils.visible);
}

TEST(GestionBarre, JetonsInconnusOuVidesNeBougentRien) {
    GestionBarre g;
    FormeEssai f;
    f.visible = true;
    f.hauteur = 1000;
    g.PoserJeton("OPENRIEN", f);
    g.Tic();
    EXPECT_EQ(f.hauteur, 1000);
    g.PoserJeton("", f);
    g.Tic();
    EXPECT_EQ(f.hauteur, 1000);
    g.Tic(); // no form ever given: nothing to move
    GestionBarre vide;
    vide.Tic();
    EXPECT_FALSE(vide.EnMouvement());
}

TEST(GestionBarre, LeMessageDeMarloEstPlusGrand) {
    GestionBarre g;
    FormeEssai aide, marlo;
    g.Ouvrir(Menu::Aide, false, aide, 0);
    TicsJusquAuRepos(g);
    g.Ouvrir(Menu::Aide, true, marlo, 0);
    EXPECT_EQ(g.Jeton(), "OPENMARLO");
    TicsJusquAuRepos(g);
    EXPECT_EQ(aide.hauteur, 3150);
    EXPECT_EQ(marlo.hauteur, 3915);
    const auto m = MenuDuJeton("closeaide");
    ASSERT_TRUE(m);
    EXPECT_EQ(m->first, Menu::Aide);
    EXPECT_TRUE(m->second);
}

TEST(GestionBarre, SelectionDesOnglets) {
    GestionBarre g;
    FormeEssai f;
    g.CliquerOnglet(3, f);
    EXPECT_TRUE(g.OngletSelectionne(3));
    EXPECT_TRUE(g.PiecesOnglet3Selectionnees());
    g.CliquerOnglet(3, f); // the open menu's tab: still selected, nothing else
    EXPECT_TRUE(g.PiecesOnglet3Selectionnees());
    g.CliquerOnglet(5, f);
    for (int i = 0; i < kNbOnglets; ++i) EXPECT_EQ(g.OngletSelectionne(i), i == 5) << i;
    EXPECT_FALSE(g.PiecesOnglet3Selectionnees());
    g.DeselectionnerOnglets();
    EXPECT_FALSE(g.OngletSelectionne(5));
    EXPECT_FALSE(g.OngletSelectionne(6));
}

TEST(GestionBarre, TwipsEtPixels) {
    EXPECT_EQ(TwipsVersPixels(8790, 96), 586);
    EXPECT_EQ(TwipsVersPixels(4630, 96), 309);
    EXPECT_EQ(TwipsVersPixels(1440, 120), 120);
    EXPECT_EQ(PixelsVersTwips(42, 96), 630);
    EXPECT_EQ(PixelsVersTwips(42, 0), 0);
}

} // namespace
} // namespace verdane
