#pragma once
// FrmTrfMdl: the library operations on one kind of file (document models, text documents,
// table or graph models) between a source and a destination folder: transfer, rename,
// delete, delete all, convert. Mode 'C' copies out of the program's folders, mode 'A' adds
// into them.

#include "library/ListeFichiers.h"
#include "shell/etat/Contexte.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace verdane::qt {

class FrmTrfMdl : public QDialog {
    Q_OBJECT
public:
    // `source`: the folder listed; empty: the program's own folder for the kind in mode 'C'.
    FrmTrfMdl(Contexte& ctx, char mode, const Texte& tag, const Texte& source,
              QWidget* parent = nullptr);

    void PoserLegende(const Texte& legende);
    // Ticks the row of that name.
    void Cocher(const Texte& nom);

private:
    Texte Tag() const;
    Texte RepertoireDuProgramme(const Texte& tag) const;
    void ChangerGenre();
    void Lister();
    void ChoisirSource();
    void ChoisirDestination();
    void ToutOuRien();
    void Transferer();
    void Renommer();
    void Supprimer();
    void SupprimerTout();
    void Convertir();
    void Signaler();

    Contexte& ctx_;
    char mode_;
    ListeFichiers liste_;
    QLabel* lblLegende_;
    QComboBox* comboGenre_;
    QLabel* lblSource_;
    QLineEdit* txtSource_;
    QLineEdit* txtDestination_;
    QTreeWidget* lstFichiers_;
    QPushButton* cmdToutTrf_;
    QPushButton* cmdRenommer_;
    QPushButton* cmdConvertir_;
    bool tout_ = false;
};

} // namespace verdane::qt
