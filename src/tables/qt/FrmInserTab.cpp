#include "tables/qt/FrmInserTab.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/ApercuTableau.h"
#include "tables/DialoguesCellule.h"
#include "tables/qt/FrmAddRmvL.h"
#include "tables/qt/FrmDefCell.h"
#include "tables/qt/FrmEnteteTab.h"
#include "tables/qt/FrmLargeurTab.h"
#include "tables/qt/FrmParamTab.h"
#include "tables/qt/FrmTailleTab.h"
#include "tables/qt/FrmTexte.h"
#include "tables/qt/OutilsDialogues.h"
#include "utils/Chaines.h"
#include "utils/qt/Boutons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <map>

namespace verdane::qt {

namespace {

// Periods of the autosave, in minutes; 5 is proposed.
constexpr int kPeriodes[] = {1, 2, 3, 4, 5, 15, 30};

} // namespace

FrmInserTab::FrmInserTab(Contexte& ctx, const Texte& code, QWidget* parent)
    : QDialog(parent), ctx_(ctx), editeur_(ctx), sauvegarde_(new QTimer(this)) {
    setObjectName("FrmInserTab");
    setWindowTitle(VersQt("Edition - Insertion des Tableaux"));

    TreeViewTab = new QTreeWidget(this);
    TreeViewTab->setObjectName("TreeViewTab");
    TreeViewTab->setHeaderHidden(true);
    TreeViewTab->setMinimumWidth(220);
    cmdNouveau = Bouton(this, "cmdNouveau", "Nouveau tableau");
    cmdSupprimer = Bouton(this, "cmdSupprimer", "Supprimer");
    auto* gauche = new QVBoxLayout;
    gauche->addWidget(TreeViewTab, 1);
    auto* boutonsArbre = new QHBoxLayout;
    boutonsArbre->addWidget(cmdNouveau);
    boutonsArbre->addWidget(cmdSupprimer);
    gauche->addLayout(boutonsArbre);

    txtNom = new QLineEdit(this);
    txtNom->setObjectName("txtNom");
    txtDossier = new QLineEdit(this);
    txtDossier->setObjectName("txtDossier");
    txtSousDossier = new QLineEdit(this);
    txtSousDossier->setObjectName("txtSousDossier");
    ComboGenre = new QComboBox(this);
    ComboGenre->setObjectName("ComboGenre");
    for (const Texte& t : TextesGenresTableau()) ComboGenre->addItem(VersQt(t));
    ComboAnnees = new QComboBox(this);
    ComboAnnees->setObjectName("ComboAnnees");
    for (const Texte& t : TextesAnneesTableau()) ComboAnnees->addItem(VersQt(t));
    txtNbColonnes = new QSpinBox(this);
    txtNbColonnes->setObjectName("txtNbColonnes");
    txtNbColonnes->setRange(1, kMaxColonnesLibelle);
    txtLargeurValeurs = new QSpinBox(this);
    txtLargeurValeurs->setObjectName("txtLargeurValeurs");
    txtLargeurValeurs->setRange(100, 30000);
    txtLargeurValeurs->setSingleStep(100);
    txtLargeurValeurs->setToolTip(VersQt(
        "Par exemple, si vous choisissez une largeur de 9000 pour les colonnes de valeurs et que "
        "vous créez le tableau lorsque le dossier Marlo lié comporte 6 années d'exercice, la "
        "largeur de chaque colonne de valeur sera donc de 9000 / 6, soit 1500."));
    CheckCentre = new QCheckBox(VersQt("Centré sur la page"), this);
    CheckCentre->setObjectName("CheckCentre");
    CheckRouge = new QCheckBox(VersQt("Valeurs négatives en rouge"), this);
    CheckRouge->setObjectName("CheckRouge");
    auto* proprietes = new QFormLayout;
    proprietes->addRow(VersQt("Nom :"), txtNom);
    proprietes->addRow(VersQt("Dossier :"), txtDossier);
    proprietes->addRow(VersQt("Sous-dossier :"), txtSousDossier);
    proprietes->addRow(VersQt("Type de tableau :"), ComboGenre);
    proprietes->addRow(VersQt("Années :"), ComboAnnees);
    proprietes->addRow(VersQt("Colonnes de libellé :"), txtNbColonnes);
    proprietes->addRow(VersQt("Largeur des valeurs :"), txtLargeurValeurs);
    auto* cases = new QHBoxLayout;
    cases->addWidget(CheckCentre);
    cases->addWidget(CheckRouge);
    proprietes->addRow(cases);

    GrilleApercu = new QTableWidget(this);
    GrilleApercu->setObjectName("GrilleApercu");
    GrilleApercu->setEditTriggers(QAbstractItemView::NoEditTriggers);
    GrilleApercu->setSelectionBehavior(QAbstractItemView::SelectRows);
    GrilleApercu->setSelectionMode(QAbstractItemView::SingleSelection);
    GrilleApercu->setToolTip(VersQt("Double-clic : définition de la ligne"));
    cmdAjouter = Bouton(this, "cmdAjouter", "Ajouter une ligne");
    cmdSupprLigne = Bouton(this, "cmdSupprLigne", "Supprimer une ligne");
    cmdDeplacer = Bouton(this, "cmdDeplacer", "Déplacer une ligne");
    cmdDupliquer = Bouton(this, "cmdDupliquer", "Dupliquer une ligne");
    cmdTexte = Bouton(this, "cmdTexte", "Définir la ligne");
    auto* lignes = new QHBoxLayout;
    for (QPushButton* b : {cmdAjouter, cmdSupprLigne, cmdDeplacer, cmdDupliquer, cmdTexte})
        lignes->addWidget(b);
    cmdCellule = Bouton(this, "cmdCellule", "Cadres et fond");
    cmdTaille = Bouton(this, "cmdTaille", "Taille de la ligne");
    cmdLargeur = Bouton(this, "cmdLargeur", "Largeur de colonne");
    cmdEntete = Bouton(this, "cmdEntete", "En-tête des répétitions");
    cmdParametres = Bouton(this, "cmdParametres", "Paramètres par défaut");
    auto* cellules = new QHBoxLayout;
    for (QPushButton* b : {cmdCellule, cmdTaille, cmdLargeur, cmdEntete, cmdParametres})
        cellules->addWidget(b);

    CheckSauvegarde = new QCheckBox(VersQt("Sauvegarde automatique toutes les"), this);
    CheckSauvegarde->setObjectName("CheckSauvegarde");
    CheckSauvegarde->setToolTip(VersQt(
        "Sans elle, la bibliothèque est enregistrée à la fermeture de l'éditeur. Cependant, en "
        "cas de plantage ou de panne de courant par exemple, cette sauvegarde temporaire serait "
        "perdue."));
    ComboPeriode = new QComboBox(this);
    ComboPeriode->setObjectName("ComboPeriode");
    for (int p : kPeriodes) ComboPeriode->addItem(QStringLiteral("%1 min").arg(p));
    ComboPeriode->setCurrentIndex(4);
    cmdInserer = Bouton(this, "cmdInserer", "Insérer");
    cmdAnnuler = Bouton(this, "cmdAnnuler", "Fermer");
    auto* bas = new QHBoxLayout;
    bas->addWidget(CheckSauvegarde);
    bas->addWidget(ComboPeriode);
    bas->addStretch();
    bas->addWidget(cmdInserer);
    bas->addWidget(cmdAnnuler);

    auto* droite = new QVBoxLayout;
    droite->addLayout(proprietes);
    droite->addWidget(new QLabel(VersQt("Aperçu du tableau :"), this));
    droite->addWidget(GrilleApercu, 1);
    droite->addLayout(lignes);
    droite->addLayout(cellules);
    auto* milieu = new QHBoxLayout;
    milieu->addLayout(gauche);
    milieu->addLayout(droite, 1);
    auto* tout = new QVBoxLayout(this);
    tout->addLayout(milieu, 1);
    tout->addLayout(bas);

    connect(cmdNouveau, &QPushButton::clicked, this, [this] { NouveauTableau(); });
    connect(cmdSupprimer, &QPushButton::clicked, this, [this] { Supprimer(); });
    connect(cmdAjouter, &QPushButton::clicked, this, [this] { OperationLigne('a'); });
    connect(cmdSupprLigne, &QPushButton::clicked, this, [this] { OperationLigne('s'); });
    connect(cmdDeplacer, &QPushButton::clicked, this, [this] { OperationLigne('m'); });
    connect(cmdDupliquer, &QPushButton::clicked, this, [this] { OperationLigne('d'); });
    connect(cmdTexte, &QPushButton::clicked, this, [this] { EditerLigne(LigneSelectionnee()); });
    connect(GrilleApercu, &QTableWidget::cellDoubleClicked, this,
            [this](int rangee) { EditerLigne(rangee + 1); });
    connect(cmdInserer, &QPushButton::clicked, this, [this] { Inserer(); });
    connect(cmdCellule, &QPushButton::clicked, this, [this] { DefinirCellule(); });
    connect(cmdTaille, &QPushButton::clicked, this, [this] { DefinirTaille(); });
    connect(cmdLargeur, &QPushButton::clicked, this, [this] { DefinirLargeur(); });
    connect(cmdEntete, &QPushButton::clicked, this, [this] { DefinirEntete(); });
    connect(cmdParametres, &QPushButton::clicked, this, [this] { Parametres(); });
    connect(cmdAnnuler, &QPushButton::clicked, this, [this] { Annuler(); });
    connect(TreeViewTab, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (chargement_ || item == nullptr) return;
        const int n = NumeroTableau(DepuisQt(item->data(0, kRoleCle).toString()));
        if (n > 0) {
            editeur_.Selectionner(n);
            MontrerTableau();
        }
    });
    for (QLineEdit* b : {txtNom, txtDossier, txtSousDossier})
        connect(b, &QLineEdit::editingFinished, this, [this] { SauverProprietes(); });
    for (QComboBox* c : {ComboAnnees})
        connect(c, &QComboBox::currentIndexChanged, this, [this] { SauverProprietes(); });
    connect(ComboGenre, &QComboBox::currentIndexChanged, this, [this](int genre) {
        if (chargement_) return;
        if (!editeur_.ChangerGenre(genre)) MontrerTableau(); // refused: the kind comes back
    });
    for (QSpinBox* s : {txtNbColonnes, txtLargeurValeurs})
        connect(s, &QSpinBox::valueChanged, this, [this] { SauverProprietes(); });
    for (QCheckBox* c : {CheckCentre, CheckRouge})
        connect(c, &QCheckBox::toggled, this, [this] { SauverProprietes(); });
    connect(CheckSauvegarde, &QCheckBox::toggled, this, [this] { ProgrammerSauvegarde(); });
    connect(ComboPeriode, &QComboBox::currentIndexChanged, this,
            [this] { ProgrammerSauvegarde(); });
    connect(sauvegarde_, &QTimer::timeout, this, [this] { editeur_.Enregistrer(); });

    editeur_.Ouvrir();
    if (!Rogner(code).empty()) editeur_.Recuperer(code);
    RemplirArbre();
    MontrerTableau();
    resize(1100, 700);
}

int FrmInserTab::LigneSelectionnee() const {
    const int rangee = GrilleApercu->currentRow();
    return rangee >= 0 ? rangee + 1 : 1;
}

void FrmInserTab::RemplirArbre() {
    chargement_ = true;
    TreeViewTab->clear();
    std::map<Texte, QTreeWidgetItem*> items;
    QTreeWidgetItem* choisi = nullptr;
    const Texte courant = "tab" + std::to_string(editeur_.Courant());
    for (const NoeudTableau& n : ArbreTableaux(editeur_.Tableaux())) {
        auto* item = n.parent.empty() ? new QTreeWidgetItem(TreeViewTab)
                                      : new QTreeWidgetItem(items[n.parent]);
        item->setText(0, VersQt(n.texte));
        item->setData(0, kRoleCle, VersQt(n.cle));
        items[n.cle] = item;
        if (n.cle == courant) choisi = item;
    }
    TreeViewTab->expandAll();
    if (choisi) TreeViewTab->setCurrentItem(choisi);
    chargement_ = false;
}

void FrmInserTab::MontrerTableau() {
    chargement_ = true;
    const TableauModele* t = editeur_.Tableau();
    for (QWidget* w : std::initializer_list<QWidget*>{
             txtNom, txtDossier, txtSousDossier, ComboGenre, ComboAnnees, txtNbColonnes,
             txtLargeurValeurs, CheckCentre, CheckRouge, cmdAjouter, cmdSupprLigne, cmdDeplacer,
             cmdDupliquer, cmdTexte, cmdInserer})
        w->setEnabled(t != nullptr);
    if (t) {
        txtNom->setText(VersQt(Rogner(t->nom)));
        txtDossier->setText(VersQt(Rogner(t->dossier)));
        txtSousDossier->setText(VersQt(Rogner(t->sousDossier)));
        ComboGenre->setCurrentIndex(std::clamp<int>(t->genre, 0, 3));
        ComboAnnees->setCurrentIndex(std::clamp<int>(t->modeAnnees, 0, 2));
        txtNbColonnes->setValue(t->ColonnesLibelle());
        txtLargeurValeurs->setValue(t->largeurValeurs);
        CheckCentre->setChecked(t->centre == 1);
        CheckRouge->setChecked(t->rouge == 1);
    }
    chargement_ = false;
    MontrerApercu();
}

void FrmInserTab::MontrerApercu() {
    GrilleApercu->clear();
    const TableauModele* t = editeur_.Tableau();
    if (t == nullptr) {
        GrilleApercu->setRowCount(0);
        GrilleApercu->setColumnCount(0);
        return;
    }
    const int annees = ctx_.etat.nbAnEtude > 0 ? ctx_.etat.nbAnEtude : 5;
    const int debut = ctx_.etat.anneeDebut > 0 ? ctx_.etat.anneeDebut : 2008;
    const ApercuTableau a = Apercu(*t, annees, debut);
    GrilleApercu->setColumnCount(static_cast<int>(a.entetes.size()));
    GrilleApercu->setRowCount(static_cast<int>(a.rangees.size()));
    QStringList entetes;
    for (const Texte& e : a.entetes) entetes << VersQt(e);
    GrilleApercu->setHorizontalHeaderLabels(entetes);
    for (int r = 0; r < static_cast<int>(a.rangees.size()); ++r) {
        const RangeeApercu& rangee = a.rangees[static_cast<std::size_t>(r)];
        for (int c = 0; c < static_cast<int>(rangee.cellules.size()); ++c) {
            auto* item = new QTableWidgetItem(VersQt(rangee.cellules[static_cast<std::size_t>(c)]));
            if (c >= a.colonnesLibelle) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (rangee.gras && c < a.colonnesLibelle) {
                QFont f = item->font();
                f.setBold(true);
                item->setFont(f);
            }
            GrilleApercu->setItem(r, c, item);
        }
        if (rangee.espace && !rangee.cellules.empty())
            GrilleApercu->setSpan(r, 0, 1, GrilleApercu->columnCount());
    }
    GrilleApercu->resizeColumnsToContents();
}

void FrmInserTab::SauverProprietes() {
    TableauModele* t = editeur_.Tableau();
    if (chargement_ || t == nullptr) return;
    const Texte dossier = Rogner(DepuisQt(txtDossier->text()));
    const Texte sousDossier = Rogner(DepuisQt(txtSousDossier->text()));
    bool arbre = Rogner(DepuisQt(txtNom->text())) != Rogner(t->nom);
    if (dossier != Rogner(t->dossier) && editeur_.NomDossierAccepte(dossier, false)) {
        t->dossier = dossier;
        arbre = true;
    }
    if (sousDossier != Rogner(t->sousDossier) &&
        (sousDossier.empty() || editeur_.NomDossierAccepte(sousDossier, true))) {
        t->sousDossier = sousDossier;
        arbre = true;
    }
    t->nom = DepuisQt(txtNom->text());
    t->modeAnnees = static_cast<std::int16_t>(ComboAnnees->currentIndex());
    t->nbColonnes = static_cast<std::int16_t>(txtNbColonnes->value());
    t->largeurValeurs = static_cast<std::int16_t>(txtLargeurValeurs->value());
    t->centre = CheckCentre->isChecked() ? 1 : 0;
    t->rouge = CheckRouge->isChecked() ? 1 : 0;
    if (arbre) RemplirArbre();
    MontrerTableau(); // a refused folder name comes back
}

void FrmInserTab::ProgrammerSauvegarde() {
    sauvegarde_->stop();
    if (!CheckSauvegarde->isChecked()) return;
    const int i = std::clamp(ComboPeriode->currentIndex(), 0, 6);
    sauvegarde_->start(kPeriodes[i] * 60 * 1000);
}

void FrmInserTab::NouveauTableau() {
    const TableauModele* t = editeur_.Tableau();
    editeur_.AjouterTableau(t ? t->dossier : Texte{}, t ? t->sousDossier : Texte{});
    RemplirArbre();
    MontrerTableau();
    txtNom->setFocus();
    txtNom->selectAll();
}

void FrmInserTab::Supprimer() {
    QTreeWidgetItem* item = TreeViewTab->currentItem();
    const Texte cle = item ? DepuisQt(item->data(0, kRoleCle).toString()) : Texte{};
    bool fait = false;
    if (CommencePar(cle, "#ssDoss##")) {
        const Texte reste = cle.substr(9);
        const auto separation = reste.find("##");
        fait = editeur_.SupprimerSousDossier(reste.substr(0, separation),
                                             reste.substr(separation + 2));
    } else if (CommencePar(cle, "#Doss")) {
        fait = editeur_.SupprimerDossier(cle.substr(5));
    } else {
        fait = editeur_.SupprimerTableau();
    }
    if (!fait) return;
    RemplirArbre();
    MontrerTableau();
}

void FrmInserTab::OperationLigne(char mode) {
    const TableauModele* t = editeur_.Tableau();
    if (t == nullptr) return;
    if (const Texte refus = FrmAddRmvL::Refus(mode, t->nbLignes()); !refus.empty()) {
        ctx_.utilisateur.Boite(refus, "Edition - Insertion des Tableaux", Icone::Information);
        return;
    }
    FrmAddRmvL dialogue(mode, t->nbLignes(), LigneSelectionnee(), this);
    if (dialogue.exec() != QDialog::Accepted) return;
    bool fait = false;
    switch (mode) {
    case 'a':
        fait = editeur_.AjouterLigne(dialogue.Ligne());
        break;
    case 's':
        fait = editeur_.SupprimerLigne(dialogue.Ligne());
        break;
    case 'm':
        fait = editeur_.DeplacerLigne(dialogue.Ligne(), dialogue.Cible(), dialogue.Apres());
        break;
    default:
        fait = editeur_.DupliquerLigne(dialogue.Ligne());
        break;
    }
    if (fait) MontrerApercu();
}

void FrmInserTab::EditerLigne(int numero) {
    TableauModele* t = editeur_.Tableau();
    LigneModele* ligne = t ? t->Ligne(numero) : nullptr;
    if (ligne == nullptr) return;
    FrmTexte dialogue(ctx_, *t, numero, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    *ligne = dialogue.Ligne();
    MontrerApercu();
}

int FrmInserTab::ColonneSelectionnee() {
    const TableauModele* t = editeur_.Tableau();
    const int colonne = GrilleApercu->currentColumn();
    return t && colonne >= 0 && colonne < t->ColonnesLibelle() ? colonne + 1 : 0;
}

void FrmInserTab::DefinirCellule() {
    TableauModele* t = editeur_.Tableau();
    const int numero = LigneSelectionnee();
    const LigneModele* ligne = t ? t->Ligne(numero) : nullptr;
    const int colonne = ColonneSelectionnee();
    Cadre cadre;
    if (ligne)
        cadre = LireCadre(colonne == 0
                              ? ligne->formatCadre
                              : ligne->cellules[static_cast<std::size_t>(colonne - 1)].formatCadre);
    FrmDefCell dialogue(cadre, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    if (AppliquerCadre(ctx_, t, numero, colonne, dialogue.Valeur(), dialogue.ToutLaLigne()))
        MontrerApercu();
}

void FrmInserTab::DefinirTaille() {
    LigneModele* ligne =
        editeur_.Tableau() ? editeur_.Tableau()->Ligne(LigneSelectionnee()) : nullptr;
    if (ligne == nullptr || !TailleModifiable(ctx_, *ligne)) return;
    FrmTailleTab dialogue(ligne->hauteur, ligne->retrait, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    if (const auto h = dialogue.Hauteur()) ligne->hauteur = *h;
    if (const auto r = dialogue.Retrait()) ligne->retrait = *r;
    MontrerApercu();
}

void FrmInserTab::DefinirLargeur() {
    TableauModele* t = editeur_.Tableau();
    if (t == nullptr) return;
    const int colonne = ColonneSelectionnee();
    std::int16_t& largeur =
        colonne == 0 ? t->largeurValeurs : t->largeurs[static_cast<std::size_t>(colonne - 1)];
    FrmLargeurTab dialogue(colonne, t->ColonnesLibelle(), largeur, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    largeur = static_cast<std::int16_t>(dialogue.Largeur());
    MontrerTableau();
}

void FrmInserTab::DefinirEntete() {
    TableauModele* t = editeur_.Tableau();
    if (t == nullptr) return;
    FrmEnteteTab dialogue(t->typeEntete, t->pageDebut, ctx_.etat.chemins.RepImages, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    t->typeEntete = dialogue.TypeEntete();
    t->pageDebut = dialogue.PageDebut();
    MontrerTableau();
}

void FrmInserTab::Parametres() {
    FrmParamTab dialogue(ctx_, this);
    dialogue.exec();
}

void FrmInserTab::Inserer() {
    SauverProprietes();
    const auto code = editeur_.Inserer();
    if (!code) return;
    codeInsere_ = *code;
    if (ctx_.formulaires.Connu("InsererCode"))
        ctx_.formulaires.Ouvrir(ctx_, "InsererCode", {*code});
    else
        ctx_.utilisateur.AfficherMessage(
            {"Le code du tableau ne peut pas être inséré : cette version n'a pas de lien "
             "d'insertion avec le traitement de texte.",
             "#mrl(" + *code + ")#", "Edition - Insertion des Tableaux", ""});
    done(Accepted);
}

void FrmInserTab::Annuler() {
    SauverProprietes();
    editeur_.Enregistrer();
    done(Rejected);
}

void FrmInserTab::reject() {
    Annuler();
}

} // namespace verdane::qt
