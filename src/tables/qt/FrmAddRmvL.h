#pragma once
// The line operations dialog: add ("a"), delete ("s"), move ("m") or duplicate ("d") a line of
// the table, before or after another.

#include "utils/Texte.h"

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace verdane::qt {

class FrmAddRmvL : public QDialog {
public:
    // `nbLignes`: the table's lines; `ligne`: the line selected in the preview (from 1).
    FrmAddRmvL(char mode, int nbLignes, int ligne, QWidget* parent = nullptr);

    // The message that refuses the mode on an empty table, else empty.
    static Texte Refus(char mode, int nbLignes);

    int Ligne() const;
    int Cible() const;
    bool Apres() const;

    QSpinBox* txtLigne;
    QSpinBox* txtCible;
    QComboBox* ComboPosition;
};

} // namespace verdane::qt
