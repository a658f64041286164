// The line dialog's pages compose the definitions the engine reads, and refuse what the
// formula check refuses; the defaults dialog saves what it shows. With VERDANE_CAPTURES set
// to a folder, the editor and each dialog are also grabbed there as pictures.

#include "graphs/qt/RenduGraphique.h"
#include "shell/Options.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "tables/qt/FrmAddRmvL.h"
#include "tables/qt/FrmDefCell.h"
#include "tables/qt/FrmEnteteTab.h"
#include "tables/qt/FrmInserTab.h"
#include "tables/qt/FrmLargeurTab.h"
#include "tables/qt/FrmParamTab.h"
#include "tables/qt/FrmTailleTab.h"
#include "tables/qt/FrmTexte.h"
#include "tables/qt/FrmTotaliser.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <cstdlib>

namespace verdane::qt {
namespace {

class DialoguesTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};
    TableauModele tableau;

    void SetUp() override {
        ctx.etat.chemins.RepVerdane = dossier.Chemin();
        tableau = NouveauTableau(ctx.etat.options);
        for (int n = 0; n < 3; ++n) tableau.lignes.push_back(NouvelleLigne(ctx.etat.options));
        tableau.lignes[0].definition = "serie:VLVB.DON+VLVB-1:0:0";
        tableau.lignes[1].definition = "serie:VLVB.DON+VLVB-2:0:0";
    }
};

TEST_F(DialoguesTest, LIntituleEcritSaFormeEtLaPaireDesAnneesExtremes) {
    tableau.lignes[2].definition = "entete:1:Début&Fin";
    {
        FrmTexte d(ctx, tableau, 3);
        EXPECT_EQ(d.PagesValeurs->currentIndex(), 0);
        EXPECT_FALSE(d.txtDebut->isEnabled());
        d.ComboFormeEntete->setCurrentIndex(3);
        // Outside year mode 2 the pair stays as it was.
        EXPECT_EQ(d.Ligne().definition, "entete:4:Début&Fin");
        EXPECT_TRUE(d.lblExemple->text().contains("2008 - 2009"));
    }
    tableau.modeAnnees = kPremiereEtDerniere;
    FrmTexte d(ctx, tableau, 3);
    d.txtDebut->setText("2008");
    emit d.txtDebut->textEdited("2008");
    EXPECT_EQ(d.Ligne().definition, "entete:1:2008&Fin");
}

TEST_F(DialoguesTest, LesTotauxSimplesEtLibres) {
    FrmTexte d(ctx, tableau, 3);
    d.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Calcul));
    EXPECT_EQ(d.txtLibelle[0]->text(), "TOTAL");
    // Only the lines above are offered.
    ASSERT_EQ(d.ComboLigneA->count(), 2);
    d.ComboLigneB->setCurrentIndex(1);
    d.ComboOperateur->setCurrentText("x");
    d.ComboDecimales->setCurrentIndex(3);
    EXPECT_EQ(d.Ligne().definition, "totalS:LG1*LG2:2:2");

    d.OngletsTotal->setCurrentIndex(1);
    d.txtFormule->setText("lg1+lg2/2");
    emit d.txtFormule->textEdited(d.txtFormule->text());
    EXPECT_EQ(d.Ligne().definition, "totalC:LG1+LG2/2:2:2");
    d.accept();
    EXPECT_EQ(d.result(), QDialog::Accepted);

    // A line that is not above the total is refused and the dialog stays open.
    FrmTexte refus(ctx, tableau, 2);
    refus.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Calcul));
    refus.OngletsTotal->setCurrentIndex(1);
    refus.txtFormule->setText("LG1+LG3");
    emit refus.txtFormule->textEdited(refus.txtFormule->text());
    refus.accept();
    EXPECT_NE(refus.result(), QDialog::Accepted);
    EXPECT_FALSE(utilisateur.messages.empty());
}

TEST_F(DialoguesTest, LignesPredefiniesEtRefusDUnSautDePage) {
    FrmTexte d(ctx, tableau, 3);
    d.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Predefinies));
    const auto trouves = d.TreeViewPredefinies->findItems(VersQt("Primes cultures fourragères"),
                                                          Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(trouves.size(), 1);
    d.TreeViewPredefinies->setCurrentItem(trouves[0]);
    EXPECT_EQ(d.Ligne().definition, "prime:p4ricf");
    // A folder of the catalogue writes nothing.
    d.TreeViewPredefinies->setCurrentItem(trouves[0]->parent());
    EXPECT_EQ(d.Ligne().definition, "prime:p4ricf");

    tableau.lignes[2].definition = "newpg";
    FrmTexte saut(ctx, tableau, 3);
    EXPECT_TRUE(utilisateur.ADit("Les sauts de page ne sont pas paramétrables !"));
}

TEST_F(DialoguesTest, FormatsDuTexteEtValeursDesTableauxRepetes) {
    FrmTexte d(ctx, tableau, 2);
    d.ComboCellule->setCurrentIndex(1);
    d.CheckGras->setChecked(false);
    d.CheckItalique->setChecked(true);
    d.ComboAlignement->setCurrentIndex(2);
    d.ComboPolice->setCurrentIndex(10);
    EXPECT_EQ(d.Ligne().cellules[0].formatTexte, "5010;10;1;0;1;0;0;0;r");
    EXPECT_EQ(d.Ligne().formatTexte, tableau.lignes[1].formatTexte);

    // The key of a crop's value is taken from the catalogue, not typed.
    d.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::SerieActivite));
    const auto ugb = d.TreeViewElements->findItems("UGB", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(ugb.size(), 1);
    d.TreeViewElements->setCurrentItem(ugb[0]);
    EXPECT_EQ(d.Ligne().definition, "ALani:159:7:2");
    d.TreeViewElements->setCurrentItem(ugb[0]->parent()); // a folder keeps the key
    EXPECT_EQ(d.Ligne().definition, "ALani:159:7:2");
}

TEST_F(DialoguesTest, LaFormuleSeComposeDansFrmTotaliser) {
    FrmTotaliser f(ctx, tableau, 3, "LG1");
    ASSERT_EQ(f.ComboLignes->count(), 2);
    for (QPushButton* b : f.findChildren<QPushButton*>())
        if (b->text() == "+") b->click();
    f.ComboLignes->setCurrentIndex(1);
    f.cmdAjouterLigne->click();
    EXPECT_EQ(f.Formule(), "LG1+LG2");
    f.cmdAjouterSerie->click(); // no series chosen: told, nothing added
    EXPECT_EQ(f.Formule(), "LG1+LG2");
    EXPECT_FALSE(utilisateur.messages.empty());
}

TEST_F(DialoguesTest, LesParametresSontEnregistres) {
    FrmParamTab d(ctx);
    d.ComboTaille->setCurrentText("14");
    d.ComboAlignement->setCurrentIndex(2);
    d.ComboGenre->setCurrentIndex(2);
    EXPECT_EQ(d.lblCadre[1]->text(), "1;1;1;1;8");
    d.accept();
    Etat relu;
    relu.chemins = ctx.etat.chemins;
    ChargerOptions(relu);
    EXPECT_EQ(relu.options.TailleDefaut, 14);
    EXPECT_EQ(relu.options.AlignementDefaut, "r");

    FrmDefCell cellule(LireCadre("0;2;1;0;13"));
    EXPECT_EQ(EcrireCadre(cellule.Valeur()), "0;2;1;0;13");
    FrmTailleTab taille(5, 120);
    EXPECT_EQ(taille.ComboHauteur->currentText(), "AUTO");
    EXPECT_EQ(taille.Hauteur(), std::int16_t{0});
    taille.ComboHauteur->setCurrentText("grand");
    EXPECT_FALSE(taille.Hauteur());
}

// Pictures of the editor and of each dialog, for the eyes; run by scripts/capture-tableaux.sh.
TEST_F(DialoguesTest, Captures) {
    const char* cible = std::getenv("VERDANE_CAPTURES");
    if (cible == nullptr) GTEST_SKIP() << "VERDANE_CAPTURES not set";
    const QString dossierImages = QString::fromLocal8Bit(cible) + "/";
    ctx.etat.chemins.RepModlDocs = dossier.Chemin() + "ModlDocs/";
    const auto saisir = [&](QWidget& w, const char* nom) {
        w.show();
        w.raise();
        QApplication::processEvents();
        EXPECT_TRUE(w.grab().save(dossierImages + nom + ".png"));
        w.hide();
    };
    FrmInserTab editeur(ctx);
    editeur.NouveauTableau();
    EditeurTableaux& e = editeur.Editeur();
    *e.Tableau() = tableau;
    e.Tableau()->nom = "Produits laitiers";
    e.Tableau()->nbColonnes = 2;
    e.Tableau()->lignes[0].cellules[0].texte = "Lait vendu";
    e.Tableau()->lignes[1].cellules[0].texte = "Viande";
    e.Tableau()->lignes[2].cellules[0].texte = "TOTAL";
    e.Tableau()->lignes[2].definition = "totalS:LG1+LG2:0:0";
    LigneModele entete = NouvelleLigne(ctx.etat.options);
    AppliquerTypeLigne(entete, TypeLigne::Intitule, ctx.etat.options, 2);
    e.Tableau()->lignes.insert(e.Tableau()->lignes.begin(), entete);
    editeur.txtNbColonnes->setValue(2);
    editeur.txtLargeurValeurs->setValue(7300);
    saisir(editeur, "FrmInserTab");

    const TableauModele& t = *e.Tableau();
    for (const auto& [numero, nom] : std::vector<std::pair<int, const char*>>{
             {1, "FrmTexte-intitule"}, {2, "FrmTexte-serie"}, {4, "FrmTexte-total"}}) {
        FrmTexte d(ctx, t, numero);
        saisir(d, nom);
    }
    FrmTexte predefinies(ctx, t, 2);
    predefinies.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Predefinies));
    saisir(predefinies, "FrmTexte-predefinies");
    FrmTexte culture(ctx, t, 2);
    culture.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::SerieCulture));
    saisir(culture, "FrmTexte-culture");
    FrmTexte activite(ctx, t, 2);
    activite.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::SerieActivite));
    activite.TreeViewElements->expandAll();
    saisir(activite, "FrmTexte-activite");
    FrmTotaliser totaliser(ctx, t, 4, "LG2+LG3");
    saisir(totaliser, "FrmTotaliser");
    for (const auto& [mode, nom] :
         std::vector<std::pair<char, const char*>>{{'a', "FrmAddRmvL-ajout"},
                                                   {'s', "FrmAddRmvL-suppression"},
                                                   {'m', "FrmAddRmvL-deplacement"},
                                                   {'d', "FrmAddRmvL-duplication"}}) {
        FrmAddRmvL operation(mode, t.nbLignes(), 2);
        saisir(operation, nom);
    }
    FrmDefCell cellule(LireCadre("2;2;0;0;16"));
    saisir(cellule, "FrmDefCell");
    FrmLargeurTab largeur(0, 2, 7200);
    saisir(largeur, "FrmLargeurTab");
    FrmTailleTab taille(280, 120);
    saisir(taille, "FrmTailleTab");
    FrmEnteteTab enteteTab(1, -1, ctx.etat.chemins.RepImages);
    saisir(enteteTab, "FrmEnteteTab");
    FrmParamTab parametres(ctx);
    saisir(parametres, "FrmParamTab");
    utilisateur.messages.clear();
}

} // namespace
} // namespace verdane::qt
