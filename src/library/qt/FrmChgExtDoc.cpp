#include "library/qt/FrmChgExtDoc.h"

#include "library/FormatsDocument.h"
#include "library/GestModeles.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmChgExtDoc::FrmChgExtDoc(Contexte& ctx, const Texte& document, QWidget* parent)
    : QDialog(parent), ctx_(ctx), document_(document) {
    setObjectName("FrmChgExtDoc");
    setWindowTitle(VersQt("Conversion de " + NomFichier(document)));
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(new QLabel(VersQt("Cochez le format désiré puis validez."), this));
    for (const FormatOffert& f : FormatsOfferts(ctx.etat)) {
        auto* option = new QRadioButton(VersQt(f.libelle), this);
        option->setObjectName(VersQt(Texte("Option") + f.lettre));
        formats_.emplace_back(f.lettre, option);
        disposition->addWidget(option);
    }
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    boutons->button(QDialogButtonBox::Ok)->setText(VersQt("Valider"));
    boutons->button(QDialogButtonBox::Cancel)->setText(VersQt("Annuler"));
    connect(boutons, &QDialogButtonBox::accepted, this, &FrmChgExtDoc::Valider);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    disposition->addWidget(boutons);
}

void FrmChgExtDoc::Valider() {
    for (const auto& [lettre, option] : formats_) {
        if (!option->isChecked()) continue;
        if (ConvertirEnFormat(ctx_, document_, lettre)) accept();
        return;
    }
    ctx_.utilisateur.Boite("Cochez le format désiré puis validez.", "Conversion d'un document",
                           Icone::Information);
}

} // namespace verdane::qt
