#pragma once
// The hook that dresses the program's windows: watching the application's events, it gives
// each top-level window or dialog its skinned frame at its first show, and its push buttons the
// skinned buttons' style. The skin is read from the installation's skin folder the first time a
// window needs it (the folders are known by then).

#include "skin/qt/SkinQt.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QStyle;
class QWidget;

namespace verdane::qt {

class HabillageSkin : public QObject {
    Q_OBJECT
public:
    // `charger` gives the skin, or nothing while it can't yet (it's asked again later) or
    // when it can't at all (then `definitif` tells it not to ask again).
    using Chargeur = std::function<std::shared_ptr<SkinQt>(bool& definitif)>;
    explicit HabillageSkin(Chargeur charger, QObject* parent = nullptr);

    // The hook of the application, if one is installed.
    static HabillageSkin* DeLApplication();

    std::shared_ptr<const SkinQt> Skin();
    // Dresses a window and its push buttons; false when there's no skin or it isn't a window.
    bool Habiller(QWidget* fenetre);
    // Dresses one push button.
    void HabillerBouton(QWidget* bouton);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

private:
    static bool AHabiller(const QWidget* w);

    Chargeur charger_;
    bool chargementFini_ = false;
    std::shared_ptr<SkinQt> skin_;
    QStyle* style_ = nullptr;
};

} // namespace verdane::qt
