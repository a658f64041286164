// The program's own skin, as the sample builder draws it, read back by the skin reader.

#include "FabriqueSkin.h"

#include "skin/CadreSkin.h"
#include "skin/LectureSkin.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/ImageRtf.h"

#include <gtest/gtest.h>

namespace verdane::skin {
namespace {

TEST(SkinDuProgramme, SeLitSansFauteEtTientDansSaTailleMinimale) {
    test::DossierTemporaire d;
    for (const auto& f : fabrique::FabriquerSkin()) d.Ecrire(f.nom, f.octets);
    test::FauxUtilisateur u;
    auto l = ChargerDescriptionSkin(u, d / "Skin.ini");
    ASSERT_TRUE(l);
    // The picture for screens of double density is the same, twice as large.
    const auto image = LireInfoImage(d.Lire("skin.bmp"));
    ASSERT_TRUE(image);
    const auto double_ = LireInfoImage(d.Lire("skin@2x.bmp"));
    ASSERT_TRUE(double_);
    EXPECT_EQ(double_->largeur, 2 * image->largeur);
    EXPECT_EQ(double_->hauteur, 2 * image->hauteur);
    VerifierSources(*l, image->largeur, image->hauteur);
    EXPECT_TRUE(l->avertissements.empty()) << l->avertissements.front();

    // At the smallest size, the title and its buttons stay apart and inside the window.
    const CadreSkin cadre(l->skin);
    const auto dessin = cadre.Dessin(cadre.LargeurMin(), cadre.HauteurMin());
    ASSERT_EQ(dessin.boutons.size(), 4u);
    for (std::size_t i = 0; i + 1 < dessin.boutons.size(); ++i) {
        const auto& a = dessin.boutons[i].destination;
        EXPECT_LE(a.x + a.largeur, dessin.boutons[i + 1].destination.x);
    }
    EXPECT_LE(dessin.titre->x + dessin.titre->largeur, dessin.boutons[1].destination.x);
    EXPECT_LE(dessin.boutons[3].destination.x + dessin.boutons[3].destination.largeur,
              cadre.LargeurMin());

    // The bar's pictures.
    for (int n = 1; n <= 6; ++n)
        for (const char* nom : {"SelOnglet", "FondDroit"}) {
            const auto info = LireInfoImage(d.Lire(nom + std::to_string(n) + ".bmp"));
            EXPECT_TRUE(info && info->largeur > 0) << nom << n;
        }
}

} // namespace
} // namespace verdane::skin
