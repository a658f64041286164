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

// A bar standing at `o`, `d` deep: side, top and front faces.
void Barre(QPainter& p, QChart& chart, const SerieTracee& s, std::size_t i, QPointF o, QPointF d) {
    const QPen bord(s.bord, 0.8);
    const double x = s.haut[i].x();
    const QPointF a = chart.mapToPosition({x + s.gauche, s.haut[i].y()}, s.serieQt) + o;
    const QPointF b = chart.mapToPosition({x + s.droite, s.bas[i].y()}, s.serieQt) + o;
    const QRectF face = QRectF(a, b).normalized();
    if (face.height() < 0.5 && face.width() < 0.5) return;
    const QPointF h = d.x() >= 0 ? face.topRight() : face.topLeft();
    const QPointF l = d.x() >= 0 ? face.bottomRight() : face.bottomLeft();
    Face(p, Quad(h, l, d), s.remplissage.darker(140), s.brosse, bord);
    Face(p, Quad(face.topLeft(), face.topRight(), d), s.remplissage.lighter(125), s.brosse, bord);
    Face(p, QPolygonF(face), s.remplissage, s.brosse, bord);
}

// The bars of the front row, year by year from the side the depth hides.
void Barres(QPainter& p, QChart& chart, const std::vector<SerieTracee>& series, QPointF d) {
    std::vector<std::pair<double, std::pair<const SerieTracee*, std::size_t>>> ordre;
    for (const SerieTracee& s : series)
        if (s.serieQt != nullptr && s.genre == Genre::Barres)
            for (std::size_t i = 0; i < s.haut.size(); ++i)
                ordre.push_back({s.haut[i].x() + s.gauche, {&s, i}});
    std::stable_sort(ordre.begin(), ordre.end(), [&](const auto& a, const auto& b) {
        return d.x() >= 0 ? a.first < b.first : a.first > b.first;
    });
    for (const auto& [x, barre] : ordre) Barre(p, chart, *barre.first, barre.second, {}, d);
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

void PeindreMurs(QPainter& p, QChart& chart, QPointF d, int graduations) {
    const QRectF plot = chart.plotArea();
    p.save();
    p.setPen(QPen(QColor(170, 170, 170), 0.8));
    p.setBrush(QColor(235, 235, 235));
    p.drawPolygon(Quad(plot.bottomLeft(), plot.bottomRight(), d));
    const QPointF cote = d.x() >= 0 ? plot.bottomLeft() : plot.bottomRight();
    p.drawPolygon(Quad(cote, d.x() >= 0 ? plot.topLeft() : plot.topRight(), d));
    p.setBrush(QColor(248, 248, 248));
    p.drawRect(plot.translated(d));
    // The graduations of the value axis, on the side wall and the back wall.
    p.setPen(QPen(QColor(205, 205, 205), 0.6));
    for (int k = 1; k < graduations; ++k) {
        const double y = plot.bottom() - plot.height() * k / (graduations - 1);
        const QPointF a(cote.x(), y);
        p.drawLine(a, a + d);
        p.drawLine(QPointF(plot.left(), y) + d, QPointF(plot.right(), y) + d);
    }
    p.restore();
}

void PeindreSeries3D(QPainter& p, QChart& chart, const std::vector<SerieTracee>& series,
                     QPointF profondeur, int rangs) {
    rangs = std::max(1, rangs);
    const QPointF pas = profondeur / rangs;
    const QPointF epaisseur = rangs == 1 ? profondeur : pas * 0.75;
    p.save();
    for (int rang = rangs - 1; rang >= 0; --rang) {
        const QPointF o = pas * rang;
        if (rang == 0) Barres(p, chart, series, epaisseur);
        for (const SerieTracee& s : series) {
            if (s.serieQt == nullptr || s.rang != rang) continue;
            if (s.genre == Genre::Courbe)
                Courbe(p, chart, s, o, epaisseur);
            else if (s.genre != Genre::Barres)
                Aire(p, chart, s, o, epaisseur);
        }
    }
    p.restore();
}

} // namespace verdane::qt
