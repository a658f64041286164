#include "shell/GestionBarre.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

// A menu form that only keeps what the roll-down does to it.
class FormeEssai : public FormeDeroulante {
public:
    explicit FormeEssai(int h = 0, bool v = false) : hauteur(h), visible(v) {}
    int Hauteur() const override { return hauteur; }
    void PoserHauteur(int twips) override { hauteur = twips; }
    bool Visible() const override { return visible; }
    void Placer(int gaucheTwips) override { gauche = gaucheTwips; }
    void Montrer() override { visible = true; }
    void Retirer() override { visible = false; }
    int hauteur;
    bool visible;
    int gauche = -1;
};

void Reposer(GestionBarre& g) {
    for (int tics = 0; g.EnMouvement() && tics < 1000; ++tics) g.Tic();
}

TEST(GestionBarre, ChaqueOngletDerouleSonMenuASaPlaceParPasDe350) {
    for (int i = 0; i < kNbOnglets; ++i) {
        GestionBarre g;
        FormeEssai f;
        ASSERT_TRUE(g.CliquerOnglet(i, f));
        EXPECT_TRUE(f.visible);
        EXPECT_EQ(f.gauche, GaucheOnglet(i));
        EXPECT_EQ(g.Jeton(), Definition(MenuOnglet(i)).ouverture);
        std::vector<int> vues;
        while (g.EnMouvement() && vues.size() < 1000) {
            g.Tic();
            vues.push_back(f.hauteur);
        }
        // Stops exactly on its target, whatever the remainder of the last step.
        EXPECT_EQ(f.hauteur, Definition(MenuOnglet(i)).hauteur) << i;
        if (i == 2) { // 1400: 165 left, under half a step, so the form is set to its target
            EXPECT_EQ(vues, (std::vector<int>{350, 700, 1050, 1565}));
        }
    }
}

TEST(GestionBarre, FermetureParPasDe300PuisRetrait) {
    GestionBarre g;
    FormeEssai f(900, true);
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
    FormeEssai g299(299, true);
    g.PoserJeton("CLOSEAIDE", g299);
    g.Tic();
    EXPECT_FALSE(g299.visible);
    EXPECT_FALSE(g.EnMouvement());

    // Unknown or empty tokens move nothing.
    FormeEssai h(1000, true);
    for (const char* jeton : {"OPENRIEN", ""}) {
        g.PoserJeton(jeton, h);
        g.Tic();
        EXPECT_EQ(h.hauteur, 1000) << jeton;
    }
    GestionBarre vide; // no form ever given: nothing to move
    vide.Tic();
    EXPECT_FALSE(vide.EnMouvement());
}

TEST(GestionBarre, UnMenuOuvertNeBougePlusUnNouveauLaisseLePrecedentASaHauteur) {
    GestionBarre g;
    FormeEssai doc, insertion, outils;
    g.CliquerOnglet(0, doc);
    Reposer(g);
    doc.gauche = -1;
    EXPECT_FALSE(g.CliquerOnglet(0, doc));
    EXPECT_EQ(doc.gauche, -1);
    EXPECT_FALSE(g.EnMouvement());
    EXPECT_EQ(doc.hauteur, 2580);
    // A form still rolling is open too.
    g.CliquerOnglet(1, insertion);
    g.Tic();
    EXPECT_FALSE(g.CliquerOnglet(1, insertion));
    EXPECT_EQ(insertion.hauteur, 350);
    // Another tab takes over: the first stays where it was, until its own close.
    g.CliquerOnglet(4, outils);
    Reposer(g);
    EXPECT_EQ(insertion.hauteur, 350);
    EXPECT_TRUE(insertion.visible);
    EXPECT_EQ(outils.hauteur, 1905);
    g.PoserJeton("CLOSEINS", insertion);
    Reposer(g);
    EXPECT_FALSE(insertion.visible);
    EXPECT_TRUE(outils.visible);

    // The message form of Marlo is taller than the help's.
    FormeEssai aide, marlo;
    g.Ouvrir(Menu::Aide, false, aide, 0);
    Reposer(g);
    g.Ouvrir(Menu::Aide, true, marlo, 0);
    EXPECT_EQ(g.Jeton(), "OPENMARLO");
    Reposer(g);
    EXPECT_EQ(aide.hauteur, 3150);
    EXPECT_EQ(marlo.hauteur, 3915);
    EXPECT_EQ(MenuDuJeton("closeaide"), std::make_pair(Menu::Aide, true));
}

TEST(GestionBarre, SelectionDesOngletsEtTwips) {
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

    EXPECT_EQ(TwipsVersPixels(4630, 96), 309);
    EXPECT_EQ(TwipsVersPixels(1440, 120), 120);
    EXPECT_EQ(PixelsVersTwips(42, 96), 630);
    EXPECT_EQ(PixelsVersTwips(42, 0), 0);
}

} // namespace
} // namespace verdane
