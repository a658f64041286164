#pragma once
// Windows-1252 texts of the engine to and from the strings of the windows. The program's own
// literals are Windows-1252 too (the sources are compiled so): a French literal shown in a
// window goes through VersQt, never straight into a QString.

#include "utils/Texte.h"

#include <QString>

namespace verdane::qt {

inline QString VersQt(const Texte& t) {
    return QString::fromUtf8(Cp1252VersUtf8(t));
}
inline Texte DepuisQt(const QString& s) {
    return Utf8VersCp1252(s.toUtf8().toStdString());
}

} // namespace verdane::qt
