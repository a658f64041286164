#include "library/qt/FrmInfoBulle.h"

#include "library/InfoBulle.h"
#include "utils/qt/TexteQt.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace verdane::qt {

FrmInfoBulle::FrmInfoBulle(Contexte& ctx, QWidget* parent) : QDialog(parent), ctx_(ctx) {
    setObjectName("FrmInfoBulle");
    setWindowTitle(QStringLiteral("Insertion d'une info-bulle"));
    auto* principal = new QVBoxLayout(this);
    auto* champs = new QFormLayout;
    txtTitre = new QLineEdit;
    lblResteTitre = new QLabel;
    txtCommentaire = new QPlainTextEdit;
    txtCommentaire->setMinimumSize(360, 120);
    txtTexteAnnote = new QLineEdit;
    txtCodeAffiche = new QLineEdit;
    txtCodeAffiche->setPlaceholderText(QStringLiteral("MRL"));
    txtTaille = new QSpinBox;
    txtTaille->setRange(6, 72);
    txtTaille->setValue(10);
    champs->addRow(QStringLiteral("Titre"), txtTitre);
    champs->addRow(QString(), lblResteTitre);
    champs->addRow(QStringLiteral("Commentaire"), txtCommentaire);
    champs->addRow(QStringLiteral("Texte annoté"), txtTexteAnnote);
    champs->addRow(QStringLiteral("Code à afficher"), txtCodeAffiche);
    champs->addRow(QStringLiteral("Taille du code"), txtTaille);
    principal->addLayout(champs);
    auto* boutons = new QHBoxLayout;
    cmdInserer = new QPushButton(QStringLiteral("Insérer"));
    cmdFermer = new QPushButton(QStringLiteral("Fermer"));
    boutons->addStretch();
    boutons->addWidget(cmdInserer);
    boutons->addWidget(cmdFermer);
    principal->addLayout(boutons);

    const auto reste = [this] {
        const auto n = static_cast<long>(DepuisQt(txtTitre->text()).size());
        const long r = static_cast<long>(kTitreInfoBulleMax) - n;
        lblResteTitre->setText(r >= 0 ? QStringLiteral("%1 caractère(s) restant(s)").arg(r)
                                      : QStringLiteral("%1 caractère(s) en trop").arg(-r));
    };
    reste();
    connect(txtTitre, &QLineEdit::textChanged, this, reste);
    connect(cmdInserer, &QPushButton::clicked, this, [this] {
        PiecesInfoBulle p;
        p.titre = DepuisQt(txtTitre->text());
        // A line end would end the annotation's group: the comment is one line.
        p.commentaire = DepuisQt(txtCommentaire->toPlainText().simplified());
        p.texteAnnote = DepuisQt(txtTexteAnnote->text());
        p.codeAffiche = DepuisQt(txtCodeAffiche->text());
        p.taille = txtTaille->value();
        if (InsererInfoBulle(ctx_, p)) accept();
    });
    connect(cmdFermer, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace verdane::qt
