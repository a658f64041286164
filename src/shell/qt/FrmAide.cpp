#include "shell/qt/FrmAide.h"

#include "shell/MenusBarre.h"
#include "shell/qt/Ecran.h"
#include "utils/qt/TexteQt.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace verdane::qt {

namespace {
constexpr int kLargeurTwips = 9000;
}

FrmAide::FrmAide(bool marlo, QWidget* parent)
    : QDialog(parent, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), marlo_(marlo),
      lblTitre_(new QLabel(this)), lblMessage_(new QLabel(this)), lblTechnique_(new QLabel(this)),
      entreesAide_(new QWidget(this)), cmdFermer_(new QPushButton(QStringLiteral("Fermer"), this)) {
    setObjectName(QStringLiteral("FrmAide"));
    // Part of the bar: it keeps its own look, not the skin's window frame.
    setProperty("verdaneSansSkin", true);
    setModal(true);
    lblTitre_->setObjectName(QStringLiteral("lblTitre"));
    lblMessage_->setObjectName(QStringLiteral("lblMessage"));
    lblTechnique_->setObjectName(QStringLiteral("lblTechnique"));
    cmdFermer_->setObjectName(QStringLiteral("cmdFermer"));
    QFont gras = lblTitre_->font();
    gras.setBold(true);
    lblTitre_->setFont(gras);
    for (QLabel* l : {lblMessage_, lblTechnique_}) {
        l->setWordWrap(true);
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    lblMessage_->setFont(gras);

    auto* entrees = new QHBoxLayout(entreesAide_);
    entrees->setContentsMargins(0, 0, 0, 0);
    for (const EntreeMenu* e : EntreesMenu(Menu::Aide)) {
        auto* b = new QPushButton(VersQt(e->libelle), entreesAide_);
        b->setObjectName(QString::fromLatin1(e->controle));
        b->setToolTip(VersQt(e->bulle));
        b->setFlat(true);
        connect(b, &QPushButton::clicked, this, [this, e] {
            if (!ctx_) return;
            Fermer();
            const SuiteEntree suite = ExecuterEntree(*ctx_, *e);
            if (!suite.adresse.empty())
                QDesktopServices::openUrl(QUrl::fromUserInput(VersQt(suite.adresse)));
        });
    }

    auto* l = new QVBoxLayout(this);
    l->addWidget(lblTitre_);
    l->addWidget(lblMessage_);
    l->addWidget(lblTechnique_, 1);
    l->addWidget(entreesAide_);
    l->addWidget(cmdFermer_, 0, Qt::AlignRight);
    setStyleSheet(QStringLiteral("QDialog#FrmAide { border: 1px solid #8e9bab; }"));
    connect(cmdFermer_, &QPushButton::clicked, this, &FrmAide::Fermer);

    minuterie_.setInterval(kPeriodeDeroulement);
    connect(&minuterie_, &QTimer::timeout, this, [this] {
        deroulement_.Tic();
        if (!deroulement_.EnMouvement()) minuterie_.stop();
    });
}

QColor FrmAide::CouleurTexte(const Texte& genre) {
    return genre.empty() ? QColor(192, 0, 0) : QColor(Qt::black);
}

void FrmAide::Afficher(const Message& m) {
    if (m.texte.empty()) return;
    seule_ = m.genre == "seule";
    lblTitre_->setText(VersQt(m.titre));
    lblMessage_->setText(VersQt(m.texte));
    QPalette p = lblMessage_->palette();
    p.setColor(QPalette::WindowText, CouleurTexte(m.genre));
    lblMessage_->setPalette(p);
    lblTechnique_->setText(VersQt(m.technique));
    lblTechnique_->setVisible(!m.technique.empty());
    entreesAide_->setVisible(m.genre == "Aide" && ctx_ != nullptr);
    setWindowTitle(VersQt(m.titre));
    hauteurTwips_ = 0;
    deroulement_.Ouvrir(Menu::Aide, marlo_, *this, 210);
    if (seule_) {
        // No bar above: the panel stands whole in the middle of the screen.
        while (deroulement_.EnMouvement()) deroulement_.Tic();
        move(CentreEcran(size()));
    } else {
        minuterie_.start();
    }
    exec();
    minuterie_.stop();
}

void FrmAide::PoserHauteur(int twips) {
    hauteurTwips_ = twips;
    setFixedSize(EnPixels(kLargeurTwips), std::max(1, EnPixels(twips)));
}

void FrmAide::Placer(int gaucheTwips) {
    gauchePixels_ = EnPixels(gaucheTwips);
    move(OrigineEcran() + QPoint(gauchePixels_, kHauteurBarre));
    PoserHauteur(0);
}

void FrmAide::Retirer() {
    hide();
}

void FrmAide::Fermer() {
    minuterie_.stop();
    accept();
}

} // namespace verdane::qt
