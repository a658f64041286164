#pragma once
// Text between the engine (Windows-1252) and the insertion windows (Qt, UTF-16).

#include "utils/Texte.h"

#include <QString>

namespace verdane::qt {

inline QString VersQt(const Texte& texte) {
    return QString::fromStdString(Cp1252VersUtf8(texte));
}

inline Texte DepuisQt(const QString& texte) {
    return Utf8VersCp1252(texte.toStdString());
}

} // namespace verdane::qt
