#include "graphs/qt/FrmGraphik.h"

#include "graphs/DessinGraphique.h"
#include "graphs/qt/FrmSerieGraph.h"
#include "graphs/qt/ImpressionGraph.h"
#include "graphs/qt/RenduGraphique.h"
#include "utils/Chaines.h"
#include "utils/Texte.h"
#include "utils/qt/Boutons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace verdane::qt {

namespace {

constexpr int kRoleCle = Qt::UserRole;
const QSize kTailleApercu(kLargeurGraphique, kHauteurGraphique);

Texte CleDe(const QTreeWidgetItem* item) {
    return item ? DepuisQt(item->data(0, kRoleCle).toString()) : Texte{};
}

QTreeWidgetItem* Noeud(QTreeWidgetItem* parent, const Texte& cle, const Texte& texte) {
    auto* item = new QTreeWidgetItem(parent, {VersQt(texte)});
    item->setData(0, kRoleCle, VersQt(cle));
    return item;
}

QTreeWidgetItem* Racine(QTreeWidget* arbre, const Texte& cle, const Texte& texte) {
    arbre->clear();
    auto* racine = new QTreeWidgetItem(arbre, {VersQt(texte)});
    racine->setData(0, kRoleCle, VersQt(cle));
    racine->setExpanded(true);
    return racine;
}

void AjouterCatalogue(QTreeWidgetItem* parent, const NoeudCatalogue& n) {
    QTreeWidgetItem* item = Noeud(parent, n.cle, n.texte);
    for (const NoeudCatalogue& e : n.enfants) AjouterCatalogue(item, e);
}

QString Libelle(const char* texte) {
    return VersQt(texte);
}

QLineEdit* Boite(QWidget* parent, const char* nom, int largeurMax = 0) {
    auto* b = new QLineEdit(parent);
    b->setObjectName(nom);
    if (largeurMax > 0) b->setMaximumWidth(largeurMax);
    return b;
}

QComboBox* Liste(QWidget* parent, const QString& nom, const std::vector<Texte>& textes) {
    auto* c = new QComboBox(parent);
    c->setObjectName(nom);
    for (const Texte& t : textes) c->addItem(VersQt(t));
    return c;
}

QCheckBox* Case(QWidget* parent, const QString& nom, const QString& texte) {
    auto* c = new QCheckBox(texte, parent);
    c->setObjectName(nom);
    return c;
}

} // namespace

FrmGraphik::FrmGraphik(Contexte& ctx, const Texte& titre, int graphe, QWidget* parent)
    : QDialog(parent), ctx_(ctx), editeur_(ctx), ancienneSurface_(ctx.etat.graphes.graphCourant),
      minuterie_(new QTimer(this)) {
    setObjectName("FrmGraphik");
    setWindowTitle(VersQt("Visionneuse de graphiques"));
    minuterie_->setSingleShot(true);
    minuterie_->setInterval(120);
    connect(minuterie_, &QTimer::timeout, this, [this] { Dessiner(); });

    lblTitre = new QLabel(VersQt(titre), this);
    lblTitre->setObjectName("lblTitre");
    lblTitre->setAlignment(Qt::AlignCenter);
    QFont gras = lblTitre->font();
    gras.setBold(true);
    lblTitre->setFont(gras);

    TreeViewGraph = new QTreeWidget(this);
    TreeViewGraph->setObjectName("TreeViewGraph");
    TreeViewGraph->setHeaderHidden(true);
    TreeViewGraph->setMinimumWidth(200);
    cmdAdd = Bouton(this, "cmdAdd", "Nouveau", "Ajouter un graphique à la bibliothèque");
    cmdRmv = Bouton(this, "cmdRmv", "Supprimer", "Supprimer le graphique sélectionné");
    auto* gauche = new QVBoxLayout;
    gauche->addWidget(TreeViewGraph, 1);
    auto* boutonsGraphes = new QHBoxLayout;
    boutonsGraphes->addWidget(cmdAdd);
    boutonsGraphes->addWidget(cmdRmv);
    gauche->addLayout(boutonsGraphes);

    Onglets = new QTabWidget(this);
    Onglets->setObjectName("Onglets");
    Onglets->addTab(OngletDefinition(), VersQt(TitreOngletDefinition()));
    imgApercu = new QLabel(this);
    imgApercu->setObjectName("imgApercu");
    imgApercu->setAlignment(Qt::AlignCenter);
    imgApercu->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    imgApercu->setToolTip(
        VersQt("Le graphique avec les réglages en cours; l'onglet de définition les "
               "change."));
    Onglets->addTab(imgApercu, VersQt(TitreOngletApercu(ctx.etat.graphes.avecArguments)));

    cmdInserer = Bouton(this, "cmdInserer", "Insérer",
                        "Insérer le code du graphique dans le document en cours");
    cmdPrint = Bouton(this, "cmdPrint", "Imprimer", "Imprimer le graphique");
    cmdQuitter = Bouton(this, "cmdQuitter", "Quitter", "Enregistrer la bibliothèque et quitter");
    auto* bas = new QHBoxLayout;
    bas->addStretch();
    bas->addWidget(cmdInserer);
    bas->addWidget(cmdPrint);
    bas->addWidget(cmdQuitter);

    auto* milieu = new QHBoxLayout;
    milieu->addLayout(gauche);
    milieu->addWidget(Onglets, 1);
    auto* tout = new QVBoxLayout(this);
    tout->addWidget(lblTitre);
    tout->addLayout(milieu, 1);
    tout->addLayout(bas);

    connect(cmdAdd, &QPushButton::clicked, this, [this] { Ajouter(); });
    connect(cmdRmv, &QPushButton::clicked, this, [this] { Supprimer(); });
    connect(cmdCopy, &QPushButton::clicked, this, [this] { CopierSerie(); });
    connect(cmdRetirer, &QPushButton::clicked, this, [this] { RetirerSerie(); });
    connect(cmdInserer, &QPushButton::clicked, this, [this] { Inserer(); });
    connect(cmdPrint, &QPushButton::clicked, this, [this] { Imprimer(); });
    connect(cmdQuitter, &QPushButton::clicked, this, [this] { Quitter(); });
    connect(TreeViewGraph, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (chargement_ || item == nullptr) return;
        editeur_.Selectionner(CleDe(item));
        MontrerGraphe();
    });
    connect(TreeViewSeriesS, &QTreeWidget::itemDoubleClicked, this, [this] { CopierSerie(); });
    connect(TreeViewSeriesD, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        const int i = TreeViewSeriesD->invisibleRootItem()->child(0)->indexOfChild(item);
        if (i >= 0 && CleDe(item) != "vide") EditerSerie(i + 1);
    });
    connect(Onglets, &QTabWidget::currentChanged, this, [this] { Dessiner(); });

    ctx_.etat.graphes.graphCourant = &apercu_;
    editeur_.Ouvrir();
    proposees_ = editeur_.SeriesProposees();
    QTreeWidgetItem* racineS = Racine(TreeViewSeriesS, "Racine", "Séries proposées");
    for (const NoeudCatalogue& n : proposees_.racine.enfants) AjouterCatalogue(racineS, n);
    if (proposees_.racine.enfants.empty())
        Noeud(racineS, "vide", "Aucun catalogue de séries dans " + ctx.etat.chemins.RepDatacfg)
            ->setDisabled(true);
    if (graphe > 0) editeur_.Selectionner("graph" + std::to_string(graphe));
    RemplirGraphes();
    MontrerGraphe();
    resize(1180, 740);
}

FrmGraphik::~FrmGraphik() {
    ctx_.etat.graphes.graphCourant = ancienneSurface_;
}

QWidget* FrmGraphik::OngletDefinition() {
    auto* page = new QWidget(this);
    txtTitre = Boite(page, "txtTitre");
    txtTitre->setMaxLength(static_cast<int>(kLargeurTitreGraph));
    txtTailleTitre = Boite(page, "txtTailleTitre", 50);
    ComboType = Liste(page, "ComboType", TextesTypesGraph());
    CheckLegend = Case(page, "CheckLegend", VersQt("Légende"));
    CheckEmpile = Case(page, "CheckEmpile", VersQt("Séries empilées"));
    CheckInversionDataSeries = Case(page, "CheckInversionDataSeries", VersQt("Séries en lignes"));
    TextCommentr = Boite(page, "TextCommentr");
    TextCommentr->setMaxLength(static_cast<int>(kLargeurCommentaire));
    txtEspaceBarres = Boite(page, "txtEspaceBarres", 50);
    txtEspaceAnnees = Boite(page, "txtEspaceAnnees", 50);
    txtEspaceSeries = Boite(page, "txtEspaceSeries", 50);
    const char* orientations[] = {"du titre", "du commentaire"};
    for (int k = 0; k < 2; ++k) {
        CheckRetourTexte[k] = Case(page, QStringLiteral("CheckRetourTexte%1").arg(k),
                                   k == 0 ? VersQt("Retour à la ligne du titre")
                                          : VersQt("Retour à la ligne de la légende"));
        ComboOrientext[k] =
            Liste(page, QStringLiteral("ComboOrientext%1").arg(k), TextesOrientations());
        ComboOrientext[k]->setToolTip(VersQt("Orientation ") + VersQt(orientations[k]));
    }

    auto* general = new QGridLayout;
    general->addWidget(new QLabel(Libelle("Titre :"), page), 0, 0);
    general->addWidget(txtTitre, 0, 1, 1, 3);
    general->addWidget(new QLabel(Libelle("Taille :"), page), 0, 4);
    general->addWidget(txtTailleTitre, 0, 5);
    general->addWidget(new QLabel(Libelle("Type :"), page), 1, 0);
    general->addWidget(ComboType, 1, 1, 1, 3);
    general->addWidget(new QLabel(Libelle("Commentaire :"), page), 2, 0);
    general->addWidget(TextCommentr, 2, 1, 1, 5);
    general->addWidget(CheckLegend, 3, 1);
    general->addWidget(CheckEmpile, 3, 2);
    general->addWidget(CheckInversionDataSeries, 3, 3);
    general->addWidget(new QLabel(Libelle("Espaces : barres"), page), 4, 0);
    general->addWidget(txtEspaceBarres, 4, 1);
    general->addWidget(new QLabel(VersQt("années"), page), 4, 2);
    general->addWidget(txtEspaceAnnees, 4, 3);
    general->addWidget(new QLabel(VersQt("séries"), page), 4, 4);
    general->addWidget(txtEspaceSeries, 4, 5);
    general->addWidget(CheckRetourTexte[0], 5, 0, 1, 2);
    general->addWidget(new QLabel(Libelle("Orientation du titre :"), page), 5, 2);
    general->addWidget(ComboOrientext[0], 5, 3);
    general->addWidget(CheckRetourTexte[1], 6, 0, 1, 2);
    general->addWidget(new QLabel(Libelle("Orientation du commentaire :"), page), 6, 2);
    general->addWidget(ComboOrientext[1], 6, 3);

    auto* cadreAxes = new QGroupBox("Axes", page);
    auto* axes = new QGridLayout(cadreAxes);
    axes->addWidget(new QLabel(Libelle("Titre"), cadreAxes), 0, 1);
    axes->addWidget(new QLabel(Libelle("Taille"), cadreAxes), 0, 2);
    axes->addWidget(new QLabel(Libelle("Epaisseur"), cadreAxes), 0, 3);
    const char* nomsAxes[] = {"X", "Y", "Y secondaire", "Z"};
    for (int a = 0; a < 4; ++a) {
        const auto ua = static_cast<std::size_t>(a);
        txtAxe[ua] = Boite(cadreAxes, "txtAxe");
        txtAxe[ua]->setObjectName(QStringLiteral("txtAxe%1").arg(a));
        txtAxe[ua]->setMaxLength(static_cast<int>(kLargeurTitreAxe));
        txtAxe[ua]->setMinimumWidth(140);
        txtAxeSize[ua] = Boite(cadreAxes, "txtAxeSize", 50);
        txtAxeSize[ua]->setObjectName(QStringLiteral("txtAxeSize%1").arg(a));
        txtEpaisseurAxe[ua] = Boite(cadreAxes, "txtEpaisseurAxe", 50);
        txtEpaisseurAxe[ua]->setObjectName(QStringLiteral("txtEpaisseurAxe%1").arg(a));
        axes->addWidget(new QLabel(VersQt(nomsAxes[a]), cadreAxes), a + 1, 0);
        axes->addWidget(txtAxe[ua], a + 1, 1);
        axes->addWidget(txtAxeSize[ua], a + 1, 2);
        axes->addWidget(txtEpaisseurAxe[ua], a + 1, 3);
    }

    TreeViewSeriesS = new QTreeWidget(page);
    TreeViewSeriesS->setObjectName("TreeViewSeriesS");
    TreeViewSeriesS->setHeaderHidden(true);
    TreeViewSeriesD = new QTreeWidget(page);
    TreeViewSeriesD->setObjectName("TreeViewSeriesD");
    TreeViewSeriesD->setHeaderHidden(true);
    TreeViewSeriesD->setToolTip(VersQt("Double-clic : définition de la série"));
    cmdCopy = Bouton(page, "cmdCopy", ">>", "Ajouter la série proposée au graphique");
    cmdRetirer = Bouton(page, "cmdRetirer", "<<", "Retirer la série du graphique");
    auto* fleches = new QVBoxLayout;
    fleches->addStretch();
    fleches->addWidget(cmdCopy);
    fleches->addWidget(cmdRetirer);
    fleches->addStretch();
    auto* typesSeries = new QVBoxLayout;
    for (int i = 0; i < kMaxSeriesGraph; ++i) {
        auto*& c = ComboTypeIndiv[static_cast<std::size_t>(i)];
        c = Liste(page, QStringLiteral("ComboTypeIndiv%1").arg(i + 1), TextesTypesSerie());
        c->setToolTip(VersQt("Type de la série %1 dans la combinaison").arg(i + 1));
        typesSeries->addWidget(c);
    }
    typesSeries->addStretch();

    GraphRes = new QLabel(page);
    GraphRes->setObjectName("GraphRes");
    GraphRes->setAlignment(Qt::AlignCenter);
    GraphRes->setMinimumSize(kTailleApercu / 2);
    GraphRes->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    // Settings above; below, the offered series, the graph's series and the chart as it is.
    auto* haut = new QHBoxLayout;
    haut->addLayout(general, 3);
    haut->addWidget(cadreAxes, 2);
    auto* series = new QHBoxLayout;
    series->addWidget(TreeViewSeriesS, 2);
    series->addLayout(fleches);
    series->addWidget(TreeViewSeriesD, 2);
    series->addLayout(typesSeries);
    series->addWidget(GraphRes, 3);
    auto* tout = new QVBoxLayout(page);
    tout->addLayout(haut);
    tout->addLayout(series, 1);

    // Every change of a field goes into the record at once, and the chart follows.
    const auto sauver = [this] { SauverDialogueForme(); };
    for (QLineEdit* b : {txtTitre, TextCommentr, txtEspaceBarres, txtEspaceAnnees, txtEspaceSeries,
                         txtAxe[0], txtAxe[1], txtAxe[2], txtAxe[3]})
        connect(b, &QLineEdit::textEdited, this, sauver);
    for (QCheckBox* c : {CheckLegend, CheckEmpile, CheckInversionDataSeries, CheckRetourTexte[0],
                         CheckRetourTexte[1]})
        connect(c, &QCheckBox::toggled, this, sauver);
    for (QComboBox* c : {ComboType, ComboOrientext[0], ComboOrientext[1]})
        connect(c, &QComboBox::currentIndexChanged, this, sauver);
    for (QComboBox* c : ComboTypeIndiv) connect(c, &QComboBox::currentIndexChanged, this, sauver);
    // The size boxes refuse 0 when the typing is done.
    connect(txtTailleTitre, &QLineEdit::editingFinished, this, [this] {
        if (ModeleGraph* g = editeur_.Modele()) ValiderTailleBoite(txtTailleTitre, g->tailleTitre);
    });
    for (int a = 0; a < 4; ++a) {
        const auto ua = static_cast<std::size_t>(a);
        connect(txtAxeSize[ua], &QLineEdit::editingFinished, this, [this, ua] {
            if (ModeleGraph* g = editeur_.Modele())
                ValiderTailleBoite(txtAxeSize[ua], g->axes[ua].tailleAxe);
        });
        connect(txtEpaisseurAxe[ua], &QLineEdit::editingFinished, this, [this, ua] {
            if (ModeleGraph* g = editeur_.Modele())
                ValiderTailleBoite(txtEpaisseurAxe[ua], g->axes[ua].epaisseurAxe);
        });
    }
    return page;
}

Texte FrmGraphik::CleSelectionnee() const {
    return CleDe(TreeViewGraph->currentItem());
}

void FrmGraphik::RemplirGraphes() {
    chargement_ = true;
    QTreeWidgetItem* racine = Racine(TreeViewGraph, "Racine", "Graphiques");
    const Texte courant = "graph" + std::to_string(editeur_.Courant());
    QTreeWidgetItem* choisi = racine;
    for (const NoeudGraph& n : editeur_.Graphes()) {
        QTreeWidgetItem* item = Noeud(racine, n.cle, n.texte);
        if (n.cle == courant) choisi = item;
    }
    TreeViewGraph->setCurrentItem(choisi);
    chargement_ = false;
}

void FrmGraphik::RemplirSeries() {
    QTreeWidgetItem* racine = Racine(TreeViewSeriesD, "Racine", "Séries du graphique");
    const ModeleGraph* g = editeur_.Modele();
    int i = 0;
    for (const NoeudGraph& n : editeur_.SeriesDuGraphe()) {
        QTreeWidgetItem* item = Noeud(racine, n.cle, n.texte);
        if (g && n.cle != "vide") {
            item->setToolTip(0,
                             VersQt(InfoBulleSerie(g->series[static_cast<std::size_t>(i)], i + 1)));
            ++i;
        }
    }
    const bool combinaison = g && EstCombinaison(g->typeGraph);
    for (int k = 0; k < kMaxSeriesGraph; ++k)
        ComboTypeIndiv[static_cast<std::size_t>(k)]->setVisible(combinaison && k < i);
}

void FrmGraphik::MontrerGraphe() {
    chargement_ = true;
    const ModeleGraph* g = editeur_.Modele();
    const ControlesGraph c = ChargerDialogue(g ? *g : ModeleGraph{});
    txtTitre->setText(VersQt(c.txtTitre));
    txtTailleTitre->setText(VersQt(c.txtTailleTitre));
    ComboType->setCurrentIndex(c.ComboType);
    CheckLegend->setChecked(c.CheckLegend);
    CheckEmpile->setChecked(c.CheckEmpile);
    CheckInversionDataSeries->setChecked(c.CheckInversionDataSeries);
    TextCommentr->setText(VersQt(c.TextCommentr));
    txtEspaceBarres->setText(VersQt(c.txtEspaceBarres));
    txtEspaceAnnees->setText(VersQt(c.txtEspaceAnnees));
    txtEspaceSeries->setText(VersQt(c.txtEspaceSeries));
    for (std::size_t k = 0; k < 2; ++k) {
        CheckRetourTexte[k]->setChecked(c.CheckRetourTexte[k]);
        ComboOrientext[k]->setCurrentIndex(c.ComboOrientext[k]);
    }
    for (std::size_t a = 0; a < 4; ++a) {
        txtAxe[a]->setText(VersQt(c.txtAxe[a]));
        txtAxeSize[a]->setText(VersQt(c.txtAxeSize[a]));
        txtEpaisseurAxe[a]->setText(VersQt(c.txtEpaisseurAxe[a]));
    }
    for (std::size_t i = 0; i < c.ComboTypeIndiv.size(); ++i)
        ComboTypeIndiv[i]->setCurrentIndex(c.ComboTypeIndiv[i]);
    Onglets->widget(0)->setEnabled(g != nullptr);
    chargement_ = false;
    RemplirSeries();
    Dessiner();
}

void FrmGraphik::SauverDialogueForme() {
    ModeleGraph* g = editeur_.Modele();
    if (chargement_ || g == nullptr || CleSelectionnee() == "graph0") return;
    ControlesGraph c = ChargerDialogue(*g);
    c.txtTitre = DepuisQt(txtTitre->text());
    c.ComboType = ComboType->currentIndex();
    c.CheckLegend = CheckLegend->isChecked();
    c.CheckEmpile = CheckEmpile->isChecked();
    c.CheckInversionDataSeries = CheckInversionDataSeries->isChecked();
    c.TextCommentr = DepuisQt(TextCommentr->text());
    c.txtEspaceBarres = DepuisQt(txtEspaceBarres->text());
    c.txtEspaceAnnees = DepuisQt(txtEspaceAnnees->text());
    c.txtEspaceSeries = DepuisQt(txtEspaceSeries->text());
    for (std::size_t k = 0; k < 2; ++k) {
        c.CheckRetourTexte[k] = CheckRetourTexte[k]->isChecked();
        c.ComboOrientext[k] = ComboOrientext[k]->currentIndex();
    }
    for (std::size_t a = 0; a < 4; ++a) c.txtAxe[a] = DepuisQt(txtAxe[a]->text());
    for (std::size_t i = 0; i < c.ComboTypeIndiv.size(); ++i)
        c.ComboTypeIndiv[i] = ComboTypeIndiv[i]->currentIndex();
    const bool autreTitre = Rogner(g->titre) != Rogner(c.txtTitre);
    const int ancienType = g->typeGraph;
    SauverDialogue(c, *g);
    if (autreTitre) {
        if (QTreeWidgetItem* item = TreeViewGraph->currentItem()) {
            const Texte titre = Rogner(g->titre);
            item->setText(0, VersQt(titre.empty() ? Texte("Sans titre") : titre));
        }
    }
    if (ancienType != g->typeGraph) RemplirSeries();
    DessinerPlusTard();
}

void FrmGraphik::ValiderTailleBoite(QLineEdit* boite, std::int16_t valeur) {
    const Texte saisie = DepuisQt(boite->text());
    const Texte gardee = ValiderTaille(ctx_.utilisateur, saisie, std::to_string(valeur));
    if (gardee != saisie) {
        boite->setText(VersQt(gardee));
        return;
    }
    ModeleGraph* g = editeur_.Modele();
    if (chargement_ || g == nullptr) return;
    ControlesGraph c = ChargerDialogue(*g);
    c.txtTailleTitre = DepuisQt(txtTailleTitre->text());
    for (std::size_t a = 0; a < 4; ++a) {
        c.txtAxeSize[a] = DepuisQt(txtAxeSize[a]->text());
        c.txtEpaisseurAxe[a] = DepuisQt(txtEpaisseurAxe[a]->text());
    }
    SauverDialogue(c, *g);
    txtTailleTitre->setText(QString::number(g->tailleTitre)); // a size above 50 comes back
    DessinerPlusTard();
}

void FrmGraphik::DessinerPlusTard() {
    minuterie_->start();
}

void FrmGraphik::Dessiner() {
    minuterie_->stop();
    auto& eg = ctx_.etat.graphes;
    apercu_ = SurfaceQt{};
    eg.graphCourant = &apercu_;
    std::int16_t index = eg.grapheCourant;
    if (index > 0) {
        DessinerGraphique(ctx_, index, false);
        image_ = RendreGraphique(apercu_.Reglages(), kTailleApercu);
    } else {
        image_ = QImage();
    }
    // The picture has twice the chart's size: shown at the size each place gives it.
    const QPixmap pixmap = QPixmap::fromImage(image_);
    const auto montrer = [&pixmap](QLabel* place, QSize taille) {
        place->setPixmap(
            pixmap.isNull() ? pixmap
                            : pixmap.scaled(taille, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    };
    montrer(imgApercu, imgApercu->size().boundedTo(kTailleApercu * 2));
    montrer(GraphRes, GraphRes->size());
}

QImage FrmGraphik::Apercu() const {
    return image_;
}

void FrmGraphik::Ajouter() {
    if (!editeur_.AjouterGraphe()) return;
    RemplirGraphes();
    MontrerGraphe();
    Onglets->setCurrentIndex(0);
    txtTitre->setFocus();
    txtTitre->selectAll();
}

void FrmGraphik::Supprimer() {
    if (!editeur_.SupprimerGraphe(CleSelectionnee())) return;
    RemplirGraphes();
    MontrerGraphe();
}

void FrmGraphik::CopierSerie() {
    const QTreeWidgetItem* item = TreeViewSeriesS->currentItem();
    if (item == nullptr) return;
    const NoeudCatalogue* source = proposees_.Trouver(CleDe(item));
    const bool racine = item->parent() == nullptr;
    if (source == nullptr && !racine) return;
    if (!editeur_.AjouterSerie(source ? *source : proposees_.racine, racine)) return;
    RemplirSeries();
    Dessiner();
}

void FrmGraphik::RetirerSerie() {
    QTreeWidgetItem* item = TreeViewSeriesD->currentItem();
    if (item == nullptr || item->parent() == nullptr) return;
    const int i = item->parent()->indexOfChild(item) + 1;
    if (CleDe(item) == "vide" || !editeur_.RetirerSerie(i)) return;
    RemplirSeries();
    Dessiner();
}

void FrmGraphik::EditerSerie(int i) {
    ModeleGraph* g = editeur_.Modele();
    if (g == nullptr || i < 1 || i > NbSeriesUtiles(*g)) return;
    SerieGraph& s = g->series[static_cast<std::size_t>(i - 1)];
    FrmSerieGraph dialogue(ctx_.utilisateur, s, i, this);
    if (dialogue.exec() != QDialog::Accepted) return;
    ValiderSerie(dialogue.Valeurs(), s);
    RemplirSeries();
    Dessiner();
}

void FrmGraphik::Inserer() {
    const auto code = editeur_.Inserer();
    if (!code) return;
    codeInsere_ = *code;
    if (ctx_.formulaires.Connu("InsererCode"))
        ctx_.formulaires.Ouvrir(ctx_, "InsererCode", {*code});
    else
        ctx_.utilisateur.AfficherMessage(
            {"Le code du graphique ne peut pas être inséré : cette version n'a pas de lien "
             "d'insertion avec le traitement de texte.",
             *code, "Insertion de graphique", ""});
    Fermer();
}

void FrmGraphik::Imprimer() {
    if (!editeur_.DemanderImpression(CleSelectionnee())) return;
    Dessiner();
    ImprimerGraphique(this, image_, Rogner(ctx_.etat.NomDossier[0]));
}

void FrmGraphik::Quitter() {
    if (editeur_.Quitter()) Fermer();
}

void FrmGraphik::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    DessinerPlusTard();
}

void FrmGraphik::reject() {
    // Escape and the window's close box leave as "Quitter" does, without asking: leaving
    // always saves the library.
    editeur_.Quitter(false);
    Fermer();
}

void FrmGraphik::Fermer() {
    QDialog::done(codeInsere_.empty() ? Rejected : Accepted);
}

} // namespace verdane::qt
