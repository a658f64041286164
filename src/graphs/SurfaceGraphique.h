#pragma once
// The chart that a graph model is drawn on: the editor's preview, the print chart, or the
// hidden chart whose picture goes into documents. The core sets it up through these
// operations, named after the properties of the chart control they stand for, and a platform
// draws it (a toolkit's chart, or a drawing layer of its own).
//
// Conventions of every operation:
// - Texts are Windows-1252, as everywhere in the engine; a platform converts at its edge.
// - Columns are the series, 1 to ColumnCount; rows are the years, 1 to RowCount.
// - `serie` counts from 1, as Plot.SeriesCollection(serie) does.
// - Axes: 0 X, 1 first Y, 2 second Y, 3 Z.
// - Boxes and the plot area are in the chart's own coordinates, as the control gives them
//   back: minimum X, maximum X, minimum Y, maximum Y.
// - The core only gives values the control takes (kinds, styles, orientations, sizes), with
//   one exception: colour components are given as the graph model holds them, and a colour
//   drawn at random runs from 100 to 354 on purpose. A surface brings each component into
//   0 to 255 by its own rule.

#include "graphs/ModeleGraph.h"
#include "utils/Texte.h"

#include <functional>
#include <string>

namespace verdane {

// chartType of the control.
enum TypeGraphique : int {
    kBarres3D = 0,
    kBarres2D = 1,
    kCourbes3D = 2,
    kCourbes2D = 3,
    kAires3D = 4,
    kAires2D = 5,
    kEscaliers3D = 6,
    kEscaliers2D = 7,
    kCombinaison3D = 8,
    kCombinaison2D = 9,
    kSecteurs2D = 14,
    kXY2D = 16,
};

// SeriesType of a series in a combination chart.
enum TypeSerieGraphique : int {
    kSerieBarres3D = 0,
    kSerieBarres2D = 1,
    kSerieCourbe3D = 5,
    kSerieCourbe2D = 6,
    kSerieAire3D = 7,
    kSerieAire2D = 8,
    kSerieEscalier3D = 9,
    kSerieEscalier2D = 10,
};

// Brush.Style of a series: nothing, solid, hatched.
enum StyleBrosse : int { kBrosseVide = 0, kBrossePleine = 1, kBrosseHachuree = 3 };

// TextLayout.Orientation: horizontal, stacked, rotated one way, rotated the other.
enum OrientationTexte : int {
    kHorizontal = 0,
    kVerticalEmpile = 1,
    kVerticalPivote1 = 2,
    kVerticalPivote2 = 3,
};

// Location.LocationType of a box; the core only asks for the free place given by its Rect.
inline constexpr int kEmplacementLibre = 8;

// The boxes that have a Location.
enum class BoiteGraphique { Titre, Legende, Note };

struct CouleurGraphique {
    int rouge = 0;
    int vert = 0;
    int bleu = 0;
    bool operator==(const CouleurGraphique&) const = default;
};

class SurfaceGraphique {
public:
    virtual ~SurfaceGraphique() = default;

    // chartType, and Chart3d which follows from it.
    virtual void PoserTypeGraphique(int chartType) = 0;
    virtual int TypeGraphique() const = 0;
    virtual bool Graphique3D() const = 0;

    // Title.Text, Title.VtFont.Name, Title.VtFont.Size (points).
    virtual void PoserTitre(const Texte& texte) = 0;
    virtual void PoserPoliceTitre(const Texte& nom) = 0;
    virtual void PoserTailleTitre(float points) = 0;
    // FootnoteText, Footnote.VtFont.Name.
    virtual void PoserNote(const Texte& texte) = 0;
    virtual void PoserPoliceNote(const Texte& nom) = 0;

    // The data grid: ColumnCount, RowCount, then Column and Row choose the cell that Data,
    // RowLabel and ColumnLabel set.
    virtual void PoserNombreColonnes(int colonnes) = 0;
    virtual int NombreColonnes() const = 0;
    virtual void PoserNombreLignes(int lignes) = 0;
    virtual int NombreLignes() const = 0;
    virtual void PoserColonne(int colonne) = 0;
    virtual void PoserLigne(int ligne) = 0;
    virtual void PoserDonnee(double valeur) = 0;
    virtual void PoserLibelleLigne(const Texte& texte) = 0;
    virtual void PoserLibelleColonne(const Texte& texte) = 0;

    // Legend.VtFont.Name, ShowLegend.
    virtual void PoserPoliceLegende(const Texte& nom) = 0;
    virtual void PoserAfficherLegende(bool afficher) = 0;
    // Stacking.
    virtual void PoserEmpilement(bool empiler) = 0;
    // SeriesType of the current column (Column), in a combination chart.
    virtual void PoserTypeSerie(int seriesType) = 0;

    // Plot.SeriesCollection(serie): DataPoints(-1).Brush.Style and .FillColor,
    // DataPoints(-1).EdgePen.VtColor, Pen.Width and Pen.VtColor, SecondaryAxis, LegendText.
    virtual void PoserStyleBrosse(int serie, int style) = 0;
    virtual int StyleBrosse(int serie) const = 0;
    virtual void PoserCouleurRemplissage(int serie, CouleurGraphique couleur) = 0;
    virtual CouleurGraphique CouleurRemplissage(int serie) const = 0;
    virtual void PoserCouleurBord(int serie, CouleurGraphique couleur) = 0;
    virtual void PoserEpaisseurTrait(int serie, float epaisseur) = 0;
    virtual float EpaisseurTrait(int serie) const = 0;
    virtual void PoserCouleurTrait(int serie, CouleurGraphique couleur) = 0;
    virtual CouleurGraphique CouleurTrait(int serie) const = 0;
    virtual void PoserAxeSecondaire(int serie, bool secondaire) = 0;
    virtual bool AxeSecondaire(int serie) const = 0;
    virtual void PoserTexteLegende(int serie, const Texte& texte) = 0;
    virtual Texte TexteLegende(int serie) const = 0;

    // Title.TextLayout.WordWrap, Legend.TextLayout.WordWrap.
    virtual void PoserRetourTitre(bool retour) = 0;
    virtual void PoserRetourLegende(bool retour) = 0;
    // Title.TextLayout.Orientation, Footnote.TextLayout.Orientation (OrientationTexte).
    virtual void PoserOrientationTitre(int orientation) = 0;
    virtual void PoserOrientationNote(int orientation) = 0;

    // Plot.DataSeriesInRow, Plot.BarGap, Plot.xGap, Plot.zGap, Plot.UniformAxis.
    virtual void PoserSeriesEnLignes(bool enLignes) = 0;
    virtual void PoserEspaceBarres(int espace) = 0;
    virtual void PoserEspaceX(int espace) = 0;
    virtual void PoserEspaceZ(int espace) = 0;
    virtual void PoserAxesUniformes(bool uniformes) = 0;

    // Plot.Axis(axe, 0): AxisTitle.Text, AxisTitle.VtFont.Name, AxisTitle.VtFont.Size
    // (points), Pen.Width.
    virtual void PoserTitreAxe(int axe, const Texte& texte) = 0;
    virtual void PoserPoliceAxe(int axe, const Texte& nom) = 0;
    virtual void PoserTailleAxe(int axe, float points) = 0;
    virtual void PoserEpaisseurAxe(int axe, float epaisseur) = 0;

    // Title, Legend, Footnote: Location.LocationType and Location.Rect.
    virtual void PoserTypeEmplacement(BoiteGraphique boite, int locationType) = 0;
    virtual void PoserRectangle(BoiteGraphique boite, const RectGraph& rect) = 0;
    virtual RectGraph Rectangle(BoiteGraphique boite) const = 0;
    // Plot.LocationRect.
    virtual void PoserRectanglePlot(const RectGraph& rect) = 0;
    virtual RectGraph RectanglePlot() const = 0;
    // Plot.View3d.Rotation, Plot.View3d.Elevation (degrees).
    virtual void PoserRotation(float degres) = 0;
    virtual float Rotation() const = 0;
    virtual void PoserElevation(float degres) = 0;
    virtual float Elevation() const = 0;

    // Repaint: draws the chart with the settings made.
    virtual void Redessiner() = 0;
    // EditCopy: the chart as drawn, as the bytes of a PNG picture; empty when none can be made.
    virtual std::string CopierImage() = 0;
    // The same in two steps: the chart drawn now, and what is left to make its PNG bytes, a
    // task that holds all it needs and may run on another thread. Null when nothing was drawn.
    virtual std::function<std::string()> CopierImagePlusTard() {
        std::string png = CopierImage();
        if (png.empty()) return {};
        return [png = std::move(png)] { return png; };
    }
};

} // namespace verdane
