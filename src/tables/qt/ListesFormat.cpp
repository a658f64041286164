#include "tables/qt/ListesFormat.h"

#include "utils/GestFontTable.h"
#include "utils/qt/TexteQt.h"

#include <QComboBox>
#include <QPixmap>

namespace verdane::qt {

void RemplirPolices(QComboBox* liste) {
    for (const char* police : PolicesConnues()) liste->addItem(VersQt(police));
}

void RemplirCouleurs(QComboBox* liste, int largeur) {
    const auto& palette = Palette();
    for (std::size_t i = 1; i < palette.size(); ++i) {
        const Couleur& c = palette[i];
        QPixmap pastille(largeur, 14);
        pastille.fill(QColor(c.rouge, c.vert, c.bleu));
        liste->addItem(QIcon(pastille), QString::number(i));
    }
}

} // namespace verdane::qt
