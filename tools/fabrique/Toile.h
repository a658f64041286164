#pragma once
// A small drawing surface for the pictures the project makes itself (the skin): shapes with
// smooth edges drawn at a scale (1 for 96 DPI, 2 for 192 DPI), written as a 24-bit BMP or as
// a 32-bit icon with its transparency.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace verdane::fabrique {

struct Couleur {
    float r = 0, v = 0, b = 0, a = 1; // 0 to 1
    static Couleur Hex(std::uint32_t rvb, float a = 1) {
        return {float((rvb >> 16) & 0xff) / 255.f, float((rvb >> 8) & 0xff) / 255.f,
                float(rvb & 0xff) / 255.f, a};
    }
    // The colour as a skin file writes it: 0x00BBGGRR.
    std::uint32_t Skin() const;
    Couleur Melange(const Couleur& autre, float t) const;
};

class Toile {
public:
    // `largeur` and `hauteur` in logical pixels; the surface holds them times `echelle`.
    Toile(int largeur, int hauteur, int echelle, Couleur fond = {0, 0, 0, 0});

    int Echelle() const { return echelle_; }

    // Every shape takes logical coordinates. The fill may vary down the shape: `haut` at its
    // top edge, `bas` at its bottom edge.
    void Rectangle(float x, float y, float l, float h, Couleur haut, Couleur bas);
    void Rectangle(float x, float y, float l, float h, Couleur c) { Rectangle(x, y, l, h, c, c); }
    // A box with rounded corners (`rayon`), its inside filled; `trait` > 0 draws only its edge,
    // that thick, inside the box.
    void Arrondi(float x, float y, float l, float h, float rayon, Couleur haut, Couleur bas,
                 float trait = 0);
    // Only the top corners rounded.
    void OngletArrondi(float x, float y, float l, float h, float rayon, Couleur haut, Couleur bas);
    void Segment(float x1, float y1, float x2, float y2, float epaisseur, Couleur c);
    void Disque(float cx, float cy, float rayon, Couleur c);

    std::string Bmp() const;
    std::string Ico() const;

private:
    // Paints every pixel of the box by its coverage (0 to 1) from `distance`, a signed
    // distance in device pixels from the pixel's centre to the shape's edge (< 0 inside).
    void Peindre(float x, float y, float l, float h, Couleur haut, Couleur bas,
                 const std::function<float(float, float)>& distance);
    void Fondre(int px, int py, const Couleur& c, float couverture);

    int largeur_;
    int hauteur_;
    int echelle_;
    std::vector<Couleur> pixels_;
};

} // namespace verdane::fabrique
