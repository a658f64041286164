#include "library/qt/ApercuGraph.h"

#include "library/LectureSelection.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdane::qt {

ApercuGraph::ApercuGraph(const Etat& etat, const Texte& chemin, QWidget* parent) : QDialog(parent) {
    setObjectName("FrmApercuGraph");
    setWindowTitle(VersQt(TitreApercuGraph(etat)));
    auto* disposition = new QVBoxLayout(this);
    auto* image = new QLabel;
    // The work file holds PNG bytes whatever its extension says: read by its content.
    const auto octets = LireFichier(chemin);
    QImage dessin;
    if (octets)
        imageLue_ = dessin.loadFromData(reinterpret_cast<const uchar*>(octets->data()),
                                        static_cast<int>(octets->size()));
    if (imageLue_)
        image->setPixmap(QPixmap::fromImage(dessin));
    else
        image->setText(QStringLiteral("Le graphique n'a pas pu être lu."));
    disposition->addWidget(image);
    auto* fermer = new QPushButton(QStringLiteral("Fermer"));
    disposition->addWidget(fermer, 0, Qt::AlignRight);
    connect(fermer, &QPushButton::clicked, this, &QDialog::accept);
}

} // namespace verdane::qt
