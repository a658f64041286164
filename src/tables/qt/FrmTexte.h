#pragma once
// The line dialog: the texts of the label cells, the kind of the line with its defaults, and
// the definition of its value cells.

#include "tables/EditeurTableaux.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLineEdit;

namespace verdane::qt {

class FrmTexte : public QDialog {
public:
    FrmTexte(const Options& options, const LigneModele& ligne, int nbColonnes, int numero,
             QWidget* parent = nullptr);

    // The line as the user left it: label texts cleaned, the kind's defaults applied when the
    // kind was changed, and the definition typed.
    LigneModele Ligne() const;

    std::vector<QLineEdit*> txtLibelle;
    QComboBox* ComboGenre;
    QLineEdit* txtDefinition;

private:
    const Options& options_;
    LigneModele ligne_;
    int nbColonnes_;
};

} // namespace verdane::qt
