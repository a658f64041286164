#include "library/qt/FrmExplor.h"

#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QTreeView>
#include <QVBoxLayout>

namespace verdane::qt {

FrmExplor::FrmExplor(Contexte& ctx, const Texte& depart, QWidget* parent)
    : QDialog(parent), ctx_(ctx), arbre_(new QTreeView(this)), modele_(new QFileSystemModel(this)) {
    setObjectName("FrmExplor");
    setWindowTitle(VersQt("Choix d'un répertoire"));
    modele_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives);
    modele_->setRootPath(QDir::rootPath());
    arbre_->setModel(modele_);
    for (int c = 1; c < modele_->columnCount(); ++c) arbre_->hideColumn(c);
    arbre_->header()->hide();
    const QString debut = VersQt(CheminTexte(CheminSysteme(depart)));
    const QModelIndex ici = modele_->index(debut);
    if (ici.isValid()) {
        arbre_->setCurrentIndex(ici);
        arbre_->scrollTo(ici);
    }
    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(boutons, &QDialogButtonBox::accepted, this, &FrmExplor::Valider);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(arbre_);
    disposition->addWidget(boutons);
    resize(420, 480);
}

void FrmExplor::Valider() {
    const QString chemin = modele_->filePath(arbre_->currentIndex());
    if (chemin.isEmpty()) return;
    const Texte choisi = AjouterBarre(DepuisQt(chemin));
    if (!QFileInfo(chemin).isReadable()) {
        ctx_.utilisateur.Boite(choisi + " n'est pas prêt.", "Lecteur non disponible.",
                               Icone::Attention);
        return;
    }
    if (ctx_.utilisateur.Question("Choisir le répertoire " + choisi + " ?",
                                  "Demande de confirmation", Boutons::OuiNon, Reponse::Oui,
                                  Icone::Question) != Reponse::Oui)
        return;
    repertoire_ = choisi;
    accept();
}

Texte ChoisirRepertoire(Contexte& ctx, QWidget* parent, const Texte& depart) {
    FrmExplor f(ctx, depart, parent);
    return f.exec() == QDialog::Accepted ? f.Repertoire() : depart;
}

} // namespace verdane::qt
