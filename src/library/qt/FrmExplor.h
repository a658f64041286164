#pragma once
// FrmExplor: the folder picker of the library dialogs. The folder chosen is confirmed by a
// question before it is taken.

#include "shell/etat/Contexte.h"

#include <QDialog>

class QTreeView;
class QFileSystemModel;

namespace verdane::qt {

class FrmExplor : public QDialog {
    Q_OBJECT
public:
    FrmExplor(Contexte& ctx, const Texte& depart, QWidget* parent = nullptr);
    // The folder chosen, with its separator; empty until one is confirmed.
    const Texte& Repertoire() const { return repertoire_; }

private:
    void Valider();

    Contexte& ctx_;
    QTreeView* arbre_;
    QFileSystemModel* modele_;
    Texte repertoire_;
};

// Shows the picker; the folder confirmed, or `depart` when none was.
Texte ChoisirRepertoire(Contexte& ctx, QWidget* parent, const Texte& depart);

} // namespace verdane::qt
