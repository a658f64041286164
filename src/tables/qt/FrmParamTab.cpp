#include "tables/qt/FrmParamTab.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/DialoguesCellule.h"
#include "tables/qt/FrmDefCell.h"
#include "tables/qt/OutilsDialogues.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace verdane::qt {

namespace {

constexpr int kTailles[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

} // namespace

FrmParamTab::FrmParamTab(Contexte& ctx, QWidget* parent) : QDialog(parent), ctx_(ctx) {
    setObjectName("FrmParamTab");
    setWindowTitle(VersQt("Paramètres par défaut des tableaux"));
    for (int g = 0; g < 6; ++g) {
        const auto paire = PaireDefaut(ctx.etat.options, g);
        formats_[static_cast<std::size_t>(2 * g)] = paire[0];
        formats_[static_cast<std::size_t>(2 * g + 1)] = paire[1];
    }
    auto* formulaire = new QFormLayout(this);
    ComboTaille = new QComboBox(this);
    ComboTaille->setObjectName("ComboTaille");
    for (int t : kTailles) ComboTaille->addItem(QString::number(t), t);
    const int taille = ComboTaille->findData(static_cast<int>(ctx.etat.options.TailleDefaut));
    ComboTaille->setCurrentIndex(taille >= 0 ? taille : 2);
    ComboAlignement = new QComboBox(this);
    ComboAlignement->setObjectName("ComboAlignement");
    for (const Texte& t : TextesAlignements()) ComboAlignement->addItem(VersQt(t));
    ComboAlignement->setCurrentText(VersQt(TexteAlignement(ctx.etat.options.AlignementDefaut)));
    ComboGenre = new QComboBox(this);
    ComboGenre->setObjectName("ComboGenre");
    for (const Texte& t : TextesGenresDefauts()) ComboGenre->addItem(VersQt(t));
    formulaire->addRow(VersQt("Taille du texte par défaut :"), ComboTaille);
    formulaire->addRow(VersQt("Alignement par défaut :"), ComboAlignement);
    formulaire->addRow(VersQt("Cadres des lignes de type :"), ComboGenre);
    static const char* const cotes[] = {"Cellules de libellé :", "Cellules de valeurs :"};
    for (int cote = 0; cote < 2; ++cote) {
        auto* ligne = new QHBoxLayout;
        lblCadre[static_cast<std::size_t>(cote)] = new QLabel(this);
        lblCadre[static_cast<std::size_t>(cote)]->setObjectName(cote == 0 ? "lblCadreLibelle"
                                                                          : "lblCadreValeur");
        auto* b = new QPushButton(VersQt("Définir..."), this);
        b->setObjectName(cote == 0 ? "cmdCadreLibelle" : "cmdCadreValeur");
        b->setAutoDefault(false);
        cmdCadre[static_cast<std::size_t>(cote)] = b;
        ligne->addWidget(lblCadre[static_cast<std::size_t>(cote)], 1);
        ligne->addWidget(b);
        formulaire->addRow(VersQt(cotes[cote]), ligne);
        connect(b, &QPushButton::clicked, this, [this, cote] { EditerCadre(cote); });
    }
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    formulaire->addRow(boutons);
    connect(boutons, &QDialogButtonBox::accepted, this, &FrmParamTab::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(ComboGenre, &QComboBox::currentIndexChanged, this, [this] { MontrerGenre(); });
    MontrerGenre();
}

void FrmParamTab::MontrerGenre() {
    const int g = std::max(0, ComboGenre->currentIndex());
    for (std::size_t cote = 0; cote < 2; ++cote)
        lblCadre[cote]->setText(VersQt(formats_[static_cast<std::size_t>(2 * g) + cote]));
}

void FrmParamTab::EditerCadre(int cote) {
    const std::size_t i =
        static_cast<std::size_t>(2 * std::max(0, ComboGenre->currentIndex()) + cote);
    FrmDefCell dialogue(LireCadre(formats_[i]), this);
    if (dialogue.exec() != QDialog::Accepted) return;
    formats_[i] = EcrireCadre(dialogue.Valeur());
    MontrerGenre();
}

void FrmParamTab::accept() {
    if (ValiderParametres(ctx_, ComboTaille->currentData().toInt(),
                          DepuisQt(ComboAlignement->currentText()), formats_))
        QDialog::accept();
}

} // namespace verdane::qt
