#pragma once
// Drawing of a chart's settings with Qt Charts into a picture, without a screen.

#include "graphs/qt/ReglagesGraphique.h"
#include "utils/qt/TexteQt.h"

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

namespace verdane::qt {

// The chart of `r` drawn at `taille` (the chart's units), into a picture with twice as many
// pixels each way, on white.
QImage RendreGraphique(const ReglagesGraphique& r, QSize taille);

// A colour as the core gives it: each component brought into 0 to 255 (the random colours
// run up to 354: above 255 stays at full strength).
QColor VersQColor(CouleurGraphique c);

} // namespace verdane::qt
