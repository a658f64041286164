// The dialogs bound to their core: what their controls write, what they refuse, what they save.
// With VERDANE_CAPTURES set to a folder, the editor and each dialog are also grabbed there as
// pictures.

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
#include <string>
#include <tuple>

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

// The line dialog driven through its controls: the header's form, the totals simple and free
// (and the refusal of a line below), a cell's text format and the key of a repeated table's
// value taken from its tree.
TEST_F(DialoguesTest, FrmTexteComposeLaDefinitionParSesControles) {
    tableau.lignes[2].definition = "entete:1:Début&Fin";
    {
        FrmTexte d(ctx, tableau, 3);
        EXPECT_FALSE(d.txtDebut->isEnabled());
        d.ComboFormeEntete->setCurrentIndex(3);
        // Outside year mode 2 the pair stays as it was.
        EXPECT_EQ(d.Ligne().definition, "entete:4:Début&Fin");
        EXPECT_TRUE(d.lblExemple->text().contains("2008 - 2009"));
    }
    tableau.lignes[2].definition.clear();
    FrmTexte d(ctx, tableau, 3);
    d.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Calcul));
    EXPECT_EQ(d.txtLibelle[0]->text(), "TOTAL");
    ASSERT_EQ(d.ComboLigneA->count(), 2); // only the lines above
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

    FrmTexte refus(ctx, tableau, 2);
    refus.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::Calcul));
    refus.OngletsTotal->setCurrentIndex(1);
    refus.txtFormule->setText("LG1+LG3");
    emit refus.txtFormule->textEdited(refus.txtFormule->text());
    refus.accept();
    EXPECT_NE(refus.result(), QDialog::Accepted);
    EXPECT_FALSE(utilisateur.messages.empty());

    refus.ComboCellule->setCurrentIndex(1);
    refus.CheckGras->setChecked(false);
    refus.CheckItalique->setChecked(true);
    refus.ComboAlignement->setCurrentIndex(2);
    refus.ComboPolice->setCurrentIndex(10);
    EXPECT_EQ(refus.Ligne().cellules[0].formatTexte, "5010;10;1;0;1;0;0;0;r");

    refus.ComboGenre->setCurrentIndex(static_cast<int>(TypeLigne::SerieActivite));
    const auto ugb =
        refus.TreeViewElements->findItems("UGB", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(ugb.size(), 1);
    refus.TreeViewElements->setCurrentItem(ugb[0]);
    refus.TreeViewElements->setCurrentItem(ugb[0]->parent()); // a folder keeps the key
    EXPECT_EQ(refus.Ligne().definition, "ALani:159:7:2");
}

TEST_F(DialoguesTest, FrmTotaliserAjouteSesBoutonsALaFormule) {
    FrmTotaliser f(ctx, tableau, 3, "LG1");
    ASSERT_EQ(f.ComboLignes->count(), 2);
    for (QPushButton* b : f.findChildren<QPushButton*>())
        if (b->text() == "+") b->click();
    f.ComboLignes->setCurrentIndex(1);
    f.cmdAjouterLigne->click();
    f.cmdAjouterSerie->click(); // no series chosen: told, nothing added
    EXPECT_EQ(f.Formule(), "LG1+LG2");
    EXPECT_FALSE(utilisateur.messages.empty());
}

TEST_F(DialoguesTest, FrmParamTabEnregistreCeQuIlMontre) {
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
    const char* libelles[] = {"Lait vendu", "Viande", "TOTAL"};
    for (std::size_t n = 0; n < 3; ++n) e.Tableau()->lignes[n].cellules[0].texte = libelles[n];
    e.Tableau()->lignes[2].definition = "totalS:LG1+LG2:0:0";
    LigneModele entete = NouvelleLigne(ctx.etat.options);
    AppliquerTypeLigne(entete, TypeLigne::Intitule, ctx.etat.options, 2);
    e.Tableau()->lignes.insert(e.Tableau()->lignes.begin(), entete);
    editeur.txtNbColonnes->setValue(2);
    editeur.txtLargeurValeurs->setValue(7300);
    saisir(editeur, "FrmInserTab");

    const TableauModele& t = *e.Tableau();
    for (const auto& [numero, genre, nom] : std::vector<std::tuple<int, int, const char*>>{
             {1, -1, "FrmTexte-intitule"},
             {2, -1, "FrmTexte-serie"},
             {4, -1, "FrmTexte-total"},
             {2, static_cast<int>(TypeLigne::Predefinies), "FrmTexte-predefinies"},
             {2, static_cast<int>(TypeLigne::SerieCulture), "FrmTexte-culture"},
             {2, static_cast<int>(TypeLigne::SerieActivite), "FrmTexte-activite"}}) {
        FrmTexte d(ctx, t, numero);
        if (genre >= 0) d.ComboGenre->setCurrentIndex(genre);
        d.TreeViewElements->expandAll();
        saisir(d, nom);
    }
    for (const auto& [mode, nom] : {std::pair{'a', "ajout"}, std::pair{'s', "suppression"},
                                    std::pair{'m', "deplacement"}, std::pair{'d', "duplication"}}) {
        FrmAddRmvL operation(mode, t.nbLignes(), 2);
        saisir(operation, (std::string("FrmAddRmvL-") + nom).c_str());
    }
    FrmTotaliser totaliser(ctx, t, 4, "LG2+LG3");
    FrmDefCell cellule(LireCadre("2;2;0;0;16"));
    FrmLargeurTab largeur(0, 2, 7200);
    FrmTailleTab taille(280, 120);
    FrmEnteteTab enteteTab(1, -1, ctx.etat.chemins.RepImages);
    FrmParamTab parametres(ctx);
    for (const auto& [w, nom] :
         std::initializer_list<std::pair<QWidget*, const char*>>{{&totaliser, "FrmTotaliser"},
                                                                 {&cellule, "FrmDefCell"},
                                                                 {&largeur, "FrmLargeurTab"},
                                                                 {&taille, "FrmTailleTab"},
                                                                 {&enteteTab, "FrmEnteteTab"},
                                                                 {&parametres, "FrmParamTab"}})
        saisir(*w, nom);
    utilisateur.messages.clear();
}

} // namespace
} // namespace verdane::qt
