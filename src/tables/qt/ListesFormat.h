#pragma once
// The lists of the program's own fonts and palette colours, as the format dialogs offer them:
// entry i is font 5000 + i, colour i + 1.

class QComboBox;

namespace verdane::qt {

void RemplirPolices(QComboBox* liste);
// Each colour with a swatch `largeur` pixels wide.
void RemplirCouleurs(QComboBox* liste, int largeur);

} // namespace verdane::qt
