// The insertion dialogs driven through their controls, over a word processor that keeps what it
// gets. With VERDANE_CAPTURES set to a folder, each dialog over the sample installation is
// also saved there as a picture.

#include "data/ChargerDossier.h"
#include "graphs/qt/SurfaceQt.h"
#include "library/GestInserVal.h"
#include "library/LectureSelection.h"
#include "library/PiloteTexte.h"
#include "library/qt/ApercuGraph.h"
#include "library/qt/FenetresInsertionFormes.h"
#include "library/qt/FrmDate.h"
#include "library/qt/FrmInfoBulle.h"
#include "library/qt/FrmInserVal.h"
#include "shell/Demarrage.h"
#include "support/Catalogues.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <cstdlib>

namespace verdane::test {
namespace {

using qt::FrmDate;
using qt::FrmInfoBulle;
using qt::FrmInserVal;

QTreeWidgetItem* Chercher(QTreeWidget* arbre, const QString& texte) {
    const auto trouves = arbre->findItems(texte, Qt::MatchExactly | Qt::MatchRecursive);
    return trouves.isEmpty() ? nullptr : trouves.front();
}

class Fenetres : public ::testing::Test {
protected:
    void SetUp() override {
        d.Ecrire(
            "Datacfg/VLVB.CFG",
            FichierCatalogue({EnregistrementCatalogue("", "Vaches laitières", "", "", 1),
                              EnregistrementCatalogue("VLVB-2:0", "Lait vendu", "Production")}));
        ctx.etat.chemins.RepDatacfg = d / "Datacfg/";
        ctx.etat.Organismes[2].sigle = "CER";
        pilote.Lier(ctx);
    }
    DossierTemporaire d;
    FauxUtilisateur u;
    Contexte ctx{u};
    PiloteTexte pilote;
};

TEST_F(Fenetres, FrmInserValComposeCeQueLUtilisateurChoisit) {
    ctx.etat.chemins.RepDatacfg = d / "rien/";
    FrmInserVal vide(ctx, "CLASSIC");
    EXPECT_TRUE(vide.lblArbreVide->isVisibleTo(&vide));
    vide.comInserData->click();
    EXPECT_TRUE(pilote.inseres.empty());

    // A series of the dossier, as a value, the year of an extreme, a unit.
    ctx.etat.chemins.RepDatacfg = d / "Datacfg/";
    FrmInserVal f(ctx, "CLASSIC");
    EXPECT_FALSE(f.lblArbreVide->isVisibleTo(&f));
    f.TreeViewSeries->setCurrentItem(Chercher(f.TreeViewSeries, "Lait vendu"));
    f.ComboValeur->setCurrentIndex(4 + 3);
    f.ComboNbDecimal->setCurrentIndex(2);
    f.comAffEnClair->click();
    EXPECT_EQ(f.lblEnClair->text(), QStringLiteral("Lait vendu pour la 3e année"));
    f.comInserData->click();
    f.OptionAnneeVal->setChecked(true);
    f.ComboAnMinMax->setCurrentIndex(1);
    f.comInserData->click();
    f.OptionUnite->setChecked(true);
    f.comInserData->click();
    // A folder is not a series.
    f.TreeViewSeries->setCurrentItem(Chercher(f.TreeViewSeries, "Production"));
    f.comInserData->click();
    EXPECT_TRUE(u.ADit("Sélectionnez une série"));

    // General fields, with their year or body, and a formula.
    const auto onglet = [&](const char* titre) {
        for (int i = 0; i < f.tabOnglets->count(); ++i)
            if (f.tabOnglets->tabText(i) == QString::fromUtf8(titre))
                f.tabOnglets->setCurrentIndex(i);
    };
    onglet("Exercices");
    f.ListChamps[4]->setCurrentRow(4);
    f.ComboAnneeExercice->setCurrentIndex(3);
    f.comInserData->click();
    onglet("Organismes");
    ASSERT_EQ(f.ListOrganismes->count(), 1);
    f.ListChamps[5]->setCurrentRow(4);
    f.comInserData->click();
    onglet("Formule");
    f.txtFormuleTot->setText("LG(VLVB-2) / 12");
    f.ComboNumAnnee->setCurrentIndex(2);
    f.ComboNbDecimalFormule->setCurrentIndex(1);
    f.comInserData->click();

    // The families of crops and activities: the unit entry takes no value.
    FrmInserVal per(ctx, "CULTPER");
    per.TreeViewSeries->setCurrentItem(
        Chercher(per.TreeViewSeries, QStringLiteral(" Unité de la culture pérenne")));
    EXPECT_TRUE(per.OptionInfoGene->isChecked());
    EXPECT_FALSE(per.OptionValeur->isEnabled());
    per.comInserData->click();
    per.TreeViewSeries->setCurrentItem(Chercher(per.TreeViewSeries, "Prix moyen"));
    EXPECT_TRUE(per.OptionValeur->isChecked());
    per.ComboValeur->setCurrentIndex(1);
    per.comInserData->click();
    per.ComboFamille->setCurrentIndex(3);
    per.TreeViewSeries->setCurrentItem(Chercher(per.TreeViewSeries, "UGB"));
    per.OptionIntitule->setChecked(true);
    per.comInserData->click();

    EXPECT_EQ(pilote.inseres,
              (std::vector<Texte>{"#mrl(VLVB.DON+VLVB-3a2:2)#", "#mrl(VLVB.DON+VLVB-maxa2:2)#",
                                  "#mrl(VLVB.DON+VLVB-u2)#", "#mrl(an4Fin3)#", "#mrl(OrgaTel2)#",
                                  "#mrl(formule:2a:LG(VLVB-2)_/_12:1)#", "#mrl(@p-pc)#",
                                  "#mrl(@p-moy6:0)#", "#mrl(@a-i159)#"}));
}

TEST_F(Fenetres, DateEtInfoBulle) {
    FrmDate date(ctx);
    date.ListFormatsDate->setCurrentRow(3);
    date.CheckMajAuto->setChecked(true);
    date.cmdInserer->click();
    EXPECT_EQ(date.result(), QDialog::Accepted);

    FrmInfoBulle bulle(ctx);
    bulle.txtCommentaire->setPlainText(QStringLiteral("Produit brut\nde l'atelier"));
    bulle.txtTitre->setText(QStringLiteral("Lait été"));
    bulle.txtTexteAnnote->setText(QStringLiteral("lait"));
    bulle.cmdInserer->click();
    EXPECT_EQ(bulle.result(), QDialog::Accepted);
    EXPECT_EQ(pilote.inseres,
              (std::vector<Texte>{"#mrl(date(5))#",
                                  "#mrl(INFO:MRL:10:Lait_été:Produit_brut_de_l'atelier:lait)#"}));
}

constexpr const char* kCodeGraph =
    "#mrl(gph(Lait_vendu;2;1;1;0;Livraisons;0;0;50;50;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;1;1;"
    "1;Ann\\'e9es;10;30;Litres;10;30;;10;30;;10;30;16;[VLVB-2:0;Lait_vendu;1;VLVB.don;0;60;150;"
    "80;1;1]))#";

TEST_F(Fenetres, EntreesDuRegistreEtApercuDuGraphiqueSelectionne) {
    qt::InscrireFormesInsertion(ctx);
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "InsererCode", {"saut2page"}), 0);
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"#mrl(saut2page)#"}));
    pilote.selection = "#mrl(nbAnEtude)#";
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "lblRecupMdl1"), 0);
    // Not a graph code: no preview, said so.
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "lblVoirGraph"), 1);
    EXPECT_TRUE(u.ADit("n'est pas celui d'un graphique"));

    qt::FabriqueSurfaceQt fabrique;
    ctx.etat.graphes.fabriqueSurface = &fabrique;
    ctx.etat.chemins.RepModelGraph = d.Chemin();
    ctx.etat.nbAnEtude = 3;
    ctx.etat.NomDossier[0] = "DUPONT";
    ctx.etat.insertion.codeSelectionne = kCodeGraph;
    const Texte chemin = ApercuGraphSelection(ctx);
    ASSERT_EQ(chemin, d / "graphSvg.bmp") << u.ToutCeQuiAEteDit();
    qt::ApercuGraph apercu(ctx.etat, chemin);
    EXPECT_TRUE(apercu.ImageLue());
    EXPECT_TRUE(apercu.windowTitle().endsWith("Dossier : DUPONT"));
}

// Pictures of the dialogs over the sample installation, for the eye.
TEST(Captures, DialoguesSurLeDossierExemple) {
    const char* dossier = std::getenv("VERDANE_CAPTURES");
    if (!dossier) GTEST_SKIP() << "VERDANE_CAPTURES names no folder";
    UtilisateurMuet muet;
    Contexte ctx(muet);
    Environnement env;
    env.marloHome = VERDANE_SOURCE_DIR "/samples/marlo";
    ASSERT_TRUE(Initialiser(ctx, env));
    ctx.etat.RepDossier[0] = env.marloHome + "/Dossiers/";
    ctx.etat.NomDossier[0] = "TILLEULS";
    ChargerDossier(ctx);
    FrmInserVal series(ctx, "CLASSIC");
    series.TreeViewSeries->expandAll();
    series.TreeViewSeries->setCurrentItem(Chercher(series.TreeViewSeries, "Lait vendu"));
    series.comAffEnClair->click();
    FrmDate date(ctx);
    FrmInfoBulle bulle(ctx);
    qt::FabriqueSurfaceQt fabrique;
    ctx.etat.graphes.fabriqueSurface = &fabrique;
    ctx.etat.insertion.codeSelectionne = kCodeGraph;
    qt::ApercuGraph apercu(ctx.etat, ApercuGraphSelection(ctx));
    const std::pair<QWidget*, const char*> fenetres[] = {{&series, "FrmInserVal"},
                                                         {&date, "FrmDate"},
                                                         {&bulle, "FrmInfoBulle"},
                                                         {&apercu, "ApercuGraph"}};
    for (const auto& [fenetre, nom] : fenetres) {
        fenetre->show();
        fenetre->grab().save(QString::fromUtf8(dossier) + "/" + nom + ".png");
    }
}

} // namespace
} // namespace verdane::test
