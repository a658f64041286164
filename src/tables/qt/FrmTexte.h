#pragma once
// The line dialog: the texts of the label cells, the kind of the line with its defaults, and a
// page per kind that composes the definition of the value cells (header form, series of the
// catalogues, simple or free total, pre-defined lines, value of a repeated table). What is
// composed or refused is decided by tables/DialoguesLigne.h.

#include "tables/EditeurTableaux.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
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
    // Header.
    QComboBox* ComboFormeEntete;
    QLabel* lblExemple;
    QLineEdit *txtDebut, *txtFin;
    // Series, and the repeated tables' values.
    QTreeWidget* TreeViewSeries;
    QLineEdit* txtCle;
    // Totals.
    QTabWidget* OngletsTotal;
    QComboBox *ComboLigneA, *ComboOperateur, *ComboLigneB;
    QLineEdit* txtFormule;
    // Pre-defined lines.
    QTreeWidget* TreeViewPredefinies;
    // Shared by the value kinds.
    QComboBox *ComboDecimales, *ComboRegleZero;

private:
    void MontrerPage();
    void MontrerExemple();
    void Relire(const Texte& definition);
    TypeLigne Type() const;

    Contexte& ctx_;
    const TableauModele& tableau_;
    int numero_;
    LigneModele ligne_;
    Texte libelleSerie_;
    bool chargement_ = false;
};

} // namespace verdane::qt
