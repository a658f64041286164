#pragma once
// The line dialog: the texts of the label cells, the kind of the line with its defaults, and a
// page per kind that composes the definition of the value cells (header form, series of the
// catalogues, simple or free total, pre-defined lines, value of a repeated table), and the text
// format of each cell. What is composed or refused is decided by tables/DialoguesLigne.h, the
// formats by tables/FormatsLigne.h.

#include "tables/EditeurTableaux.h"
#include "tables/FormatsLigne.h"

#include <QDialog>

#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QTreeWidget;

namespace verdane::qt {

class FrmTexte : public QDialog {
public:
    FrmTexte(Contexte& ctx, const TableauModele& tableau, int numero, QWidget* parent = nullptr);

    // The line as the user left it: label texts cleaned, the kind's defaults applied when the
    // kind was changed, and the definition composed or typed.
    LigneModele Ligne() const;
    // OK: the checks of the page (formula, series label) before closing.
    void accept() override;
    // Writes the definition of the shown page into txtDefinition.
    void Composer();

    std::vector<QLineEdit*> txtLibelle;
    QComboBox* ComboGenre;
    QLineEdit* txtDefinition;
    QStackedWidget* PagesValeurs;
    QLabel* lblTitre;
    // Text format of the cell chosen: the value cells (first entry) or a label cell.
    QComboBox *ComboCellule, *ComboPolice, *ComboTaille, *ComboCouleur, *ComboAlignement;
    QCheckBox *CheckGras, *CheckItalique, *CheckSouligne, *CheckBarre, *CheckOmbre;
    // Header.
    QComboBox* ComboFormeEntete;
    QLabel* lblExemple;
    QLineEdit *txtDebut, *txtFin;
    // Series.
    QTreeWidget* TreeViewSeries;
    // The repeated tables' values, from the catalogue of the line's kind.
    QTreeWidget* TreeViewElements;
    // Totals; cmdTotaliser opens the formula dialog.
    QTabWidget* OngletsTotal;
    QComboBox *ComboLigneA, *ComboOperateur, *ComboLigneB;
    QLineEdit* txtFormule;
    QPushButton* cmdTotaliser;
    // Pre-defined lines.
    QTreeWidget* TreeViewPredefinies;
    // Shared by the value kinds.
    QComboBox *ComboDecimales, *ComboRegleZero;

private:
    void MontrerPage();
    void MontrerExemple();
    void Relire(const Texte& definition);
    void RemplirElements();
    void MontrerFormat();
    void PrendreFormat();
    TypeLigne Type() const;

    Contexte& ctx_;
    const TableauModele& tableau_;
    int numero_;
    FormatsLigne formats_;
    Texte libelleSerie_;
    bool chargement_ = false;
};

} // namespace verdane::qt
