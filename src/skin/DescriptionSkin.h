#pragma once
// What a skin description (Skin.ini) says: the bitmap, the colours and sizes of the frame, the
// list of pieces of the bitmap that draw a window at any size, the four title buttons, the title
// label, the skinned buttons' pictures and the pictures of the small system menu.

#include "skin/ExpressionSkin.h"
#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace verdane::skin {

struct Rectangle {
    int x = 0;
    int y = 0;
    int largeur = 0;
    int hauteur = 0;

    bool Contient(int px, int py) const {
        return px >= x && py >= y && px < x + largeur && py < y + hauteur;
    }
    bool Vide() const { return largeur <= 0 || hauteur <= 0; }
    bool operator==(const Rectangle&) const = default;
};

// A piece of the bitmap copied to the window: destination x, y, width, height, then source x,
// y, width, height; the source is scaled to the destination when their sizes differ.
struct Trace {
    std::array<ExpressionSkin, 8> valeurs;
    int ligne = 0; // its line in the description, for the warnings

    Rectangle Destination(int largeurFenetre, int hauteurFenetre) const;
    Rectangle Source(int largeurFenetre, int hauteurFenetre) const;
};

// The title buttons, in this order.
enum BoutonTitre { kBoutonMenu = 0, kBoutonReduire = 1, kBoutonAgrandir = 2, kBoutonFermer = 3 };
inline constexpr int kNbBoutonsTitre = 4;

struct PoliceSkin {
    Texte nom = "Sans";
    double taille = 9;
    bool gras = false;
    bool italique = false;
    bool souligne = false;
    bool barre = false;
};

// The system colour the form takes when the description gives none (the window background).
inline constexpr std::int32_t kCouleurFondSysteme = static_cast<std::int32_t>(0x80000004u);
// No colour made transparent.
inline constexpr std::int32_t kSansCleCouleur = -10;

struct DescriptionSkin {
    Texte fichierImage; // full path of the bitmap
    std::int32_t couleurFond = kCouleurFondSysteme;
    std::int32_t tailleBord = 0;
    std::int32_t hauteurTitre = 0;
    bool transparence = false;
    std::int32_t alpha = 255;
    std::int32_t cleCouleur = kSansCleCouleur;
    std::optional<std::int32_t> couleurMenu;
    float largeurMin = 0;
    float hauteurMin = 0;

    std::vector<Trace> traces;
    // The up picture of each title button, and the pressed one ("posbend1" and the like).
    std::array<std::optional<Trace>, kNbBoutonsTitre> boutons;
    std::array<std::optional<Trace>, kNbBoutonsTitre> boutonsEnfonces;

    struct {
        std::int32_t couleur = 0;
        std::optional<std::array<ExpressionSkin, 4>> position; // x, y, width, height
        PoliceSkin police;
    } titre;

    // What the skinned buttons take: the texts "x,y,w,h" of their up and down pictures, their
    // greatest width and height, the label colours up and down, the bold label flag.
    struct {
        Texte imageHaut;
        Texte imageBas;
        Texte largeurMax;
        Texte hauteurMax;
        Texte couleurHaut;
        Texte couleurBas;
        Texte gras;
    } bouton;

    // Pictures of the system menu's entries, in the order of the title buttons.
    std::array<std::vector<Trace>, kNbBoutonsTitre> menu;
    std::int16_t menuHaut = 0;
    std::int16_t menuGauche = 0;

    // The flag of the layered window: 2 the alpha alone, 3 the colour key too.
    int DrapeauTransparence() const { return cleCouleur < 0 ? 2 : 3; }
};

// A skin colour (0x00BBGGRR, or a system colour with the high bit) as red, green, blue.
struct Rvb {
    int r = 0;
    int v = 0;
    int b = 0;
};
// Nothing for a system colour: the toolkit's own then stands in.
std::optional<Rvb> CouleurRvb(std::int32_t couleur);

} // namespace verdane::skin
