#include "shell/qt/FrmBarre.h"

#include "shell/DemarrageBarre.h"
#include "shell/MenusBarre.h"
#include "shell/Options.h"
#include "shell/etat/Contexte.h"
#include "shell/qt/DockX11.h"
#include "shell/qt/Ecran.h"
#include "shell/qt/FrmMenu.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace verdane::qt {

namespace {

constexpr int kLargeurSansLogoTwips = 13000;
const QString kFond = QStringLiteral("#243852");

// A label that says when it is clicked or crossed by the mouse.
class Etiquette : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> clic;
    std::function<void()> survol;

protected:
    // The press is taken so that the release comes here.
    void mousePressEvent(QMouseEvent* e) override { e->accept(); }
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton && clic) clic();
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        if (survol) survol();
        QLabel::mouseMoveEvent(e);
    }
};

} // namespace

// A tab: the skin's picture of the selected tab when it is selected, else a plain look.
class Onglet : public Etiquette {
public:
    Onglet(const QString& texte, QWidget* parent) : Etiquette(texte, parent) {
        setAlignment(Qt::AlignCenter);
        setCursor(Qt::PointingHandCursor);
        setMouseTracking(true);
        Selectionner(false);
    }
    void Selectionner(bool oui) {
        selectionne = oui;
        update();
    }
    QPixmap image;
    bool selectionne = false;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        const QRect r = rect().adjusted(0, 4, -1, 0);
        if (selectionne && !image.isNull()) {
            p.drawPixmap(r, image);
        } else {
            p.setPen(QColor(QStringLiteral("#8e9bab")));
            p.setBrush(selectionne ? QColor(QStringLiteral("#f4f6f9"))
                                   : QColor(QStringLiteral("#2e4566")));
            p.drawRoundedRect(r.adjusted(0, 0, 0, 6), 6, 6);
        }
        QFont f = font();
        f.setBold(true);
        p.setFont(f);
        p.setPen(selectionne ? QColor(QStringLiteral("#22354f")) : QColor(Qt::white));
        p.drawText(r, Qt::AlignCenter, text());
    }
};

FrmBarre::FrmBarre(Contexte& ctx, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), ctx_(ctx) {
    setObjectName(QStringLiteral("frmBarre"));
    // Part of the bar: it keeps its own look, not the skin's window frame.
    setProperty("verdaneSansSkin", true);
    setWindowTitle(QStringLiteral("Verdane"));
    setMouseTracking(true);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(kFond));
    setPalette(pal);

    for (int i = 0; i < kNbOnglets; ++i) {
        auto* o = new Onglet(VersQt(LibelleOnglet(i)), this);
        o->setObjectName(QStringLiteral("lblOnglet%1").arg(i));
        o->clic = [this, i] { CliquerOnglet(i); };
        lblOnglet_[static_cast<std::size_t>(i)] = o;
    }
    lblOnglet3b_ = new QLabel(this);
    lblOnglet3b_->setObjectName(QStringLiteral("lblOnglet3b"));

    auto* aide = new Etiquette(QStringLiteral("?"), this);
    aide->setObjectName(QStringLiteral("ImageAide"));
    aide->setMouseTracking(true);
    aide->setToolTip(QStringLiteral("Aide"));
    aide->survol = [this] {
        // Hovering the help picture clears every selection and every menu's highlight.
        gestion_.DeselectionnerOnglets();
        MontrerSelection();
        for (auto& m : menus_)
            if (m) m->EffacerSurvol();
    };
    ImageAide_ = aide;
    ImageDroite_ = new QLabel(this);
    ImageDroite_->setObjectName(QStringLiteral("ImageDroite"));
    auto* logo = new Etiquette(QStringLiteral("VERDANE"), this);
    logo->setObjectName(QStringLiteral("ImageLogoVD"));
    logo->setCursor(Qt::PointingHandCursor);
    logo->setToolTip(QStringLiteral("A propos de Verdane"));
    logo->clic = [this] {
        if (ctx_.formulaires.Connu("FrmAPropos"))
            ctx_.formulaires.Ouvrir(ctx_, "FrmAPropos");
        else
            SignalerFormeAbsente(ctx_, "FrmAPropos");
    };
    ImageLogoVD_ = logo;
    for (const char* nom : {"ImageFermer", "lblFermer"}) {
        auto* f = new Etiquette(QStringLiteral("\u2715"), this);
        f->setObjectName(QString::fromLatin1(nom));
        f->setCursor(Qt::PointingHandCursor);
        f->setToolTip(QStringLiteral("Fermer la barre Verdane"));
        f->clic = [this] { DemanderFermeture(); };
        (QString::fromLatin1(nom) == QLatin1String("lblFermer") ? lblFermer_ : ImageFermer_) = f;
    }
    for (QLabel* l :
         {static_cast<QLabel*>(aide), static_cast<QLabel*>(logo), ImageFermer_, lblFermer_})
        l->setStyleSheet(QStringLiteral("color: white; font-weight: bold;"));

    for (int i = 0; i < kNbOnglets; ++i) {
        const auto rang = static_cast<std::size_t>(i);
        menus_[rang] = std::make_unique<FrmMenu>(ctx_, gestion_, MenuOnglet(i));
    }

    TimerMenuDeroul_.setInterval(kPeriodeDeroulement);
    connect(&TimerMenuDeroul_, &QTimer::timeout, this, [this] { gestion_.Tic(); });
    TimerMenuDeroul_.start();

    if (QScreen* ecran = QGuiApplication::primaryScreen())
        connect(ecran, &QScreen::geometryChanged, this, [this] { DockerBarre(); });
    MarquerDock(*this);
}

FrmBarre::~FrmBarre() = default;

FrmMenu* FrmBarre::Menu(int index) const {
    return index < 0 || index >= kNbOnglets ? nullptr
                                            : menus_[static_cast<std::size_t>(index)].get();
}

bool FrmBarre::AutoMasquage() const {
    return ctx_.etat.options.PositionBarre == -1;
}

void FrmBarre::DockerBarre() {
    const QPoint o = OrigineEcran();
    const int largeur = LargeurEcran();
    if (!AutoMasquage()) {
        setGeometry(o.x(), o.y(), largeur, kHauteurBarre);
        ReserverHaut(*this, kHauteurBarre);
    } else {
        // Only the strip stays on the screen until the mouse reaches it.
        setGeometry(o.x(), o.y() + kBandeMasquee - kHauteurBarre, largeur,
                    kHauteurBarre + kBandeMasquee);
        ReserverHaut(*this, kBandeMasquee);
    }
}

void FrmBarre::MontrerBarre() {
    const QPoint o = OrigineEcran();
    setGeometry(o.x(), o.y(), LargeurEcran(), kHauteurBarre);
    raise();
    lblFermer_->setStyleSheet(QStringLiteral("color: white; font-weight: bold;"));
}

void FrmBarre::CacherSiAbsente() {
    if (!AutoMasquage() || geometry().contains(QCursor::pos())) return;
    for (auto& m : menus_)
        if (m && m->isVisible()) return;
    DockerBarre();
}

void FrmBarre::enterEvent(QEnterEvent* e) {
    if (AutoMasquage() && y() < OrigineEcran().y()) MontrerBarre();
    QWidget::enterEvent(e);
}

void FrmBarre::leaveEvent(QEvent* e) {
    if (AutoMasquage()) QTimer::singleShot(800, this, [this] { CacherSiAbsente(); });
    QWidget::leaveEvent(e);
}

void FrmBarre::resizeEvent(QResizeEvent* e) {
    const int largeur = width();
    const int hautTab = AutoMasquage() && height() > kHauteurBarre ? kBandeMasquee : 0;
    // Each tab stands above its menu's left position; the last one is as wide as the fifth.
    for (int i = 0; i < kNbOnglets; ++i) {
        const int gauche = EnPixels(GaucheOnglet(i));
        const int droite = i + 1 < kNbOnglets
                               ? EnPixels(GaucheOnglet(i + 1)) - 6
                               : gauche + EnPixels(GaucheOnglet(5) - GaucheOnglet(4));
        lblOnglet_[static_cast<std::size_t>(i)]->setGeometry(gauche, hautTab + 6, droite - gauche,
                                                             kHauteurBarre - 6);
    }
    lblOnglet3b_->setGeometry(0, 0, 0, 0);
    const int fin = EnPixels(GaucheOnglet(5)) + EnPixels(GaucheOnglet(5) - GaucheOnglet(4));
    ImageDroite_->setGeometry(fin, hautTab, std::max(0, largeur - fin - 140), kHauteurBarre);
    ImageAide_->setGeometry(largeur - 132, hautTab + 12, 16, 18);
    ImageLogoVD_->setGeometry(largeur - 110, hautTab + 12, 80, 18);
    ImageFermer_->setGeometry(largeur - 110, hautTab + 12, 18, 18);
    lblFermer_->setGeometry(largeur - 22, hautTab + 12, 18, 18);
    const bool etroit = PixelsVersTwips(largeur, logicalDpiX()) < kLargeurSansLogoTwips;
    ImageFermer_->setVisible(etroit);
    ImageLogoVD_->setVisible(!etroit);
    QWidget::resizeEvent(e);
}

void FrmBarre::ChargerImagesOnglet(int index) {
    const Texte dossier = AjouterBarre(ctx_.etat.chemins.RepSkin);
    const auto charger = [&](const QString& nom, QPixmap& image) {
        const Texte chemin = dossier + DepuisQt(nom);
        image = QPixmap(VersQt(CheminTexte(CheminSysteme(chemin))));
        if (!image.isNull() || skinSignale_) return;
        // A missing skin is told once in a run, by its first missing picture; the tabs keep
        // their plain look.
        skinSignale_ = true;
        ctx_.utilisateur.Boite("Le Fichier Image du Skin est introuvable !",
                               "Erreur " + DepuisQt(nom), Icone::Attention);
    };
    charger(QStringLiteral("SelOnglet%1.bmp").arg(index + 1),
            lblOnglet_[static_cast<std::size_t>(index)]->image);
    QPixmap droite;
    charger(QStringLiteral("FondDroit%1.bmp").arg(index + 1), droite);
    ImageDroite_->setPixmap(droite.isNull() ? QPixmap() : droite.scaled(ImageDroite_->size()));
}

void FrmBarre::MontrerSelection() {
    for (int i = 0; i < kNbOnglets; ++i)
        lblOnglet_[static_cast<std::size_t>(i)]->Selectionner(gestion_.OngletSelectionne(i));
    lblOnglet3b_->setVisible(gestion_.PiecesOnglet3Selectionnees());
}

void FrmBarre::CliquerOnglet(int index) {
    if (index < 0 || index >= kNbOnglets) return;
    FrmMenu& menu = *menus_[static_cast<std::size_t>(index)];
    const bool ouvert = gestion_.CliquerOnglet(index, menu);
    if (ouvert && menu.menu() == verdane::Menu::Options) {
        ChargerOptions(ctx_.etat);
        menu.AfficherProprietes();
    }
    menu.raise();
    // The menu rolls down while a missing picture is told.
    ChargerImagesOnglet(index);
    MontrerSelection();
}

void FrmBarre::DemanderFermeture() {
    if (!ConfirmerFermeture(ctx_)) return;
    fermetureAcceptee_ = true;
    close();
}

void FrmBarre::closeEvent(QCloseEvent* e) {
    if (!fermetureAcceptee_ && !ConfirmerFermeture(ctx_)) {
        e->ignore();
        return;
    }
    ReserverHaut(*this, 0);
    for (auto& m : menus_)
        if (m) m->hide();
    e->accept();
    if (fermee) fermee();
}

} // namespace verdane::qt
