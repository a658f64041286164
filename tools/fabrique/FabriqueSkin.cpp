#include "FabriqueSkin.h"

#include "Toile.h"

#include <string>

namespace verdane::fabrique {

namespace {

// The palette: a slate title band over a light body, one accent per tab of the bar.
const Couleur kCorps = Couleur::Hex(0xF4F6F9);
const Couleur kBord = Couleur::Hex(0x8E9BAB);
const Couleur kTitreHaut = Couleur::Hex(0x2E4566);
const Couleur kTitreBas = Couleur::Hex(0x243852);
const Couleur kAccent = Couleur::Hex(0x4A90D9);
const Couleur kGlyphe = Couleur::Hex(0xFFFFFF, 0.95f);
const Couleur kEnfonce = Couleur::Hex(0x46638C);
const Couleur kFermerEnfonce = Couleur::Hex(0xD64541);
const Couleur kMenu = Couleur::Hex(0xFFFFFF);
const Couleur kEncre = Couleur::Hex(0x22354F);
const Couleur kTexteTitre = Couleur::Hex(0xFFFFFF);
const Couleur kTexteBouton = Couleur::Hex(0x1F2A37);
const Couleur kTexteBoutonBas = Couleur::Hex(0x1B4F82);
const std::uint32_t kTeintesOnglets[6] = {0x4A90D9, 0x2BA59B, 0x5DAA4F,
                                          0xE0A43A, 0x8E6CC9, 0x7A8CA3};

// Where each piece lies in the bitmap (logical pixels).
constexpr int kLargeurImage = 200, kHauteurImage = 128;
constexpr int kHauteurTitre = 32;
constexpr int kBoutonHaut = 4; // where the title buttons stand in the window
constexpr int kBoutonL = 28, kBoutonH = 24, kBoutonsY = 32, kBoutonsEnfoncesY = 56;
constexpr int kComL = 96, kComH = 28, kComY = 80, kComBasX = 100;
constexpr int kIconeY = 112, kIcone = 16;

// The glyph of a title button (0 menu, 1 reduce, 2 enlarge, 3 close) in a box.
void Glyphe(Toile& t, int bouton, float x, float y, float l, float h, Couleur c) {
    const float cx = x + l / 2, cy = y + h / 2, d = h * 0.2f, e = h / 16.f;
    switch (bouton) {
    case 0: // the program's mark: a "V" with a leaf
        t.Segment(cx - d * 1.3f, cy - d, cx, cy + d * 1.1f, 2.2f * e, Couleur::Hex(0x8CC4F2));
        t.Segment(cx, cy + d * 1.1f, cx + d * 1.3f, cy - d, 2.2f * e, Couleur::Hex(0x8CC4F2));
        t.Disque(cx + d * 1.3f, cy - d, 1.6f * e, Couleur::Hex(0x9BD37F));
        break;
    case 1:
        t.Segment(cx - d, cy + d * 0.6f, cx + d, cy + d * 0.6f, 1.5f * e, c);
        break;
    case 2:
        t.Arrondi(cx - d, cy - d, 2 * d, 2 * d, 1.5f * e, c, c, 1.5f * e);
        break;
    default:
        t.Segment(cx - d, cy - d, cx + d, cy + d, 1.5f * e, c);
        t.Segment(cx - d, cy + d, cx + d, cy - d, 1.5f * e, c);
        break;
    }
}

std::string Image(int echelle) {
    Toile t(kLargeurImage, kHauteurImage, echelle, kCorps);
    // Patches stretched over the window: title band, body, border.
    t.Rectangle(0, 0, 16, kHauteurTitre - 2, kTitreHaut, kTitreBas);
    t.Rectangle(0, kHauteurTitre - 2, 16, 2, kAccent);
    t.Rectangle(16, 0, 8, 8, kCorps);
    t.Rectangle(24, 0, 8, 8, kBord);
    // Title buttons, up then pressed, over the title band.
    for (int rang = 0; rang < 2; ++rang) {
        const float y = rang == 0 ? kBoutonsY : kBoutonsEnfoncesY;
        for (int b = 0; b < 4; ++b) {
            const float x = float(b * kBoutonL);
            // The title band behind, as it runs from the button's top to its bottom.
            const float haut = 4.f / (kHauteurTitre - 2),
                        bas = (4.f + kBoutonH) / (kHauteurTitre - 2);
            t.Rectangle(x, y, kBoutonL, kBoutonH, kTitreHaut.Melange(kTitreBas, haut),
                        kTitreHaut.Melange(kTitreBas, bas));
            if (rang == 1)
                t.Arrondi(x + 1, y + 1, kBoutonL - 2, kBoutonH - 2, 4,
                          b == 3 ? kFermerEnfonce : kEnfonce, b == 3 ? kFermerEnfonce : kEnfonce);
            Glyphe(t, b, x, y, kBoutonL, kBoutonH, kGlyphe);
        }
    }
    // The dialogs' button, up and down.
    t.Rectangle(0, kComY, kLargeurImage, kComH, kCorps);
    t.Arrondi(0, kComY, kComL, kComH, 5, Couleur::Hex(0xFFFFFF), Couleur::Hex(0xEEF2F6));
    t.Arrondi(0, kComY, kComL, kComH, 5, Couleur::Hex(0xAEB8C5), Couleur::Hex(0x9AA6B4), 1);
    t.Arrondi(kComBasX, kComY, kComL, kComH, 5, Couleur::Hex(0xD6E6F7), Couleur::Hex(0xC7DCF2));
    t.Arrondi(kComBasX, kComY, kComL, kComH, 5, kAccent, kAccent, 1.5f);
    // The system menu's pictures, on the menu's colour.
    t.Rectangle(0, kIconeY, 4 * kIcone, kIcone, kMenu);
    for (int b = 0; b < 4; ++b) {
        const int glyphe[4] = {2, 1, 2, 3}; // restore shows a window, then reduce, enlarge, close
        if (b == 0) {
            t.Arrondi(4.5f, kIconeY + 3.5f, 7, 7, 1, kEncre, kEncre, 1.2f);
            t.Rectangle(3, kIconeY + 6, 7, 7, kMenu);
            t.Arrondi(2.5f, kIconeY + 6.5f, 7, 7, 1, kEncre, kEncre, 1.2f);
        } else {
            Glyphe(t, glyphe[b], float(b * kIcone), kIconeY, kIcone, kIcone, kEncre);
        }
    }
    return t.Bmp();
}

std::string Onglet(int n, int echelle) {
    const Couleur teinte = Couleur::Hex(kTeintesOnglets[n]);
    Toile t(124, 30, echelle, kTitreBas);
    t.OngletArrondi(1, 2, 122, 28, 6, Couleur::Hex(0xFFFFFF), kCorps);
    t.OngletArrondi(1, 2, 122, 3, 3, teinte, teinte);
    return t.Bmp();
}

std::string FondDroit(int n, int echelle) {
    const Couleur teinte = Couleur::Hex(kTeintesOnglets[n]);
    Toile t(480, 42, echelle, kTitreBas);
    t.Rectangle(0, 0, 480, 42, kTitreHaut, kTitreBas);
    for (int i = 0; i < 24; ++i) // a soft light of the tab's colour, fading to the right
        t.Rectangle(float(i * 10), 0, 10, 42,
                    Couleur{teinte.r, teinte.v, teinte.b, 0.22f * (1 - i / 24.f)});
    t.Rectangle(0, 40, 480, 2, teinte);
    return t.Bmp();
}

std::string Curseur() {
    Toile t(32, 32, 1);
    const Couleur blanc = Couleur::Hex(0xFFFFFF), noir = Couleur::Hex(0x111111);
    for (int passe = 0; passe < 2; ++passe) {
        const Couleur c = passe == 0 ? blanc : noir;
        const float e = passe == 0 ? 4.f : 1.6f;
        t.Segment(16, 3, 16, 29, e, c);
        t.Segment(3, 16, 29, 16, e, c);
        for (int s : {-1, 1}) {
            t.Segment(16, 16 + s * 13.f, 12, 16 + s * 9.f, e, c);
            t.Segment(16, 16 + s * 13.f, 20, 16 + s * 9.f, e, c);
            t.Segment(16 + s * 13.f, 16, 16 + s * 9.f, 12, e, c);
            t.Segment(16 + s * 13.f, 16, 16 + s * 9.f, 20, e, c);
        }
    }
    return t.Ico();
}

std::string Couleur10(const Couleur& c) {
    return std::to_string(c.Skin());
}

std::string Description() {
    const std::string L = std::to_string(kBoutonL), H = std::to_string(kBoutonH);
    auto bouton = [&](const char* cle, int b, const std::string& x) {
        const std::string sx = std::to_string(b * kBoutonL);
        return std::string("posb") + cle + " = " + x + "," + std::to_string(kBoutonHaut) + "," + L +
               "," + H + ", " + sx + "," + std::to_string(kBoutonsY) + "," + L + "," + H +
               "\r\nposb" + cle + "1 = " + x + "," + std::to_string(kBoutonHaut) + "," + L + "," +
               H + ", " + sx + "," + std::to_string(kBoutonsEnfoncesY) + "," + L + "," + H + "\r\n";
    };
    auto icone = [&](const char* cle, int b) {
        return std::string("menu.") + cle + " = 0,0,16,16, " + std::to_string(b * kIcone) + "," +
               std::to_string(kIconeY) + ",16,16\r\n";
    };
    std::string s;
    s += "' Skin of Verdane: the frame of every window, drawn from skin.bmp.\r\n";
    s += "' Positions may follow the window: me.width, me.height, then + - * / and a number.\r\n";
    s += "fichier = skin.bmp\r\n";
    s += "backcolor = " + Couleur10(kCorps) + "\r\n";
    s += "taillebord = 1\r\n";
    s += "heighttitre = " + std::to_string(kHauteurTitre) + "\r\n";
    s += "' colour key off; alpha on, opaque\r\n";
    s += "transparence = false,-10;true,255\r\n";
    s += "menucolor = " + Couleur10(kMenu) + "\r\n";
    s += "minwidth = 240\r\nminheight = 120\r\n";
    s += "' the body, the title band, the border\r\n";
    s += "pos = 0,0,me.width,me.height, 16,0,8,8\r\n";
    s += "pos = 0,0,me.width," + std::to_string(kHauteurTitre) + ", 0,0,16," +
         std::to_string(kHauteurTitre) + "\r\n";
    s += "pos = 0,0,1,me.height, 24,0,8,8\r\n";
    s += "pos = me.width-1,0,1,me.height, 24,0,8,8\r\n";
    s += "pos = 0,me.height-1,me.width,1, 24,0,8,8\r\n";
    s += "' title buttons: up, then pressed (key ending in 1)\r\n";
    s += bouton("menu", 0, "4");
    s += bouton("min", 1, "me.width-92");
    s += bouton("max", 2, "me.width-62");
    s += bouton("end", 3, "me.width-32");
    s += "lbltitre.forecolor = " + Couleur10(kTexteTitre) + "\r\n";
    s += "lbltitre.pos = 38,0,me.width-136," + std::to_string(kHauteurTitre - 2) + "\r\n";
    s += "lbltitre.font = DejaVu_Sans,10,true,false,false,false\r\n";
    s += "' the dialogs' buttons: up and down pictures x,y,w,h\r\n";
    s += "button.mup = 0," + std::to_string(kComY) + "," + std::to_string(kComL) + "," +
         std::to_string(kComH) + "\r\n";
    s += "button.mdown = " + std::to_string(kComBasX) + "," + std::to_string(kComY) + "," +
         std::to_string(kComL) + "," + std::to_string(kComH) + "\r\n";
    s += "button.max = 400,60\r\n";
    s += "button.lblcolor = " + Couleur10(kTexteBouton) + "," + Couleur10(kTexteBoutonBas) + "\r\n";
    s += "button.lblgras = false\r\n";
    s += "' pictures of the system menu\r\n";
    s += icone("bmenu", 0);
    s += icone("bmin", 1);
    s += icone("bmax", 2);
    s += icone("bend", 3);
    s += "top = " + std::to_string(kHauteurTitre) + "\r\nleft = 4\r\n";
    return s;
}

} // namespace

std::vector<Fabrication> FabriquerSkin() {
    std::vector<Fabrication> f;
    f.push_back({"Skin.ini", Description()});
    f.push_back({"skin.bmp", Image(1)});
    f.push_back({"skin@2x.bmp", Image(2)});
    f.push_back({"deplace.ico", Curseur()});
    for (int n = 0; n < 6; ++n) {
        const std::string numero = std::to_string(n + 1);
        f.push_back({"SelOnglet" + numero + ".bmp", Onglet(n, 1)});
        f.push_back({"SelOnglet" + numero + "@2x.bmp", Onglet(n, 2)});
        f.push_back({"FondDroit" + numero + ".bmp", FondDroit(n, 1)});
        f.push_back({"FondDroit" + numero + "@2x.bmp", FondDroit(n, 2)});
    }
    return f;
}

} // namespace verdane::fabrique
