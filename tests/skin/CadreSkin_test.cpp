#include "skin/CadreSkin.h"

#include "skin/LectureSkin.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>

namespace verdane::skin {
namespace {

// A frame with a body, a close button on the right and a menu button on the left.
DescriptionSkin Cadre() {
    return LireDescriptionSkin("heighttitre = 20\n"
                               "pos = 0,0,me.width,me.height, 0,0,8,8\n"
                               "pos = me.width-4,0,4,me.height, 8,0,4,8\n"
                               "pos = 0,0,0,10, 0,0,8,8\n"
                               "posbmenu = 2,2,16,16, 0,10,16,16\n"
                               "posbmax = me.width-40,2,16,16, 16,10,16,16\n"
                               "posbmax1 = me.width-40,2,16,16, 16,30,16,16\n"
                               "posbend = me.width-20,2,16,16, 32,10,16,16\n"
                               "posbend1 = 999,999,16,16, 32,30,16,16\n"
                               "lbltitre.pos = 20,0,me.width-60,20\n",
                               "")
        .skin;
}

TEST(CadreSkin, DessinALaTailleCourante) {
    const auto skin = Cadre();
    CadreSkin cadre(skin);
    for (const int largeur : {200, 350}) {
        const auto d = cadre.Dessin(largeur, 100);
        // The empty piece is left out.
        ASSERT_EQ(d.pieces.size(), 2u);
        EXPECT_EQ(d.pieces[0].destination, (Rectangle{0, 0, largeur, 100}));
        EXPECT_EQ(d.pieces[1].destination, (Rectangle{largeur - 4, 0, 4, 100}));
        EXPECT_EQ(d.pieces[1].source, (Rectangle{8, 0, 4, 8}));
        ASSERT_TRUE(d.titre);
        EXPECT_EQ(d.titre->largeur, largeur - 60);
        EXPECT_EQ(d.numerosBoutons,
                  (std::vector<int>{kBoutonMenu, kBoutonAgrandir, kBoutonFermer}));
    }
}

TEST(CadreSkin, BoutonsDuTitreSousLaSourisSeulement) {
    const auto skin = Cadre();
    CadreSkin cadre(skin);
    // Moving without the button changes nothing.
    EXPECT_FALSE(cadre.Survol(false, 185, 5, 200, 100));
    EXPECT_TRUE(cadre.Survol(true, 185, 5, 200, 100));
    EXPECT_TRUE(cadre.Enfonce(kBoutonFermer));
    auto d = cadre.Dessin(200, 100);
    // The pressed picture, at the place of the up one whatever its own line says.
    EXPECT_EQ(d.boutons[2].source, (Rectangle{32, 30, 16, 16}));
    EXPECT_EQ(d.boutons[2].destination, (Rectangle{180, 2, 16, 16}));
    // Dragged off the button: up again, and the release does nothing.
    EXPECT_TRUE(cadre.Survol(true, 100, 50, 200, 100));
    EXPECT_FALSE(cadre.Enfonce(kBoutonFermer));
    EXPECT_EQ(cadre.Relacher(100, 50, 200, 100, EtatFenetre::Normale), ActionTitre::Aucune);
    // Pressed on one button, released on another: nothing either.
    cadre.Survol(true, 185, 5, 200, 100);
    EXPECT_EQ(cadre.Relacher(165, 5, 200, 100, EtatFenetre::Normale), ActionTitre::Aucune);

    const std::tuple<int, EtatFenetre, ActionTitre> clics[] = {
        {185, EtatFenetre::Normale, ActionTitre::Fermer},
        {165, EtatFenetre::Normale, ActionTitre::Agrandir},
        {165, EtatFenetre::Agrandie, ActionTitre::Restaurer},
        {5, EtatFenetre::Normale, ActionTitre::Menu}};
    for (const auto& [x, etat, action] : clics) {
        cadre.Survol(true, x, 5, 200, 100);
        EXPECT_EQ(cadre.Relacher(x, 5, 200, 100, etat), action) << x;
    }
    for (int b = 0; b < kNbBoutonsTitre; ++b) EXPECT_FALSE(cadre.Enfonce(b));

    // The title's band, less its buttons.
    EXPECT_TRUE(cadre.DansTitre(100, 5, 200, 100));
    EXPECT_FALSE(cadre.DansTitre(185, 5, 200, 100));
    EXPECT_FALSE(cadre.DansTitre(100, 20, 200, 100));
    EXPECT_FALSE(cadre.DansTitre(-1, 5, 200, 100));
}

TEST(CadreSkin, MenuSysteme) {
    const auto skin = Cadre();
    CadreSkin cadre(skin);
    // "Restaurer" acts only when the window isn't normal; "Agrandir" only when it is.
    const std::tuple<const char*, EtatFenetre, std::optional<EtatFenetre>> cas[] = {
        {"mRestaurer", EtatFenetre::Normale, std::nullopt},
        {"mRestaurer", EtatFenetre::Agrandie, EtatFenetre::Normale},
        {"mRestaurer", EtatFenetre::Reduite, EtatFenetre::Normale},
        {"mMax", EtatFenetre::Normale, EtatFenetre::Agrandie},
        {"mMax", EtatFenetre::Agrandie, std::nullopt},
        {"mMin", EtatFenetre::Agrandie, EtatFenetre::Reduite},
        {"", EtatFenetre::Normale, std::nullopt}};
    for (const auto& [cle, etat, apres] : cas) EXPECT_EQ(cadre.ActionMenu(cle, etat), apres) << cle;
    EXPECT_FALSE(cadre.Termine());
    EXPECT_FALSE(cadre.ActionMenu("mEnd", EtatFenetre::Normale));
    EXPECT_TRUE(cadre.Termine());
}

TEST(CouperTitre, TroisPointsQuandTropLarge) {
    const auto mesure = [](std::string_view t) { return static_cast<int>(t.size()) * 7; };
    EXPECT_EQ(CouperTitre("Ouvrir", 42, mesure), "Ouvrir");
    EXPECT_EQ(CouperTitre("Ouvrir un document", 84, mesure), "Ouvrir un...");
    // The blank before the cut goes with it.
    EXPECT_EQ(CouperTitre("Ouvrir un document", 70, mesure), "Ouvrir...");
    EXPECT_EQ(CouperTitre("Ouvrir un document", 10, mesure), "...");
    EXPECT_EQ(CouperTitre("", 0, mesure), "");
    for (int largeur = 21; largeur < 130; ++largeur)
        EXPECT_LE(mesure(CouperTitre("Création d'un document RTF", largeur, mesure)), largeur);
}

} // namespace
} // namespace verdane::skin
