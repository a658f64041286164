#pragma once
// Small pieces shared by the table editor's dialogs.

#include "data/SeriesProposees.h"
#include "utils/qt/TexteQt.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>
#include <QTreeWidget>

namespace verdane::qt {

// OK and Cancel, closing the dialog as accepted or rejected.
inline QDialogButtonBox* BoutonsOkAnnuler(QDialog* dialogue) {
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialogue);
    QObject::connect(boutons, &QDialogButtonBox::accepted, dialogue, &QDialog::accept);
    QObject::connect(boutons, &QDialogButtonBox::rejected, dialogue, &QDialog::reject);
    return boutons;
}

// Where a tree item of the dialogs keeps its key.
inline constexpr int kRoleCle = Qt::UserRole;

inline void AjouterCatalogue(QTreeWidgetItem* parent, const NoeudCatalogue& noeud) {
    for (const NoeudCatalogue& n : noeud.enfants) {
        auto* item = new QTreeWidgetItem(parent);
        item->setText(0, VersQt(n.texte));
        item->setData(0, kRoleCle, VersQt(n.cle));
        AjouterCatalogue(item, n);
    }
}

// The series offered (the catalogues of `repDatacfg`) into `arbre`, root expanded; a series
// leaf's key holds "+".
inline void RemplirSeries(QTreeWidget* arbre, const Texte& repDatacfg) {
    arbre->setHeaderHidden(true);
    const ArbreCatalogue series = SeriesProposees(repDatacfg);
    auto* racine = new QTreeWidgetItem(arbre);
    racine->setText(0, VersQt(series.racine.texte));
    AjouterCatalogue(racine, series.racine);
    racine->setExpanded(true);
}

} // namespace verdane::qt
