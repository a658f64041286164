#include "tables/qt/FrmTotaliser.h"

#include "tables/qt/OutilsDialogues.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace verdane::qt {

FrmTotaliser::FrmTotaliser(Contexte& ctx, const TableauModele& tableau, int ligneTotal,
                           const Texte& formule, QWidget* parent)
    : QDialog(parent), totaliser_(ctx, tableau, ligneTotal, formule) {
    setObjectName("FrmTotaliser");
    setWindowTitle(VersQt("Formule de la ligne de total n°" + std::to_string(ligneTotal)));
    auto* tout = new QVBoxLayout(this);
    Onglets = new QTabWidget(this);
    Onglets->setObjectName("Onglets");
    tout->addWidget(Onglets, 1);

    auto* lignes = new QWidget(Onglets);
    auto* dl = new QVBoxLayout(lignes);
    dl->addWidget(new QLabel(VersQt("Ligne du tableau à ajouter à la formule :"), lignes));
    ComboLignes = new QComboBox(lignes);
    ComboLignes->setObjectName("ComboLignes");
    int n = 0;
    for (const Texte& t : totaliser_.LignesProposees()) ComboLignes->addItem(VersQt(t), ++n);
    cmdAjouterLigne = new QPushButton(VersQt("Ajouter la ligne"), lignes);
    cmdAjouterLigne->setObjectName("cmdAjouterLigne");
    dl->addWidget(ComboLignes);
    dl->addWidget(cmdAjouterLigne);
    dl->addStretch(1);
    Onglets->addTab(lignes, VersQt("Lignes du tableau"));

    auto* series = new QWidget(Onglets);
    auto* ds = new QVBoxLayout(series);
    TreeViewSeries = new QTreeWidget(series);
    TreeViewSeries->setObjectName("TreeViewSeries");
    RemplirSeries(TreeViewSeries, ctx.etat.chemins.RepDatacfg);
    ds->addWidget(TreeViewSeries, 1);
    OptionAnneeColonne = new QRadioButton(VersQt("Année de la colonne"), series);
    OptionAnneeColonne->setObjectName("OptionAnneeColonne");
    OptionAnneeColonne->setChecked(true);
    OptionAnneePrecedente = new QRadioButton(VersQt("Année précédant la colonne (!A-1)"), series);
    OptionAnneePrecedente->setObjectName("OptionAnneePrecedente");
    OptionAnneeFixe = new QRadioButton(VersQt("Année fixe :"), series);
    OptionAnneeFixe->setObjectName("OptionAnneeFixe");
    ComboAnnee = new QComboBox(series);
    ComboAnnee->setObjectName("ComboAnnee");
    for (const Texte& t : TextesAnneesFixes()) ComboAnnee->addItem(VersQt(t));
    ds->addWidget(OptionAnneeColonne);
    ds->addWidget(OptionAnneePrecedente);
    auto* fixe = new QHBoxLayout;
    fixe->addWidget(OptionAnneeFixe);
    fixe->addWidget(ComboAnnee, 1);
    ds->addLayout(fixe);
    cmdAjouterSerie = new QPushButton(VersQt("Ajouter la série"), series);
    cmdAjouterSerie->setObjectName("cmdAjouterSerie");
    ds->addWidget(cmdAjouterSerie);
    Onglets->addTab(series, VersQt("Séries Marlo"));

    auto* operateurs = new QHBoxLayout;
    for (const char* op : {"+", "-", "*", "/", "(", ")"}) {
        auto* b = new QPushButton(op, this);
        b->setAutoDefault(false);
        b->setFixedWidth(32);
        operateurs->addWidget(b);
        connect(b, &QPushButton::clicked, this, [this, op] {
            totaliser_.Changer(DepuisQt(txtFormule->text()));
            totaliser_.Ajouter(op);
            Montrer();
        });
    }
    operateurs->addStretch(1);
    tout->addLayout(operateurs);
    tout->addWidget(new QLabel(VersQt("Formule :"), this));
    txtFormule = new QLineEdit(this);
    txtFormule->setObjectName("txtFormule");
    tout->addWidget(txtFormule);
    auto* boutons = BoutonsOkAnnuler(this);
    for (QAbstractButton* b : boutons->buttons())
        if (auto* p = qobject_cast<QPushButton*>(b)) p->setAutoDefault(false);
    tout->addWidget(boutons);

    connect(cmdAjouterLigne, &QPushButton::clicked, this, [this] {
        totaliser_.Changer(DepuisQt(txtFormule->text()));
        if (totaliser_.AjouterLigne(ComboLignes->currentData().toInt())) Montrer();
    });
    connect(cmdAjouterSerie, &QPushButton::clicked, this, [this] {
        const QTreeWidgetItem* item = TreeViewSeries->currentItem();
        const AnneeSerie annee = OptionAnneeFixe->isChecked()         ? AnneeSerie::Fixe
                                 : OptionAnneePrecedente->isChecked() ? AnneeSerie::Precedente
                                                                      : AnneeSerie::Colonne;
        totaliser_.Changer(DepuisQt(txtFormule->text()));
        if (totaliser_.AjouterSerie(item ? DepuisQt(item->data(0, kRoleCle).toString()) : Texte{},
                                    annee, ComboAnnee->currentIndex()))
            Montrer();
    });
    Montrer();
    resize(480, 520);
}

void FrmTotaliser::Montrer() {
    txtFormule->setText(VersQt(totaliser_.Formule()));
}

Texte FrmTotaliser::Formule() const {
    return DepuisQt(txtFormule->text());
}

} // namespace verdane::qt
