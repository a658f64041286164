#pragma once
// The bar docked across the top of the screen: six tabs that roll their menus down, the logo,
// the close button. On X11 it is a dock whose strut keeps maximised windows below it; in
// auto-hide it keeps a strip of 2 pixels and shows itself when the mouse reaches it.

#include "shell/GestionBarre.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class QLabel;

namespace verdane {
class Contexte;
}

namespace verdane::qt {

class FrmMenu;
class Onglet;

class FrmBarre : public QWidget {
public:
    explicit FrmBarre(Contexte& ctx, QWidget* parent = nullptr);
    ~FrmBarre() override;

    // Places the bar at the top of the screen and reserves its strip (at start and when the
    // screen changes).
    void DockerBarre();
    // Shows the hidden bar of the auto-hide position.
    void MontrerBarre();
    // Tab click, index 0 to 5.
    void CliquerOnglet(int index);
    // The close button: asks, then closes the bar on yes.
    void DemanderFermeture();

    bool AutoMasquage() const;
    GestionBarre& Gestion() { return gestion_; }
    FrmMenu* Menu(int index) const;
    // Called once the bar has closed.
    std::function<void()> fermee;

protected:
    void resizeEvent(QResizeEvent* e) override;
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void ChargerImagesOnglet(int index);
    void MontrerSelection();
    void CacherSiAbsente();
    Contexte& ctx_;
    GestionBarre gestion_;
    QTimer TimerMenuDeroul_;
    std::array<Onglet*, kNbOnglets> lblOnglet_{};
    QLabel* lblOnglet3b_ = nullptr;
    QLabel* ImageDroite_ = nullptr;
    QLabel* ImageLogoVD_ = nullptr;
    QLabel* ImageFermer_ = nullptr;
    QLabel* lblFermer_ = nullptr;
    QLabel* ImageAide_ = nullptr;
    std::array<std::unique_ptr<FrmMenu>, kNbOnglets> menus_;
    bool skinSignale_ = false;
    bool fermetureAcceptee_ = false;
};

} // namespace verdane::qt
