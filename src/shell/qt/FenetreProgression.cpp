#include "shell/qt/FenetreProgression.h"

#include "utils/qt/TexteQt.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace verdane::qt {

FenetreProgression::FenetreProgression(QWidget* parent)
    : QWidget(parent,
              Qt::Tool | Qt::WindowStaysOnTopHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      lblTitre_(new QLabel(this)), lblLibelle_(new QLabel(this)), barre_(new QProgressBar(this)),
      cmdAnnuler_(new QPushButton(QStringLiteral("Annuler"), this)) {
    setObjectName(QStringLiteral("FrmProgression"));
    setWindowTitle(QStringLiteral("Verdane"));
    auto* l = new QVBoxLayout(this);
    l->addWidget(lblTitre_);
    l->addWidget(barre_);
    l->addWidget(lblLibelle_);
    l->addWidget(cmdAnnuler_, 0, Qt::AlignRight);
    barre_->setTextVisible(false);
    setMinimumWidth(420);
    QObject::connect(cmdAnnuler_, &QPushButton::clicked, this, [this] { annulee_ = true; });
}

void FenetreProgression::Commencer(const QString& titre, int maximum, bool annulable) {
    annulee_ = false;
    lblTitre_->setText(titre);
    lblLibelle_->clear();
    barre_->setRange(0, maximum);
    barre_->setValue(0);
    cmdAnnuler_->setVisible(annulable);
    adjustSize();
    if (const QScreen* ecran = QApplication::primaryScreen())
        move(ecran->availableGeometry().center() - rect().center());
    show();
    raise();
    Repeindre();
}

void FenetreProgression::Poser(int valeur, const QString& libelle) {
    barre_->setValue(std::clamp(valeur, barre_->minimum(), barre_->maximum()));
    lblLibelle_->setText(libelle);
    Repeindre();
}

void FenetreProgression::Terminer() {
    hide();
}

void FenetreProgression::Repeindre() {
    // The engine holds the one thread: the window is drawn now, and the cancel button heard.
    // Only a search can be cancelled: a generation takes no click until it ends.
    repaint();
    QApplication::processEvents(
        cmdAnnuler_->isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents, 20);
}

void SuiviRechercheQt::Commencer(const Texte& titre) {
    fenetre_.Commencer(VersQt(titre), 90, true);
}
void SuiviRechercheQt::Progresser(int valeur) {
    fenetre_.Poser(valeur, {});
}
bool SuiviRechercheQt::Annulee() {
    QApplication::processEvents();
    return fenetre_.Annulee();
}
void SuiviRechercheQt::Terminer() {
    fenetre_.Terminer();
}

} // namespace verdane::qt
