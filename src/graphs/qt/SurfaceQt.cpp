#include "graphs/qt/SurfaceQt.h"

#include "graphs/qt/EncodagePng.h"
#include "graphs/qt/RenduGraphique.h"

#include <QImage>

#include <algorithm>
#include <cmath>

namespace verdane::qt {

namespace {

// The most columns, rows and series a chart takes; beyond, a setting is ignored.
constexpr int kMaxGrille = 100;

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n - 1);
}

bool DansGrille(int n, int compte) {
    return n >= 1 && n <= compte;
}

} // namespace

bool SurfaceQt::Graphique3D() const {
    return r_.type >= kBarres3D && r_.type <= kCombinaison3D && r_.type % 2 == 0;
}

void SurfaceQt::PoserNombreColonnes(int colonnes) {
    r_.colonnes = std::clamp(colonnes, 0, kMaxGrille);
    r_.donnees.resize(static_cast<std::size_t>(r_.colonnes));
    for (auto& c : r_.donnees) c.resize(static_cast<std::size_t>(r_.lignes), 0.0);
    r_.libellesColonnes.resize(static_cast<std::size_t>(r_.colonnes));
}

void SurfaceQt::PoserNombreLignes(int lignes) {
    r_.lignes = std::clamp(lignes, 0, kMaxGrille);
    for (auto& c : r_.donnees) c.resize(static_cast<std::size_t>(r_.lignes), 0.0);
    r_.libellesLignes.resize(static_cast<std::size_t>(r_.lignes));
}

void SurfaceQt::PoserDonnee(double valeur) {
    if (!DansGrille(r_.colonne, r_.colonnes) || !DansGrille(r_.ligne, r_.lignes)) return;
    r_.donnees[Indice(r_.colonne)][Indice(r_.ligne)] = std::isfinite(valeur) ? valeur : 0.0;
}

void SurfaceQt::PoserLibelleLigne(const Texte& texte) {
    if (DansGrille(r_.ligne, r_.lignes)) r_.libellesLignes[Indice(r_.ligne)] = texte;
}

void SurfaceQt::PoserLibelleColonne(const Texte& texte) {
    if (DansGrille(r_.colonne, r_.colonnes)) r_.libellesColonnes[Indice(r_.colonne)] = texte;
}

void SurfaceQt::PoserTypeSerie(int seriesType) {
    if (SerieReglee* s = Serie(r_.colonne)) s->typeSerie = seriesType;
}

SerieReglee* SurfaceQt::Serie(int serie) {
    if (serie < 1 || serie > kMaxGrille) return nullptr;
    if (r_.series.size() < static_cast<std::size_t>(serie))
        r_.series.resize(static_cast<std::size_t>(serie));
    return &r_.series[Indice(serie)];
}

const SerieReglee* SurfaceQt::Serie(int serie) const {
    if (serie < 1 || static_cast<std::size_t>(serie) > r_.series.size()) return nullptr;
    return &r_.series[Indice(serie)];
}

void SurfaceQt::PoserStyleBrosse(int serie, int style) {
    if (SerieReglee* s = Serie(serie)) s->brosse = style;
}

int SurfaceQt::StyleBrosse(int serie) const {
    const SerieReglee* s = Serie(serie);
    return s ? s->brosse : kBrossePleine;
}

void SurfaceQt::PoserCouleurRemplissage(int serie, CouleurGraphique couleur) {
    if (SerieReglee* s = Serie(serie)) {
        s->remplissage = couleur;
        s->couleurPosee = true;
    }
}

CouleurGraphique SurfaceQt::CouleurRemplissage(int serie) const {
    const SerieReglee* s = Serie(serie);
    return s ? s->remplissage : CouleurGraphique{};
}

void SurfaceQt::PoserCouleurBord(int serie, CouleurGraphique couleur) {
    if (SerieReglee* s = Serie(serie)) s->bord = couleur;
}

void SurfaceQt::PoserEpaisseurTrait(int serie, float epaisseur) {
    if (SerieReglee* s = Serie(serie); s && std::isfinite(epaisseur)) s->epaisseur = epaisseur;
}

float SurfaceQt::EpaisseurTrait(int serie) const {
    const SerieReglee* s = Serie(serie);
    return s ? s->epaisseur : 1.0f;
}

void SurfaceQt::PoserCouleurTrait(int serie, CouleurGraphique couleur) {
    if (SerieReglee* s = Serie(serie)) {
        s->trait = couleur;
        s->couleurPosee = true;
    }
}

CouleurGraphique SurfaceQt::CouleurTrait(int serie) const {
    const SerieReglee* s = Serie(serie);
    return s ? s->trait : CouleurGraphique{};
}

void SurfaceQt::PoserAxeSecondaire(int serie, bool secondaire) {
    if (SerieReglee* s = Serie(serie)) s->secondaire = secondaire;
}

bool SurfaceQt::AxeSecondaire(int serie) const {
    const SerieReglee* s = Serie(serie);
    return s && s->secondaire;
}

void SurfaceQt::PoserTexteLegende(int serie, const Texte& texte) {
    if (SerieReglee* s = Serie(serie)) s->legende = texte;
}

Texte SurfaceQt::TexteLegende(int serie) const {
    const SerieReglee* s = Serie(serie);
    if (s && !s->legende.empty()) return s->legende;
    if (DansGrille(serie, r_.colonnes)) return r_.libellesColonnes[Indice(serie)];
    return {};
}

AxeRegle* SurfaceQt::Axe(int axe) {
    if (axe < 0 || axe > 3) return nullptr;
    return &r_.axes[static_cast<std::size_t>(axe)];
}

void SurfaceQt::PoserTitreAxe(int axe, const Texte& texte) {
    if (AxeRegle* a = Axe(axe)) a->titre = texte;
}

void SurfaceQt::PoserPoliceAxe(int axe, const Texte& nom) {
    if (AxeRegle* a = Axe(axe)) a->police = nom;
}

void SurfaceQt::PoserTailleAxe(int axe, float points) {
    if (AxeRegle* a = Axe(axe); a && std::isfinite(points) && points > 0) a->taille = points;
}

void SurfaceQt::PoserEpaisseurAxe(int axe, float epaisseur) {
    if (AxeRegle* a = Axe(axe); a && std::isfinite(epaisseur)) a->epaisseur = epaisseur;
}

void SurfaceQt::PoserTypeEmplacement(BoiteGraphique boite, int locationType) {
    r_.boites[static_cast<std::size_t>(boite)].emplacement = locationType;
}

void SurfaceQt::PoserRectangle(BoiteGraphique boite, const RectGraph& rect) {
    auto& b = r_.boites[static_cast<std::size_t>(boite)];
    b.rect = rect;
    b.posee = true;
}

RectGraph SurfaceQt::Rectangle(BoiteGraphique boite) const {
    return r_.boites[static_cast<std::size_t>(boite)].rect;
}

void SurfaceQt::PoserRectanglePlot(const RectGraph& rect) {
    r_.plot = rect;
    r_.plotPose = true;
}

std::string SurfaceQt::CopierImage() {
    return EncoderPng(RendreGraphique(r_, QSize(kLargeurGraphique, kHauteurGraphique)));
}

// Qt Charts draws on the thread of the application only (its items are widgets of a scene);
// the picture drawn is a plain image, which another thread may encode.
std::function<std::string()> SurfaceQt::CopierImagePlusTard() {
    QImage image = RendreGraphique(r_, QSize(kLargeurGraphique, kHauteurGraphique));
    if (image.isNull()) return {};
    return [image = std::move(image)] { return EncoderPng(image); };
}

std::unique_ptr<SurfaceGraphique> FabriqueSurfaceQt::Creer() {
    return std::make_unique<SurfaceQt>();
}

} // namespace verdane::qt
