#pragma once
// FrmInserTab, the table editor: the library as a tree of folders, the selected table's
// settings, its preview grid as it will print, the line operations and the insertion. Every
// decision is the editor's (EditeurTableaux); this form shows it.

#include "tables/EditeurTableaux.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QTimer;
class QTreeWidget;

namespace verdane::qt {

class FrmInserTab : public QDialog {
public:
    // `code`: a table code taken from a document, recovered into the editor; empty: none.
    FrmInserTab(Contexte& ctx, const Texte& code = {}, QWidget* parent = nullptr);

    EditeurTableaux& Editeur() { return editeur_; }
    // The code inserted when the form closed on "Insérer", else empty.
    const Texte& CodeInsere() const { return codeInsere_; }

    // Buttons' actions.
    void NouveauTableau();
    void Supprimer();
    void OperationLigne(char mode);
    void EditerLigne(int numero);
    // The cell, size, width and header dialogs on the preview's current cell and line, and
    // the table defaults.
    void DefinirCellule();
    void DefinirTaille();
    void DefinirLargeur();
    void DefinirEntete();
    void Parametres();
    void Inserer();
    void Annuler();

    QTreeWidget* TreeViewTab;
    QLineEdit* txtNom;
    QLineEdit* txtDossier;
    QLineEdit* txtSousDossier;
    QComboBox* ComboGenre;
    QComboBox* ComboAnnees;
    QSpinBox* txtNbColonnes;
    QSpinBox* txtLargeurValeurs;
    QCheckBox* CheckCentre;
    QCheckBox* CheckRouge;
    QTableWidget* GrilleApercu;
    QCheckBox* CheckSauvegarde;
    QComboBox* ComboPeriode;
    QPushButton *cmdNouveau, *cmdSupprimer, *cmdAjouter, *cmdSupprLigne, *cmdDeplacer,
        *cmdDupliquer, *cmdTexte, *cmdInserer, *cmdAnnuler;
    QPushButton *cmdCellule, *cmdTaille, *cmdLargeur, *cmdEntete, *cmdParametres;

protected:
    void reject() override;

private:
    void RemplirArbre();
    void MontrerTableau();
    void MontrerApercu();
    void SauverProprietes();
    void ProgrammerSauvegarde();
    int LigneSelectionnee() const;
    // The label column (1..9) of the preview's current column, 0 for the value columns.
    int ColonneSelectionnee();

    Contexte& ctx_;
    EditeurTableaux editeur_;
    QTimer* sauvegarde_;
    bool chargement_ = false;
    Texte codeInsere_;
};

} // namespace verdane::qt
