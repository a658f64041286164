#pragma once
// The series of a chart as they are drawn: values stacked, colours and pens made, and the Qt
// series each is drawn by, so that the depth of a 3D chart can be painted behind them.

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QString>

#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractSeries;
class QChart;
QT_END_NAMESPACE

namespace verdane::qt {

enum class Genre { Barres, Courbe, Aire, Escalier };

struct SerieTracee {
    QString nom;
    Genre genre = Genre::Barres;
    bool secondaire = false;
    QColor remplissage;
    QColor bord;
    QColor trait;
    Qt::BrushStyle brosse = Qt::SolidPattern;
    double epaisseur = 1; // pixels
    std::vector<double> valeurs;
    // In the chart's values: the top and the bottom of each point (lines: the same), for
    // steps two points a year.
    std::vector<QPointF> haut;
    std::vector<QPointF> bas;
    // Bars: the sides of the bar around its year's centre.
    double gauche = -0.3;
    double droite = 0.3;
    // 3D: the row going back where the series stands, 0 in front.
    int rang = 0;
    QAbstractSeries* serieQt = nullptr;
};

// The floor and walls of a 3D chart, `profondeur` behind the plot, with the `graduations`
// lines of the value axis.
void PeindreMurs(QPainter& p, QChart& chart, QPointF profondeur, int graduations);

// The series of a 3D chart in relief, under the axes and the legend that the chart draws
// without them: `rangs` rows share the depth, each series in its row, the back rows first.
void PeindreSeries3D(QPainter& p, QChart& chart, const std::vector<SerieTracee>& series,
                     QPointF profondeur, int rangs);

} // namespace verdane::qt
