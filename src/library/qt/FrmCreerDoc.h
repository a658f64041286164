#pragma once
// FrmCreerDoc: a result document made from a model and the current dossier. The left side
// picks the model, the right side the folder, name and format of the result; with the PDE
// the page list picks the model. Once made, the document goes to the export dialog.

#include "library/CreerDoc.h"
#include "library/ListeFichiers.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTreeWidget;

namespace verdane::qt {

class FrmCreerDoc : public QDialog {
    Q_OBJECT
public:
    // `pde`: the PDE page list is shown.
    FrmCreerDoc(Contexte& ctx, bool pde, QWidget* parent = nullptr);

    // What follows a creation that wrote its document; by default the export dialog.
    void PoserSuite(std::function<void(const Texte&)> suite) { suite_ = std::move(suite); }

private:
    void AfficherDossier();
    void ListerModeles();
    void ChoisirModele();
    void ChoisirPage(int index);
    void ChoisirRepertoireModeles();
    void ChoisirRepertoireResultat();
    void ChoisirDossier();
    void ChangerEditeur();
    void RemplirFormats();
    void Creer();

    Contexte& ctx_;
    ListeFichiers modeles_;
    Texte modele_;
    int page_ = -1;
    Texte nomPropose_;
    std::function<void(const Texte&)> suite_;
    QLabel* lblDossier_;
    QLineEdit* txtRepMdl_;
    QTreeWidget* lstModeles_;
    QLineEdit* txtRepDoc_;
    QLineEdit* txtNomDoc_;
    QComboBox* ComboFormat_;
    QGroupBox* FramePDE_;
    QComboBox* ComboPDE_;
    QSpinBox* txtAnneesPDE_;
};

} // namespace verdane::qt
