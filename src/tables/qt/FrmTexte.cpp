#include "tables/qt/FrmTexte.h"

#include "graphs/qt/RenduGraphique.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>

namespace verdane::qt {

namespace {

Texte DepuisQString(const QString& s) {
    return Utf8VersCp1252(s.toStdString());
}

} // namespace

FrmTexte::FrmTexte(const Options& options, const LigneModele& ligne, int nbColonnes, int numero,
                   QWidget* parent)
    : QDialog(parent), options_(options), ligne_(ligne), nbColonnes_(nbColonnes) {
    setObjectName("FrmTexte");
    setWindowTitle(VersQString("Définition de la ligne n°" + std::to_string(numero)));
    auto* formulaire = new QFormLayout(this);
    ComboGenre = new QComboBox(this);
    ComboGenre->setObjectName("ComboGenre");
    for (const Texte& t : TextesTypesLigne()) ComboGenre->addItem(VersQString(t));
    ComboGenre->setCurrentIndex(static_cast<int>(TypeDeLigne(ligne)));
    formulaire->addRow(VersQString("Type de ligne :"), ComboGenre);
    for (int c = 0; c < nbColonnes; ++c) {
        auto* b =
            new QLineEdit(VersQString(ligne.cellules[static_cast<std::size_t>(c)].texte), this);
        b->setObjectName(QStringLiteral("txtLibelle%1").arg(c + 1));
        txtLibelle.push_back(b);
        formulaire->addRow(VersQString("Libellé " + std::to_string(c + 1) + " :"), b);
    }
    txtDefinition = new QLineEdit(VersQString(ligne.definition), this);
    txtDefinition->setObjectName("txtDefinition");
    txtDefinition->setToolTip(
        VersQString("serie:fichier+code:décimales:règle des zéros, totalC:formule:..., espace"));
    formulaire->addRow(VersQString("Définition des valeurs :"), txtDefinition);
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    formulaire->addRow(boutons);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // A kind picked gives its defaults at once.
    connect(ComboGenre, &QComboBox::currentIndexChanged, this, [this](int genre) {
        LigneModele l = Ligne();
        AppliquerTypeLigne(l, static_cast<TypeLigne>(genre), options_, nbColonnes_);
        for (std::size_t c = 0; c < txtLibelle.size(); ++c)
            txtLibelle[c]->setText(VersQString(l.cellules[c].texte));
        txtDefinition->setText(VersQString(l.definition));
        ligne_ = l;
    });
}

LigneModele FrmTexte::Ligne() const {
    LigneModele l = ligne_;
    for (std::size_t c = 0; c < txtLibelle.size(); ++c)
        l.cellules[c].texte = TexteDeLibelle(DepuisQString(txtLibelle[c]->text()));
    l.definition = DepuisQString(txtDefinition->text());
    return l;
}

} // namespace verdane::qt
