#pragma once
// Whether the program's windows can be shown: Qt draws on a real display, not off screen.

#include <QGuiApplication>
#include <QString>

namespace verdane::qt {

inline bool EcranDisponible() {
    if (QGuiApplication::instance() == nullptr) return false;
    const QString plateforme = QGuiApplication::platformName();
    return !plateforme.isEmpty() && plateforme != QLatin1String("offscreen") &&
           plateforme != QLatin1String("minimal");
}

} // namespace verdane::qt
