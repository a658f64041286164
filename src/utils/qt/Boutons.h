#pragma once
// A push button of the program's dialogs: named for its control, its text and hint in the
// program's own words (Windows-1252), never the dialog's default button.

#include "utils/qt/TexteQt.h"

#include <QPushButton>

namespace verdane::qt {

inline QPushButton* Bouton(QWidget* parent, const char* nom, const char* texte,
                           const char* aide = "") {
    auto* b = new QPushButton(VersQt(texte), parent);
    b->setObjectName(nom);
    if (*aide != '\0') b->setToolTip(VersQt(aide));
    b->setAutoDefault(false);
    return b;
}

} // namespace verdane::qt
