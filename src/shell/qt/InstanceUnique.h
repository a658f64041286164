#pragma once
// One bar per user and display: a lock in the user's runtime folder, held as long as the bar
// runs. The lock of a program that was killed is stale and never blocks the next start.

#include <QLockFile>
#include <QString>

#include <memory>

namespace verdane::qt {

class InstanceUnique {
public:
    // `dossier`: where the lock is made; empty: the user's runtime folder.
    explicit InstanceUnique(const QString& dossier = {});
    // True when this program is the only bar of the display (the lock is then held).
    bool Prendre();
    QString Fichier() const { return fichier_; }

private:
    QString fichier_;
    std::unique_ptr<QLockFile> verrou_;
};

} // namespace verdane::qt
