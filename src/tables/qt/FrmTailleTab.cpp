#include "tables/qt/FrmTailleTab.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/DialoguesCellule.h"
#include "tables/qt/OutilsDialogues.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>

namespace verdane::qt {

namespace {

QComboBox* Liste(QWidget* parent, const char* nom, const std::vector<Texte>& textes,
                 const Texte& courant) {
    auto* c = new QComboBox(parent);
    c->setObjectName(nom);
    c->setEditable(true);
    for (const Texte& t : textes) c->addItem(VersQt(t));
    c->setCurrentText(VersQt(courant));
    return c;
}

} // namespace

FrmTailleTab::FrmTailleTab(int hauteur, int retrait, QWidget* parent) : QDialog(parent) {
    setObjectName("FrmTailleTab");
    setWindowTitle(VersQt("Taille de la ligne"));
    auto* formulaire = new QFormLayout(this);
    ComboHauteur = Liste(this, "ComboHauteur", HauteursProposees(), TexteHauteur(hauteur));
    ComboRetrait = Liste(this, "ComboRetrait", RetraitsProposes(), std::to_string(retrait));
    formulaire->addRow(VersQt("Hauteur de la ligne :"), ComboHauteur);
    formulaire->addRow(VersQt("Retrait dans les cellules :"), ComboRetrait);
    formulaire->addRow(BoutonsOkAnnuler(this));
}

std::optional<std::int16_t> FrmTailleTab::Hauteur() const {
    return HauteurDeTexte(DepuisQt(ComboHauteur->currentText()));
}

std::optional<std::int16_t> FrmTailleTab::Retrait() const {
    const auto r = HauteurDeTexte(DepuisQt(ComboRetrait->currentText()));
    // "AUTO" means nothing for a gap.
    if (r && *r == 0 && ComboRetrait->currentText().trimmed() != "0") return std::nullopt;
    return r;
}

} // namespace verdane::qt
