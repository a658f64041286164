#pragma once
// Small pieces shared by the table editor's dialogs.

#include "utils/Texte.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

namespace verdane::qt {

// A text typed in a widget, as text of the engine.
inline Texte DepuisQString(const QString& s) {
    return Utf8VersCp1252(s.toStdString());
}

// OK and Cancel, closing the dialog as accepted or rejected.
inline QDialogButtonBox* BoutonsOkAnnuler(QDialog* dialogue) {
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialogue);
    QObject::connect(boutons, &QDialogButtonBox::accepted, dialogue, &QDialog::accept);
    QObject::connect(boutons, &QDialogButtonBox::rejected, dialogue, &QDialog::reject);
    return boutons;
}

} // namespace verdane::qt
