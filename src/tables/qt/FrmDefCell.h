#pragma once
// The cell dialog: the four borders (none, simple, double) and the background colour of the
// palette; "1" applies them to one cell, "S" to every cell of the line.

#include "tables/DialoguesCellule.h"

#include <QDialog>

#include <array>

class QComboBox;
class QPushButton;

namespace verdane::qt {

class FrmDefCell : public QDialog {
public:
    explicit FrmDefCell(const Cadre& cadre, QWidget* parent = nullptr);

    Cadre Valeur() const;
    // True when closed by "S" (the whole line), false by "1".
    bool ToutLaLigne() const { return toutLaLigne_; }

    std::array<QComboBox*, 4> ComboBord; // top, bottom, left, right
    QComboBox* ComboFond;
    QPushButton *cmd1, *cmdS, *cmdAnnuler;

private:
    bool toutLaLigne_ = false;
};

} // namespace verdane::qt
