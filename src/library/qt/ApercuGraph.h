#pragma once
// The preview of the chart that a selected graph code draws with the current dossier.

#include "shell/etat/Contexte.h"

#include <QDialog>

namespace verdane::qt {

class ApercuGraph : public QDialog {
public:
    // Shows the picture of the work file `chemin` under the preview's title.
    ApercuGraph(const Etat& etat, const Texte& chemin, QWidget* parent = nullptr);
    // False when the work file holds no picture.
    bool ImageLue() const { return imageLue_; }

private:
    bool imageLue_ = false;
};

} // namespace verdane::qt
