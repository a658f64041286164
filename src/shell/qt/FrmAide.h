#pragma once
// The message form: a panel under the bar with a main text, a technical text and a title,
// rolled down like the menus. Its kind "seule" places it alone on the screen; "Aide" shows the
// help entries of a selected code.

#include "shell/GestionBarre.h"
#include "shell/etat/PortUtilisateur.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QPushButton;
class QWidget;

namespace verdane {
class Contexte;
}

namespace verdane::qt {

class FrmAide : public QDialog, public FormeDeroulante {
public:
    // `marlo`: opened for a job of the command line, larger (OPENMARLO).
    explicit FrmAide(bool marlo, QWidget* parent = nullptr);

    // Shows the message, modal; returns when the user closes it. An empty main text leaves the
    // panel as it stands, unshown.
    void Afficher(const Message& message);
    // The help entries run through this run's state, once there is one.
    void PoserContexte(Contexte* ctx) { ctx_ = ctx; }

    // The colour of the main text: dark red (192) for an empty kind, else black.
    static QColor CouleurTexte(const Texte& genre);

    QLabel* lblMessage() const { return lblMessage_; }
    QLabel* lblTechnique() const { return lblTechnique_; }

    int Hauteur() const override { return hauteurTwips_; }
    void PoserHauteur(int twips) override;
    bool Visible() const override { return isVisible(); }
    void Placer(int gaucheTwips) override;
    void Montrer() override {}
    void Retirer() override;

private:
    void Fermer();
    bool marlo_;
    bool seule_ = false;
    Contexte* ctx_ = nullptr;
    int hauteurTwips_ = 0;
    int gauchePixels_ = 0;
    GestionBarre deroulement_;
    QTimer minuterie_;
    QLabel* lblTitre_;
    QLabel* lblMessage_;
    QLabel* lblTechnique_;
    QWidget* entreesAide_;
    QPushButton* cmdFermer_;
};

} // namespace verdane::qt
