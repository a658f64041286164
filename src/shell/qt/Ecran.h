#pragma once
// The screen the bar stands on: its origin, its width, and twips at its logical DPI.

#include <QPoint>
#include <QSize>

namespace verdane::qt {

// Twips to pixels at the primary screen's logical DPI (15 twips a pixel at 96).
int EnPixels(int twips);
// Top left of the primary screen, and its width.
QPoint OrigineEcran();
int LargeurEcran();
// Where a window of `taille` stands centred on the primary screen.
QPoint CentreEcran(QSize taille);

} // namespace verdane::qt
