#include "tables/qt/FrmDefCell.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/qt/ListesFormat.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace verdane::qt {

FrmDefCell::FrmDefCell(const Cadre& cadre, QWidget* parent) : QDialog(parent) {
    setObjectName("FrmDefCell");
    setWindowTitle(VersQt("Définition des cellules"));
    auto* formulaire = new QFormLayout(this);
    static const char* const noms[] = {
        "Bordure haute :", "Bordure basse :", "Bordure gauche :", "Bordure droite :"};
    static const char* const objets[] = {"ComboHaut", "ComboBas", "ComboGauche", "ComboDroite"};
    for (std::size_t b = 0; b < 4; ++b) {
        ComboBord[b] = new QComboBox(this);
        ComboBord[b]->setObjectName(objets[b]);
        for (const char* t : {"aucune", "simple", "double"}) ComboBord[b]->addItem(t);
        ComboBord[b]->setCurrentIndex(cadre.bords[b]);
        formulaire->addRow(VersQt(noms[b]), ComboBord[b]);
    }
    ComboFond = new QComboBox(this);
    ComboFond->setObjectName("ComboFond");
    RemplirCouleurs(ComboFond, 24);
    ComboFond->setCurrentIndex(cadre.fond - 1);
    formulaire->addRow(VersQt("Couleur de fond :"), ComboFond);

    cmd1 = new QPushButton("1", this);
    cmd1->setObjectName("cmd1");
    cmd1->setToolTip(VersQt("Appliquer à la cellule"));
    cmdS = new QPushButton("S", this);
    cmdS->setObjectName("cmdS");
    cmdS->setToolTip(VersQt("Appliquer à toutes les cellules de la ligne"));
    cmdAnnuler = new QPushButton(VersQt("Annuler"), this);
    cmdAnnuler->setObjectName("cmdAnnuler");
    auto* boutons = new QHBoxLayout;
    for (QPushButton* b : {cmd1, cmdS, cmdAnnuler}) {
        b->setAutoDefault(false);
        boutons->addWidget(b);
    }
    formulaire->addRow(boutons);
    connect(cmd1, &QPushButton::clicked, this, [this] {
        toutLaLigne_ = false;
        accept();
    });
    connect(cmdS, &QPushButton::clicked, this, [this] {
        toutLaLigne_ = true;
        accept();
    });
    connect(cmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
}

Cadre FrmDefCell::Valeur() const {
    Cadre c;
    for (std::size_t b = 0; b < 4; ++b) c.bords[b] = ComboBord[b]->currentIndex();
    c.fond = ComboFond->currentIndex() + 1;
    return c;
}

} // namespace verdane::qt
