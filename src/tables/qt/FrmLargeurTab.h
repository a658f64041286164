#pragma once
// The width dialog: the width in twips of one label column, or of all the value columns
// together (then divided by the years when the table is made).

#include <QDialog>

class QSpinBox;

namespace verdane::qt {

class FrmLargeurTab : public QDialog {
public:
    // `colonne` 1..9 a label column of `nbColonnes`, 0 the value columns.
    FrmLargeurTab(int colonne, int nbColonnes, int largeur, QWidget* parent = nullptr);

    int Largeur() const;
    QSpinBox* txtLargeur;
};

} // namespace verdane::qt
