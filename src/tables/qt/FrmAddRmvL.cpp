#include "tables/qt/FrmAddRmvL.h"

#include "graphs/qt/RenduGraphique.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

namespace verdane::qt {

Texte FrmAddRmvL::Refus(char mode, int nbLignes) {
    if (nbLignes > 0 || mode == 'a') return {};
    switch (mode) {
    case 's':
        return "Aucune ligne à supprimer dans ce tableau !";
    case 'm':
        return "Aucune ligne à déplacer dans ce tableau !";
    default:
        return "Aucune ligne à dupliquer dans ce tableau !";
    }
}

FrmAddRmvL::FrmAddRmvL(char mode, int nbLignes, int ligne, QWidget* parent) : QDialog(parent) {
    setObjectName("FrmAddRmvL");
    const char* titre = mode == 'a'   ? "Ajout d'une ligne au tableau"
                        : mode == 'm' ? "Déplacement d'une ligne du tableau"
                        : mode == 'd' ? "Duplication d'une ligne du tableau"
                                      : "Suppression d'une ligne du tableau";
    setWindowTitle(VersQt(titre));
    txtLigne = new QSpinBox(this);
    txtLigne->setObjectName("txtLigne");
    txtLigne->setRange(mode == 'a' ? 0 : 1, std::max(nbLignes, 1));
    txtLigne->setValue(std::clamp(ligne, txtLigne->minimum(), txtLigne->maximum()));
    txtCible = new QSpinBox(this);
    txtCible->setObjectName("txtCible");
    txtCible->setRange(1, std::max(nbLignes, 1));
    txtCible->setValue(std::clamp(ligne, 1, std::max(nbLignes, 1)));
    ComboPosition = new QComboBox(this);
    ComboPosition->setObjectName("ComboPosition");
    ComboPosition->addItems({VersQt("avant"), VersQt("après")});
    ComboPosition->setCurrentIndex(1);

    auto* formulaire = new QFormLayout(this);
    if (mode == 'a') {
        formulaire->addRow(VersQt("Ajouter une ligne après la ligne n° (0 : en tête) :"), txtLigne);
    } else {
        formulaire->addRow(VersQt("Ligne n° :"), txtLigne);
    }
    if (mode == 'm') {
        formulaire->addRow(VersQt("La placer :"), ComboPosition);
        formulaire->addRow(VersQt("la ligne n° :"), txtCible);
    } else {
        ComboPosition->hide();
        txtCible->hide();
    }
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    formulaire->addRow(boutons);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

int FrmAddRmvL::Ligne() const {
    return txtLigne->value();
}
int FrmAddRmvL::Cible() const {
    return txtCible->value();
}
bool FrmAddRmvL::Apres() const {
    return ComboPosition->currentIndex() == 1;
}

} // namespace verdane::qt
