#include "tables/qt/FrmTexte.h"

#include "graphs/qt/RenduGraphique.h"
#include "tables/DialoguesCellule.h"
#include "tables/DialoguesLigne.h"
#include "tables/Formules.h"
#include "tables/qt/FrmTotaliser.h"
#include "tables/qt/ListesFormat.h"
#include "tables/qt/OutilsDialogues.h"
#include "utils/Chaines.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <map>

namespace verdane::qt {

namespace {

enum Page { kPageEntete, kPageSerie, kPageEspace, kPageTotal, kPagePredefinies, kPageRepetee };

Page PageDuType(TypeLigne type) {
    switch (type) {
    case TypeLigne::Intitule:
        return kPageEntete;
    case TypeLigne::Serie:
        return kPageSerie;
    case TypeLigne::Espace:
        return kPageEspace;
    case TypeLigne::Calcul:
        return kPageTotal;
    case TypeLigne::Predefinies:
        return kPagePredefinies;
    default:
        return kPageRepetee;
    }
}

QWidget* NouvellePage(QStackedWidget* pile, QLayout*& disposition) {
    // The page before keeps its widgets at the top.
    if (auto* avant = qobject_cast<QVBoxLayout*>(disposition)) avant->addStretch(1);
    auto* page = new QWidget(pile);
    disposition = new QVBoxLayout(page);
    pile->addWidget(page);
    return page;
}

} // namespace

FrmTexte::FrmTexte(Contexte& ctx, const TableauModele& tableau, int numero, QWidget* parent)
    : QDialog(parent), ctx_(ctx), tableau_(tableau), numero_(numero),
      formats_(tableau.Ligne(numero) ? *tableau.Ligne(numero) : LigneModele{},
               tableau.ColonnesLibelle(), ctx.etat.options) {
    const LigneModele& ligne = formats_.Ligne();
    setObjectName("FrmTexte");
    setWindowTitle(VersQt("Définition de la ligne n°" + std::to_string(numero)));
    auto* tout = new QVBoxLayout(this);
    auto* formulaire = new QFormLayout;
    tout->addLayout(formulaire);
    ComboGenre = new QComboBox(this);
    ComboGenre->setObjectName("ComboGenre");
    for (const Texte& t : TextesTypesLigne()) ComboGenre->addItem(VersQt(t));
    ComboGenre->setCurrentIndex(static_cast<int>(TypeDeLigne(ligne)));
    formulaire->addRow(VersQt("Type de ligne :"), ComboGenre);
    for (int c = 0; c < tableau.ColonnesLibelle(); ++c) {
        auto* b = new QLineEdit(VersQt(ligne.cellules[static_cast<std::size_t>(c)].texte), this);
        b->setObjectName(QStringLiteral("txtLibelle%1").arg(c + 1));
        // A line end can't stand in a cell's text.
        connect(b, &QLineEdit::returnPressed, this, [this] {
            ctx_.utilisateur.Boite(
                "Touche <Entrée> incorrecte.\r\nLes sauts à la ligne seront supprimés à "
                "l'insertion.\r\nDans le cas d'un commentaire, pour résoudre le problème, insérer "
                "plusieurs lignes de commentaire dans le tableau.",
                "Edition - Insertion des Tableaux", Icone::Information);
        });
        txtLibelle.push_back(b);
        formulaire->addRow(VersQt("Libellé " + std::to_string(c + 1) + " :"), b);
    }

    // The text format of one cell at a time.
    auto* format = new QGroupBox(VersQt("Mise en forme du texte"), this);
    auto* df = new QGridLayout(format);
    ComboCellule = new QComboBox(format);
    ComboCellule->setObjectName("ComboCellule");
    ComboCellule->addItem(VersQt("Cellules de valeurs"));
    for (int c = 1; c <= tableau.ColonnesLibelle(); ++c)
        ComboCellule->addItem(VersQt("Libellé " + std::to_string(c)));
    ComboPolice = new QComboBox(format);
    ComboPolice->setObjectName("ComboPolice");
    RemplirPolices(ComboPolice);
    ComboTaille = new QComboBox(format);
    ComboTaille->setObjectName("ComboTaille");
    for (int t : {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36})
        ComboTaille->addItem(QString::number(t), t);
    ComboCouleur = new QComboBox(format);
    ComboCouleur->setObjectName("ComboCouleur");
    RemplirCouleurs(ComboCouleur, 14);
    ComboAlignement = new QComboBox(format);
    ComboAlignement->setObjectName("ComboAlignement");
    for (const Texte& t : TextesAlignements()) ComboAlignement->addItem(VersQt(t));
    CheckGras = new QCheckBox(VersQt("Gras"), format);
    CheckItalique = new QCheckBox(VersQt("Italique"), format);
    CheckSouligne = new QCheckBox(VersQt("Souligné"), format);
    CheckBarre = new QCheckBox(VersQt("Barré"), format);
    CheckOmbre = new QCheckBox(VersQt("Ombré"), format);
    CheckGras->setObjectName("CheckGras");
    CheckItalique->setObjectName("CheckItalique");
    CheckSouligne->setObjectName("CheckSouligne");
    CheckBarre->setObjectName("CheckBarre");
    CheckOmbre->setObjectName("CheckOmbre");
    df->addWidget(ComboCellule, 0, 0, 1, 2);
    df->addWidget(ComboPolice, 0, 2, 1, 2);
    df->addWidget(ComboTaille, 0, 4);
    df->addWidget(ComboCouleur, 1, 0);
    df->addWidget(ComboAlignement, 1, 1);
    int colonne = 2;
    for (QCheckBox* c : {CheckGras, CheckItalique, CheckSouligne}) df->addWidget(c, 1, colonne++);
    df->addWidget(CheckBarre, 2, 2);
    df->addWidget(CheckOmbre, 2, 3);
    tout->addWidget(format);

    lblTitre = new QLabel(this);
    lblTitre->setObjectName("lblTitre");
    QFont gras = lblTitre->font();
    gras.setBold(true);
    lblTitre->setFont(gras);
    tout->addWidget(lblTitre);
    PagesValeurs = new QStackedWidget(this);
    PagesValeurs->setObjectName("PagesValeurs");
    tout->addWidget(PagesValeurs, 1);
    QLayout* d = nullptr;

    // Header: the forms of the table's mode, with a sample, and the pair of year mode 2.
    NouvellePage(PagesValeurs, d);
    ComboFormeEntete = new QComboBox(this);
    ComboFormeEntete->setObjectName("ComboFormeEntete");
    for (const FormeEntete& f : FormesEntete(tableau.multiDossier != 0))
        ComboFormeEntete->addItem(VersQt(f.libelle), VersQt(f.forme));
    lblExemple = new QLabel(this);
    lblExemple->setObjectName("lblExemple");
    txtDebut = new QLineEdit(this);
    txtDebut->setObjectName("txtDebut");
    txtFin = new QLineEdit(this);
    txtFin->setObjectName("txtFin");
    const bool paire = tableau.modeAnnees == kPremiereEtDerniere;
    txtDebut->setEnabled(paire);
    txtFin->setEnabled(paire);
    d->addWidget(ComboFormeEntete);
    d->addWidget(lblExemple);
    d->addWidget(new QLabel(VersQt("Début/Fin prévision :"), this));
    d->addWidget(txtDebut);
    d->addWidget(txtFin);

    // Series of the catalogues.
    NouvellePage(PagesValeurs, d);
    TreeViewSeries = new QTreeWidget(this);
    TreeViewSeries->setObjectName("TreeViewSeries");
    RemplirSeries(TreeViewSeries, ctx.etat.chemins.RepDatacfg);
    d->addWidget(TreeViewSeries);

    // Spacing: nothing to define.
    NouvellePage(PagesValeurs, d);
    auto* espace = new QLabel(VersQt("Pour insérer un commentaire dans cet espace et lui "
                                     "affecter une mise en forme, cliquez l'autre bouton à "
                                     "gauche sur la ligne."),
                              this);
    espace->setWordWrap(true);
    d->addWidget(espace);

    // Totals: two lines above and an operator, or a free formula.
    NouvellePage(PagesValeurs, d);
    OngletsTotal = new QTabWidget(this);
    OngletsTotal->setObjectName("OngletsTotal");
    auto* simple = new QWidget(OngletsTotal);
    auto* ds = new QHBoxLayout(simple);
    ComboLigneA = new QComboBox(simple);
    ComboLigneA->setObjectName("ComboLigneA");
    ComboOperateur = new QComboBox(simple);
    ComboOperateur->setObjectName("ComboOperateur");
    for (const char* op : kOperateursTotal) ComboOperateur->addItem(op);
    ComboLigneB = new QComboBox(simple);
    ComboLigneB->setObjectName("ComboLigneB");
    for (int n = 1; n < numero; ++n)
        for (QComboBox* c : {ComboLigneA, ComboLigneB})
            c->addItem(QStringLiteral("LG%1").arg(n), n);
    ds->addWidget(ComboLigneA);
    ds->addWidget(ComboOperateur);
    ds->addWidget(ComboLigneB);
    OngletsTotal->addTab(simple, VersQt("Simple"));
    auto* libre = new QWidget(OngletsTotal);
    auto* dl = new QVBoxLayout(libre);
    txtFormule = new QLineEdit(libre);
    txtFormule->setObjectName("txtFormule");
    auto* cmdClair = new QPushButton(VersQt("Formule en clair"), libre);
    cmdClair->setObjectName("cmdFormuleClair");
    cmdClair->setAutoDefault(false);
    cmdTotaliser = new QPushButton(VersQt("Composer la formule..."), libre);
    cmdTotaliser->setObjectName("cmdTotaliser");
    cmdTotaliser->setAutoDefault(false);
    dl->addWidget(txtFormule);
    dl->addWidget(cmdTotaliser);
    dl->addWidget(cmdClair);
    OngletsTotal->addTab(libre, VersQt("Formule"));
    d->addWidget(OngletsTotal);

    // Pre-defined lines.
    NouvellePage(PagesValeurs, d);
    d->addWidget(new QLabel(VersQt("Choisissez un type de lignes :"), this));
    TreeViewPredefinies = new QTreeWidget(this);
    TreeViewPredefinies->setObjectName("TreeViewPredefinies");
    TreeViewPredefinies->setHeaderHidden(true);
    std::map<Texte, QTreeWidgetItem*> items;
    for (const NoeudTableau& n : CataloguePredefinies()) {
        auto* item = n.parent.empty() ? new QTreeWidgetItem(TreeViewPredefinies)
                                      : new QTreeWidgetItem(items[n.parent]);
        item->setText(0, VersQt(n.texte));
        item->setData(0, kRoleCle, VersQt(n.cle));
        items[n.cle] = item;
    }
    TreeViewPredefinies->expandAll();
    d->addWidget(TreeViewPredefinies);

    // Value of the crop or activity of a repeated table, chosen in the catalogue of its kind.
    NouvellePage(PagesValeurs, d);
    TreeViewElements = new QTreeWidget(this);
    TreeViewElements->setObjectName("TreeViewElements");
    TreeViewElements->setHeaderHidden(true);
    d->addWidget(TreeViewElements);

    static_cast<QVBoxLayout*>(d)->addStretch(1);
    auto* communs = new QFormLayout;
    ComboDecimales = new QComboBox(this);
    ComboDecimales->setObjectName("ComboDecimales");
    for (const Texte& t : TextesDecimales()) ComboDecimales->addItem(VersQt(t));
    ComboRegleZero = new QComboBox(this);
    ComboRegleZero->setObjectName("ComboRegleZero");
    for (const Texte& t : TextesReglesZero()) ComboRegleZero->addItem(VersQt(t));
    communs->addRow(VersQt("Décimales :"), ComboDecimales);
    communs->addRow(VersQt("Valeurs nulles :"), ComboRegleZero);
    txtDefinition = new QLineEdit(VersQt(ligne.definition), this);
    txtDefinition->setObjectName("txtDefinition");
    communs->addRow(VersQt("Définition des valeurs :"), txtDefinition);
    tout->addLayout(communs);

    auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    for (QAbstractButton* b : boutons->buttons())
        if (auto* p = qobject_cast<QPushButton*>(b)) p->setAutoDefault(false);
    tout->addWidget(boutons);
    connect(boutons, &QDialogButtonBox::accepted, this, &FrmTexte::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    // A kind picked gives its defaults at once.
    connect(ComboGenre, &QComboBox::currentIndexChanged, this, [this](int genre) {
        if (chargement_ || genre < 0) return;
        LigneModele l = Ligne();
        AppliquerTypeLigne(l, static_cast<TypeLigne>(genre), ctx_.etat.options,
                           tableau_.ColonnesLibelle());
        for (std::size_t c = 0; c < txtLibelle.size(); ++c)
            txtLibelle[c]->setText(VersQt(l.cellules[c].texte));
        const int cellule = formats_.Cellule();
        formats_ = FormatsLigne(l, tableau_.ColonnesLibelle(), ctx_.etat.options);
        formats_.Choisir(cellule);
        MontrerPage();
        Relire(l.definition);
        txtDefinition->setText(VersQt(l.definition));
        MontrerFormat();
    });
    connect(ComboCellule, &QComboBox::currentIndexChanged, this, [this](int cellule) {
        if (chargement_) return;
        formats_.Choisir(cellule);
        MontrerFormat();
    });
    for (QComboBox* c : {ComboPolice, ComboTaille, ComboCouleur, ComboAlignement})
        connect(c, &QComboBox::currentIndexChanged, this, [this] { PrendreFormat(); });
    for (QCheckBox* c : {CheckGras, CheckItalique, CheckSouligne, CheckBarre, CheckOmbre})
        connect(c, &QCheckBox::toggled, this, [this] { PrendreFormat(); });
    connect(ComboFormeEntete, &QComboBox::currentIndexChanged, this, [this] { Composer(); });
    for (QLineEdit* e : {txtDebut, txtFin, txtFormule})
        connect(e, &QLineEdit::textEdited, this, [this] { Composer(); });
    for (QComboBox* c : {ComboLigneA, ComboOperateur, ComboLigneB, ComboDecimales, ComboRegleZero})
        connect(c, &QComboBox::currentIndexChanged, this, [this] { Composer(); });
    connect(OngletsTotal, &QTabWidget::currentChanged, this, [this] { Composer(); });
    connect(TreeViewSeries, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item == nullptr || !item->data(0, kRoleCle).toString().contains('+')) return;
        libelleSerie_ = DepuisQt(item->text(0));
        Composer();
    });
    connect(TreeViewPredefinies, &QTreeWidget::currentItemChanged, this, [this] { Composer(); });
    connect(TreeViewElements, &QTreeWidget::currentItemChanged, this, [this] { Composer(); });
    connect(cmdTotaliser, &QPushButton::clicked, this, [this] {
        FrmTotaliser f(ctx_, tableau_, numero_, FormuleStockee(DepuisQt(txtFormule->text())), this);
        if (f.exec() != QDialog::Accepted) return;
        txtFormule->setText(VersQt(f.Formule()));
        Composer();
    });
    connect(cmdClair, &QPushButton::clicked, this, [this] {
        TableauFormule t;
        t.modeAnnees = tableau_.modeAnnees;
        t.libelleLigne = [this](int n) {
            const LigneModele* l = tableau_.Ligne(n);
            if (l == nullptr) return Texte{};
            for (int c = 0; c < 3; ++c)
                if (!Rogner(l->cellules[static_cast<std::size_t>(c)].texte).empty())
                    return l->cellules[static_cast<std::size_t>(c)].texte;
            return Texte{};
        };
        const Texte clair = SubstituerFormule(ctx_, FormuleStockee(DepuisQt(txtFormule->text())),
                                              kColonneLibelles, t);
        ctx_.utilisateur.Boite(clair, "Formule en clair :", Icone::Information);
    });

    MontrerPage();
    Relire(ligne.definition);
    MontrerExemple();
    MontrerFormat();
    DefinitionPermise(ctx_, tableau_, formats_.Ligne(), Type());
    resize(560, 620);
}

TypeLigne FrmTexte::Type() const {
    return static_cast<TypeLigne>(std::max(0, ComboGenre->currentIndex()));
}

void FrmTexte::MontrerPage() {
    const TypeLigne type = Type();
    const Page page = PageDuType(type);
    PagesValeurs->setCurrentIndex(page);
    static const char* const titres[] = {
        "Définition d'une ligne d'intitulé", "Définition d'une ligne de valeurs Marlo", "",
        "Définition d'une ligne de totaux",  "Définition d'un ensemble de lignes",      ""};
    Texte titre = titres[page];
    if (page == kPageRepetee)
        titre = "Définition d'une ligne de valeurs pour les " + TitreSerieRepetee(type);
    lblTitre->setText(VersQt(titre));
    RemplirElements();
    const bool valeurs = page == kPageSerie || page == kPageTotal || page == kPageRepetee;
    ComboDecimales->setEnabled(valeurs);
    ComboRegleZero->setEnabled(valeurs);
    PagesValeurs->setEnabled(tableau_.modeAnnees != kSansValeurs);
}

void FrmTexte::Relire(const Texte& definition) {
    chargement_ = true;
    const DefinitionEntete e = LireEntete(definition);
    const int forme = ComboFormeEntete->findData(VersQt(e.forme));
    ComboFormeEntete->setCurrentIndex(std::max(0, forme));
    txtDebut->setText(VersQt(e.debut));
    txtFin->setText(VersQt(e.fin));
    const DefinitionValeurs v = LireValeurs(definition);
    ComboDecimales->setCurrentIndex(ChoixDeDecimales(v.decimales));
    ComboRegleZero->setCurrentIndex(v.regleZero);
    for (QTreeWidgetItemIterator i(TreeViewElements); *i; ++i)
        if (!v.code.empty() && (*i)->data(0, kRoleCle).toString() == VersQt(v.code)) {
            TreeViewElements->setCurrentItem(*i);
            break;
        }
    int a = 0, b = 0;
    Texte op;
    if (v.mot == "totalS" && LireFormuleSimple(v.code, a, op, b)) {
        ComboLigneA->setCurrentIndex(ComboLigneA->findData(a));
        ComboOperateur->setCurrentText(VersQt(op));
        ComboLigneB->setCurrentIndex(ComboLigneB->findData(b));
        OngletsTotal->setCurrentIndex(0);
    } else if (v.mot == "totalC") {
        txtFormule->setText(VersQt(v.code));
        OngletsTotal->setCurrentIndex(1);
    }
    chargement_ = false;
}

void FrmTexte::MontrerExemple() {
    const auto& formes = FormesEntete(tableau_.multiDossier != 0);
    const int i = ComboFormeEntete->currentIndex();
    lblExemple->setText(i >= 0 && i < static_cast<int>(formes.size())
                            ? VersQt("Exemple : " + formes[static_cast<std::size_t>(i)].exemple)
                            : QString());
}

void FrmTexte::Composer() {
    MontrerExemple();
    if (chargement_) return;
    const TypeLigne type = Type();
    DefinitionValeurs v;
    v.decimales = DecimalesDeChoix(ComboDecimales->currentIndex());
    v.regleZero = std::max(0, ComboRegleZero->currentIndex());
    Texte definition = DepuisQt(txtDefinition->text());
    switch (PageDuType(type)) {
    case kPageEntete: {
        const DefinitionEntete avant = LireEntete(definition);
        DefinitionEntete e{DepuisQt(ComboFormeEntete->currentData().toString()),
                           DepuisQt(txtDebut->text()), DepuisQt(txtFin->text())};
        if (tableau_.modeAnnees != kPremiereEtDerniere) {
            e.debut = avant.debut;
            e.fin = avant.fin;
        }
        definition = EcrireEntete(e);
        break;
    }
    case kPageSerie:
        if (QTreeWidgetItem* item = TreeViewSeries->currentItem();
            item && item->data(0, kRoleCle).toString().contains('+')) {
            v.mot = "serie";
            v.code = DepuisQt(item->data(0, kRoleCle).toString());
            definition = EcrireValeurs(v);
        }
        break;
    case kPageTotal:
        if (OngletsTotal->currentIndex() == 0) {
            if (ComboLigneA->count() == 0) break;
            v.mot = "totalS";
            v.code = FormuleSimple(ComboLigneA->currentData().toInt(),
                                   DepuisQt(ComboOperateur->currentText()),
                                   ComboLigneB->currentData().toInt());
        } else {
            v.mot = "totalC";
            v.code = FormuleStockee(DepuisQt(txtFormule->text()));
        }
        definition = EcrireValeurs(v);
        break;
    case kPagePredefinies:
        if (QTreeWidgetItem* item = TreeViewPredefinies->currentItem()) {
            const Texte cle = DepuisQt(item->data(0, kRoleCle).toString());
            if (cle != "Racine" && !FinitPar(cle, "#")) definition = cle;
        }
        break;
    case kPageRepetee:
        // Only an item of the catalogue makes a key; a folder keeps the key chosen before.
        v.mot = MotSerieRepetee(type);
        if (QTreeWidgetItem* item = TreeViewElements->currentItem();
            item && !item->data(0, kRoleCle).toString().isEmpty())
            v.code = DepuisQt(item->data(0, kRoleCle).toString());
        else if (LireValeurs(definition).mot == v.mot)
            v.code = LireValeurs(definition).code;
        else
            break;
        definition = EcrireValeurs(v);
        break;
    case kPageEspace:
        break;
    }
    txtDefinition->setText(VersQt(definition));
}

void FrmTexte::accept() {
    const TypeLigne type = Type();
    const Texte definition = DepuisQt(txtDefinition->text());
    const DefinitionValeurs v = LireValeurs(definition);
    if (PageDuType(type) == kPageTotal && v.mot == "totalC" &&
        !VerifierFormule(ctx_, v.code, [this](int n) { return n >= 1 && n < numero_; }))
        return;
    if (PageDuType(type) == kPageSerie && !libelleSerie_.empty() && !txtLibelle.empty() &&
        RemplacerLibelle(ctx_, DepuisQt(txtLibelle[0]->text()), libelleSerie_))
        txtLibelle[0]->setText(VersQt(libelleSerie_));
    QDialog::accept();
}

void FrmTexte::RemplirElements() {
    TreeViewElements->clear();
    std::map<Texte, QTreeWidgetItem*> dossiers;
    for (const NoeudElement& n : ElementsSerieRepetee(Type())) {
        auto* item = n.parent.empty() ? new QTreeWidgetItem(TreeViewElements)
                                      : new QTreeWidgetItem(dossiers[n.parent]);
        item->setText(0, VersQt(n.libelle));
        item->setData(0, kRoleCle, VersQt(CleSerieRepetee(n)));
        if (n.image == "rep") dossiers[n.cle] = item;
    }
}

void FrmTexte::MontrerFormat() {
    const bool avant = chargement_;
    chargement_ = true;
    const StyleCellule s = formats_.Style();
    ComboCellule->setCurrentIndex(formats_.Cellule());
    ComboPolice->setCurrentIndex(s.police - kPremierePolice);
    if (ComboTaille->findData(s.taille) < 0)
        ComboTaille->addItem(QString::number(s.taille), s.taille);
    ComboTaille->setCurrentIndex(ComboTaille->findData(s.taille));
    ComboCouleur->setCurrentIndex(std::clamp(s.couleur, 1, 16) - 1);
    ComboAlignement->setCurrentText(VersQt(TexteAlignement(s.alignement)));
    CheckGras->setChecked(s.gras);
    CheckItalique->setChecked(s.italique);
    CheckSouligne->setChecked(s.souligne);
    CheckBarre->setChecked(s.barre);
    CheckOmbre->setChecked(s.ombre);
    chargement_ = avant;
}

void FrmTexte::PrendreFormat() {
    if (chargement_) return;
    StyleCellule s;
    s.police = kPremierePolice + ComboPolice->currentIndex();
    s.taille = ComboTaille->currentData().toInt();
    s.couleur = ComboCouleur->currentIndex() + 1;
    s.alignement = AlignementDeTexte(DepuisQt(ComboAlignement->currentText()));
    s.gras = CheckGras->isChecked();
    s.italique = CheckItalique->isChecked();
    s.souligne = CheckSouligne->isChecked();
    s.barre = CheckBarre->isChecked();
    s.ombre = CheckOmbre->isChecked();
    formats_.Modifier(s);
}

LigneModele FrmTexte::Ligne() const {
    LigneModele l = formats_.Ligne();
    for (std::size_t c = 0; c < txtLibelle.size(); ++c)
        l.cellules[c].texte = TexteDeLibelle(DepuisQt(txtLibelle[c]->text()));
    l.definition = DepuisQt(txtDefinition->text());
    return l;
}

} // namespace verdane::qt
