#include "shell/qt/InstanceUnique.h"

#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

#include <cstdlib>

namespace verdane::qt {

namespace {

// The display the bar stands on, as a file name: ":0" gives "0".
QString NomEcran() {
    QString nom = QString::fromLocal8Bit(std::getenv("WAYLAND_DISPLAY"));
    if (nom.isEmpty()) nom = QString::fromLocal8Bit(std::getenv("DISPLAY"));
    if (nom.isEmpty()) nom = QStringLiteral("aucun");
    for (QChar& c : nom)
        if (!c.isLetterOrNumber() && c != QLatin1Char('.')) c = QLatin1Char('_');
    return nom;
}

} // namespace

InstanceUnique::InstanceUnique(const QString& dossier) {
    QString d = dossier;
    if (d.isEmpty()) d = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (d.isEmpty()) d = QDir::tempPath();
    QDir().mkpath(d);
    fichier_ =
        QDir(d).filePath(QStringLiteral("verdane-barre-") + NomEcran() + QStringLiteral(".lock"));
    verrou_ = std::make_unique<QLockFile>(fichier_);
    // A running bar's lock never ages: only a lock whose program is gone is stale.
    verrou_->setStaleLockTime(0);
}

bool InstanceUnique::Prendre() {
    return verrou_->isLocked() || verrou_->tryLock(0);
}

} // namespace verdane::qt
