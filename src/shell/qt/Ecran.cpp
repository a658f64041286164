#include "shell/qt/Ecran.h"

#include "shell/GestionBarre.h"

#include <QGuiApplication>
#include <QScreen>

namespace verdane::qt {

namespace {
const QScreen* Primaire() {
    return QGuiApplication::primaryScreen();
}
} // namespace

int EnPixels(int twips) {
    const QScreen* e = Primaire();
    return TwipsVersPixels(twips, e ? e->logicalDotsPerInchX() : 96.0);
}

QPoint OrigineEcran() {
    const QScreen* e = Primaire();
    return e ? e->geometry().topLeft() : QPoint();
}

int LargeurEcran() {
    const QScreen* e = Primaire();
    return e ? e->geometry().width() : 1024;
}

QPoint CentreEcran(QSize taille) {
    const QScreen* e = Primaire();
    if (!e) return {};
    const QRect r = e->availableGeometry();
    return r.topLeft() +
           QPoint((r.width() - taille.width()) / 2, (r.height() - taille.height()) / 2);
}

} // namespace verdane::qt
