#pragma once
// The print of a chart: the picture on a page with the dossier's name under it, to a printer
// chosen in the print dialog, or to a PDF file when the machine has no printer.

#include "utils/Texte.h"

#include <QImage>

class QPagedPaintDevice;
class QWidget;

namespace verdane::qt {

// Lays the chart and "Dossier : " + name on the page of `sortie`.
void PeindrePageGraphique(QPagedPaintDevice& sortie, const QImage& graphique,
                          const Texte& nomDossier);

// Asks where to print and prints. False when the user gave up or nothing could be printed.
bool ImprimerGraphique(QWidget* parent, const QImage& graphique, const Texte& nomDossier);

} // namespace verdane::qt
