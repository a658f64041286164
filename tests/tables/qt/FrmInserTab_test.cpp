// The table editor's window over a library: a table made there, line by line, is inserted and
// renders the lines the preview showed.

#include "graphs/qt/RenduGraphique.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "support/Morceaux.h"
#include "tables/GenererTableau.h"
#include "tables/qt/FrmAddRmvL.h"
#include "tables/qt/FrmInserTab.h"
#include "tables/qt/FrmTexte.h"
#include "utils/Chaines.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace verdane::qt {
namespace {

class FrmInserTabTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};

    void SetUp() override { ctx.etat.chemins.RepModlDocs = dossier.Chemin() + "ModlDocs/"; }
};

TEST_F(FrmInserTabTest, UnTableauFaitDansLEditeurSInsereCommeIlEtaitMontre) {
    Texte insere;
    ctx.formulaires.Inscrire("InsererCode", [&](Contexte&, const std::vector<Texte>& a) {
        insere = a.at(0);
        return 0;
    });
    FrmInserTab forme(ctx);
    EXPECT_EQ(forme.TreeViewTab->topLevelItem(0)->child(0)->text(0),
              VersQt("Aucun enregistrement"));
    forme.NouveauTableau();
    forme.txtNom->setText("Marge");
    emit forme.txtNom->editingFinished();
    EXPECT_EQ(forme.TreeViewTab->topLevelItem(0)->child(0)->text(0), "Divers");
    EXPECT_EQ(forme.TreeViewTab->topLevelItem(0)->child(0)->child(0)->text(0), "Marge");

    // Three lines: a header, a series, a total, through the line dialog.
    EditeurTableaux& e = forme.Editeur();
    ASSERT_TRUE(e.AjouterLigne(1));
    ASSERT_TRUE(e.AjouterLigne(2));
    const auto definir = [&](int n, TypeLigne genre, const char* libelle, const char* def) {
        FrmTexte dialogue(ctx, *e.Tableau(), n);
        dialogue.ComboGenre->setCurrentIndex(static_cast<int>(genre));
        if (libelle) dialogue.txtLibelle[0]->setText(VersQt(libelle));
        if (def) dialogue.txtDefinition->setText(VersQt(def));
        *e.Tableau()->Ligne(n) = dialogue.Ligne();
    };
    definir(1, TypeLigne::Intitule, "Années; exercices", nullptr);
    definir(2, TypeLigne::Serie, "Lait vendu", "serie:VLVB.DON+VLVB-3:0:0");
    definir(3, TypeLigne::Calcul, nullptr, "totalC:LG2*2:0:0");
    EXPECT_EQ(e.Tableau()->Ligne(1)->cellules[0].texte, "Années, exercices");
    EXPECT_EQ(e.Tableau()->Ligne(3)->cellules[0].texte, "TOTAL");
    forme.txtNbColonnes->setValue(1);

    // The preview: a header of years, the sample numbers, the total.
    QTableWidget* g = forme.GrilleApercu;
    forme.txtLargeurValeurs->setValue(7300); // any change shows the table again
    ASSERT_EQ(g->rowCount(), 3);
    ASSERT_EQ(g->columnCount(), 6);
    EXPECT_EQ(g->item(0, 1)->text(), "2008");
    EXPECT_EQ(g->item(1, 0)->text(), "Lait vendu");
    EXPECT_EQ(g->item(1, 3)->text(), "42 000");
    EXPECT_EQ(g->item(2, 5)->text(), "16 550");

    utilisateur.reponses = {Reponse::Oui};
    forme.Inserer();
    ASSERT_TRUE(CommencePar(insere, "tab"));
    EXPECT_EQ(forme.result(), QDialog::Accepted);

    // The engine lays the lines the preview showed, in that order.
    ctx.etat.nbAnEtude = 5;
    ctx.etat.anneeDebut = 2008;
    const Texte rtf = GenererTableau(ctx, insere);
    // The accent is escaped in the RTF.
    EXPECT_TRUE(test::DansLOrdre(rtf, {"es, exercices", "Lait vendu", "TOTAL"}));
}

TEST_F(FrmInserTabTest, LesOperationsDeLigneSontRefuseesSurUnTableauVide) {
    EXPECT_EQ(FrmAddRmvL::Refus('m', 0), "Aucune ligne à déplacer dans ce tableau !");
    EXPECT_EQ(FrmAddRmvL::Refus('a', 0), "");
    FrmAddRmvL dialogue('m', 4, 2);
    EXPECT_EQ(dialogue.windowTitle(), VersQt("Déplacement d'une ligne du tableau"));
    EXPECT_EQ(dialogue.Ligne(), 2);
    EXPECT_TRUE(dialogue.Apres());
}

} // namespace
} // namespace verdane::qt
