#include "graphs/qt/FrmSerieGraph.h"

#include "graphs/qt/RenduGraphique.h"
#include "utils/Texte.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmSerieGraph::FrmSerieGraph(PortUtilisateur& utilisateur, const SerieGraph& serie, int i,
                             QWidget* parent)
    : QDialog(parent), utilisateur_(utilisateur) {
    setObjectName("FrmSerieGraph");
    setWindowTitle(VersQt(TitreDialogueSerie(i)));
    const DialogueSerie d = ChargerSerie(serie);
    couleur_ = d.couleur;

    txtNom = new QLineEdit(VersQt(d.nom), this);
    txtNom->setObjectName("txtNom");
    txtNom->setMaxLength(static_cast<int>(kLargeurNomSerie));
    ComboBrosse = new QComboBox(this);
    ComboBrosse->setObjectName("ComboBrosse");
    ComboBrosse->addItems({QStringLiteral("vide"), QStringLiteral("solide"), VersQt("hachuré")});
    ComboBrosse->setCurrentIndex(d.brosse);
    txtEpaisseurTrait = new QLineEdit(VersQt(d.epaisseur), this);
    txtEpaisseurTrait->setObjectName("txtEpaisseurTrait");
    OptionAxeY[0] = new QRadioButton(VersQt("1er axe des Y"), this);
    OptionAxeY[1] = new QRadioButton(VersQt("2ème axe des Y"), this);
    OptionAxeY[0]->setObjectName("OptionAxeY0");
    OptionAxeY[1]->setObjectName("OptionAxeY1");
    OptionAxeY[d.axeY2 ? 1 : 0]->setChecked(true);
    cmdCouleur = new QPushButton(QStringLiteral("Couleur..."), this);
    cmdCouleur->setObjectName("cmdCouleur");
    cmdValider = new QPushButton(QStringLiteral("Valider"), this);
    cmdValider->setObjectName("cmdValider");
    cmdValider->setDefault(true);
    cmdAnnuler = new QPushButton(QStringLiteral("Annuler"), this);
    cmdAnnuler->setObjectName("cmdAnnuler");

    auto* formulaire = new QFormLayout;
    formulaire->addRow(VersQt("Nom de la série :"), txtNom);
    formulaire->addRow(QStringLiteral("Brosse :"), ComboBrosse);
    formulaire->addRow(QStringLiteral("Epaisseur du trait :"), txtEpaisseurTrait);
    auto* axes = new QHBoxLayout;
    axes->addWidget(OptionAxeY[0]);
    axes->addWidget(OptionAxeY[1]);
    formulaire->addRow(VersQt(LibelleAxeSerie(i)), axes);
    formulaire->addRow(QStringLiteral("Couleur :"), cmdCouleur);
    auto* boutons = new QHBoxLayout;
    boutons->addStretch();
    boutons->addWidget(cmdValider);
    boutons->addWidget(cmdAnnuler);
    auto* tout = new QVBoxLayout(this);
    tout->addLayout(formulaire);
    tout->addLayout(boutons);

    connect(cmdCouleur, &QPushButton::clicked, this, [this] { ChoisirCouleur(); });
    connect(cmdValider, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
    MontrerCouleur();
}

DialogueSerie FrmSerieGraph::Valeurs() const {
    DialogueSerie d;
    d.nom = DepuisQt(txtNom->text());
    d.brosse = ComboBrosse->currentIndex();
    d.epaisseur = DepuisQt(txtEpaisseurTrait->text());
    d.axeY2 = OptionAxeY[1]->isChecked();
    d.couleur = couleur_;
    return d;
}

void FrmSerieGraph::ChoisirCouleur() {
    if (!CouleurPermise(utilisateur_, ComboBrosse->currentIndex())) return;
    const QColor choisie =
        QColorDialog::getColor(VersQColor(couleur_), this, VersQt("Couleur de la série"));
    if (!choisie.isValid()) return; // cancelled: the colour stays
    couleur_ = {choisie.red(), choisie.green(), choisie.blue()};
    MontrerCouleur();
}

void FrmSerieGraph::MontrerCouleur() {
    const QColor c = VersQColor(couleur_);
    cmdCouleur->setStyleSheet(QStringLiteral("background-color: %1; color: %2")
                                  .arg(c.name(), c.lightness() < 128 ? QStringLiteral("white")
                                                                     : QStringLiteral("black")));
}

} // namespace verdane::qt
