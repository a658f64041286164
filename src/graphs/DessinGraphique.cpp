#include "graphs/DessinGraphique.h"

#include "graphs/ValeursSerie.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace verdane {

namespace {

constexpr const char* kPolice = "Arial";
// Rows of a chart: the years of the study, one value of a series each (indexes 1 to 13).
constexpr int kMaxLignes = 13;
constexpr int kLignesExemple = 4;
constexpr std::int16_t kAnneeExemple = 2008;
// Bounds of what a chart is given; a size of 0 or less, or a negative width, isn't set.
constexpr int kTaillePoliceMax = 100;
constexpr int kEpaisseurMax = 1000;

ModeleGraph& Graphe(EtatGraphes& eg, int index) {
    return eg.graphes[static_cast<std::size_t>(index)];
}

void PoserTaille(int taille, auto&& poser) {
    if (taille > 0) poser(static_cast<float>(std::min(taille, kTaillePoliceMax)));
}

void PoserEpaisseur(int epaisseur, auto&& poser) {
    if (epaisseur >= 0) poser(static_cast<float>(std::min(epaisseur, kEpaisseurMax)));
}

void PoserOrientation(int orient, auto&& poser) {
    if (orient >= 1 && orient <= 4) poser(orient - 1);
}

float Fini(float v) {
    return std::isfinite(v) ? v : 0.0f;
}

RectGraph Fini(const RectGraph& r) {
    return {Fini(r.minX), Fini(r.maxX), Fini(r.minY), Fini(r.maxY)};
}

double Hasard(EtatGraphes& eg) {
    if (!eg.hasard) return std::uniform_real_distribution<double>(0.0, 1.0)(eg.generateur);
    const double h = eg.hasard();
    return std::isfinite(h) ? std::clamp(h, 0.0, 1.0) : 0.0;
}

// A series with no colour (0, 0, 0) draws one, from 100 to 354 a component, and keeps it.
void ColorierSiNoire(EtatGraphes& eg, SerieGraph& s) {
    if (s.rouge != 0 || s.vert != 0 || s.bleu != 0) return;
    for (std::int16_t* c : {&s.rouge, &s.vert, &s.bleu}) {
        const double v = std::floor(Hasard(eg) * 255 + 100);
        *c = static_cast<std::int16_t>(std::clamp(v, 100.0, 354.0)); // rounding can reach 355
    }
}

void PoserSerie(Contexte& ctx, SurfaceGraphique& surface, ModeleGraph& g, int i,
                bool pourDocument) {
    Etat& etat = ctx.etat;
    SerieGraph& s = g.series[static_cast<std::size_t>(i - 1)];
    surface.PoserColonne(i);
    switch (s.brosse) {
    case 0:
        surface.PoserStyleBrosse(i, kBrosseVide);
        break;
    case 1:
        surface.PoserStyleBrosse(i, kBrossePleine);
        break;
    case 2:
        surface.PoserStyleBrosse(i, kBrosseHachuree);
        break;
    default:
        break; // the style stays as it stood
    }
    PoserEpaisseur(s.epaisseur, [&](float e) { surface.PoserEpaisseurTrait(i, e); });
    ColorierSiNoire(etat.graphes, s);
    const CouleurGraphique couleur{s.rouge, s.vert, s.bleu};
    surface.PoserCouleurRemplissage(i, couleur);
    surface.PoserCouleurBord(i, {0, 0, 0});
    surface.PoserCouleurTrait(i, couleur);
    surface.PoserLibelleColonne(Rogner(s.nomSerie));

    if (!etat.graphes.avecArguments && !pourDocument) {
        // No dossier behind the preview: sample values.
        if (surface.NombreLignes() == 0) {
            surface.PoserNombreLignes(kLignesExemple);
            etat.anneeDebut = kAnneeExemple;
        } else {
            const int lignes = std::min(surface.NombreLignes(), kMaxLignes);
            for (int r = 1; r <= lignes; ++r) {
                surface.PoserLigne(r);
                surface.PoserDonnee((std::sin(static_cast<double>(r)) + 6.28) * 1000);
                surface.PoserLibelleLigne(std::to_string(etat.anneeDebut + r - 1));
            }
        }
    } else {
        s.fichierSerie = ChampFixe(Rogner(s.fichierSerie), kLargeurFichierSerie);
        s.codeSerie = ChampFixe(Rogner(s.codeSerie), kLargeurCodeSerie);
        LireValeursSerie(ctx, s.fichierSerie, s.codeSerie);
        // Value 0, the year before the study, isn't drawn: row 1 is index 1.
        const int lignes = std::min(surface.NombreLignes(), kMaxLignes);
        for (int r = 1; r <= lignes; ++r) {
            surface.PoserLigne(r);
            surface.PoserDonnee(Fini(etat.graphes.valeursSerie[static_cast<std::size_t>(r)]));
            surface.PoserLibelleLigne(std::to_string(etat.anneeDebut + r - 1));
        }
    }
    surface.PoserAxeSecondaire(i, s.axeY2 == 1);
    PoserTypeSerie(ctx, s.typeSerie);
}

} // namespace

int TypeControle(int typeGraph) {
    if (typeGraph >= 1 && typeGraph <= 10) return typeGraph - 1;
    if (typeGraph == 11) return kSecteurs2D;
    return kXY2D;
}

void DessinerGraphique(Contexte& ctx, std::int16_t& index, bool pourDocument) {
    EtatGraphes& eg = ctx.etat.graphes;
    if (pourDocument) eg.graphCourant = eg.graphInsertion;
    if (index == 0) index = 1;
    if (index < 1 || index > kMaxGraphes || eg.graphCourant == nullptr) return;
    SurfaceGraphique& surface = *eg.graphCourant;
    ModeleGraph& g = Graphe(eg, index);

    surface.PoserTypeGraphique(TypeControle(g.typeGraph));
    surface.PoserTitre(Rogner(g.titre));
    surface.PoserNote(Rogner(g.commentaire));
    surface.PoserPoliceTitre(kPolice);
    PoserTaille(g.tailleTitre, [&](float t) { surface.PoserTailleTitre(t); });
    surface.PoserPoliceNote(kPolice);

    const int nbSeries = NbSeriesUtiles(g);
    surface.PoserNombreColonnes(nbSeries);
    surface.PoserNombreLignes(std::clamp<int>(ctx.etat.nbAnEtude, 0, kMaxLignes));
    surface.PoserPoliceLegende(kPolice);
    surface.PoserAfficherLegende(g.legende == 1);
    surface.PoserEmpilement(g.empile != 0);
    // The grid is never left without rows while there are series.
    if (surface.NombreLignes() == 0) surface.PoserNombreLignes(nbSeries);

    for (int i = 1; i <= nbSeries; ++i) PoserSerie(ctx, surface, g, i, pourDocument);

    surface.PoserRetourTitre(g.retourTitre == 1);
    surface.PoserRetourLegende(g.retourLegende == 1);
    PoserOrientation(g.orientTitre, [&](int o) { surface.PoserOrientationTitre(o); });
    PoserOrientation(g.orientNote, [&](int o) { surface.PoserOrientationNote(o); });
    surface.PoserSeriesEnLignes(g.inversion == 1);
    surface.PoserEspaceX(g.espaceAnnees);
    surface.PoserEspaceBarres(g.espaceBarres);
    surface.PoserEspaceZ(g.espaceSeries);

    for (int a = 0; a < 4; ++a) surface.PoserPoliceAxe(a, kPolice);
    for (int a = 0; a < 4; ++a)
        surface.PoserTitreAxe(a, Rogner(g.axes[static_cast<std::size_t>(a)].titreAxe));
    surface.PoserAxesUniformes(false);
    for (int a = 0; a < 4; ++a) {
        const AxeGraph& axe = g.axes[static_cast<std::size_t>(a)];
        PoserTaille(axe.tailleAxe, [&](float t) { surface.PoserTailleAxe(a, t); });
        PoserEpaisseur(axe.epaisseurAxe, [&](float e) { surface.PoserEpaisseurAxe(a, e); });
    }

    surface.Redessiner();
    eg.grapheCourant = index;
    PositionnerGraph(ctx);
}

void PoserTypeSerie(Contexte& ctx, int typeSerie) {
    SurfaceGraphique* surface = ctx.etat.graphes.graphCourant;
    if (surface == nullptr) return;
    const int type = surface->TypeGraphique();
    const bool troisD = surface->Graphique3D();
    if (troisD && type == kCombinaison3D) {
        switch (typeSerie) {
        case 1:
            return surface->PoserTypeSerie(kSerieBarres3D);
        case 2:
            return surface->PoserTypeSerie(kSerieCourbe3D);
        case 3:
            return surface->PoserTypeSerie(kSerieAire3D);
        default:
            return surface->PoserTypeSerie(kSerieEscalier3D);
        }
    }
    if (!troisD && type == kCombinaison2D) {
        switch (typeSerie) {
        case 1:
            return surface->PoserTypeSerie(kSerieBarres2D);
        case 2:
            return surface->PoserTypeSerie(kSerieCourbe2D);
        case 3:
            return surface->PoserTypeSerie(kSerieAire2D);
        default:
            return surface->PoserTypeSerie(kSerieEscalier2D);
        }
    }
}

void PositionnerGraph(Contexte& ctx) {
    EtatGraphes& eg = ctx.etat.graphes;
    if (eg.grapheCourant < 1 || eg.grapheCourant > kMaxGraphes || eg.graphCourant == nullptr)
        return;
    SurfaceGraphique& surface = *eg.graphCourant;
    const ModeleGraph& g = Graphe(eg, eg.grapheCourant);
    const RectGraph plot = Fini(g.rectPlot);
    if (plot.minX == 0 && plot.maxX == 0 && plot.minY == 0 && plot.maxY == 0) return;
    surface.PoserTypeEmplacement(BoiteGraphique::Titre, kEmplacementLibre);
    surface.PoserRectangle(BoiteGraphique::Titre, Fini(g.rectTitre));
    surface.PoserRectanglePlot(plot);
    surface.PoserTypeEmplacement(BoiteGraphique::Legende, kEmplacementLibre);
    surface.PoserRectangle(BoiteGraphique::Legende, Fini(g.rectLegende));
    surface.PoserTypeEmplacement(BoiteGraphique::Note, kEmplacementLibre);
    surface.PoserRectangle(BoiteGraphique::Note, Fini(g.rectNote));
    surface.PoserRotation(Fini(g.rotation));
    surface.PoserElevation(Fini(g.elevation));
}

} // namespace verdane
