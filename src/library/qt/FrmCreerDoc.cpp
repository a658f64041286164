#include "library/qt/FrmCreerDoc.h"

#include "data/ChargerDossier.h"
#include "domain/GestEPICerfa.h"
#include "library/FormatsDocument.h"
#include "library/qt/AutresFenetres.h"
#include "library/qt/FrmExplor.h"
#include "library/qt/FrmOuvrDoc.h"
#include "library/qt/FrmOuvrExport.h"
#include "library/qt/ListeQt.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/Boutons.h"
#include "utils/qt/TexteQt.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace verdane::qt {

namespace {

Texte SansExtension(const Texte& nom) {
    const auto point = nom.find_last_of('.');
    return point == Texte::npos ? nom : nom.substr(0, point);
}

} // namespace

FrmCreerDoc::FrmCreerDoc(Contexte& ctx, bool pde, QWidget* parent)
    : QDialog(parent), ctx_(ctx), lblDossier_(new QLabel(this)), txtRepMdl_(new QLineEdit(this)),
      lstModeles_(new QTreeWidget(this)), txtRepDoc_(new QLineEdit(this)),
      txtNomDoc_(new QLineEdit(this)), ComboFormat_(new QComboBox(this)),
      FramePDE_(new QGroupBox(VersQt("PDE Cerfa"), this)), ComboPDE_(new QComboBox(this)),
      txtAnneesPDE_(new QSpinBox(this)) {
    setObjectName("FrmCreerDoc");
    setWindowTitle(VersQt(pde ? "Etude Prévisionnelle d'Installation (PDE Cerfa)"
                              : "Créer un document depuis un modèle"));
    suite_ = [this](const Texte& resultat) {
        FrmOuvrExport f(ctx_, resultat, this);
        f.exec();
    };
    lblDossier_->setObjectName("lblDossier");
    txtRepMdl_->setObjectName("txtRepMdl");
    lstModeles_->setObjectName("lstModeles");
    txtRepDoc_->setObjectName("txtRepDoc");
    txtNomDoc_->setObjectName("txtNomDoc");
    ComboFormat_->setObjectName("ComboFormat");
    FramePDE_->setObjectName("FramePDE");
    ComboPDE_->setObjectName("ComboPDE");
    txtAnneesPDE_->setObjectName("txtAnneesPDE");

    auto* cmdDossMarlo = Bouton(this, "cmdDossMarlo", "Dossier Marlo...");
    auto* ligneDossier = new QHBoxLayout;
    ligneDossier->addWidget(lblDossier_, 1);
    ligneDossier->addWidget(cmdDossMarlo);

    // Left: the model.
    auto* gauche = new QGroupBox(VersQt("Modèle de document"), this);
    auto* cmdRepMdl = Bouton(this, "cmdRepMdl", "...");
    auto* ligneRepMdl = new QHBoxLayout;
    ligneRepMdl->addWidget(txtRepMdl_);
    ligneRepMdl->addWidget(cmdRepMdl);
    auto* dispoGauche = new QVBoxLayout(gauche);
    dispoGauche->addLayout(ligneRepMdl);
    dispoGauche->addWidget(lstModeles_);

    // Right: the result.
    auto* droite = new QGroupBox(VersQt("Document à créer"), this);
    auto* cmdRepDoc = Bouton(this, "cmdRepDoc", "...");
    auto* ligneRepDoc = new QHBoxLayout;
    ligneRepDoc->addWidget(txtRepDoc_);
    ligneRepDoc->addWidget(cmdRepDoc);
    auto* cmdChgEditeur = Bouton(this, "cmdChgEditeur", "Autre traitement de texte...");
    auto* formulaire = new QFormLayout(droite);
    formulaire->addRow(VersQt("Répertoire :"), ligneRepDoc);
    formulaire->addRow(VersQt("Nom :"), txtNomDoc_);
    formulaire->addRow(VersQt("Format :"), ComboFormat_);
    formulaire->addRow(QString(), cmdChgEditeur);

    for (std::size_t i = 0; i < PagesPDE().size(); ++i) ComboPDE_->addItem(VersQt(PagesPDE()[i]));
    txtAnneesPDE_->setRange(0, 30);
    auto* dispoPDE = new QFormLayout(FramePDE_);
    dispoPDE->addRow(VersQt("Pages :"), ComboPDE_);
    dispoPDE->addRow(VersQt("Années d'étude (0 : 5 ans) :"), txtAnneesPDE_);
    formulaire->addRow(FramePDE_);
    FramePDE_->setVisible(pde);

    auto* comCreerDoc = Bouton(this, "comCreerDoc", "&Créer le document");
    comCreerDoc->setDefault(true);
    auto* cmdAnnuler = Bouton(this, "cmdAnnuler", "Annuler");
    auto* boutons = new QHBoxLayout;
    boutons->addStretch();
    boutons->addWidget(comCreerDoc);
    boutons->addWidget(cmdAnnuler);

    auto* cotes = new QHBoxLayout;
    cotes->addWidget(gauche, 1);
    cotes->addWidget(droite, 1);
    auto* disposition = new QVBoxLayout(this);
    disposition->addLayout(ligneDossier);
    disposition->addLayout(cotes);
    disposition->addLayout(boutons);
    resize(860, 480);

    txtRepMdl_->setText(VersQt(ctx.etat.chemins.RepModlDocs));
    AfficherDossier();
    ListerModeles();
    RemplirFormats();
    if (pde) ChoisirPage(0);
    lstModeles_->setFocus(); // the model is the first choice

    connect(cmdDossMarlo, &QPushButton::clicked, this, &FrmCreerDoc::ChoisirDossier);
    connect(cmdRepMdl, &QPushButton::clicked, this, &FrmCreerDoc::ChoisirRepertoireModeles);
    connect(txtRepMdl_, &QLineEdit::editingFinished, this, &FrmCreerDoc::ListerModeles);
    connect(lstModeles_, &QTreeWidget::itemSelectionChanged, this, &FrmCreerDoc::ChoisirModele);
    connect(cmdRepDoc, &QPushButton::clicked, this, &FrmCreerDoc::ChoisirRepertoireResultat);
    connect(cmdChgEditeur, &QPushButton::clicked, this, &FrmCreerDoc::ChangerEditeur);
    connect(ComboPDE_, &QComboBox::activated, this, &FrmCreerDoc::ChoisirPage);
    connect(comCreerDoc, &QPushButton::clicked, this, &FrmCreerDoc::Creer);
    connect(cmdAnnuler, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmCreerDoc::AfficherDossier() {
    const Etat& e = ctx_.etat;
    const bool choisi = !Rogner(e.NomDossier[0]).empty();
    lblDossier_->setText(VersQt(
        "Dossier Marlo : " + (choisi ? Rogner(e.NomDossier[0]) : Texte("aucun dossier choisi"))));
    if (choisi) {
        txtRepDoc_->setText(VersQt(DossierComplet(e, 0)));
        txtAnneesPDE_->setValue(e.nbAnEtude);
    } else if (txtRepDoc_->text().isEmpty()) {
        txtRepDoc_->setText(VersQt(Rogner(e.options.RepDocuments).empty()
                                       ? e.chemins.RepModlDocs
                                       : AjouterBarre(e.options.RepDocuments)));
    }
}

void FrmCreerDoc::ListerModeles() {
    modeles_ = ListerFichiers(ctx_.etat, DepuisQt(txtRepMdl_->text()), "MDL");
    RemplirListe(*lstModeles_, modeles_, false);
}

void FrmCreerDoc::ChoisirModele() {
    const auto choix = LignesChoisies(*lstModeles_, modeles_);
    if (choix.empty()) return;
    modele_ = modeles_.dossier + choix[0].nom;
    page_ = -1; // the model picked by hand replaces a page of the PDE
    const Texte nom = DepuisQt(txtNomDoc_->text());
    if (nom.empty() || nom == nomPropose_) {
        nomPropose_ = SansExtension(choix[0].nom);
        txtNomDoc_->setText(VersQt(nomPropose_));
    }
}

void FrmCreerDoc::ChoisirPage(int index) {
    page_ = index;
    lstModeles_->clearSelection();
    nomPropose_ = NomResultatPDE(index);
    txtNomDoc_->setText(VersQt(nomPropose_));
}

void FrmCreerDoc::ChoisirRepertoireModeles() {
    txtRepMdl_->setText(VersQt(ChoisirRepertoire(ctx_, this, DepuisQt(txtRepMdl_->text()))));
    ListerModeles();
}

void FrmCreerDoc::ChoisirRepertoireResultat() {
    txtRepDoc_->setText(VersQt(ChoisirRepertoire(ctx_, this, DepuisQt(txtRepDoc_->text()))));
}

void FrmCreerDoc::ChoisirDossier() {
    FrmOuvrDoc f(ctx_, "dossier", {}, this);
    if (f.exec() == QDialog::Accepted) AfficherDossier();
}

void FrmCreerDoc::ChangerEditeur() {
    OuvrirAutreFenetre(ctx_, "FrmChoixEditeur", {"ouvredoc"});
    RemplirFormats();
}

void FrmCreerDoc::RemplirFormats() {
    ComboFormat_->clear();
    for (const FormatOffert& f : FormatsOfferts(ctx_.etat))
        ComboFormat_->addItem(VersQt(f.libelle), QChar(f.lettre));
}

void FrmCreerDoc::Creer() {
    DemandeCreation d;
    d.modele = modele_;
    d.dossierResultat = DepuisQt(txtRepDoc_->text());
    d.nomResultat = DepuisQt(txtNomDoc_->text());
    d.format = static_cast<char>(ComboFormat_->currentData().toChar().toLatin1());
    if (d.format == '\0') d.format = 'R';
    if (!FramePDE_->isHidden()) {
        d.pagePDE = page_;
        if (page_ >= 0) d.anneesPDE = txtAnneesPDE_->value();
    } else {
        d.pagePDE = -1;
    }
    setEnabled(false);
    Texte resultat;
    const auto issue = LancerCreation(ctx_, d, resultat);
    setEnabled(true);
    if (issue != IssueCreation::Faite) return;
    hide();
    suite_(resultat);
    accept();
}

} // namespace verdane::qt
