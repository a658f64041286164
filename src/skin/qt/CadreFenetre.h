#pragma once
// The skinned frame of one window: no system caption; the frame drawn from the skin at the
// window's size, the title cut to its label, the four title buttons with their pressed
// pictures, the title area that moves the window with the skin's cursor, the small system menu
// and the skin's minimum size. It watches the window's own events, so the window's code knows
// nothing of it.

#include "skin/CadreSkin.h"
#include "skin/qt/SkinQt.h"

#include <QObject>
#include <QPoint>

#include <memory>

class QMenu;
class QWidget;

namespace verdane::qt {

class CadreFenetre : public QObject {
    Q_OBJECT
public:
    // Dresses `fenetre` (which becomes the parent of the frame). Call before its first show.
    CadreFenetre(QWidget* fenetre, std::shared_ptr<const SkinQt> skin);

    // The frame of a window, if it wears one.
    static CadreFenetre* De(const QWidget* fenetre);

    const skin::CadreSkin& Cadre() const { return cadre_; }
    // The system menu, at a point of the screen; for tests, made without being shown.
    QMenu* MenuSysteme();
    void OuvrirMenuSysteme(const QPoint& global);
    // Does what an entry of the system menu (by its key) asks.
    void ActionMenu(const char* cle);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    void Peindre();
    void Action(skin::ActionTitre action);
    skin::EtatFenetre Etat() const;
    void FinDeplacement();

    QWidget* fenetre_;
    std::shared_ptr<const SkinQt> skin_;
    skin::CadreSkin cadre_;
    QMenu* menu_ = nullptr;
    bool deplacement_ = false;
    QPoint ecartDeplacement_;
};

} // namespace verdane::qt
