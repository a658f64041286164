#include "shell/qt/FrmDemarrage.h"

#include "shell/etat/Contexte.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmDemarrage::FrmDemarrage(Contexte& ctx, QWidget* parent)
    : QDialog(parent, Qt::WindowStaysOnTopHint), AnimatedGIF_(new QLabel(this)) {
    setObjectName(QStringLiteral("FrmDemarrage"));
    setWindowTitle(QStringLiteral("Verdane - Nouveautés"));
    AnimatedGIF_->setObjectName(QStringLiteral("AnimatedGIF"));
    AnimatedGIF_->setMinimumSize(128, 128);
    AnimatedGIF_->setAlignment(Qt::AlignCenter);

    const Texte chemin = AjouterBarre(ctx.etat.chemins.RepImages) + kImageCompagnon;
    auto* movie = new QMovie(VersQt(CheminTexte(CheminSysteme(chemin))), QByteArray(), this);
    // A picture is played only when its first frame can be read.
    if (FichierExiste(chemin) && movie->isValid() && movie->jumpToFrame(0) &&
        !movie->currentImage().isNull()) {
        movie_ = movie;
        AnimatedGIF_->setMovie(movie_);
        // The companion plays for as long as the window stands, whatever its repeat count.
        connect(movie_, &QMovie::finished, movie_, &QMovie::start, Qt::QueuedConnection);
        connect(movie_, &QMovie::error, movie_, &QMovie::stop);
        movie_->start();
    } else {
        delete movie;
        ctx.utilisateur.Boite("Image introuvable", "Erreur fichier", Icone::Attention);
    }

    auto* texte = new QLabel(
        QStringLiteral("<b>Bienvenue dans Verdane.</b><br><br>"
                       "La barre en haut de l'écran rassemble vos outils : DOCUMENT pour "
                       "ouvrir et enregistrer vos modèles, INSERTION pour y placer données, "
                       "tableaux, graphiques et dates, GENERER pour produire les documents du "
                       "dossier en cours.<br><br>"
                       "Cette fenêtre ne s'ouvre plus au démarrage si vous décochez « Popup "
                       "d'aide au démarrage » dans PROPRIETES."),
        this);
    texte->setObjectName(QStringLiteral("lblNouveautes"));
    texte->setWordWrap(true);
    texte->setMinimumWidth(340);
    auto* ok = new QPushButton(QStringLiteral("Fermer"), this);
    ok->setObjectName(QStringLiteral("cmdFermer"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* haut = new QHBoxLayout;
    haut->addWidget(AnimatedGIF_, 0, Qt::AlignTop);
    haut->addWidget(texte, 1);
    auto* l = new QVBoxLayout(this);
    l->addLayout(haut);
    l->addWidget(ok, 0, Qt::AlignRight);
}

} // namespace verdane::qt
