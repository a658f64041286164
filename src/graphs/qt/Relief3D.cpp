#include "graphs/qt/PlanGraphique.h"

#include <QChart>
#include <QPolygonF>

#include <algorithm>

namespace verdane::qt {

namespace {

void Face(QPainter& p, const QPolygonF& face, const QColor& couleur, Qt::BrushStyle style,
          const QPen& bord) {
    p.setBrush(style == Qt::NoBrush ? QBrush(Qt::NoBrush) : QBrush(couleur, style));
    p.setPen(bord);
    p.drawPolygon(face);
}

QPolygonF Quad(QPointF a, QPointF b, QPointF d) {
    return QPolygonF({a, b, b + d, a + d});
}

std::vector<QPointF> Positions(QChart& chart, const std::vector<QPointF>& points,
                               QAbstractSeries* serie, QPointF decalage) {
    std::vector<QPointF> r;
    r.reserve(points.size());
    for (const QPointF& v : points) r.push_back(chart.mapToPosition(v, serie) + decalage);
    return r;
}

// Bars standing at `o`, `d` deep: front, top and side faces.
void Barres(QPainter& p, QChart& chart, const SerieTracee& s, QPointF o, QPointF d) {
    const QPen bord(s.bord, 0.8);
    for (std::size_t i = 0; i < s.haut.size(); ++i) {
        const double x = s.haut[i].x();
        const QPointF a = chart.mapToPosition({x + s.gauche, s.haut[i].y()}, s.serieQt) + o;
        const QPointF b = chart.mapToPosition({x + s.droite, s.bas[i].y()}, s.serieQt) + o;
        const QRectF face = QRectF(a, b).normalized();
        if (face.height() < 0.5 && face.width() < 0.5) continue;
        const QPointF h = d.x() >= 0 ? face.topRight() : face.topLeft();
        const QPointF l = d.x() >= 0 ? face.bottomRight() : face.bottomLeft();
        Face(p, Quad(h, l, d), s.remplissage.darker(140), s.brosse, bord);
        Face(p, Quad(face.topLeft(), face.topRight(), d), s.remplissage.lighter(125), s.brosse,
             bord);
        Face(p, QPolygonF(face), s.remplissage, s.brosse, bord);
    }
}

void Ruban(QPainter& p, const std::vector<QPointF>& ligne, const QColor& couleur, const QPen& bord,
           QPointF d) {
    for (std::size_t i = 0; i + 1 < ligne.size(); ++i)
        Face(p, Quad(ligne[i], ligne[i + 1], d), couleur, Qt::SolidPattern, bord);
}

void Courbe(QPainter& p, QChart& chart, const SerieTracee& s, QPointF o, QPointF d) {
    const auto ligne = Positions(chart, s.haut, s.serieQt, o);
    Ruban(p, ligne, s.trait.lighter(115), QPen(s.trait.darker(150), 0.6), d);
    p.setPen(QPen(s.trait.darker(120), s.epaisseur * 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(ligne.data(), static_cast<int>(ligne.size()));
}

void Aire(QPainter& p, QChart& chart, const SerieTracee& s, QPointF o, QPointF d) {
    const auto haut = Positions(chart, s.haut, s.serieQt, o);
    const auto bas = Positions(chart, s.bas, s.serieQt, o);
    QPolygonF face;
    for (const QPointF& h : haut) face << h;
    for (auto it = bas.rbegin(); it != bas.rend(); ++it) face << *it;
    const QPen bord(s.trait.darker(140), std::max(0.6, s.epaisseur));
    Face(p, face.translated(d), s.remplissage.darker(140), s.brosse, bord);
    // The side at the end of the row.
    const bool droite = d.x() >= 0;
    if (!haut.empty())
        Face(p, Quad(droite ? haut.back() : haut.front(), droite ? bas.back() : bas.front(), d),
             s.remplissage.darker(140), s.brosse, bord);
    Ruban(p, haut, s.remplissage.lighter(120), bord, d);
    Face(p, face, s.remplissage, s.brosse, bord);
}

} // namespace

void PeindreMurs(QPainter& p, QChart& chart, QPointF d) {
    const QRectF plot = chart.plotArea();
    p.save();
    p.setPen(QPen(QColor(170, 170, 170), 0.8));
    p.setBrush(QColor(235, 235, 235));
    p.drawPolygon(Quad(plot.bottomLeft(), plot.bottomRight(), d));
    p.drawPolygon(Quad(d.x() >= 0 ? plot.bottomLeft() : plot.bottomRight(),
                       d.x() >= 0 ? plot.topLeft() : plot.topRight(), d));
    p.setBrush(QColor(248, 248, 248));
    p.drawRect(plot.translated(d));
    p.restore();
}

void PeindreSeries3D(QPainter& p, QChart& chart, const std::vector<SerieTracee>& series,
                     QPointF profondeur, int rangs) {
    rangs = std::max(1, rangs);
    const QPointF pas = profondeur / rangs;
    const QPointF epaisseur = rangs == 1 ? profondeur : pas * 0.75;
    p.save();
    for (int rang = rangs - 1; rang >= 0; --rang)
        for (const SerieTracee& s : series) {
            if (s.serieQt == nullptr || s.rang != rang) continue;
            const QPointF o = pas * rang;
            switch (s.genre) {
            case Genre::Barres:
                Barres(p, chart, s, o, epaisseur);
                break;
            case Genre::Courbe:
                Courbe(p, chart, s, o, epaisseur);
                break;
            case Genre::Aire:
            case Genre::Escalier:
                Aire(p, chart, s, o, epaisseur);
                break;
            }
        }
    p.restore();
}

} // namespace verdane::qt
