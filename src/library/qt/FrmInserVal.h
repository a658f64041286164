#pragma once
// FrmInserVal: the data insertion dialog. The user picks a series in a tree (the dossier's
// catalogues, or the items of a crop, a perennial crop or an animal activity) and the kind of
// value wanted, or a general field by tab, or writes a formula; the code composed goes to the
// document's cursor.

#include "library/ComposeurCode.h"

#include <QDialog>

class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace verdane::qt {

class FrmInserVal : public QDialog {
public:
    // `tag`: the tree shown first ("CLASSIC", "CULTURE", "CULTPER", "ALIBANI").
    FrmInserVal(Contexte& ctx, const Texte& tag, QWidget* parent = nullptr);

    // The code of the current choices, without its marks; nothing (told) when they make none.
    std::optional<Texte> ComposerCode();
    // The clear text of the current series choice.
    Texte TexteEnClair() const;

    // Controls, by their names.
    QTabWidget* tabOnglets;
    QComboBox* ComboFamille;
    QTreeWidget* TreeViewSeries;
    QLabel* lblArbreVide;
    QRadioButton* OptionIntitule;
    QRadioButton* OptionUnite;
    QRadioButton* OptionInfoGene;
    QRadioButton* OptionAnneeVal;
    QRadioButton* OptionValeur;
    QComboBox* ComboValeur;
    QComboBox* ComboAnMinMax;
    QComboBox* ComboNbDecimal;
    QLabel* lblEnClair;
    std::vector<QListWidget*> ListChamps; // one per tab of general fields
    QComboBox* ComboAnneeExercice;
    QListWidget* ListOrganismes;
    QLineEdit* txtFormuleTot;
    QComboBox* ComboNumAnnee;
    QComboBox* ComboNbDecimalFormule;
    QPushButton* comAffEnClair;
    QPushButton* comInserData;
    QPushButton* cmdFermer;

private:
    void ChargerArbre();
    void ChoisirFeuille();
    void MettreAJourOptions();
    void Inserer();
    ChoixDonnee Choix() const;
    FamilleInsertion Famille() const;

    Contexte& ctx_;
    std::vector<OngletChamps> onglets_;
    int ongletSeries_ = 0;
    int ongletFormule_ = 0;
};

} // namespace verdane::qt
