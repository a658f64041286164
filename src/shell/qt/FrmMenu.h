#pragma once
// A drop-down menu form of the bar (FrmDocument, frmInsertion, FrmGenerer, FrmMajDocRes,
// FrmOutils, Frmoptions): its entries from the bar's table, each with its hint text, and its
// own close button. The roll-down moves it; each entry sets the close token, then acts.

#include "shell/GestionBarre.h"
#include "shell/MenusBarre.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QLabel;
class QRadioButton;

namespace verdane {
class Contexte;
}

namespace verdane::qt {

class EntreeQt;

class FrmMenu : public QWidget, public FormeDeroulante {
public:
    FrmMenu(Contexte& ctx, GestionBarre& gestion, Menu menu, QWidget* parent = nullptr);

    Menu menu() const { return menu_; }
    // Clicks entry `controle` as the user would.
    void Cliquer(const QString& controle);
    // Properties menu: sets its controls from the options.
    void AfficherProprietes();
    // Clears the hover highlight of every entry.
    void EffacerSurvol();

    int Hauteur() const override { return hauteurTwips_; }
    void PoserHauteur(int twips) override;
    bool Visible() const override { return isVisible(); }
    void Placer(int gaucheTwips) override;
    void Montrer() override { show(); }
    void Retirer() override { hide(); }

    static int LargeurTwips(Menu menu);

protected:
    void mouseMoveEvent(QMouseEvent* e) override;

private:
    void Executer(const EntreeMenu& entree);
    Contexte& ctx_;
    GestionBarre& gestion_;
    Menu menu_;
    int hauteurTwips_ = 0;
    std::vector<EntreeQt*> entrees_;
    QLabel* lblEditeur_ = nullptr;
    QRadioButton* optALaLigne_ = nullptr;
    QRadioButton* optALaSuite_ = nullptr;
    QCheckBox* CheckAffPopup_ = nullptr;
};

} // namespace verdane::qt
