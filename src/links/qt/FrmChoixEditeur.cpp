#include "links/qt/FrmChoixEditeur.h"

#include "shell/Options.h"
#include "utils/qt/TexteQt.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace verdane::qt {

namespace {
const char* const kTitre = "Choix d'un éditeur de texte pour Verdane";
}

FrmChoixEditeur::FrmChoixEditeur(Contexte& ctx, const ParametresRecherche& recherche,
                                 QWidget* parent)
    : QDialog(parent), ctx_(ctx), recherche_(recherche),
      OptionWord_(new QRadioButton(QStringLiteral("Microsoft Word"), this)),
      OptionWordPro_(new QRadioButton(QStringLiteral("Lotus Word Pro"), this)),
      OptionOffice_(new QRadioButton(QStringLiteral("OpenOffice / LibreOffice"), this)),
      lblChemin_(new QLabel(this)) {
    setObjectName(QStringLiteral("FrmChoixEditeur"));
    setWindowTitle(VersQt(kTitre));
    OptionWord_->setObjectName(QStringLiteral("OptionWord"));
    OptionWordPro_->setObjectName(QStringLiteral("OptionWordPro"));
    OptionOffice_->setObjectName(QStringLiteral("OptionOffice"));
    lblChemin_->setObjectName(QStringLiteral("lblChemin"));
    lblChemin_->setWordWrap(true);
    lblChemin_->setFrameShape(QFrame::StyledPanel);
    lblChemin_->setMinimumWidth(380);

    auto* cadre =
        new QGroupBox(QStringLiteral("Traitements de texte trouvés sur cet ordinateur"), this);
    auto* lc = new QVBoxLayout(cadre);
    for (int e = 1; e <= 3; ++e) {
        QRadioButton* o = Option(e);
        o->setEnabled(false);
        lc->addWidget(o);
        connect(o, &QRadioButton::toggled, this, [this, e](bool oui) {
            if (!oui) return;
            const Texte& c = e == 1   ? trouves_.cheminWord
                             : e == 2 ? trouves_.cheminWordPro
                                      : trouves_.cheminOffice;
            lblChemin_->setText(VersQt(c));
        });
    }
    auto* cherche = new QPushButton(QStringLiteral("Autre programme..."), this);
    cherche->setObjectName(QStringLiteral("cmdCherche"));
    connect(cherche, &QPushButton::clicked, this, [this] {
        const QString choisi =
            QFileDialog::getOpenFileName(this, VersQt(kTitre), QStringLiteral("/usr/bin"),
                                         QStringLiteral("Fichier exécutable (*)"));
        if (choisi.isEmpty()) return;
        if (!QFileInfo(choisi).isExecutable()) {
            ctx_.utilisateur.Boite("Ce fichier n'est pas un programme : " + DepuisQt(choisi),
                                   kTitre, Icone::Attention);
            return;
        }
        PoserChemin(VersQt(CheminExecutableChoisi(DepuisQt(choisi))));
    });
    auto* valider = new QPushButton(QStringLiteral("Valider"), this);
    valider->setObjectName(QStringLiteral("comSvgPath"));
    valider->setDefault(true);
    connect(valider, &QPushButton::clicked, this, &FrmChoixEditeur::Valider);
    auto* annuler = new QPushButton(QStringLiteral("Annuler"), this);
    annuler->setObjectName(QStringLiteral("cmdAnnuler"));
    connect(annuler, &QPushButton::clicked, this, &FrmChoixEditeur::reject);

    auto* l = new QVBoxLayout(this);
    l->addWidget(cadre);
    l->addWidget(new QLabel(QStringLiteral("Éditeur choisi :"), this));
    l->addWidget(lblChemin_);
    auto* b = new QHBoxLayout;
    b->addWidget(cherche);
    b->addStretch(1);
    b->addWidget(valider);
    b->addWidget(annuler);
    l->addLayout(b);
    lblChemin_->setText(VersQt(ctx_.etat.options.CheminEditeur));
}

QRadioButton* FrmChoixEditeur::Option(int editeur) const {
    return editeur == 1 ? OptionWord_ : editeur == 2 ? OptionWordPro_ : OptionOffice_;
}

void FrmChoixEditeur::Detecter(SuiviRecherche& suivi) {
    trouves_ = DetecterEditeurs(ctx_, suivi, recherche_);
    const Texte chemins[] = {trouves_.cheminWord, trouves_.cheminWordPro, trouves_.cheminOffice};
    for (int e = 1; e <= 3; ++e) {
        const Texte& c = chemins[e - 1];
        QRadioButton* o = Option(e);
        o->setEnabled(!c.empty());
        o->setToolTip(VersQt(c));
        if (!c.empty() && c == ctx_.etat.options.CheminEditeur) o->setChecked(true);
    }
}

QString FrmChoixEditeur::Chemin() const {
    return lblChemin_->text();
}

void FrmChoixEditeur::PoserChemin(const QString& chemin) {
    for (int e = 1; e <= 3; ++e) {
        QRadioButton* o = Option(e);
        o->setAutoExclusive(false);
        o->setChecked(false);
        o->setAutoExclusive(true);
    }
    lblChemin_->setText(chemin);
}

void FrmChoixEditeur::Valider() {
    ValiderChoixEditeur(ctx_, DepuisQt(Chemin()));
    EnregistrerOptions(ctx_.etat);
    accept();
}

void FrmChoixEditeur::reject() {
    if (ctx_.utilisateur.Question("Quitter la fenêtre de sélection d'un éditeur ?",
                                  "Demande de confirmation", Boutons::OuiNon, Reponse::Oui,
                                  Icone::Question) == Reponse::Oui)
        QDialog::reject();
}

} // namespace verdane::qt
