#pragma once
// The dialog of one series of a graph: name, brush, line width, axis and colour.

#include "graphs/EditeurGraph.h"

#include <QDialog>

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace verdane::qt {

class FrmSerieGraph : public QDialog {
public:
    // Series `i` (from 1) of a graph, whose values are shown.
    FrmSerieGraph(PortUtilisateur& utilisateur, const SerieGraph& serie, int i,
                  QWidget* parent = nullptr);

    // The values as the user left them; written to the series by the caller on acceptance.
    DialogueSerie Valeurs() const;

    QLineEdit* txtNom;
    QComboBox* ComboBrosse;
    QLineEdit* txtEpaisseurTrait;
    QRadioButton* OptionAxeY[2];
    QPushButton* cmdCouleur;
    QPushButton* cmdValider;
    QPushButton* cmdAnnuler;

private:
    void ChoisirCouleur();
    void MontrerCouleur();

    PortUtilisateur& utilisateur_;
    CouleurGraphique couleur_;
};

} // namespace verdane::qt
