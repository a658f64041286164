#include "shell/qt/FrmMenu.h"

#include "shell/Proprietes.h"
#include "shell/etat/Contexte.h"
#include "shell/qt/Ecran.h"
#include "utils/qt/TexteQt.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QUrl>
#include <QVBoxLayout>

namespace verdane::qt {

// One entry: its picture, its label and its hint, highlighted together under the mouse.
class EntreeQt : public QWidget {
public:
    EntreeQt(const EntreeMenu& e, QWidget* parent) : QWidget(parent), entree(e) {
        setObjectName(QString::fromLatin1(e.controle));
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
        auto* l = new QHBoxLayout(this);
        l->setContentsMargins(2, 1, 2, 1);
        auto* image = new QLabel(QStringLiteral("\u25B6"), this);
        image->setObjectName(QStringLiteral("Image") + objectName().mid(3));
        auto* textes = new QVBoxLayout;
        textes->setSpacing(0);
        libelle_ = new QLabel(VersQt(e.libelle), this);
        libelle_->setObjectName(objectName() + QStringLiteral("Libelle"));
        QFont gras = libelle_->font();
        gras.setBold(true);
        libelle_->setFont(gras);
        textes->addWidget(libelle_);
        if (*e.bulle) {
            bulle_ = new QLabel(VersQt(e.bulle), this);
            bulle_->setObjectName(objectName() + QStringLiteral("Bulle"));
            bulle_->setWordWrap(true);
            QFont petit = bulle_->font();
            petit.setPointSizeF(petit.pointSizeF() * 0.85);
            bulle_->setFont(petit);
            setToolTip(bulle_->text());
        }
        if (bulle_) textes->addWidget(bulle_);
        l->addWidget(image, 0, Qt::AlignTop);
        l->addLayout(textes, 1);
        Surligner(false);
    }
    void Surligner(bool oui) {
        surligne = oui;
        libelle_->setStyleSheet(oui ? QStringLiteral("color: #1b4f82; text-decoration: underline;")
                                    : QStringLiteral("color: #22354f;"));
        if (bulle_)
            bulle_->setStyleSheet(oui ? QStringLiteral("color: #1b4f82;")
                                      : QStringLiteral("color: #555555;"));
    }
    const EntreeMenu& entree;
    bool surligne = false;
    std::function<void()> clic;

protected:
    void enterEvent(QEnterEvent*) override { Surligner(true); }
    void leaveEvent(QEvent*) override { Surligner(false); }
    void mousePressEvent(QMouseEvent* e) override { e->accept(); }
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton && rect().contains(e->position().toPoint()) && clic)
            clic();
    }

private:
    QLabel* libelle_ = nullptr;
    QLabel* bulle_ = nullptr;
};

int FrmMenu::LargeurTwips(Menu menu) {
    return menu == Menu::Options ? 5400 : 4200;
}

FrmMenu::FrmMenu(Contexte& ctx, GestionBarre& gestion, Menu menu, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus),
      ctx_(ctx), gestion_(gestion), menu_(menu) {
    setObjectName(QString::fromLatin1(Definition(menu).forme));
    // Part of the bar: it keeps its own look, not the skin's window frame.
    setProperty("verdaneSansSkin", true);
    setMouseTracking(true);
    setAutoFillBackground(true);
    setStyleSheet(QStringLiteral("QWidget#%1 { background: #f4f6f9; border: 1px solid #8e9bab; }")
                      .arg(objectName()));
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(6, 2, 4, 4);
    l->setSpacing(2);

    auto* haut = new QHBoxLayout;
    haut->addStretch(1);
    auto* fermer = new QPushButton(QStringLiteral("\u2715"), this);
    fermer->setObjectName(QStringLiteral("cmdFermer"));
    fermer->setFlat(true);
    fermer->setFixedSize(18, 18);
    fermer->setToolTip(QStringLiteral("Fermer"));
    connect(fermer, &QPushButton::clicked, this,
            [this] { gestion_.PoserJeton(Definition(menu_).fermeture, *this); });
    haut->addWidget(fermer);
    l->addLayout(haut);

    if (menu == Menu::Options) {
        auto* cadre = new QGroupBox(QStringLiteral("Traitement de texte utilisé"), this);
        auto* lc = new QVBoxLayout(cadre);
        lblEditeur_ = new QLabel(cadre);
        lblEditeur_->setObjectName(QStringLiteral("lblEditeur"));
        lc->addWidget(lblEditeur_);
        l->addWidget(cadre);
        auto* insertion = new QGroupBox(QStringLiteral("Insertion du code Verdane"), this);
        auto* li = new QHBoxLayout(insertion);
        optALaLigne_ = new QRadioButton(QStringLiteral("insertion à la ligne"), insertion);
        optALaLigne_->setObjectName(QStringLiteral("OptionALaLigne"));
        optALaSuite_ = new QRadioButton(QStringLiteral("insertion à la suite"), insertion);
        optALaSuite_->setObjectName(QStringLiteral("OptionALaSuite"));
        li->addWidget(optALaLigne_);
        li->addWidget(optALaSuite_);
        l->addWidget(insertion);
        auto* messagerie = new QGroupBox(QStringLiteral("Messagerie Verdane"), this);
        auto* lm = new QVBoxLayout(messagerie);
        CheckAffPopup_ = new QCheckBox(QStringLiteral("Popup d'aide au démarrage"), messagerie);
        CheckAffPopup_->setObjectName(QStringLiteral("CheckAffPopup"));
        lm->addWidget(CheckAffPopup_);
        l->addWidget(messagerie);
        const auto appliquer = [this] {
            AppliquerProprietes(ctx_.etat, optALaLigne_->isChecked(), CheckAffPopup_->isChecked());
        };
        connect(optALaLigne_, &QRadioButton::toggled, this, appliquer);
        connect(CheckAffPopup_, &QCheckBox::toggled, this, appliquer);
    }

    for (const EntreeMenu* e : EntreesMenu(menu)) {
        auto* entree = new EntreeQt(*e, this);
        entree->clic = [this, e] { Executer(*e); };
        entrees_.push_back(entree);
        l->addWidget(entree);
    }
    l->addStretch(1);
    PoserHauteur(0);
}

void FrmMenu::AfficherProprietes() {
    if (!lblEditeur_) return;
    const VueProprietes v = LireProprietes(ctx_.etat);
    lblEditeur_->setText(VersQt(v.editeur));
    const QSignalBlocker b1(optALaLigne_), b2(CheckAffPopup_);
    (v.aLaLigne ? optALaLigne_ : optALaSuite_)->setChecked(true);
    CheckAffPopup_->setChecked(v.popupDemarrage);
}

void FrmMenu::Cliquer(const QString& controle) {
    for (EntreeQt* e : entrees_)
        if (e->objectName() == controle) Executer(e->entree);
}

void FrmMenu::Executer(const EntreeMenu& e) {
    gestion_.PoserJeton(Definition(menu_).fermeture, *this);
    EffacerSurvol();
    const SuiteEntree suite = ExecuterEntree(ctx_, e);
    if (!suite.adresse.empty())
        QDesktopServices::openUrl(QUrl::fromUserInput(VersQt(suite.adresse)));
    AfficherProprietes();
}

void FrmMenu::EffacerSurvol() {
    for (EntreeQt* e : entrees_) e->Surligner(false);
}

void FrmMenu::mouseMoveEvent(QMouseEvent* e) {
    // Moving on the form itself, off the entries, resets their highlight.
    EffacerSurvol();
    QWidget::mouseMoveEvent(e);
}

void FrmMenu::PoserHauteur(int twips) {
    hauteurTwips_ = twips;
    setFixedSize(EnPixels(LargeurTwips(menu_)), std::max(1, EnPixels(twips)));
}

void FrmMenu::Placer(int gaucheTwips) {
    move(OrigineEcran() + QPoint(EnPixels(gaucheTwips), kHauteurBarre));
}

} // namespace verdane::qt
