#include "graphs/qt/PlanGraphique.h"

#include <QChart>
#include <QPolygonF>

namespace verdane::qt {

namespace {

void Face(QPainter& p, const QPolygonF& face, const QColor& couleur, Qt::BrushStyle style,
          const QColor& bord) {
    p.setBrush(style == Qt::NoBrush ? QBrush(Qt::NoBrush) : QBrush(couleur, style));
    p.setPen(QPen(bord, 0.8));
    p.drawPolygon(face);
}

QPolygonF Quad(QPointF a, QPointF b, QPointF d) {
    return QPolygonF({a, b, b + d, a + d});
}

void Murs(QPainter& p, const QRectF& plot, QPointF d) {
    const QColor gris(235, 235, 235);
    const QPen trait(QColor(170, 170, 170), 0.8);
    p.setPen(trait);
    p.setBrush(gris);
    p.drawPolygon(Quad(plot.bottomLeft(), plot.bottomRight(), d));
    p.drawPolygon(Quad(d.x() >= 0 ? plot.bottomLeft() : plot.bottomRight(),
                       d.x() >= 0 ? plot.topLeft() : plot.topRight(), d));
    p.setBrush(QColor(248, 248, 248));
    p.drawRect(plot.translated(d));
}

void Barres(QPainter& p, QChart& chart, const SerieTracee& s, QPointF d) {
    const QColor haut = s.remplissage.lighter(125);
    const QColor cote = s.remplissage.darker(140);
    for (std::size_t i = 0; i < s.haut.size(); ++i) {
        const double x = s.haut[i].x();
        const QPointF a = chart.mapToPosition({x + s.gauche, s.haut[i].y()}, s.serieQt);
        const QPointF b = chart.mapToPosition({x + s.droite, s.bas[i].y()}, s.serieQt);
        const QRectF face = QRectF(a, b).normalized();
        if (face.height() < 0.5 && face.width() < 0.5) continue;
        Face(p, Quad(face.topLeft(), face.topRight(), d), haut, s.brosse, s.bord);
        const QPointF h = d.x() >= 0 ? face.topRight() : face.topLeft();
        const QPointF l = d.x() >= 0 ? face.bottomRight() : face.bottomLeft();
        Face(p, Quad(h, l, d), cote, s.brosse, s.bord);
    }
}

std::vector<QPointF> Positions(QChart& chart, const std::vector<QPointF>& points,
                               QAbstractSeries* serie) {
    std::vector<QPointF> r;
    r.reserve(points.size());
    for (const QPointF& v : points) r.push_back(chart.mapToPosition(v, serie));
    return r;
}

void Ruban(QPainter& p, const std::vector<QPointF>& ligne, const SerieTracee& s, QPointF d,
           const QColor& couleur) {
    for (std::size_t i = 0; i + 1 < ligne.size(); ++i)
        Face(p, Quad(ligne[i], ligne[i + 1], d), couleur, Qt::SolidPattern, s.trait.darker(150));
}

void Aire(QPainter& p, QChart& chart, const SerieTracee& s, QPointF d) {
    const auto haut = Positions(chart, s.haut, s.serieQt);
    const auto bas = Positions(chart, s.bas, s.serieQt);
    QPolygonF fond;
    for (const QPointF& h : haut) fond << h + d;
    for (auto it = bas.rbegin(); it != bas.rend(); ++it) fond << *it + d;
    Face(p, fond, s.remplissage.darker(140), s.brosse, s.bord);
    Ruban(p, haut, s, d, s.remplissage.lighter(120));
}

} // namespace

void PeindreRelief(QPainter& p, QChart& chart, const std::vector<SerieTracee>& series,
                   QPointF profondeur) {
    p.save();
    Murs(p, chart.plotArea(), profondeur);
    // From the back: areas and steps, bars, then lines.
    for (int passe = 0; passe < 3; ++passe)
        for (const SerieTracee& s : series) {
            if (s.serieQt == nullptr) continue;
            if (s.genre == Genre::Barres && passe == 1)
                Barres(p, chart, s, profondeur);
            else if (s.genre == Genre::Courbe && passe == 2)
                Ruban(p, Positions(chart, s.haut, s.serieQt), s, profondeur, s.trait.lighter(115));
            else if ((s.genre == Genre::Aire || s.genre == Genre::Escalier) && passe == 0)
                Aire(p, chart, s, profondeur);
        }
    p.restore();
}

} // namespace verdane::qt
