#include "tables/qt/FrmLargeurTab.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/DialoguesCellule.h"
#include "tables/qt/OutilsDialogues.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

namespace verdane::qt {

FrmLargeurTab::FrmLargeurTab(int colonne, int nbColonnes, int largeur, QWidget* parent)
    : QDialog(parent) {
    setObjectName("FrmLargeurTab");
    setWindowTitle(VersQt("Largeur des colonnes"));
    auto* tout = new QVBoxLayout(this);
    auto* question = new QLabel(VersQt(QuestionLargeur(colonne, nbColonnes)), this);
    question->setObjectName("lblQuestion");
    tout->addWidget(question);
    txtLargeur = new QSpinBox(this);
    txtLargeur->setObjectName("txtLargeur");
    txtLargeur->setRange(100, 30000);
    txtLargeur->setSingleStep(100);
    txtLargeur->setSuffix(" twips");
    txtLargeur->setValue(largeur);
    tout->addWidget(txtLargeur);
    if (colonne <= 0) {
        auto* aide = new QLabel(VersQt(AideLargeurValeurs()), this);
        aide->setObjectName("lblAide");
        aide->setWordWrap(true);
        tout->addWidget(aide);
    }
    tout->addWidget(BoutonsOkAnnuler(this));
}

int FrmLargeurTab::Largeur() const {
    return txtLargeur->value();
}

} // namespace verdane::qt
