#include "library/qt/FrmOuvrDoc.h"

#include "data/ChargerDossier.h"
#include "library/qt/FrmExplor.h"
#include "library/qt/ListeQt.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/TexteQt.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace verdane::qt {

FrmOuvrDoc::FrmOuvrDoc(Contexte& ctx, const Texte& tag, const Texte& documentMaj, QWidget* parent)
    : QDialog(parent), ctx_(ctx), mode_(ModeDuTag(tag)), documentMaj_(documentMaj),
      onglets_(OngletsOuverture(mode_)), TabStripMdlDoc_(new QTabBar(this)),
      txtRepertoire_(new QLineEdit(this)), lstFichiers_(new QTreeWidget(this)),
      CheckSvgRepMdlDoc_(new QCheckBox(VersQt("Mémoriser ce répertoire"), this)),
      cmdSupprimer_(new QPushButton(this)) {
    setObjectName("FrmOuvrDoc");
    const Texte titre = TitreOuverture(mode_, false);
    setWindowTitle(VersQt(titre.empty() ? Texte("Ouvrir un modèle ou un document") : titre));
    TabStripMdlDoc_->setObjectName("TabStripMdlDoc");
    for (const OngletOuverture& o : onglets_) TabStripMdlDoc_->addTab(VersQt(o.libelle));
    txtRepertoire_->setObjectName("txtRepertoire");
    lstFichiers_->setObjectName("lstFichiers");
    CheckSvgRepMdlDoc_->setObjectName("CheckSvgRepMdlDoc");
    CheckSvgRepMdlDoc_->setChecked(ctx.etat.options.MemoRepDocuments != 0);
    CheckSvgRepMdlDoc_->setVisible(mode_ == ModeOuverture::Document);
    cmdSupprimer_->setObjectName("cmdSupprimer");

    auto* ligneRep = new QHBoxLayout;
    ligneRep->addWidget(new QLabel(VersQt("Répertoire :"), this));
    ligneRep->addWidget(txtRepertoire_);
    auto* cmdRepertoire = new QPushButton("...", this);
    cmdRepertoire->setObjectName("cmdRepertoire");
    cmdRepertoire->setAutoDefault(false);
    ligneRep->addWidget(cmdRepertoire);

    auto* boutons = new QHBoxLayout;
    auto* cmdOuvrir =
        new QPushButton(VersQt(mode_ == ModeOuverture::Document ? "Ouvrir" : "Choisir"), this);
    cmdOuvrir->setObjectName("cmdOuvrir");
    cmdOuvrir->setDefault(true);
    auto* cmdSupprimerTout = new QPushButton(VersQt("Tout sup."), this);
    cmdSupprimerTout->setObjectName("cmdSupprimerTout");
    auto* cmdAnnuler = new QPushButton(VersQt("Annuler"), this);
    cmdAnnuler->setObjectName("cmdAnnuler");
    for (QPushButton* b : {cmdSupprimer_, cmdSupprimerTout, cmdAnnuler}) b->setAutoDefault(false);
    boutons->addWidget(CheckSvgRepMdlDoc_);
    boutons->addStretch();
    boutons->addWidget(cmdOuvrir);
    boutons->addWidget(cmdSupprimer_);
    boutons->addWidget(cmdSupprimerTout);
    boutons->addWidget(cmdAnnuler);

    auto* disposition = new QVBoxLayout(this);
    disposition->addWidget(TabStripMdlDoc_);
    disposition->addLayout(ligneRep);
    disposition->addWidget(lstFichiers_);
    disposition->addLayout(boutons);
    resize(720, 460);

    connect(TabStripMdlDoc_, &QTabBar::currentChanged, this, &FrmOuvrDoc::ChangerOnglet);
    connect(txtRepertoire_, &QLineEdit::editingFinished, this, &FrmOuvrDoc::Lister);
    connect(cmdRepertoire, &QPushButton::clicked, this, &FrmOuvrDoc::ChoisirRepertoire);
    connect(cmdOuvrir, &QPushButton::clicked, this, &FrmOuvrDoc::Ouvrir);
    connect(lstFichiers_, &QTreeWidget::itemDoubleClicked, this, &FrmOuvrDoc::Ouvrir);
    connect(cmdSupprimer_, &QPushButton::clicked, this, &FrmOuvrDoc::Supprimer);
    connect(cmdSupprimerTout, &QPushButton::clicked, this, &FrmOuvrDoc::SupprimerTout);
    connect(cmdAnnuler, &QPushButton::clicked, this, &FrmOuvrDoc::reject);
    ChangerOnglet();
}

Texte FrmOuvrDoc::RepertoireDeLOnglet() const {
    const Etat& e = ctx_.etat;
    const Texte tag = onglets_[static_cast<std::size_t>(TabStripMdlDoc_->currentIndex())].tag;
    if (tag == "DOS")
        return Rogner(e.RepDossier[0]).empty() ? e.chemins.RepWinMarlo + "Dossiers/"
                                               : AjouterBarre(e.RepDossier[0]);
    if (tag == "DOC" && !Rogner(e.options.RepDocuments).empty())
        return AjouterBarre(e.options.RepDocuments);
    return e.chemins.RepModlDocs;
}

void FrmOuvrDoc::ChangerOnglet() {
    const auto& onglet = onglets_[static_cast<std::size_t>(TabStripMdlDoc_->currentIndex())];
    cmdSupprimer_->setText(VersQt(onglet.suppression));
    txtRepertoire_->setText(VersQt(RepertoireDeLOnglet()));
    Lister();
}

void FrmOuvrDoc::Lister() {
    const auto& onglet = onglets_[static_cast<std::size_t>(TabStripMdlDoc_->currentIndex())];
    liste_ = ListerFichiers(ctx_.etat, DepuisQt(txtRepertoire_->text()), onglet.tag);
    RemplirListe(*lstFichiers_, liste_, false);
    if (liste_.tag == "DOS")
        for (int i = 0; i < lstFichiers_->topLevelItemCount() && !liste_.Vide(); ++i)
            lstFichiers_->topLevelItem(i)->setToolTip(
                0, VersQt(InfoBulleDossier(i + 1, liste_.lignes[static_cast<std::size_t>(i)].nom)));
    if (!liste_.Vide()) lstFichiers_->setCurrentItem(lstFichiers_->topLevelItem(0));
}

void FrmOuvrDoc::ChoisirRepertoire() {
    txtRepertoire_->setText(
        VersQt(verdane::qt::ChoisirRepertoire(ctx_, this, DepuisQt(txtRepertoire_->text()))));
    Lister();
}

void FrmOuvrDoc::Ouvrir() {
    const auto choix = LignesChoisies(*lstFichiers_, liste_);
    if (CheckSvgRepMdlDoc_->isChecked() && liste_.tag == "DOC") {
        ctx_.etat.options.RepDocuments = liste_.dossier;
        ctx_.etat.options.MemoRepDocuments = -1;
    }
    if (OuvrirElement(ctx_, mode_, liste_, choix.empty() ? nullptr : &choix[0], documentMaj_))
        accept();
}

void FrmOuvrDoc::Supprimer() {
    if (SupprimerDepuisListe(ctx_, liste_, LignesChoisies(*lstFichiers_, liste_)) > 0) Lister();
}

void FrmOuvrDoc::SupprimerTout() {
    if (SupprimerToutDepuisListe(ctx_, liste_) > 0) Lister();
}

void FrmOuvrDoc::reject() {
    if (ConfirmerAnnulation(ctx_, mode_)) QDialog::reject();
}

} // namespace verdane::qt
