#include "shell/qt/FrmAPropos.h"

#include "shell/Proprietes.h"
#include "shell/etat/Contexte.h"
#include "utils/qt/TexteQt.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace verdane::qt {

FrmMotDePasse::FrmMotDePasse(Contexte& ctx, QWidget* parent)
    : QDialog(parent), ctx_(ctx), txtMotDePasse_(new QLineEdit(this)) {
    setObjectName(QStringLiteral("FrmMotDePasse"));
    setWindowTitle(QStringLiteral("Mot de passe administrateur"));
    txtMotDePasse_->setObjectName(QStringLiteral("txtMotDePasse"));
    txtMotDePasse_->setEchoMode(QLineEdit::Password);
    txtMotDePasse_->setMaxLength(6);
    auto* l = new QVBoxLayout(this);
    l->addWidget(new QLabel(QStringLiteral("Saisissez le mot de passe de l'accès total :"), this));
    l->addWidget(txtMotDePasse_);
    auto* valider = new QPushButton(QStringLiteral("Valider"), this);
    valider->setObjectName(QStringLiteral("cmdValider"));
    valider->setDefault(true);
    auto* annuler = new QPushButton(QStringLiteral("Annuler"), this);
    annuler->setObjectName(QStringLiteral("cmdAnnuler"));
    auto* b = new QHBoxLayout;
    b->addStretch(1);
    b->addWidget(valider);
    b->addWidget(annuler);
    l->addLayout(b);
    connect(valider, &QPushButton::clicked, this, &FrmMotDePasse::Valider);
    connect(annuler, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmMotDePasse::Valider() {
    ValiderMotDePasse(ctx_, DepuisQt(txtMotDePasse_->text()));
    accept();
}

FrmAPropos::FrmAPropos(Contexte& ctx, QWidget* parent) : QDialog(parent), ctx_(ctx) {
    setObjectName(QStringLiteral("FrmAPropos"));
    setWindowTitle(QStringLiteral("A propos de Verdane"));
    auto* l = new QVBoxLayout(this);
    auto* titre = new QLabel(QStringLiteral("<h2>Verdane</h2>"), this);
    titre->setObjectName(QStringLiteral("lblTitre"));
    l->addWidget(titre);
    auto* texte =
        new QLabel(QStringLiteral("Générateur de documents des dossiers Marlo : lettres, rapports, "
                                  "tableaux, graphiques et pages du PDE.\n"
                                  "Les modèles se rédigent dans le traitement de texte, les codes "
                                  "s'insèrent depuis la barre Verdane."),
                   this);
    texte->setWordWrap(true);
    l->addWidget(texte);
    auto* acces = new QPushButton(QStringLiteral("Accès total"), this);
    acces->setObjectName(QStringLiteral("comAccesTotal"));
    auto* ok = new QPushButton(QStringLiteral("Fermer"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto* b = new QHBoxLayout;
    b->addWidget(acces);
    b->addStretch(1);
    b->addWidget(ok);
    l->addLayout(b);
    setMinimumWidth(420);
    connect(acces, &QPushButton::clicked, this, &FrmAPropos::AccesTotal);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

void FrmAPropos::AccesTotal() {
    if (!DemanderAccesTotal(ctx_)) return;
    FrmMotDePasse mdp(ctx_, this);
    mdp.exec();
}

} // namespace verdane::qt
