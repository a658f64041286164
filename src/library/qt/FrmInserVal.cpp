#include "library/qt/FrmInserVal.h"

#include "library/InsererCode.h"
#include "utils/qt/TexteQt.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace verdane::qt {

namespace {

constexpr int kRoleCle = Qt::UserRole;
constexpr int kRoleFeuille = Qt::UserRole + 1;

const FamilleInsertion kFamilles[] = {FamilleInsertion::Classic, FamilleInsertion::Culture,
                                      FamilleInsertion::CultPer, FamilleInsertion::AliBani};

QString NomFamille(FamilleInsertion famille) {
    switch (famille) {
    case FamilleInsertion::Culture:
        return QStringLiteral("Données Cultures");
    case FamilleInsertion::CultPer:
        return QStringLiteral("Données Cultures pérennes");
    case FamilleInsertion::AliBani:
        return QStringLiteral("Données Activités libres animales");
    case FamilleInsertion::Classic:
        break;
    }
    return QStringLiteral("Séries du dossier");
}

void AjouterNoeuds(QTreeWidgetItem* parent, const NoeudCatalogue& noeud) {
    for (const auto& enfant : noeud.enfants) {
        auto* item = new QTreeWidgetItem(parent, {VersQt(enfant.texte)});
        const bool feuille = enfant.image == "puce";
        item->setData(0, kRoleCle, VersQt(enfant.cle));
        item->setData(0, kRoleFeuille, feuille);
        AjouterNoeuds(item, enfant);
    }
}

QComboBox* Liste(const std::vector<Texte>& entrees, int courant = 0) {
    auto* combo = new QComboBox;
    for (const auto& e : entrees) combo->addItem(VersQt(e));
    combo->setCurrentIndex(courant);
    return combo;
}

std::vector<Texte> Annees(int derniere) {
    std::vector<Texte> annees;
    for (int a = 0; a <= derniere; ++a) annees.push_back(std::to_string(a));
    return annees;
}

void Dire(Contexte& ctx, const Texte& texte) {
    ctx.utilisateur.AfficherMessage({texte, "", "Insertion d'une donnée Marlo", ""});
}

} // namespace

FrmInserVal::FrmInserVal(Contexte& ctx, const Texte& tag, QWidget* parent)
    : QDialog(parent), ctx_(ctx), onglets_(ChargerOngletsChamps()) {
    setObjectName("FrmInserVal");
    setWindowTitle(QStringLiteral("Insertion d'une donnée Marlo dans le modèle en cours"));
    auto* principal = new QVBoxLayout(this);

    tabOnglets = new QTabWidget;
    principal->addWidget(tabOnglets);

    // The series, with the kind of value wanted.
    auto* series = new QWidget;
    auto* grille = new QGridLayout(series);
    ComboFamille = new QComboBox;
    ComboFamille->setObjectName("ComboFamille");
    for (const auto f : kFamilles) ComboFamille->addItem(NomFamille(f));
    grille->addWidget(ComboFamille, 0, 0);
    TreeViewSeries = new QTreeWidget;
    TreeViewSeries->setObjectName("TreeViewSeries");
    TreeViewSeries->setHeaderHidden(true);
    TreeViewSeries->setMinimumSize(340, 300);
    grille->addWidget(TreeViewSeries, 1, 0, 2, 1);
    lblArbreVide = new QLabel;
    lblArbreVide->setWordWrap(true);
    lblArbreVide->setStyleSheet("color: #c00000");
    grille->addWidget(lblArbreVide, 3, 0);

    auto* cadre = new QGroupBox(QStringLiteral("Valeur à insérer"));
    auto* options = new QGridLayout(cadre);
    OptionIntitule = new QRadioButton(QStringLiteral("Intitulé de la série"));
    OptionUnite = new QRadioButton(QStringLiteral("Unité de la série"));
    OptionInfoGene = new QRadioButton(QStringLiteral("Information générale"));
    OptionAnneeVal = new QRadioButton(QStringLiteral("Année de la valeur"));
    OptionValeur = new QRadioButton(QStringLiteral("Valeur"));
    OptionValeur->setChecked(true);
    auto* groupe = new QButtonGroup(this);
    for (auto* o : {OptionIntitule, OptionUnite, OptionInfoGene, OptionAnneeVal, OptionValeur})
        groupe->addButton(o);
    ComboValeur = Liste(ComposeurCode::ListeValeurs(), 5);
    ComboAnMinMax = Liste(ComposeurCode::ListeAnMinMax());
    ComboNbDecimal = Liste(ComposeurCode::ListeDecimales());
    options->addWidget(OptionValeur, 0, 0);
    options->addWidget(ComboValeur, 0, 1);
    options->addWidget(OptionAnneeVal, 1, 0);
    options->addWidget(ComboAnMinMax, 1, 1);
    options->addWidget(new QLabel(QStringLiteral("Nombre de décimales")), 2, 0);
    options->addWidget(ComboNbDecimal, 2, 1);
    options->addWidget(OptionIntitule, 3, 0, 1, 2);
    options->addWidget(OptionUnite, 4, 0, 1, 2);
    options->addWidget(OptionInfoGene, 5, 0, 1, 2);
    options->setRowStretch(6, 1);
    grille->addWidget(cadre, 1, 1);
    lblEnClair = new QLabel;
    lblEnClair->setObjectName("lblEnClair");
    lblEnClair->setWordWrap(true);
    lblEnClair->setMinimumWidth(260);
    grille->addWidget(lblEnClair, 2, 1);
    ongletSeries_ = tabOnglets->addTab(series, QStringLiteral("Séries"));

    // The general fields, one list per tab; exercises take a year, bodies their number.
    ComboAnneeExercice = Liste(Annees(9), 1);
    ListOrganismes = new QListWidget;
    for (const auto& o : OrganismesNommes(ctx_.etat)) {
        auto* item = new QListWidgetItem(QStringLiteral("%1 - %2").arg(o.numero).arg(VersQt(o.nom)),
                                         ListOrganismes);
        item->setData(kRoleCle, o.numero);
    }
    if (ListOrganismes->count() > 0) ListOrganismes->setCurrentRow(0);
    for (const auto& onglet : onglets_) {
        auto* page = new QWidget;
        auto* disposition = new QHBoxLayout(page);
        auto* liste = new QListWidget;
        for (const auto& champ : onglet.champs) liste->addItem(VersQt(champ.libelle));
        disposition->addWidget(liste, 1);
        const auto suffixe = onglet.champs.empty() ? SuffixeChamp::Aucun : onglet.champs[0].suffixe;
        if (suffixe == SuffixeChamp::Annee) {
            auto* cote = new QVBoxLayout;
            cote->addWidget(new QLabel(QStringLiteral("Exercice")));
            cote->addWidget(ComboAnneeExercice);
            cote->addStretch();
            disposition->addLayout(cote);
        } else if (suffixe == SuffixeChamp::Organisme) {
            auto* cote = new QVBoxLayout;
            cote->addWidget(new QLabel(QStringLiteral("Organisme")));
            cote->addWidget(ListOrganismes);
            disposition->addLayout(cote, 1);
        }
        ListChamps.push_back(liste);
        tabOnglets->addTab(page, VersQt(onglet.titre));
    }

    // A formula on the series of the dossier, for one year.
    auto* formule = new QWidget;
    auto* f = new QGridLayout(formule);
    txtFormuleTot = new QLineEdit;
    txtFormuleTot->setObjectName("txtFormuleTot");
    txtFormuleTot->setPlaceholderText(QStringLiteral("Ex: (LG(VLVB-2) + 150) * 10^4"));
    ComboNumAnnee = Liste(Annees(13), 1);
    ComboNbDecimalFormule = Liste(ComposeurCode::ListeDecimales());
    f->addWidget(new QLabel(QStringLiteral("Formule")), 0, 0);
    f->addWidget(txtFormuleTot, 0, 1, 1, 3);
    f->addWidget(new QLabel(QStringLiteral("Année d'étude")), 1, 0);
    f->addWidget(ComboNumAnnee, 1, 1);
    f->addWidget(new QLabel(QStringLiteral("Décimales")), 1, 2);
    f->addWidget(ComboNbDecimalFormule, 1, 3);
    f->setRowStretch(2, 1);
    ongletFormule_ = tabOnglets->addTab(formule, QStringLiteral("Formule"));

    auto* boutons = new QHBoxLayout;
    comAffEnClair = new QPushButton(QStringLiteral("Afficher en clair"));
    comInserData = new QPushButton(QStringLiteral("Insérer"));
    cmdFermer = new QPushButton(QStringLiteral("Fermer"));
    comInserData->setDefault(true);
    boutons->addWidget(comAffEnClair);
    boutons->addStretch();
    boutons->addWidget(comInserData);
    boutons->addWidget(cmdFermer);
    principal->addLayout(boutons);

    const auto famille = FamilleDuTag(tag).value_or(FamilleInsertion::Classic);
    ComboFamille->setCurrentIndex(static_cast<int>(famille));
    ChargerArbre();

    connect(ComboFamille, &QComboBox::currentIndexChanged, this, [this] { ChargerArbre(); });
    connect(TreeViewSeries, &QTreeWidget::currentItemChanged, this, [this] { ChoisirFeuille(); });
    connect(groupe, &QButtonGroup::buttonToggled, this, [this] { MettreAJourOptions(); });
    connect(comAffEnClair, &QPushButton::clicked, this,
            [this] { lblEnClair->setText(VersQt(TexteEnClair())); });
    connect(comInserData, &QPushButton::clicked, this, [this] { Inserer(); });
    connect(cmdFermer, &QPushButton::clicked, this, &QDialog::accept);
    MettreAJourOptions();
}

FamilleInsertion FrmInserVal::Famille() const {
    const int i = ComboFamille->currentIndex();
    return i >= 0 && i < 4 ? kFamilles[i] : FamilleInsertion::Classic;
}

void FrmInserVal::ChargerArbre() {
    TreeViewSeries->clear();
    const ArbreCatalogue arbre = ChargerArbreInsertion(ctx_.etat, Famille());
    auto* racine = TreeViewSeries->invisibleRootItem();
    AjouterNoeuds(racine, arbre.racine);
    if (Famille() != FamilleInsertion::Classic) TreeViewSeries->expandToDepth(0);
    const bool vide = ArbreSansFeuille(arbre);
    lblArbreVide->setVisible(vide);
    lblArbreVide->setText(
        vide ? QStringLiteral("Aucune série à choisir : le dossier de configuration de Marlo "
                              "(Datacfg) ne contient aucun catalogue de séries.")
             : QString());
    ChoisirFeuille();
}

void FrmInserVal::ChoisirFeuille() {
    const auto* item = TreeViewSeries->currentItem();
    const Texte cle = item ? DepuisQt(item->data(0, kRoleCle).toString()) : Texte();
    const bool info = cle == kCleUniteFamille || cle == kCleLibelleFamille;
    OptionInfoGene->setEnabled(info);
    for (auto* o : {OptionIntitule, OptionUnite, OptionAnneeVal, OptionValeur})
        o->setEnabled(!info);
    if (info)
        OptionInfoGene->setChecked(true);
    else if (OptionInfoGene->isChecked())
        OptionValeur->setChecked(true);
    lblEnClair->setText(VersQt(TexteEnClair()));
}

void FrmInserVal::MettreAJourOptions() {
    ComboValeur->setEnabled(OptionValeur->isChecked());
    ComboAnMinMax->setEnabled(OptionAnneeVal->isChecked());
    ComboNbDecimal->setEnabled(OptionValeur->isChecked() || OptionAnneeVal->isChecked());
}

ChoixDonnee FrmInserVal::Choix() const {
    ChoixDonnee c;
    c.famille = Famille();
    const auto* item = TreeViewSeries->currentItem();
    if (item && item->data(0, kRoleFeuille).toBool())
        c.cle = DepuisQt(item->data(0, kRoleCle).toString());
    c.genre = OptionIntitule->isChecked()   ? GenreValeur::Intitule
              : OptionUnite->isChecked()    ? GenreValeur::Unite
              : OptionInfoGene->isChecked() ? GenreValeur::InfoGene
              : OptionAnneeVal->isChecked() ? GenreValeur::AnneeVal
                                            : GenreValeur::Valeur;
    c.indexValeur = ComboValeur->currentIndex();
    c.indexAnMinMax = ComboAnMinMax->currentIndex();
    c.entreeUnite = c.cle == kCleUniteFamille;
    c.decimales = ComboNbDecimal->currentIndex();
    return c;
}

Texte FrmInserVal::TexteEnClair() const {
    const auto* item = TreeViewSeries->currentItem();
    if (!item || !item->data(0, kRoleFeuille).toBool()) return {};
    return ComposeurCode::EnClair(DepuisQt(item->text(0)), Choix());
}

std::optional<Texte> FrmInserVal::ComposerCode() {
    const int onglet = tabOnglets->currentIndex();
    if (onglet == ongletFormule_)
        return ComposeurCode::CodeFormule(ctx_, ComboNumAnnee->currentIndex(),
                                          DepuisQt(txtFormuleTot->text()),
                                          ComboNbDecimalFormule->currentIndex());
    if (onglet == ongletSeries_) {
        const Texte code = ComposeurCode::CodeDonnee(Choix());
        if (code.empty()) {
            Dire(ctx_, "Sélectionnez une série dans l'arbre avant de l'insérer.");
            return std::nullopt;
        }
        return code;
    }
    const auto i = static_cast<std::size_t>(onglet - ongletSeries_ - 1);
    if (i >= onglets_.size()) return std::nullopt;
    const int ligne = ListChamps[i]->currentRow();
    if (ligne < 0) {
        Dire(ctx_, "Sélectionnez une donnée dans la liste avant de l'insérer.");
        return std::nullopt;
    }
    const ChampDonnee& champ = onglets_[i].champs[static_cast<std::size_t>(ligne)];
    int suffixe = 0;
    if (champ.suffixe == SuffixeChamp::Annee) suffixe = ComboAnneeExercice->currentIndex();
    if (champ.suffixe == SuffixeChamp::Organisme) {
        const auto* organisme = ListOrganismes->currentItem();
        if (!organisme) {
            Dire(ctx_, "Aucun organisme nommé dans le fichier de paramètres de Marlo.");
            return std::nullopt;
        }
        suffixe = organisme->data(kRoleCle).toInt();
    }
    return ComposeurCode::CodeChamp(champ, suffixe);
}

void FrmInserVal::Inserer() {
    const auto code = ComposerCode();
    if (!code) return;
    if (tabOnglets->currentIndex() == ongletSeries_) lblEnClair->setText(VersQt(TexteEnClair()));
    ctx_.etat.insertion.codeEnAttente = *code;
    InsererCode(ctx_);
}

} // namespace verdane::qt
