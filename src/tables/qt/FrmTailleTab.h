#pragma once
// The row size dialog: the row height ("AUTO" or a number, by 100 in the list) and the cell
// gap (by 20).

#include <QDialog>

#include <cstdint>
#include <optional>

class QComboBox;

namespace verdane::qt {

class FrmTailleTab : public QDialog {
public:
    FrmTailleTab(int hauteur, int retrait, QWidget* parent = nullptr);

    // Nothing when the text typed is not a size.
    std::optional<std::int16_t> Hauteur() const;
    std::optional<std::int16_t> Retrait() const;

    QComboBox* ComboHauteur;
    QComboBox* ComboRetrait;
};

} // namespace verdane::qt
