#include "library/qt/FrmDate.h"

#include "library/FormesDate.h"
#include "utils/qt/TexteQt.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmDate::FrmDate(Contexte& ctx, QWidget* parent) : QDialog(parent), ctx_(ctx) {
    setObjectName("FrmDate");
    setWindowTitle(QStringLiteral("Insertion d'une date"));
    auto* principal = new QVBoxLayout(this);
    principal->addWidget(new QLabel(QStringLiteral("Format de la date à insérer :")));
    ListFormatsDate = new QListWidget;
    ListFormatsDate->setObjectName("ListFormatsDate");
    for (const auto& date : ListeFormatsDate(Maintenant(ctx_)))
        ListFormatsDate->addItem(VersQt(date));
    ListFormatsDate->setCurrentRow(0);
    ListFormatsDate->setMinimumSize(320, 300);
    principal->addWidget(ListFormatsDate);
    CheckMajAuto = new QCheckBox(
        QStringLiteral("Mise à jour automatique de la date à chaque création de document"));
    CheckMajAuto->setObjectName("CheckMajAuto");
    principal->addWidget(CheckMajAuto);
    auto* boutons = new QHBoxLayout;
    cmdInserer = new QPushButton(QStringLiteral("Insérer"));
    cmdFermer = new QPushButton(QStringLiteral("Fermer"));
    cmdInserer->setDefault(true);
    boutons->addStretch();
    boutons->addWidget(cmdInserer);
    boutons->addWidget(cmdFermer);
    principal->addLayout(boutons);

    const auto inserer = [this] {
        if (InsererDate(ctx_, ListFormatsDate->currentRow(), CheckMajAuto->isChecked())) accept();
    };
    connect(cmdInserer, &QPushButton::clicked, this, inserer);
    connect(ListFormatsDate, &QListWidget::itemDoubleClicked, this, inserer);
    connect(cmdFermer, &QPushButton::clicked, this, &QDialog::reject);
}

} // namespace verdane::qt
