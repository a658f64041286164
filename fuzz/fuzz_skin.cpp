// Skin descriptions and layout expressions: any text read, checked against a bitmap and drawn
// at a few window sizes without a fault.

#include "skin/BoutonSkin.h"
#include "skin/CadreSkin.h"
#include "skin/LectureSkin.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verdane::skin;
    const std::string_view texte(reinterpret_cast<const char*>(data), size);
    LectureSkin l = LireDescriptionSkin(texte, "/skin");
    const int largeurImage = size > 0 ? data[0] : 0, hauteurImage = size > 1 ? data[1] : 0;
    VerifierSources(l, largeurImage, hauteurImage);
    // Whatever stays in the draw list takes its pieces inside the bitmap.
    for (const auto& t : l.skin.traces) {
        bool constante = true;
        for (std::size_t i = 4; i < 8; ++i) constante = constante && t.valeurs[i].Constante();
        const Rectangle s = t.Source(0, 0);
        if (constante && (s.x < 0 || s.y < 0 || s.x + s.largeur > largeurImage ||
                          s.y + s.hauteur > hauteurImage))
            std::abort();
    }
    CadreSkin cadre(l.skin);
    for (const int t : {0, 1, 333, 32767, -5, 2'000'000'000}) {
        const auto d = cadre.Dessin(t, t / 2);
        cadre.Survol(true, t / 3, 4, t, t / 2);
        cadre.Relacher(t / 3, 4, t, t / 2, EtatFenetre::Normale);
        (void)d;
    }
    // Each line as an expression alone, and as the data of a skinned button.
    BoutonSkin bouton;
    bouton.RecevoirSkin(l.skin);
    std::size_t debut = 0;
    for (int n = 0; n < 64 && debut <= texte.size(); ++n) {
        const auto fin = texte.find('\n', debut);
        const auto ligne = texte.substr(debut, fin == std::string_view::npos ? fin : fin - debut);
        (void)ValeurExpression(ligne, 640, 480);
        bouton.Pic1_Info(ligne);
        (void)bouton.SourceHaut();
        if (fin == std::string_view::npos) break;
        debut = fin + 1;
    }
    (void)CouperTitre(texte.substr(0, 200), 50,
                      [](std::string_view t) { return int(t.size()) * 6; });
    return 0;
}
