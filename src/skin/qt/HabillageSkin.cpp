#include "skin/qt/HabillageSkin.h"

#include "skin/qt/BoutonSkinQt.h"
#include "skin/qt/CadreFenetre.h"

#include <QApplication>
#include <QPushButton>
#include <QWidget>

namespace verdane::qt {

namespace {

constexpr const char* kSansSkin = "verdaneSansSkin";
constexpr const char* kBoutonHabille = "verdaneBoutonSkin";

bool SansSkin(const QWidget* w) {
    for (; w; w = w->parentWidget())
        if (w->property(kSansSkin).toBool()) return true;
    return false;
}

} // namespace

HabillageSkin::HabillageSkin(Chargeur charger, QObject* parent)
    : QObject(parent), charger_(std::move(charger)) {
    setObjectName("verdaneHabillageSkin");
}

HabillageSkin* HabillageSkin::DeLApplication() {
    auto* app = QCoreApplication::instance();
    return app ? app->findChild<HabillageSkin*>("verdaneHabillageSkin", Qt::FindDirectChildrenOnly)
               : nullptr;
}

std::shared_ptr<const SkinQt> HabillageSkin::Skin() {
    if (!skin_ && !chargementFini_) {
        bool definitif = false;
        skin_ = charger_(definitif);
        chargementFini_ = skin_ || definitif;
        if (skin_) style_ = new StyleBoutonSkin(skin_);
        if (style_) style_->setParent(this);
    }
    return skin_;
}

bool HabillageSkin::AHabiller(const QWidget* w) {
    if (!w || !w->isWindow() || CadreFenetre::De(w)) return false;
    const auto type = w->windowType();
    return (type == Qt::Window || type == Qt::Dialog) && !SansSkin(w);
}

bool HabillageSkin::Habiller(QWidget* fenetre) {
    if (!fenetre || !fenetre->isWindow()) return false;
    if (CadreFenetre::De(fenetre)) return true;
    const auto skin = Skin();
    if (!skin) return false;
    new CadreFenetre(fenetre, skin);
    for (auto* bouton : fenetre->findChildren<QPushButton*>()) HabillerBouton(bouton);
    // The skinned buttons of the window take the skin's button data.
    for (auto* com : fenetre->findChildren<comSkin*>()) com->Make_Skin(skin);
    return true;
}

void HabillageSkin::HabillerBouton(QWidget* bouton) {
    if (!style_ || bouton->property(kBoutonHabille).toBool() || SansSkin(bouton)) return;
    bouton->setProperty(kBoutonHabille, true);
    bouton->setStyle(style_);
}

bool HabillageSkin::eventFilter(QObject* objet, QEvent* e) {
    // Every event of the program passes here: only two kinds are looked at, at once. A window
    // is dressed when it is polished, just before its first show and before its size is taken
    // from its content; the show catches one polished before this hook was there.
    const auto type = e->type();
    if (type != QEvent::Polish && type != QEvent::Show) return false;
    if (!objet->isWidgetType()) return false;
    auto* w = static_cast<QWidget*>(objet);
    if (AHabiller(w)) {
        const bool tardif = type == QEvent::Show && !w->testAttribute(Qt::WA_Resized);
        if (Habiller(w) && tardif) w->adjustSize();
    } else if (type == QEvent::Polish && CadreFenetre::De(w->window())) {
        if (qobject_cast<QPushButton*>(w)) HabillerBouton(w);
        if (auto* com = qobject_cast<comSkin*>(w); com && !com->Skin()) com->Make_Skin(skin_);
    }
    return false;
}

} // namespace verdane::qt
