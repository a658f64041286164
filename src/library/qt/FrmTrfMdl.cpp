#include "library/qt/FrmTrfMdl.h"

#include "library/GestModeles.h"
#include "library/qt/FrmChgExtDoc.h"
#include "library/qt/FrmExplor.h"
#include "library/qt/ListeQt.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>

namespace verdane::qt {

namespace {

struct Genre {
    const char* tag;
    const char* libelle;
};
constexpr std::array<Genre, 4> kGenres = {{{"MDL", "Modèles de document"},
                                           {"DOC", "Documents texte"},
                                           {"TAB", "Modèles de tableau"},
                                           {"GPH", "Modèles de graphique"}}};

} // namespace

FrmTrfMdl::FrmTrfMdl(Contexte& ctx, char mode, const Texte& tag, const Texte& source,
                     QWidget* parent)
    : QDialog(parent), ctx_(ctx), mode_(mode), lblLegende_(new QLabel(this)),
      comboGenre_(new QComboBox(this)), lblSource_(new QLabel(this)),
      txtSource_(new QLineEdit(this)), txtDestination_(new QLineEdit(this)),
      lstFichiers_(new QTreeWidget(this)), cmdToutTrf_(new QPushButton(VersQt("Tout Trf."), this)),
      cmdRenommer_(new QPushButton(VersQt("Renommer..."), this)),
      cmdConvertir_(new QPushButton(VersQt("Convertir..."), this)) {
    setObjectName("FrmTrfMdl");
    const bool ajout = mode == 'A';
    setWindowTitle(
        VersQt(ajout ? "Ajout de modèle ou de document" : "Copie de modèle ou de document"));
    PoserLegende(ajout ? " Importer un modèle de tableau ou de graphique"
                       : " Exporter un modèle ou un document texte");
    comboGenre_->setObjectName("ComboGenre");
    for (const Genre& g : kGenres) comboGenre_->addItem(VersQt(g.libelle), VersQt(g.tag));
    for (std::size_t i = 0; i < kGenres.size(); ++i)
        if (tag == kGenres[i].tag) comboGenre_->setCurrentIndex(static_cast<int>(i));
    txtSource_->setObjectName("txtSource");
    txtDestination_->setObjectName("txtDestination");
    lstFichiers_->setObjectName("lstFichiers");
    cmdToutTrf_->setObjectName("cmdToutTrf");
    cmdRenommer_->setObjectName("cmdRenommer");
    cmdConvertir_->setObjectName("cmdConvertir");

    const Texte programme = RepertoireDuProgramme(Tag());
    txtSource_->setText(VersQt(!source.empty() ? source : ajout ? Texte() : programme));
    txtDestination_->setText(VersQt(ajout ? programme : Texte()));

    auto* grille = new QGridLayout;
    grille->addWidget(new QLabel(VersQt("Genre :"), this), 0, 0);
    grille->addWidget(comboGenre_, 0, 1, 1, 2);
    grille->addWidget(new QLabel(VersQt("Source :"), this), 1, 0);
    grille->addWidget(txtSource_, 1, 1);
    auto* cmdSource = new QPushButton("...", this);
    cmdSource->setObjectName("cmdSource");
    grille->addWidget(cmdSource, 1, 2);
    grille->addWidget(new QLabel(VersQt("Destination :"), this), 2, 0);
    grille->addWidget(txtDestination_, 2, 1);
    auto* cmdDestination = new QPushButton("...", this);
    cmdDestination->setObjectName("cmdDestination");
    grille->addWidget(cmdDestination, 2, 2);

    auto* boutons = new QHBoxLayout;
    const auto bouton = [&](QPushButton* b, void (FrmTrfMdl::*action)()) {
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, action);
        boutons->addWidget(b);
    };
    auto* cmdTransferer = new QPushButton(VersQt("Transférer"), this);
    cmdTransferer->setObjectName("cmdTransferer");
    auto* cmdSupprimer = new QPushButton(VersQt("Supprimer"), this);
    cmdSupprimer->setObjectName("cmdSupprimer");
    auto* cmdSupprimerTout = new QPushButton(VersQt("Tout supprimer"), this);
    cmdSupprimerTout->setObjectName("cmdSupprimerTout");
    bouton(cmdToutTrf_, &FrmTrfMdl::ToutOuRien);
    bouton(cmdTransferer, &FrmTrfMdl::Transferer);
    bouton(cmdRenommer_, &FrmTrfMdl::Renommer);
    bouton(cmdSupprimer, &FrmTrfMdl::Supprimer);
    bouton(cmdSupprimerTout, &FrmTrfMdl::SupprimerTout);
    bouton(cmdConvertir_, &FrmTrfMdl::Convertir);
    auto* fermer = new QPushButton(VersQt("Fermer"), this);
    fermer->setObjectName("cmdFermer");
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    boutons->addWidget(fermer);

    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(lblLegende_);
    disposition->addLayout(grille);
    disposition->addWidget(lblSource_);
    disposition->addWidget(lstFichiers_);
    disposition->addLayout(boutons);
    resize(760, 480);

    connect(comboGenre_, &QComboBox::currentIndexChanged, this, &FrmTrfMdl::ChangerGenre);
    connect(txtSource_, &QLineEdit::editingFinished, this, &FrmTrfMdl::Lister);
    connect(cmdSource, &QPushButton::clicked, this, &FrmTrfMdl::ChoisirSource);
    connect(cmdDestination, &QPushButton::clicked, this, &FrmTrfMdl::ChoisirDestination);
    Lister();
}

void FrmTrfMdl::PoserLegende(const Texte& legende) {
    lblLegende_->setText(VersQt(legende));
}

void FrmTrfMdl::Cocher(const Texte& nom) {
    for (int i = 0; i < lstFichiers_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = lstFichiers_->topLevelItem(i);
        if ((item->flags() & Qt::ItemIsUserCheckable) && DepuisQt(item->text(0)) == nom)
            item->setCheckState(0, Qt::Checked);
    }
}

Texte FrmTrfMdl::Tag() const {
    return DepuisQt(comboGenre_->currentData().toString());
}

Texte FrmTrfMdl::RepertoireDuProgramme(const Texte& tag) const {
    const Etat& e = ctx_.etat;
    if (tag == "GPH") return e.chemins.RepModelGraph;
    if (tag == "DOC" && !Rogner(e.options.RepDocuments).empty())
        return AjouterBarre(e.options.RepDocuments);
    return e.chemins.RepModlDocs;
}

void FrmTrfMdl::ChangerGenre() {
    const Texte programme = RepertoireDuProgramme(Tag());
    if (mode_ == 'A')
        txtDestination_->setText(VersQt(programme));
    else
        txtSource_->setText(VersQt(programme));
    Lister();
}

void FrmTrfMdl::Lister() {
    const Texte source = DepuisQt(txtSource_->text());
    liste_ = ListerFichiers(ctx_.etat, source, Tag());
    lblSource_->setText(VersQt(liste_.source));
    setWindowIconText(VersQt(liste_.titre));
    RemplirListe(*lstFichiers_, liste_, true);
    const bool documents = Tag() == "DOC" || Tag() == "MDL";
    cmdRenommer_->setEnabled(documents);
    cmdConvertir_->setEnabled(Tag() == "DOC");
    tout_ = false;
    cmdToutTrf_->setText(VersQt("Tout Trf."));
    if (!Rogner(source).empty()) Signaler();
}

void FrmTrfMdl::Signaler() {
    if (liste_.probleme.empty()) return;
    ctx_.utilisateur.Boite(liste_.probleme, liste_.titreProbleme, Icone::Attention);
}

void FrmTrfMdl::ChoisirSource() {
    txtSource_->setText(VersQt(ChoisirRepertoire(ctx_, this, DepuisQt(txtSource_->text()))));
    Lister();
}

void FrmTrfMdl::ChoisirDestination() {
    txtDestination_->setText(
        VersQt(ChoisirRepertoire(ctx_, this, DepuisQt(txtDestination_->text()))));
}

void FrmTrfMdl::ToutOuRien() {
    tout_ = !tout_;
    CocherTout(*lstFichiers_, tout_);
    cmdToutTrf_->setText(VersQt(tout_ ? "Rien Trf." : "Tout Trf."));
}

void FrmTrfMdl::Transferer() {
    const auto choix = LignesChoisies(*lstFichiers_, liste_);
    if (choix.empty()) {
        ctx_.utilisateur.Boite("Cochez d'abord les éléments à transférer.", "Copie annulée",
                               Icone::Information);
        return;
    }
    TransfererSelection(ctx_, liste_.dossier, DepuisQt(txtDestination_->text()), Tag(), choix);
}

void FrmTrfMdl::Renommer() {
    const auto choix = LignesChoisies(*lstFichiers_, liste_);
    if (choix.size() != 1) {
        ctx_.utilisateur.Boite("Cochez le document à renommer, et lui seul.",
                               "Renommer un document texte", Icone::Information);
        return;
    }
    bool ok = false;
    const QString nouveau = QInputDialog::getText(
        this, VersQt("Renommer un document"),
        VersQt("- Attribution d'un nouveau nom -\nDocument à renommer : " + choix[0].nom),
        QLineEdit::Normal, QString(), &ok);
    if (!ok) return;
    if (RenommerDocument(ctx_, liste_.dossier + choix[0].nom, DepuisQt(nouveau))) Lister();
}

void FrmTrfMdl::Supprimer() {
    if (SupprimerSelection(ctx_, liste_.dossier, Tag(), LignesChoisies(*lstFichiers_, liste_)) > 0)
        Lister();
}

void FrmTrfMdl::SupprimerTout() {
    if (liste_.Vide()) return;
    if (verdane::SupprimerTout(ctx_, liste_.dossier, Tag())) Lister();
}

void FrmTrfMdl::Convertir() {
    const auto choix = LignesChoisies(*lstFichiers_, liste_);
    if (choix.size() != 1) {
        ctx_.utilisateur.Boite("Cochez le document à convertir, et lui seul.",
                               "Conversion d'un document", Icone::Information);
        return;
    }
    FrmChgExtDoc f(ctx_, liste_.dossier + choix[0].nom, this);
    if (f.exec() == QDialog::Accepted) Lister();
}

} // namespace verdane::qt
