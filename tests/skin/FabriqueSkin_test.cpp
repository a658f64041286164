// The program's own skin, as the sample builder draws it, read back by the skin reader.

#include "FabriqueSkin.h"

#include "skin/BoutonSkin.h"
#include "skin/CadreSkin.h"
#include "skin/LectureSkin.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/ImageRtf.h"

#include <gtest/gtest.h>

namespace verdane::skin {
namespace {

TEST(SkinDuProgramme, SeLitSansFauteEtCouvreToutesLesCles) {
    test::DossierTemporaire d;
    for (const auto& f : fabrique::FabriquerSkin()) d.Ecrire(f.nom, f.octets);
    test::FauxUtilisateur u;
    auto l = ChargerDescriptionSkin(u, d / "Skin.ini");
    ASSERT_TRUE(l);
    EXPECT_TRUE(u.messages.empty()) << u.ToutCeQuiAEteDit();
    EXPECT_TRUE(l->avertissements.empty()) << l->avertissements.front();

    const auto image = LireInfoImage(d.Lire("skin.bmp"));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->format, FormatImage::Bmp);
    const auto double_ = LireInfoImage(d.Lire("skin@2x.bmp"));
    ASSERT_TRUE(double_);
    EXPECT_EQ(double_->largeur, 2 * image->largeur);
    EXPECT_EQ(double_->hauteur, 2 * image->hauteur);
    VerifierSources(*l, image->largeur, image->hauteur);
    EXPECT_TRUE(l->avertissements.empty()) << l->avertissements.front();

    const auto& s = l->skin;
    EXPECT_NE(s.couleurFond, kCouleurFondSysteme);
    EXPECT_GT(s.hauteurTitre, 0);
    EXPECT_GT(s.tailleBord, 0);
    EXPECT_TRUE(s.transparence);
    EXPECT_TRUE(s.couleurMenu);
    EXPECT_GT(s.largeurMin, 0);
    EXPECT_GT(s.hauteurMin, 0);
    for (int b = 0; b < kNbBoutonsTitre; ++b) {
        EXPECT_TRUE(s.boutons[std::size_t(b)] && s.boutonsEnfonces[std::size_t(b)]) << b;
        EXPECT_EQ(s.menu[std::size_t(b)].size(), 1u) << b;
    }
    ASSERT_TRUE(s.titre.position);
    BoutonSkin bouton;
    bouton.RecevoirSkin(s);
    EXPECT_TRUE(bouton.SourceHaut() && bouton.SourceBas());
    EXPECT_GT(bouton.LargeurMax(), 0);

    // At the smallest size, the title and its buttons stay apart and inside the window.
    const CadreSkin cadre(s);
    const auto dessin = cadre.Dessin(cadre.LargeurMin(), cadre.HauteurMin());
    ASSERT_EQ(dessin.boutons.size(), 4u);
    for (std::size_t i = 0; i + 1 < dessin.boutons.size(); ++i) {
        const auto& a = dessin.boutons[i].destination;
        EXPECT_LE(a.x + a.largeur, dessin.boutons[i + 1].destination.x);
    }
    EXPECT_LE(dessin.titre->x + dessin.titre->largeur, dessin.boutons[1].destination.x);
    EXPECT_LE(dessin.boutons[3].destination.x + dessin.boutons[3].destination.largeur,
              cadre.LargeurMin());

    // The bar's pictures and the move cursor.
    for (int n = 1; n <= 6; ++n)
        for (const char* nom : {"SelOnglet", "FondDroit"}) {
            const auto info = LireInfoImage(d.Lire(nom + std::to_string(n) + ".bmp"));
            EXPECT_TRUE(info && info->largeur > 0) << nom << n;
        }
    const std::string ico = d.Lire("deplace.ico");
    ASSERT_GE(ico.size(), 22u);
    EXPECT_EQ(ico.substr(0, 4), std::string("\0\0\1\0", 4));
}

} // namespace
} // namespace verdane::skin
