#pragma once
// The formula dialog of a total line: the lines above it on the first tab, the series of the
// dossier on the second, each added at the end of the formula; the formula itself may be
// typed. What is added or refused is decided by tables/Totaliser.h.

#include "tables/Totaliser.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTreeWidget;

namespace verdane::qt {

class FrmTotaliser : public QDialog {
public:
    FrmTotaliser(Contexte& ctx, const TableauModele& tableau, int ligneTotal, const Texte& formule,
                 QWidget* parent = nullptr);

    Texte Formule() const;

    QLineEdit* txtFormule;
    QTabWidget* Onglets;
    // First tab: the lines above.
    QComboBox* ComboLignes;
    QPushButton* cmdAjouterLigne;
    // Second tab: a series, at the column's year, the year before, or a fixed year.
    QTreeWidget* TreeViewSeries;
    QRadioButton *OptionAnneeColonne, *OptionAnneePrecedente, *OptionAnneeFixe;
    QComboBox* ComboAnnee;
    QPushButton* cmdAjouterSerie;

private:
    void Montrer();

    Totaliser totaliser_;
};

} // namespace verdane::qt
