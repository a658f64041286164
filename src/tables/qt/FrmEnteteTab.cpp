#include "tables/qt/FrmEnteteTab.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/DialoguesCellule.h"
#include "tables/qt/OutilsDialogues.h"
#include "utils/OutilsFichiers.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmEnteteTab::FrmEnteteTab(std::int16_t typeEntete, std::int16_t pageDebut,
                           const std::string& images, QWidget* parent)
    : QDialog(parent), typeEntete_(typeEntete) {
    setObjectName("FrmEnteteTab");
    setWindowTitle(VersQt("En-tête des tableaux répétés"));
    auto* tout = new QVBoxLayout(this);
    tout->addWidget(new QLabel(VersQt("Cliquez l'en-tête voulu :"), this));
    static const char* const fichiers[] = {"SansEntete.gif", "EnteteTypeMarlo.gif",
                                           "EnteteTypeCerfa.gif"};
    static const char* const textes[] = {"Sans en-tête", "En-tête type Marlo",
                                         "En-tête type Cerfa"};
    auto* choix = new QHBoxLayout;
    for (std::size_t i = 0; i < 3; ++i) {
        auto* b = new QPushButton(VersQt(textes[i]), this);
        b->setObjectName(QStringLiteral("cmdEntete%1").arg(i));
        b->setCheckable(true);
        b->setAutoDefault(false);
        const QPixmap image(QString::fromStdString(CheminSysteme(images + fichiers[i]).string()));
        if (!image.isNull()) {
            b->setIcon(image);
            b->setIconSize(image.size().boundedTo(QSize(220, 160)));
        }
        cmdEntete[i] = b;
        choix->addWidget(b);
        connect(b, &QPushButton::clicked, this,
                [this, i] { Choisir(static_cast<std::int16_t>(i)); });
    }
    tout->addLayout(choix);
    ComboPageDebut = new QComboBox(this);
    ComboPageDebut->setObjectName("ComboPageDebut");
    for (const Texte& t : PagesDebutProposees()) ComboPageDebut->addItem(VersQt(t));
    ComboPageDebut->setCurrentIndex(ChoixDePageDebut(pageDebut));
    auto* page = new QHBoxLayout;
    page->addWidget(new QLabel(VersQt("Numéro de page de début :"), this));
    page->addWidget(ComboPageDebut);
    tout->addLayout(page);
    auto* aide = new QLabel(VersQt("Pensez alors à insérer un saut de page en fin de votre "
                                   "modèle de tableau !"),
                            this);
    aide->setWordWrap(true);
    tout->addWidget(aide);
    tout->addWidget(BoutonsOkAnnuler(this));
    Choisir(typeEntete);
}

void FrmEnteteTab::Choisir(std::int16_t type) {
    typeEntete_ = type >= 0 && type <= 2 ? type : std::int16_t{1};
    for (std::size_t i = 0; i < 3; ++i)
        cmdEntete[i]->setChecked(static_cast<int>(i) == typeEntete_);
}

std::int16_t FrmEnteteTab::PageDebut() const {
    return PageDebutDeChoix(ComboPageDebut->currentIndex());
}

} // namespace verdane::qt
