#include "graphs/qt/ImpressionGraph.h"

#include "graphs/qt/RenduGraphique.h"

#include <QFileDialog>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace verdane::qt {

namespace {

// The print form: 12000 by 9000 twips, the chart at 2200, 2000, 7550 wide and 6000 high.
constexpr double kLargeurForme = 12000;
constexpr double kHauteurForme = 9000;
const QRectF kPlaceGraphique(2200, 2000, 7550, 6000);

} // namespace

void PeindrePageGraphique(QPagedPaintDevice& sortie, const QImage& graphique,
                          const Texte& nomDossier) {
    QPainter p(&sortie);
    if (!p.isActive()) return;
    const QRectF page(0, 0, sortie.width(), sortie.height());
    // The form's twips scaled to the page, keeping its proportions.
    const double echelle = std::min(page.width() / kLargeurForme, page.height() / kHauteurForme);
    p.scale(echelle, echelle);
    if (!graphique.isNull()) {
        QSizeF taille = graphique.size();
        taille.scale(kPlaceGraphique.size(), Qt::KeepAspectRatio);
        p.drawImage(QRectF(kPlaceGraphique.topLeft(), taille), graphique);
    }
    QFont police(QStringLiteral("Arial"));
    police.setPixelSize(240); // 12 points in twips
    p.setFont(police);
    p.drawText(QRectF(kPlaceGraphique.left(), kPlaceGraphique.bottom() + 200,
                      kPlaceGraphique.width(), 400),
               Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Dossier : ") + VersQt(nomDossier));
}

bool ImprimerGraphique(QWidget* parent, const QImage& graphique, const Texte& nomDossier) {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setPageOrientation(QPageLayout::Landscape);
    if (QPrinterInfo::availablePrinters().isEmpty()) {
        const QString fichier = QFileDialog::getSaveFileName(
            parent, VersQt("Imprimer le graphique dans un fichier PDF"),
            QStringLiteral("graphique.pdf"), QStringLiteral("PDF (*.pdf)"));
        if (fichier.isEmpty()) return false;
        imprimante.setOutputFormat(QPrinter::PdfFormat);
        imprimante.setOutputFileName(fichier);
    } else {
        QPrintDialog dialogue(&imprimante, parent);
        if (dialogue.exec() != QDialog::Accepted) return false;
    }
    PeindrePageGraphique(imprimante, graphique, nomDossier);
    return true;
}

} // namespace verdane::qt
