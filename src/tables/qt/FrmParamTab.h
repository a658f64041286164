#pragma once
// The table defaults: text size and alignment of new cells, and for each kind of line the
// frames of its label cells and of its value cells, edited with the cell dialog. Saved with
// the options on validation.

#include "shell/etat/Contexte.h"

#include <QDialog>

#include <array>

class QComboBox;
class QLabel;
class QPushButton;

namespace verdane::qt {

class FrmParamTab : public QDialog {
public:
    explicit FrmParamTab(Contexte& ctx, QWidget* parent = nullptr);

    void accept() override;
    // The cell dialog on the label (0) or value (1) frame of the kind shown.
    void EditerCadre(int cote);
    const std::array<Texte, 12>& Formats() const { return formats_; }

    QComboBox* ComboTaille;
    QComboBox* ComboAlignement;
    QComboBox* ComboGenre;
    std::array<QLabel*, 2> lblCadre;
    std::array<QPushButton*, 2> cmdCadre;

private:
    void MontrerGenre();

    Contexte& ctx_;
    std::array<Texte, 12> formats_;
};

} // namespace verdane::qt
