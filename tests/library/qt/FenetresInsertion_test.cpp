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
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
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

std::string Catalogue() {
    EnrCatalogue tete;
    tete.libelle = "Vaches laitières";
    tete.queue = 1;
    EnrCatalogue lait;
    lait.code = "VLVB-2:0";
    lait.libelle = "Lait vendu";
    lait.dossier1 = "Production";
    return EcrireEnrCatalogue(tete) + EcrireEnrCatalogue(lait);
}

QTreeWidgetItem* Chercher(QTreeWidget* arbre, const QString& texte) {
    const auto trouves = arbre->findItems(texte, Qt::MatchExactly | Qt::MatchRecursive);
    return trouves.isEmpty() ? nullptr : trouves.front();
}

class Fenetres : public ::testing::Test {
protected:
    void SetUp() override {
        d.Ecrire("Datacfg/VLVB.CFG", Catalogue());
        ctx.etat.chemins.RepDatacfg = d / "Datacfg/";
        ctx.etat.Organismes[2].sigle = "CER";
        pilote.Lier(ctx);
    }
    DossierTemporaire d;
    FauxUtilisateur u;
    Contexte ctx{u};
    PiloteTexte pilote;
};

TEST_F(Fenetres, DonneeDUneSerieDuDossier) {
    FrmInserVal f(ctx, "CLASSIC");
    EXPECT_FALSE(f.lblArbreVide->isVisibleTo(&f));
    auto* lait = Chercher(f.TreeViewSeries, "Lait vendu");
    ASSERT_NE(lait, nullptr);
    f.TreeViewSeries->setCurrentItem(lait);
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
    EXPECT_EQ(pilote.inseres,
              (std::vector<Texte>{"#mrl(VLVB.DON+VLVB-3a2:2)#", "#mrl(VLVB.DON+VLVB-maxa2:2)#",
                                  "#mrl(VLVB.DON+VLVB-u2)#"}));
    // A folder is not a series.
    f.TreeViewSeries->setCurrentItem(Chercher(f.TreeViewSeries, "Production"));
    f.comInserData->click();
    EXPECT_EQ(pilote.inseres.size(), 3u);
    EXPECT_TRUE(u.ADit("Sélectionnez une série"));
}

TEST_F(Fenetres, FamillesDesCulturesEtDesActivites) {
    FrmInserVal f(ctx, "CULTPER");
    auto* unite = Chercher(f.TreeViewSeries, QStringLiteral(" Unité de la culture pérenne"));
    ASSERT_NE(unite, nullptr);
    f.TreeViewSeries->setCurrentItem(unite);
    EXPECT_TRUE(f.OptionInfoGene->isChecked());
    EXPECT_FALSE(f.OptionValeur->isEnabled());
    f.comInserData->click();
    f.TreeViewSeries->setCurrentItem(Chercher(f.TreeViewSeries, "Prix moyen"));
    EXPECT_TRUE(f.OptionValeur->isChecked());
    f.ComboValeur->setCurrentIndex(1);
    f.comInserData->click();
    f.ComboFamille->setCurrentIndex(3);
    f.TreeViewSeries->setCurrentItem(Chercher(f.TreeViewSeries, "UGB"));
    f.OptionIntitule->setChecked(true);
    f.comInserData->click();
    EXPECT_EQ(pilote.inseres,
              (std::vector<Texte>{"#mrl(@p-pc)#", "#mrl(@p-moy6:0)#", "#mrl(@a-i159)#"}));
}

TEST_F(Fenetres, ChampsGenerauxEtFormule) {
    FrmInserVal f(ctx, "CLASSIC");
    const auto onglet = [&](const char* titre) {
        for (int i = 0; i < f.tabOnglets->count(); ++i)
            if (f.tabOnglets->tabText(i) == QString::fromUtf8(titre)) return i;
        return -1;
    };
    f.tabOnglets->setCurrentIndex(onglet("Exercices"));
    f.ListChamps[4]->setCurrentRow(4);
    f.ComboAnneeExercice->setCurrentIndex(3);
    f.comInserData->click();
    f.tabOnglets->setCurrentIndex(onglet("Organismes"));
    ASSERT_EQ(f.ListOrganismes->count(), 1);
    f.ListChamps[5]->setCurrentRow(4);
    f.comInserData->click();
    f.tabOnglets->setCurrentIndex(onglet("Formule"));
    f.comInserData->click();
    EXPECT_TRUE(u.ADit("La formule n'a pas été renseignée !"));
    f.txtFormuleTot->setText("LG(VLVB-2) / 12");
    f.ComboNumAnnee->setCurrentIndex(2);
    f.ComboNbDecimalFormule->setCurrentIndex(1);
    f.comInserData->click();
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"#mrl(an4Fin3)#", "#mrl(OrgaTel2)#",
                                                  "#mrl(formule:2a:LG(VLVB-2)_/_12:1)#"}));
}

TEST_F(Fenetres, ArbreVideQuiLeDit) {
    ctx.etat.chemins.RepDatacfg = d / "rien/";
    FrmInserVal f(ctx, "CLASSIC");
    EXPECT_TRUE(f.lblArbreVide->isVisibleTo(&f));
    EXPECT_TRUE(f.lblArbreVide->text().contains(QStringLiteral("Aucune série")));
    f.comInserData->click();
    EXPECT_TRUE(pilote.inseres.empty());
}

TEST_F(Fenetres, DateEtInfoBulle) {
    FrmDate date(ctx);
    EXPECT_EQ(date.ListFormatsDate->count(), 16);
    date.ListFormatsDate->setCurrentRow(3);
    date.CheckMajAuto->setChecked(true);
    date.cmdInserer->click();
    EXPECT_EQ(date.result(), QDialog::Accepted);

    FrmInfoBulle bulle(ctx);
    bulle.txtTitre->setText(QString(51, 'T'));
    bulle.txtCommentaire->setPlainText(QStringLiteral("Produit brut\nde l'atelier"));
    bulle.cmdInserer->click();
    EXPECT_NE(bulle.result(), QDialog::Accepted);
    EXPECT_TRUE(u.ADit("Vous devez réduire votre titre à 50 caractères maximum"));
    bulle.txtTitre->setText(QStringLiteral("Lait été"));
    bulle.txtTexteAnnote->setText(QStringLiteral("lait"));
    bulle.cmdInserer->click();
    EXPECT_EQ(bulle.result(), QDialog::Accepted);
    EXPECT_EQ(pilote.inseres,
              (std::vector<Texte>{"#mrl(date(5))#",
                                  "#mrl(INFO:MRL:10:Lait_été:Produit_brut_de_l'atelier:lait)#"}));
}

TEST_F(Fenetres, EntreesDuRegistre) {
    qt::InscrireFormesInsertion(ctx);
    for (const char* nom : {"FrmInserVal", "FrmDate", "FrmInfoBulle", "InsererCode", "lblRecupMdl1",
                            "lblVoirGraph", "lblVoirMdlGraph", "lblRecupTab"})
        EXPECT_TRUE(ctx.formulaires.Connu(nom)) << nom;
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "InsererCode", {"saut2page"}), 0);
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"#mrl(saut2page)#"}));
    pilote.selection = "#mrl(nbAnEtude)#";
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "lblRecupMdl1"), 0);
    ASSERT_FALSE(u.messages.empty());
    EXPECT_EQ(u.messages.back().genre, "Aide");
    // Not a graph code: no preview, said so.
    EXPECT_EQ(ctx.formulaires.Ouvrir(ctx, "lblVoirGraph"), 1);
    EXPECT_TRUE(u.ADit("n'est pas celui d'un graphique"));
}

constexpr const char* kCodeGraph =
    "#mrl(gph(Lait_vendu;2;1;1;0;Livraisons;0;0;50;50;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;1;1;"
    "1;Ann\\'e9es;10;30;Litres;10;30;;10;30;;10;30;16;[VLVB-2:0;Lait_vendu;1;VLVB.don;0;60;150;"
    "80;1;1]))#";

TEST_F(Fenetres, ApercuDuGraphiqueSelectionne) {
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
    // The graph editor isn't there: said so.
    EXPECT_FALSE(RecupererModeleGraph(ctx));
    EXPECT_TRUE(u.ADit("n'est pas disponible"));
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
    const auto capturer = [&](QWidget& w, const char* nom) {
        w.show();
        w.grab().save(QString::fromUtf8(dossier) + "/" + nom + ".png");
        w.hide();
    };
    FrmInserVal series(ctx, "CLASSIC");
    series.TreeViewSeries->expandAll();
    series.TreeViewSeries->setCurrentItem(Chercher(series.TreeViewSeries, "Lait vendu"));
    series.comAffEnClair->click();
    capturer(series, "FrmInserVal-series");
    FrmInserVal perennes(ctx, "CULTPER");
    capturer(perennes, "FrmInserVal-perennes");
    FrmInserVal organismes(ctx, "CLASSIC");
    organismes.tabOnglets->setCurrentIndex(6);
    capturer(organismes, "FrmInserVal-organismes");
    FrmDate date(ctx);
    capturer(date, "FrmDate");
    FrmInfoBulle bulle(ctx);
    bulle.txtTitre->setText(QStringLiteral("Lait vendu"));
    capturer(bulle, "FrmInfoBulle");
    qt::FabriqueSurfaceQt fabrique;
    ctx.etat.graphes.fabriqueSurface = &fabrique;
    ctx.etat.insertion.codeSelectionne = kCodeGraph;
    qt::ApercuGraph apercu(ctx.etat, ApercuGraphSelection(ctx));
    capturer(apercu, "ApercuGraph");
}

} // namespace
} // namespace verdane::test
