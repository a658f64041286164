#include "Toile.h"

#include "utils/Binaire.h"

#include <algorithm>
#include <cmath>

namespace verdane::fabrique {

namespace {

std::uint8_t Octet(float v) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(v, 0.f, 1.f) * 255.f));
}

float DistanceBoiteArrondie(float px, float py, float cx, float cy, float demiL, float demiH,
                            float rayon) {
    const float qx = std::abs(px - cx) - demiL + rayon;
    const float qy = std::abs(py - cy) - demiH + rayon;
    const float dehors = std::hypot(std::max(qx, 0.f), std::max(qy, 0.f));
    return dehors + std::min(std::max(qx, qy), 0.f) - rayon;
}

} // namespace

std::uint32_t Couleur::Skin() const {
    return std::uint32_t(Octet(r)) | (std::uint32_t(Octet(v)) << 8) |
           (std::uint32_t(Octet(b)) << 16);
}

Couleur Couleur::Melange(const Couleur& autre, float t) const {
    return {r + (autre.r - r) * t, v + (autre.v - v) * t, b + (autre.b - b) * t,
            a + (autre.a - a) * t};
}

Toile::Toile(int largeur, int hauteur, int echelle, Couleur fond)
    : largeur_(largeur * echelle), hauteur_(hauteur * echelle), echelle_(echelle),
      pixels_(static_cast<std::size_t>(largeur_) * static_cast<std::size_t>(hauteur_), fond) {}

void Toile::Fondre(int px, int py, const Couleur& c, float couverture) {
    if (px < 0 || py < 0 || px >= largeur_ || py >= hauteur_ || couverture <= 0) return;
    Couleur& d = pixels_[static_cast<std::size_t>(py) * static_cast<std::size_t>(largeur_) +
                         static_cast<std::size_t>(px)];
    const float a = std::clamp(couverture, 0.f, 1.f) * c.a;
    const float sortie = a + d.a * (1 - a);
    if (sortie <= 0) return;
    d.r = (c.r * a + d.r * d.a * (1 - a)) / sortie;
    d.v = (c.v * a + d.v * d.a * (1 - a)) / sortie;
    d.b = (c.b * a + d.b * d.a * (1 - a)) / sortie;
    d.a = sortie;
}

void Toile::Peindre(float x, float y, float l, float h, Couleur haut, Couleur bas,
                    const std::function<float(float, float)>& distance) {
    const float e = float(echelle_);
    const int x0 = int(std::floor(x * e)) - 1, y0 = int(std::floor(y * e)) - 1;
    const int x1 = int(std::ceil((x + l) * e)) + 1, y1 = int(std::ceil((y + h) * e)) + 1;
    for (int py = std::max(y0, 0); py < std::min(y1, hauteur_); ++py) {
        const float t = h > 0 ? std::clamp((py + 0.5f - y * e) / (h * e), 0.f, 1.f) : 0.f;
        const Couleur c = haut.Melange(bas, t);
        for (int px = std::max(x0, 0); px < std::min(x1, largeur_); ++px)
            Fondre(px, py, c, 0.5f - distance(px + 0.5f, py + 0.5f));
    }
}

void Toile::Rectangle(float x, float y, float l, float h, Couleur haut, Couleur bas) {
    const float e = float(echelle_);
    // Exact cover of each pixel by the box, so that edges on whole pixels stay sharp.
    const int x0 = int(std::floor(x * e)), y0 = int(std::floor(y * e));
    const int x1 = int(std::ceil((x + l) * e)), y1 = int(std::ceil((y + h) * e));
    for (int py = std::max(y0, 0); py < std::min(y1, hauteur_); ++py) {
        const float cy = std::min(py + 1.f, (y + h) * e) - std::max(float(py), y * e);
        const float t = h > 0 ? std::clamp((py + 0.5f - y * e) / (h * e), 0.f, 1.f) : 0.f;
        const Couleur c = haut.Melange(bas, t);
        for (int px = std::max(x0, 0); px < std::min(x1, largeur_); ++px) {
            const float cx = std::min(px + 1.f, (x + l) * e) - std::max(float(px), x * e);
            Fondre(px, py, c, cx * cy);
        }
    }
}

void Toile::Arrondi(float x, float y, float l, float h, float rayon, Couleur haut, Couleur bas,
                    float trait) {
    const float e = float(echelle_);
    const float cx = (x + l / 2) * e, cy = (y + h / 2) * e;
    const float dl = l / 2 * e, dh = h / 2 * e, r = rayon * e, t = trait * e;
    Peindre(x, y, l, h, haut, bas, [=](float px, float py) {
        const float d = DistanceBoiteArrondie(px, py, cx, cy, dl, dh, r);
        return t > 0 ? std::abs(d + t / 2) - t / 2 : d;
    });
}

void Toile::OngletArrondi(float x, float y, float l, float h, float rayon, Couleur haut,
                          Couleur bas) {
    const float e = float(echelle_);
    // A rounded box twice the radius taller, cut at the bottom edge.
    const float cx = (x + l / 2) * e, cy = (y + (h + rayon) / 2) * e;
    const float dl = l / 2 * e, dh = (h + rayon) / 2 * e, r = rayon * e, bas_ = (y + h) * e;
    Peindre(x, y, l, h, haut, bas, [=](float px, float py) {
        return std::max(DistanceBoiteArrondie(px, py, cx, cy, dl, dh, r), py - bas_);
    });
}

void Toile::Segment(float x1, float y1, float x2, float y2, float epaisseur, Couleur c) {
    const float e = float(echelle_);
    const float ax = x1 * e, ay = y1 * e, bx = x2 * e, by = y2 * e, demi = epaisseur * e / 2;
    const float m = epaisseur;
    Peindre(std::min(x1, x2) - m, std::min(y1, y2) - m, std::abs(x2 - x1) + 2 * m,
            std::abs(y2 - y1) + 2 * m, c, c, [=](float px, float py) {
                const float vx = bx - ax, vy = by - ay;
                const float long2 = vx * vx + vy * vy;
                const float k =
                    long2 > 0 ? std::clamp(((px - ax) * vx + (py - ay) * vy) / long2, 0.f, 1.f)
                              : 0.f;
                return std::hypot(px - ax - k * vx, py - ay - k * vy) - demi;
            });
}

void Toile::Disque(float cx, float cy, float rayon, Couleur c) {
    const float e = float(echelle_);
    Peindre(cx - rayon, cy - rayon, 2 * rayon, 2 * rayon, c, c,
            [=](float px, float py) { return std::hypot(px - cx * e, py - cy * e) - rayon * e; });
}

std::string Toile::Bmp() const {
    const int ligne = (largeur_ * 3 + 3) / 4 * 4;
    EcrivainBinaire w;
    w.Octets("BM");
    w.I32(54 + ligne * hauteur_);
    w.I32(0);
    w.I32(54);
    w.I32(40);
    w.I32(largeur_);
    w.I32(hauteur_); // rows from the bottom
    w.I16(1);
    w.I16(24);
    w.I32(0);
    w.I32(ligne * hauteur_);
    const std::int32_t pointsParMetre = 3780 * echelle_; // 96 DPI times the scale
    w.I32(pointsParMetre);
    w.I32(pointsParMetre);
    w.I32(0);
    w.I32(0);
    for (int y = hauteur_ - 1; y >= 0; --y) {
        for (int x = 0; x < largeur_; ++x) {
            // Opaque pictures: what transparency is left falls on white.
            Couleur c = pixels_[std::size_t(y) * std::size_t(largeur_) + std::size_t(x)];
            c = Couleur{1, 1, 1, 1}.Melange(c, c.a);
            w.Octet(Octet(c.b));
            w.Octet(Octet(c.v));
            w.Octet(Octet(c.r));
        }
        w.Completer(w.Octets().size() + std::size_t(ligne - largeur_ * 3));
    }
    return w.Octets();
}

std::string Toile::Ico() const {
    const int masque = (largeur_ + 31) / 32 * 4;
    const int tailleImage = 40 + largeur_ * hauteur_ * 4 + masque * hauteur_;
    EcrivainBinaire w;
    w.I16(0);
    w.I16(1); // icon
    w.I16(1); // one picture
    w.Octet(static_cast<std::uint8_t>(largeur_ >= 256 ? 0 : largeur_));
    w.Octet(static_cast<std::uint8_t>(hauteur_ >= 256 ? 0 : hauteur_));
    w.Octet(0);
    w.Octet(0);
    w.I16(1);
    w.I16(32);
    w.I32(tailleImage);
    w.I32(22);
    w.I32(40);
    w.I32(largeur_);
    w.I32(hauteur_ * 2); // the picture and its mask
    w.I16(1);
    w.I16(32);
    w.I32(0);
    w.I32(largeur_ * hauteur_ * 4 + masque * hauteur_);
    w.I32(0);
    w.I32(0);
    w.I32(0);
    w.I32(0);
    for (int y = hauteur_ - 1; y >= 0; --y)
        for (int x = 0; x < largeur_; ++x) {
            const Couleur& c = pixels_[std::size_t(y) * std::size_t(largeur_) + std::size_t(x)];
            w.Octet(Octet(c.b));
            w.Octet(Octet(c.v));
            w.Octet(Octet(c.r));
            w.Octet(Octet(c.a));
        }
    for (int y = hauteur_ - 1; y >= 0; --y) {
        std::string rang(std::size_t(masque), '\0');
        for (int x = 0; x < largeur_; ++x)
            if (pixels_[std::size_t(y) * std::size_t(largeur_) + std::size_t(x)].a < 0.5f)
                rang[std::size_t(x / 8)] = char(rang[std::size_t(x / 8)] | (0x80 >> (x % 8)));
        w.Octets(rang);
    }
    return w.Octets();
}

} // namespace verdane::fabrique
