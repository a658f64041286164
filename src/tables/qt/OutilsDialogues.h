#pragma once
// Small pieces shared by the table editor's dialogs.

#include "utils/qt/TexteQt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>

namespace verdane::qt {

// OK and Cancel, closing the dialog as accepted or rejected.
inline QDialogButtonBox* BoutonsOkAnnuler(QDialog* dialogue) {
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialogue);
    QObject::connect(boutons, &QDialogButtonBox::accepted, dialogue, &QDialog::accept);
    QObject::connect(boutons, &QDialogButtonBox::rejected, dialogue, &QDialog::reject);
    return boutons;
}

} // namespace verdane::qt
