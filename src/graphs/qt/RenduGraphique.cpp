#include "graphs/qt/RenduGraphique.h"

#include "graphs/qt/PlanGraphique.h"
#include "utils/Texte.h"

#include <QAreaSeries>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QCoreApplication>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLocale>
#include <QPainter>
#include <QPieSeries>
#include <QPieSlice>
#include <QStackedBarSeries>
#include <QTextDocument>
#include <QTextOption>
#include <QValueAxis>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>

namespace verdane::qt {

namespace {

constexpr double kMarge = 8;
constexpr int kEchelle = 2; // pixels of the picture for one unit of the chart

// --- fonts, pens, brushes -------------------------------------------------------------------

QFont Police(const Texte& nom, double points) {
    QFont f(VersQt(nom.empty() ? Texte("Arial") : nom));
    f.setPointSizeF(std::isfinite(points) ? std::clamp(points, 4.0, 72.0) : 10.0);
    return f;
}

// A width as the chart control takes it: small values are points, larger ones twentieths of
// a point.
double Largeur(double epaisseur) {
    if (!std::isfinite(epaisseur) || epaisseur <= 0) return 1;
    const double points = epaisseur <= 12 ? epaisseur : epaisseur / 20;
    return std::clamp(points, 0.5, 12.0);
}

Qt::BrushStyle Brosse(int style) {
    switch (style) {
    case kBrosseVide:
        return Qt::NoBrush;
    case kBrosseHachuree:
        return Qt::BDiagPattern;
    default:
        return Qt::SolidPattern;
    }
}

QBrush BrosseDe(const SerieTracee& s) {
    return s.brosse == Qt::NoBrush ? QBrush(Qt::NoBrush) : QBrush(s.remplissage, s.brosse);
}

// --- the grid as drawn ----------------------------------------------------------------------

struct Grille {
    std::vector<QString> noms;       // of the series
    std::vector<QString> categories; // the years
    std::vector<std::vector<double>> valeurs;
    std::vector<SerieReglee> styles;
};

QColor CouleurParDefaut(std::size_t i) {
    static const QColor palette[] = {
        {0, 94, 184},  {230, 120, 20},  {60, 160, 60},   {200, 40, 40},  {120, 80, 170},
        {140, 90, 60}, {220, 110, 180}, {110, 110, 110}, {180, 180, 30}, {20, 180, 200}};
    return palette[i % std::size(palette)];
}

Grille LireGrille(const ReglagesGraphique& r) {
    Grille g;
    const auto colonnes = static_cast<std::size_t>(r.colonnes);
    const auto lignes = static_cast<std::size_t>(r.lignes);
    auto style = [&](std::size_t i) { return i < r.series.size() ? r.series[i] : SerieReglee{}; };
    if (!r.seriesEnLignes) {
        for (std::size_t c = 0; c < colonnes; ++c) {
            const SerieReglee s = style(c);
            g.noms.push_back(VersQt(s.legende.empty() ? r.libellesColonnes[c] : s.legende));
            g.valeurs.push_back(r.donnees[c]);
            g.styles.push_back(s);
        }
        for (std::size_t l = 0; l < lignes; ++l)
            g.categories.push_back(VersQt(r.libellesLignes[l]));
    } else {
        for (std::size_t l = 0; l < lignes; ++l) {
            g.noms.push_back(VersQt(r.libellesLignes[l]));
            std::vector<double> v;
            for (std::size_t c = 0; c < colonnes; ++c) v.push_back(r.donnees[c][l]);
            g.valeurs.push_back(v);
            g.styles.push_back(style(l));
        }
        for (std::size_t c = 0; c < colonnes; ++c)
            g.categories.push_back(VersQt(r.libellesColonnes[c]));
    }
    return g;
}

bool Est3D(int type) {
    return type >= kBarres3D && type <= kCombinaison3D && type % 2 == 0;
}

Genre GenreDuType(int type) {
    switch (type) {
    case kCourbes3D:
    case kCourbes2D:
        return Genre::Courbe;
    case kAires3D:
    case kAires2D:
        return Genre::Aire;
    case kEscaliers3D:
    case kEscaliers2D:
        return Genre::Escalier;
    default:
        return Genre::Barres;
    }
}

Genre GenreDeSerie(int typeSerie) {
    switch (typeSerie) {
    case kSerieCourbe3D:
    case kSerieCourbe2D:
        return Genre::Courbe;
    case kSerieAire3D:
    case kSerieAire2D:
        return Genre::Aire;
    case kSerieEscalier3D:
    case kSerieEscalier2D:
        return Genre::Escalier;
    default:
        return Genre::Barres;
    }
}

std::vector<SerieTracee> Tracer(const ReglagesGraphique& r, const Grille& g) {
    const bool combinaison = r.type == kCombinaison3D || r.type == kCombinaison2D;
    std::vector<SerieTracee> series;
    for (std::size_t i = 0; i < g.valeurs.size(); ++i) {
        const SerieReglee& st = g.styles[i];
        SerieTracee s;
        s.nom = g.noms[i];
        s.genre = combinaison ? GenreDeSerie(st.typeSerie) : GenreDuType(r.type);
        s.secondaire = st.secondaire;
        s.remplissage = st.couleurPosee ? VersQColor(st.remplissage) : CouleurParDefaut(i);
        s.trait = st.couleurPosee ? VersQColor(st.trait) : s.remplissage;
        s.bord = VersQColor(st.bord);
        s.brosse = Brosse(st.brosse);
        s.epaisseur = Largeur(st.epaisseur);
        s.valeurs = g.valeurs[i];
        series.push_back(s);
    }
    return series;
}

// Tops and bottoms of each point, the series of one axis stacked when asked: bars on their
// own, positive and negative apart; the other kinds together.
void Empiler(std::vector<SerieTracee>& series, bool empile, std::size_t points) {
    for (bool secondaire : {false, true}) {
        std::vector<double> positifs(points, 0.0), negatifs(points, 0.0), autres(points, 0.0);
        for (SerieTracee& s : series) {
            if (s.secondaire != secondaire) continue;
            for (std::size_t i = 0; i < points; ++i) {
                const double v = i < s.valeurs.size() ? s.valeurs[i] : 0.0;
                double base = 0;
                if (empile && s.genre == Genre::Barres) {
                    double& cumul = v >= 0 ? positifs[i] : negatifs[i];
                    base = cumul;
                    cumul += v;
                } else if (empile) {
                    base = autres[i];
                    autres[i] += v;
                }
                const double x = static_cast<double>(i);
                const double bas = s.genre == Genre::Courbe ? base + v : base;
                if (s.genre == Genre::Escalier) {
                    s.haut.insert(s.haut.end(), {{x - 0.5, base + v}, {x + 0.5, base + v}});
                    s.bas.insert(s.bas.end(), {{x - 0.5, bas}, {x + 0.5, bas}});
                } else {
                    s.haut.push_back({x, base + v});
                    s.bas.push_back({x, bas});
                }
            }
        }
    }
}

// As many decimals as the step between graduations needs.
void FormatGraduations(QValueAxis& axe) {
    const double pas = (axe.max() - axe.min()) / std::max(1, axe.tickCount() - 1);
    const int decimales =
        pas > 0 ? std::clamp(static_cast<int>(-std::floor(std::log10(pas))), 0, 4) : 0;
    axe.setLabelFormat(QString("%.%1f").arg(decimales));
}

void Etendue(const std::vector<SerieTracee>& series, bool secondaire, QValueAxis& axe) {
    double mini = 0, maxi = 0;
    for (const SerieTracee& s : series) {
        if (s.secondaire != secondaire) continue;
        for (const auto* points : {&s.haut, &s.bas})
            for (const QPointF& p : *points) {
                mini = std::min(mini, p.y());
                maxi = std::max(maxi, p.y());
            }
    }
    if (maxi - mini < 1e-9) maxi = mini + 1;
    axe.setRange(mini, maxi);
    axe.applyNiceNumbers();
    FormatGraduations(axe);
}

void ReglerAxe(QAbstractAxis& axe, const AxeRegle& a) {
    axe.setTitleText(VersQt(a.titre));
    axe.setTitleFont(Police(a.police, a.taille));
    QFont libelles = Police(a.police, 8);
    axe.setLabelsFont(libelles);
    if (a.epaisseur >= 0) {
        QPen pen = axe.linePen();
        pen.setWidthF(Largeur(a.epaisseur));
        pen.setColor(Qt::black);
        axe.setLinePen(pen);
    }
}

void Attacher(QChart& chart, QAbstractSeries* s, QAbstractAxis* x, QAbstractAxis* y) {
    chart.addSeries(s);
    s->attachAxis(x);
    s->attachAxis(y);
}

double LargeurBarres(const ReglagesGraphique& r) {
    // The gap between years, in percent of a bar: the wider the gap, the thinner the bars.
    const double ecart = std::clamp(r.espaceX, 0, 500) / 100.0;
    return std::clamp(1.0 / (1.0 + ecart * 0.5), 0.3, 0.95);
}

// The bars of each axis in one Qt series. Qt sets the bar series of a chart side by side in
// each year, each in its own share of the year: the depth faces follow the same layout.
void AjouterBarres(QChart& chart, std::vector<SerieTracee>& series, const ReglagesGraphique& r,
                   QAbstractAxis* x, QValueAxis* y, QValueAxis* y2) {
    std::array<std::vector<SerieTracee*>, 2> parAxe;
    for (SerieTracee& s : series)
        if (s.genre == Genre::Barres) parAxe[s.secondaire && y2 ? 1 : 0].push_back(&s);
    const double largeur = LargeurBarres(r);
    const double m = (parAxe[0].empty() ? 0 : 1) + (parAxe[1].empty() ? 0 : 1);
    double k = 0;
    for (std::size_t a = 0; a < 2; ++a) {
        if (parAxe[a].empty()) continue;
        QAbstractBarSeries* bs =
            r.empile ? static_cast<QAbstractBarSeries*>(new QStackedBarSeries) : new QBarSeries;
        bs->setBarWidth(largeur);
        const double n = r.empile ? 1.0 : static_cast<double>(parAxe[a].size());
        const double pas = largeur / (m * n);
        double j = 0;
        for (SerieTracee* s : parAxe[a]) {
            auto* set = new QBarSet(s->nom);
            for (double v : s->valeurs) set->append(v);
            set->setBrush(BrosseDe(*s));
            set->setPen(QPen(s->bord, std::max(0.5, s->epaisseur / 2)));
            bs->append(set);
            s->serieQt = bs;
            s->gauche = -0.5 + (k + 0.5) / m - largeur / (2 * m) + j * pas;
            s->droite = s->gauche + pas;
            if (!r.empile) ++j;
        }
        Attacher(chart, bs, x, a == 1 ? y2 : y);
        ++k;
    }
}

QLineSeries* Ligne(const std::vector<QPointF>& points) {
    auto* l = new QLineSeries;
    for (const QPointF& p : points) l->append(p);
    return l;
}

// A line, an area or a step series.
void AjouterAutre(QChart& chart, SerieTracee& s, QAbstractAxis* x, QValueAxis* y, QValueAxis* y2) {
    QValueAxis* axe = s.secondaire && y2 ? y2 : y;
    if (s.genre == Genre::Courbe) {
        QLineSeries* l = Ligne(s.haut);
        l->setName(s.nom);
        l->setPen(QPen(s.trait, s.epaisseur * 1.5));
        s.serieQt = l;
        Attacher(chart, l, x, axe);
        return;
    }
    QLineSeries* haut = Ligne(s.haut);
    QLineSeries* bas = Ligne(s.bas);
    auto* aire = new QAreaSeries(haut, bas);
    // The area doesn't own its lines.
    haut->setParent(aire);
    bas->setParent(aire);
    aire->setName(s.nom);
    aire->setBrush(BrosseDe(s));
    aire->setPen(QPen(s.trait.darker(130), s.epaisseur));
    s.serieQt = aire;
    Attacher(chart, aire, x, axe);
}

// Areas and steps behind the bars and lines, whatever their order in the legend.
void AiresDerriere(QChart& chart) {
    for (QGraphicsItem* item : chart.childItems())
        if (QGraphicsObject* o = item->toGraphicsObject();
            o && QByteArray(o->metaObject()->className()).endsWith("AreaChartItem"))
            item->setZValue(item->zValue() - 0.5);
}

void GraphiqueParAnnees(QChart& chart, std::vector<SerieTracee>& series, const Grille& g,
                        const ReglagesGraphique& r) {
    Empiler(series, r.empile, g.categories.size());
    auto* x = new QBarCategoryAxis;
    QStringList annees;
    for (const QString& c : g.categories) annees << c;
    x->append(annees);
    ReglerAxe(*x, r.axes[0]);
    chart.addAxis(x, Qt::AlignBottom);
    auto* y = new QValueAxis;
    ReglerAxe(*y, r.axes[1]);
    chart.addAxis(y, Qt::AlignLeft);
    Etendue(series, false, *y);
    QValueAxis* y2 = nullptr;
    if (std::any_of(series.begin(), series.end(), [](const auto& s) { return s.secondaire; })) {
        y2 = new QValueAxis;
        ReglerAxe(*y2, r.axes[2]);
        chart.addAxis(y2, Qt::AlignRight);
        Etendue(series, true, *y2);
    }
    // In the order of the series, the bars all at the place of the first one.
    bool barres = false;
    for (SerieTracee& s : series) {
        if (s.genre != Genre::Barres)
            AjouterAutre(chart, s, x, y, y2);
        else if (!barres)
            AjouterBarres(chart, series, r, x, y, y2);
        barres = barres || s.genre == Genre::Barres;
    }
}

// One pie a year, side by side; the legend names the slices once.
void Secteurs(QChart& chart, const std::vector<SerieTracee>& series, const Grille& g, QSizeF taille,
              std::vector<std::pair<QPieSeries*, QString>>& camemberts) {
    const int n = static_cast<int>(g.categories.size());
    if (n == 0 || series.empty()) return;
    const int colonnes = std::max(1, std::min(n, static_cast<int>(std::ceil(std::sqrt(n * 1.6)))));
    const int rangs = (n + colonnes - 1) / colonnes;
    const double rapport = taille.width() / std::max(1.0, taille.height());
    const double diametre = 0.8 * std::min(rapport / colonnes, 1.0 / rangs);
    for (int k = 0; k < n; ++k) {
        auto* pie = new QPieSeries;
        for (const SerieTracee& s : series) {
            const double v = static_cast<std::size_t>(k) < s.valeurs.size() ? s.valeurs[k] : 0.0;
            QPieSlice* tranche = pie->append(s.nom, std::max(0.0, v));
            tranche->setBrush(BrosseDe(s));
            tranche->setPen(QPen(s.bord, 0.8));
        }
        pie->setPieSize(diametre);
        pie->setHorizontalPosition((k % colonnes + 0.5) / colonnes);
        pie->setVerticalPosition((k / colonnes + 0.5) / rangs);
        chart.addSeries(pie);
        if (k > 0)
            for (QLegendMarker* m : chart.legend()->markers(pie)) m->setVisible(false);
        camemberts.emplace_back(pie, g.categories[static_cast<std::size_t>(k)]);
    }
}

// Pairs of series, X then Y; a lone series is drawn against the years.
void NuagesXY(QChart& chart, std::vector<SerieTracee>& series, const Grille& g,
              const ReglagesGraphique& r) {
    auto* x = new QValueAxis;
    ReglerAxe(*x, r.axes[0]);
    chart.addAxis(x, Qt::AlignBottom);
    auto* y = new QValueAxis;
    ReglerAxe(*y, r.axes[1]);
    chart.addAxis(y, Qt::AlignLeft);
    QValueAxis* y2 = nullptr;
    double xmin = 0, xmax = 0, ymin[2] = {0, 0}, ymax[2] = {0, 0};
    bool premier = true, premierY[2] = {true, true};
    auto etendre = [](double v, double& lo, double& hi, bool& vide) {
        lo = vide ? v : std::min(lo, v);
        hi = vide ? v : std::max(hi, v);
        vide = false;
    };
    const bool seule = series.size() == 1;
    for (std::size_t p = 0; seule ? p < 1 : p + 1 < series.size(); p += 2) {
        SerieTracee& sy = seule ? series[0] : series[p + 1];
        const SerieTracee* sx = seule ? nullptr : &series[p];
        const int a = sy.secondaire ? 1 : 0;
        if (a == 1 && y2 == nullptr) {
            y2 = new QValueAxis;
            ReglerAxe(*y2, r.axes[2]);
            chart.addAxis(y2, Qt::AlignRight);
        }
        auto* l = new QLineSeries;
        l->setName(sy.nom);
        l->setPen(QPen(sy.trait, sy.epaisseur * 1.5));
        l->setPointsVisible(true);
        for (std::size_t i = 0; i < sy.valeurs.size(); ++i) {
            bool ok = false;
            double vx = seule ? g.categories[i].toDouble(&ok) : sx->valeurs[i];
            if (seule && !ok) vx = static_cast<double>(i + 1);
            l->append(vx, sy.valeurs[i]);
            etendre(vx, xmin, xmax, premier);
            etendre(sy.valeurs[i], ymin[a], ymax[a], premierY[a]);
        }
        sy.serieQt = l;
        Attacher(chart, l, x, a == 1 ? static_cast<QAbstractAxis*>(y2) : y);
    }
    auto regler = [](QValueAxis* axe, double lo, double hi) {
        if (axe == nullptr) return;
        if (hi - lo < 1e-9) hi = lo + 1;
        axe->setRange(lo, hi);
        axe->applyNiceNumbers();
        FormatGraduations(*axe);
    };
    regler(x, xmin, xmax);
    regler(y, ymin[0], ymax[0]);
    regler(y2, ymin[1], ymax[1]);
}

// --- texts and boxes ------------------------------------------------------------------------

QGraphicsTextItem* ElementTexte(QGraphicsScene& scene, const QString& texte, const QFont& police,
                                int orientation, double largeur) {
    QString t = texte;
    if (orientation == kVerticalEmpile) {
        t.clear();
        for (qsizetype i = 0; i < texte.size(); ++i) {
            if (i > 0) t += QChar('\n');
            t += texte[i];
        }
    }
    auto* item = scene.addText(QString());
    item->setFont(police);
    item->setPlainText(t);
    if (largeur > 0 && orientation == kHorizontal) item->setTextWidth(largeur);
    QTextOption option = item->document()->defaultTextOption();
    option.setAlignment(Qt::AlignHCenter);
    item->document()->setDefaultTextOption(option);
    if (orientation == kVerticalPivote1) item->setRotation(-90);
    if (orientation == kVerticalPivote2) item->setRotation(90);
    item->setZValue(10);
    return item;
}

// Places `item` with its drawn box centred in `boite`.
void Centrer(QGraphicsTextItem& item, const QRectF& boite) {
    const QRectF b = item.mapRectToScene(item.boundingRect());
    item.moveBy(boite.center().x() - b.center().x(), boite.center().y() - b.center().y());
}

// The boxes stored in the control's coordinates (Y up), scaled to the chart: the stored boxes
// together span the chart.
struct Cadre {
    double echelleX = 0;
    double echelleY = 0;
    double hauteur = 0;

    std::optional<QRectF> Boite(const RectGraph& r) const {
        if (echelleX <= 0 || !std::isfinite(r.minX + r.maxX + r.minY + r.maxY)) return {};
        const QRectF b = QRectF(QPointF(r.minX * echelleX, hauteur - r.maxY * echelleY),
                                QPointF(r.maxX * echelleX, hauteur - r.minY * echelleY))
                             .normalized();
        if (b.width() < 4 || b.height() < 4) return {};
        return b;
    }
};

Cadre CadreDes(const ReglagesGraphique& r, QSizeF taille) {
    if (!r.plotPose) return {};
    double maxX = 0, maxY = 0;
    for (const RectGraph* b : {&r.plot, &r.boites[0].rect, &r.boites[1].rect, &r.boites[2].rect})
        if (std::isfinite(b->maxX + b->maxY + b->minX + b->minY)) {
            maxX = std::max({maxX, double{b->maxX}, double{b->minX}});
            maxY = std::max({maxY, double{b->maxY}, double{b->minY}});
        }
    if (maxX <= 0 || maxY <= 0) return {};
    return {taille.width() / maxX, taille.height() / maxY, taille.height()};
}

// 3D: bars in the front row, each other series in a row of its own behind; the number of rows.
int Ranger(std::vector<SerieTracee>& series) {
    const bool barres = std::any_of(series.begin(), series.end(),
                                    [](const SerieTracee& s) { return s.genre == Genre::Barres; });
    int rang = barres ? 1 : 0;
    for (SerieTracee& s : series) s.rang = s.genre == Genre::Barres ? 0 : rang++;
    return std::max(1, rang);
}

// 3D: the chart draws the axes and the legend; the series are painted in relief over it.
void CacherSeries(QChart& chart, const std::vector<SerieTracee>& series) {
    for (QAbstractSeries* qs : chart.series()) {
        if (auto* b = qobject_cast<QAbstractBarSeries*>(qs)) {
            for (QBarSet* set : b->barSets()) {
                set->setBrush(Qt::NoBrush);
                set->setPen(Qt::NoPen);
            }
        } else if (auto* a = qobject_cast<QAreaSeries*>(qs)) {
            a->setBrush(Qt::NoBrush);
            a->setPen(Qt::NoPen);
        } else if (auto* l = qobject_cast<QLineSeries*>(qs)) {
            l->setPen(Qt::NoPen);
        }
    }
    // The walls carry the graduations.
    for (QAbstractAxis* axe : chart.axes()) axe->setGridLineVisible(false);
    const auto marqueurs = chart.legend()->markers();
    for (const SerieTracee& s : series)
        for (QLegendMarker* m : marqueurs)
            if (m->label() == s.nom) {
                m->setBrush(s.genre == Genre::Courbe ? QBrush(s.trait) : BrosseDe(s));
                m->setPen(QPen(s.genre == Genre::Courbe ? s.trait : s.bord, 1));
            }
}

// The stored plot box holds the axes with their labels and titles: the data inside.
QRectF InterieurPlot(QChart& chart, const QRectF& boite) {
    const auto verticaux = chart.axes(Qt::Vertical);
    if (verticaux.isEmpty() || boite.width() < 200 || boite.height() < 120) return boite;
    const double droite = verticaux.size() > 1 ? 60 : 8;
    return boite.adjusted(60, 6, -droite, -40);
}

// Number of graduations of the first value axis.
int Graduations(QChart& chart) {
    for (QAbstractAxis* axe : chart.axes(Qt::Vertical))
        if (auto* v = qobject_cast<QValueAxis*>(axe); v && axe->alignment() == Qt::AlignLeft)
            return v->tickCount();
    return 0;
}

QPointF Profondeur(const ReglagesGraphique& r, QSizeF taille, int rangs) {
    double rotation = r.rotation, elevation = r.elevation;
    if (!std::isfinite(rotation) || !std::isfinite(elevation) ||
        (rotation == 0 && elevation == 0)) {
        rotation = 30;
        elevation = 20;
    }
    const double longueur = taille.width() * 0.05 * (1 + std::clamp(r.espaceZ, 0, 100) / 100.0) *
                            std::min(2.0, 1 + 0.35 * (rangs - 1));
    const double pi = std::acos(-1.0);
    // The value axis stands on the left: the depth goes right, whichever side the view turns.
    QPointF d(longueur * std::abs(std::sin(rotation * pi / 180)),
              -longueur * std::sin(elevation * pi / 180));
    // Seen straight on there would be no depth left to see: keep some.
    if (std::hypot(d.x(), d.y()) < 0.4 * longueur) d = QPointF(0.35 * longueur, -0.2 * longueur);
    return d;
}

} // namespace

QColor VersQColor(CouleurGraphique c) {
    return QColor(std::clamp(c.rouge, 0, 255), std::clamp(c.vert, 0, 255),
                  std::clamp(c.bleu, 0, 255));
}

QImage RendreGraphique(const ReglagesGraphique& r, QSize taille) {
    if (taille.isEmpty()) return {};
    const QSizeF t(taille);
    QGraphicsScene scene;
    scene.setSceneRect(QRectF(QPointF(0, 0), t));
    auto* chart = new QChart;
    scene.addItem(chart);
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundVisible(false);
    chart->setGeometry(QRectF(QPointF(0, 0), t));
    chart->legend()->setVisible(r.legende);
    chart->legend()->setAlignment(Qt::AlignRight);
    chart->legend()->setFont(Police(r.policeLegende, 9));
    chart->setLocale(QLocale(QLocale::French, QLocale::France));
    chart->setLocalizeNumbers(true);

    const Grille g = LireGrille(r);
    std::vector<SerieTracee> series = Tracer(r, g);
    const bool troisD = Est3D(r.type);
    const int rangs = troisD ? Ranger(series) : 1;
    std::vector<std::pair<QPieSeries*, QString>> camemberts;
    if (r.type == kSecteurs2D)
        Secteurs(*chart, series, g, t, camemberts);
    else if (r.type == kXY2D)
        NuagesXY(*chart, series, g, r);
    else
        GraphiqueParAnnees(*chart, series, g, r);

    QMarginsF marges(kMarge, kMarge, kMarge, kMarge);
    if (troisD) CacherSeries(*chart, series);
    const QPointF profondeur = troisD ? Profondeur(r, t, rangs) : QPointF();

    const Cadre cadre = CadreDes(r, t);
    const auto boiteTitre = r.boites[0].posee ? cadre.Boite(r.boites[0].rect) : std::nullopt;
    const auto boiteLegende = r.boites[1].posee ? cadre.Boite(r.boites[1].rect) : std::nullopt;
    const auto boiteNote = r.boites[2].posee ? cadre.Boite(r.boites[2].rect) : std::nullopt;
    const auto boitePlot = cadre.Boite(r.plot);

    const QString titre = VersQt(r.titre);
    const QFont policeTitre = Police(r.policeTitre, r.tailleTitre);
    if (!titre.isEmpty()) {
        if (!boiteTitre && r.orientationTitre == kHorizontal) {
            chart->setTitle(titre);
            chart->setTitleFont(policeTitre);
        } else {
            const double largeur = boiteTitre && r.retourTitre ? boiteTitre->width() : 0;
            auto* item = ElementTexte(scene, titre, policeTitre, r.orientationTitre, largeur);
            if (boiteTitre) {
                Centrer(*item, *boiteTitre);
            } else {
                const QRectF b = item->mapRectToScene(item->boundingRect());
                marges.setLeft(marges.left() + b.width());
                Centrer(*item, QRectF(0, 0, b.width() + kMarge, t.height()));
            }
        }
    }
    const QString note = VersQt(r.note);
    if (!note.isEmpty()) {
        auto* item = ElementTexte(scene, note, Police(r.policeNote, 9), r.orientationNote,
                                  boiteNote ? boiteNote->width() : t.width() - 2 * kMarge);
        const QRectF b = item->mapRectToScene(item->boundingRect());
        if (boiteNote) {
            Centrer(*item, *boiteNote);
        } else if (r.orientationNote == kHorizontal) {
            marges.setBottom(marges.bottom() + b.height());
            Centrer(*item, QRectF(0, t.height() - b.height() - 2, t.width(), b.height()));
        } else {
            marges.setRight(marges.right() + b.width());
            Centrer(*item, QRectF(t.width() - b.width() - 2, 0, b.width(), t.height()));
        }
    }
    chart->setMargins(marges.toMargins());
    if (boiteLegende && r.legende) {
        chart->legend()->detachFromChart();
        chart->legend()->setGeometry(*boiteLegende);
    }
    chart->layout()->activate();
    QRectF plot = boitePlot ? InterieurPlot(*chart, *boitePlot) : chart->plotArea();
    // Room for the depth behind the plot, inside it.
    plot.adjust(std::max(0.0, -profondeur.x()), std::max(0.0, -profondeur.y()),
                -std::max(0.0, profondeur.x()), -std::max(0.0, profondeur.y()));
    if (boitePlot || troisD) {
        chart->setPlotArea(plot);
        // The axes follow the plot only when the layout runs again.
        chart->layout()->invalidate();
        chart->layout()->activate();
    }
    QCoreApplication::processEvents();
    AiresDerriere(*chart);

    // The years under their pies.
    for (const auto& [pie, annee] : camemberts) {
        const QRectF zone = chart->plotArea();
        const double d = pie->pieSize() * std::min(zone.width(), zone.height());
        const QPointF centre(zone.left() + pie->horizontalPosition() * zone.width(),
                             zone.top() + pie->verticalPosition() * zone.height());
        auto* item = ElementTexte(scene, annee, Police("Arial", 8), kHorizontal, 0);
        Centrer(*item, QRectF(centre.x() - d / 2, centre.y() + d / 2, d, 14));
    }

    // Opaque from the start: drawn over white, no pixel is ever transparent, so the picture
    // needs no conversion afterwards.
    QImage image(taille * kEchelle, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.scale(kEchelle, kEchelle);
    if (troisD) {
        PeindreMurs(p, *chart, profondeur, Graduations(*chart));
        PeindreSeries3D(p, *chart, series, profondeur, rangs);
    }
    scene.render(&p, QRectF(QPointF(0, 0), t), QRectF(QPointF(0, 0), t));
    p.end();
    return image;
}

} // namespace verdane::qt
