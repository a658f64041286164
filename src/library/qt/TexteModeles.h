#pragma once
// Text of the engine (Windows-1252) to and from the toolkit's strings, for the library's
// windows.

#include "utils/Texte.h"

#include <QString>

namespace verdane::qt {

inline QString QtDe(const Texte& t) {
    return QString::fromUtf8(Cp1252VersUtf8(t));
}

inline Texte TexteDe(const QString& q) {
    return Utf8VersCp1252(q.toUtf8().toStdString());
}

} // namespace verdane::qt
