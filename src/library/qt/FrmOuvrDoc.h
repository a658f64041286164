#pragma once
// FrmOuvrDoc: opens a text document or a model in the word processor ("document"), chooses
// the current dossier ("dossier"), or the dossier with which a finished document is
// refreshed ("dossiermaj").

#include "library/OuvrirDoc.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTreeWidget;

namespace verdane::qt {

class FrmOuvrDoc : public QDialog {
    Q_OBJECT
public:
    FrmOuvrDoc(Contexte& ctx, const Texte& tag, const Texte& documentMaj = {},
               QWidget* parent = nullptr);

    void reject() override;

private:
    Texte RepertoireDeLOnglet() const;
    void ChangerOnglet();
    void Lister();
    void ChoisirRepertoire();
    void Ouvrir();
    void Supprimer();
    void SupprimerTout();

    Contexte& ctx_;
    ModeOuverture mode_;
    Texte documentMaj_;
    std::vector<OngletOuverture> onglets_;
    ListeFichiers liste_;
    QTabBar* TabStripMdlDoc_;
    QLineEdit* txtRepertoire_;
    QTreeWidget* lstFichiers_;
    QCheckBox* CheckSvgRepMdlDoc_;
    QPushButton* cmdSupprimer_;
};

} // namespace verdane::qt
