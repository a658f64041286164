#pragma once
// Everything a chart has been told, kept as told until it is drawn.

#include "graphs/SurfaceGraphique.h"

#include <array>
#include <vector>

namespace verdane::qt {

struct SerieReglee {
    int brosse = kBrossePleine;
    CouleurGraphique remplissage{};
    CouleurGraphique bord{};
    CouleurGraphique trait{};
    bool couleurPosee = false;
    float epaisseur = 1;
    bool secondaire = false;
    int typeSerie = -1; // -1: none set, drawn as the chart's kind
    Texte legende;
};

struct AxeRegle {
    Texte titre;
    Texte police = "Arial";
    float taille = 10;
    float epaisseur = -1; // -1: the toolkit's own
};

struct BoiteReglee {
    int emplacement = 0;
    RectGraph rect;
    bool posee = false;
};

struct ReglagesGraphique {
    int type = kBarres2D;
    Texte titre;
    Texte policeTitre = "Arial";
    float tailleTitre = 16;
    Texte note;
    Texte policeNote = "Arial";

    // The grid: donnees[colonne - 1][ligne - 1].
    int colonnes = 0;
    int lignes = 0;
    int colonne = 1;
    int ligne = 1;
    std::vector<std::vector<double>> donnees;
    std::vector<Texte> libellesLignes;
    std::vector<Texte> libellesColonnes;

    Texte policeLegende = "Arial";
    bool legende = true;
    bool empile = false;
    std::vector<SerieReglee> series; // by series, from 1 at index 0

    bool retourTitre = true;
    bool retourLegende = true;
    int orientationTitre = kHorizontal;
    int orientationNote = kHorizontal;
    bool seriesEnLignes = false;
    int espaceBarres = 0;
    int espaceX = 50;
    int espaceZ = 50;
    bool axesUniformes = false;
    std::array<AxeRegle, 4> axes{};

    std::array<BoiteReglee, 3> boites{}; // title, legend, footnote
    RectGraph plot;
    bool plotPose = false;
    float rotation = 0;
    float elevation = 0;
};

} // namespace verdane::qt
