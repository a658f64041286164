// The graph editor's window over a library: what the user types goes into the record and the
// chart follows; the series dialog writes its series; leaving saves the library.

#include "graphs/OutilsTestsGraph.h"

#include "graphs/FichierGraph.h"
#include "graphs/ImageGraph.h"
#include "graphs/qt/FenetresGraphes.h"
#include "graphs/qt/FrmGraphik.h"
#include "graphs/qt/FrmSerieGraph.h"
#include "graphs/qt/ImpressionGraph.h"
#include "graphs/qt/RenduGraphique.h"
#include "utils/Chaines.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace verdane::qt {
namespace {

class FrmGraphikTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};

    void SetUp() override {
        ctx.etat.chemins.RepModelGraph = dossier.Chemin() + "ModelGraph/";
        ctx.etat.chemins.RepDatacfg = dossier.Chemin() + "Datacfg/";
        ModeleGraph vide;
        vide.titre = ChampFixe("Vide", kLargeurTitreGraph);
        dossier.Ecrire("ModelGraph/graph.txt",
                       EcrireEnrGraph(test::GrapheComplet()) + EcrireEnrGraph(vide));
    }
    ModeleGraph Enregistre(int i) {
        const auto octets = LireFichier(dossier / "ModelGraph/graph.txt").value_or("");
        return LireEnrGraph(std::string_view(octets).substr(
            std::min(octets.size(), static_cast<std::size_t>(i - 1) * kTailleEnrGraph)));
    }
};

TEST_F(FrmGraphikTest, LaSaisieVaDansLEnregistrementEtLeGraphiqueSuit) {
    FrmGraphik forme(ctx, "Insertion de graphique");
    QTreeWidgetItem* racine = forme.TreeViewGraph->topLevelItem(0);
    ASSERT_EQ(racine->childCount(), 2);
    EXPECT_EQ(racine->child(0)->text(0), VersQt("Marge brute"));
    EXPECT_EQ(forme.txtTitre->text(), VersQt("Marge brute"));
    EXPECT_FALSE(forme.Apercu().isNull());
    // A combination chart: each of the three series shows its own kind.
    EXPECT_TRUE(forme.ComboTypeIndiv[2]->isVisibleTo(&forme));
    EXPECT_FALSE(forme.ComboTypeIndiv[3]->isVisibleTo(&forme));

    forme.txtTitre->clear();
    QTest::keyClicks(forme.txtTitre, "Resultat");
    forme.txtTitre->setText(VersQt("Résultat"));
    emit forme.txtTitre->textEdited(forme.txtTitre->text());
    EXPECT_EQ(Rogner(ctx.etat.graphes.graphes[1].titre), "Résultat");
    EXPECT_EQ(racine->child(0)->text(0), VersQt("Résultat"));
    const QImage avant = forme.Apercu();
    forme.ComboType->setCurrentIndex(0); // 3D bars
    EXPECT_EQ(ctx.etat.graphes.graphes[1].typeGraph, 1);
    QTest::qWait(300); // the chart is drawn again once the changes settle
    EXPECT_NE(forme.Apercu(), avant);
    EXPECT_FALSE(forme.ComboTypeIndiv[0]->isVisibleTo(&forme));

    // A title size of 0 is refused and the former size comes back.
    forme.txtTailleTitre->setText("0");
    emit forme.txtTailleTitre->editingFinished();
    EXPECT_EQ(forme.txtTailleTitre->text(), "22");
    EXPECT_TRUE(utilisateur.ADit("Saisir une taille non nulle !"));

    // The second graph has no series: an empty chart and the "vide" node.
    forme.TreeViewGraph->setCurrentItem(racine->child(1));
    EXPECT_EQ(forme.TreeViewSeriesD->topLevelItem(0)->child(0)->text(0),
              VersQt("Aucune série sélectionnée"));
    EXPECT_FALSE(forme.Apercu().isNull());

    // Escape leaves and saves, without asking.
    QTest::keyClick(&forme, Qt::Key_Escape);
    EXPECT_TRUE(utilisateur.questions.empty());
    EXPECT_EQ(Rogner(Enregistre(1).titre), "Résultat");
    EXPECT_EQ(Enregistre(1).typeGraph, 1);
}

TEST_F(FrmGraphikTest, LeDialogueDeSerieEcritSaSerie) {
    const SerieGraph s = test::GrapheComplet().series[1];
    FrmSerieGraph dialogue(utilisateur, s, 2);
    EXPECT_EQ(dialogue.windowTitle(), VersQt("- Définition de la série n°2 -"));
    EXPECT_EQ(dialogue.txtNom->text(), "Charges");
    EXPECT_EQ(dialogue.ComboBrosse->currentText(), "solide");
    dialogue.txtNom->setText(VersQt("Charges opérationnelles de l'exploitation"));
    dialogue.txtEpaisseurTrait->setText("150");
    dialogue.OptionAxeY[1]->setChecked(true);
    dialogue.ComboBrosse->setCurrentIndex(0);
    dialogue.cmdCouleur->click(); // brush "vide": refused, no colour dialog
    EXPECT_TRUE(utilisateur.ADit("Impossible d'affecter une couleur à cette série !"));
    SerieGraph ecrite = s;
    ValiderSerie(dialogue.Valeurs(), ecrite);
    EXPECT_EQ(ecrite.nomSerie, "Charges opérationnelle");
    EXPECT_EQ(ecrite.epaisseur, 50);
    EXPECT_EQ(ecrite.axeY2, 1);
    EXPECT_EQ(ecrite.brosse, 0);
    EXPECT_EQ(ecrite.rouge, s.rouge);
}

TEST_F(FrmGraphikTest, LeGraphiqueSImprimeDansUnPdfAvecLeNomDuDossier) {
    FrmGraphik forme(ctx, "Insertion de graphique");
    const Texte pdf = dossier / "graphique.pdf";
    {
        QPdfWriter sortie(VersQt(pdf));
        PeindrePageGraphique(sortie, forme.Apercu(), "DUPONT");
    }
    const auto octets = LireFichier(pdf);
    ASSERT_TRUE(octets.has_value());
    EXPECT_TRUE(CommencePar(*octets, "%PDF"));
    EXPECT_GT(octets->size(), 5000u); // the chart's picture is in it
}

TEST_F(FrmGraphikTest, LeGrapheInsereDonneDansLeDocumentLeGraphiqueVuDansLEditeur) {
    ctx.etat.graphes.avecArguments = true; // the job GRAPH: the dossier's values
    Texte insere;
    ctx.formulaires.Inscrire("InsererCode", [&](Contexte&, const std::vector<Texte>& a) {
        insere = a.at(0);
        return 0;
    });
    FrmGraphik forme(ctx, "Insertion de graphique", 2);
    forme.txtTitre->setText("Lait et viande");
    emit forme.txtTitre->textEdited(forme.txtTitre->text());
    forme.ComboType->setCurrentIndex(1); // 2D bars
    LireCodeGraph(ctx, 2,
                  "Lait et viande;2;1;2;0;;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;"
                  "1;1;1;;12;30;;12;30;;12;30;;12;30;16;[LAIT;Lait;1;VLVB.DON;0;0;0;0;2;1]"
                  "[VIA;Viande;1;VLVB.DON;0;10;200;30;2;2]");
    QTreeWidgetItem* racine = forme.TreeViewGraph->topLevelItem(0);
    forme.TreeViewGraph->setCurrentItem(racine->child(0));
    forme.TreeViewGraph->setCurrentItem(racine->child(1));
    utilisateur.reponses = {Reponse::Oui};
    forme.Inserer();
    ASSERT_TRUE(CommencePar(insere, "gph(Lait et viande;2;"));
    EXPECT_EQ(forme.result(), QDialog::Accepted);
    // The colour drawn at random for "Lait" travels in the code.
    EXPECT_FALSE(CommencePar(insere.substr(insere.find("[LAIT")), "[LAIT;Lait;1;VLVB.DON;0;0;0;0"));

    test::UtilisateurNote autre;
    Contexte document{autre};
    FabriqueSurfaceQt fabrique;
    document.etat.graphes.fabriqueSurface = &fabrique;
    // In the document each blank of the code stands as "_", as its insertion writes it.
    const std::string png =
        DessinerImageGraph(document, Remplacer(insere.substr(4, insere.size() - 5), " ", "_"));
    const QImage image = QImage::fromData(QByteArray(png.data(), static_cast<int>(png.size())));
    EXPECT_EQ(image.convertToFormat(QImage::Format_ARGB32),
              forme.Apercu().convertToFormat(QImage::Format_ARGB32));
}

TEST_F(FrmGraphikTest, SansEcranAucuneFenetreNEstInscrite) {
    InscrireFenetresGraphes(ctx); // the tests run off screen
    EXPECT_FALSE(ctx.formulaires.Connu("FrmGraphik"));
}

} // namespace
} // namespace verdane::qt
