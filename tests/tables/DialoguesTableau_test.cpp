// The decisions behind the editor's line and cell dialogs: definitions composed and read back,
// the refusals with their messages, frames on one cell or a line, sizes and the defaults saved.

#include "data/SeriesProposees.h"
#include "shell/Options.h"
#include "support/Catalogues.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "tables/DialoguesCellule.h"
#include "tables/DialoguesLigne.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class DialoguesTableauTest : public ::testing::Test {
protected:
    test::FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};

    TableauModele Tableau(std::vector<Texte> definitions, int colonnes = 2) {
        TableauModele t = NouveauTableau(ctx.etat.options);
        t.nbColonnes = static_cast<std::int16_t>(colonnes);
        t.lignes.clear();
        for (const Texte& d : definitions) {
            LigneModele l = NouvelleLigne(ctx.etat.options);
            l.definition = d;
            t.lignes.push_back(l);
        }
        return t;
    }
};

TEST(DefinitionsLigne, EnteteLueEtEcrite) {
    const DefinitionEntete e = LireEntete("entete:1:1ère année de prévision&Fin de prévision");
    EXPECT_EQ(e.forme, "1");
    EXPECT_EQ(e.debut, "1ère année de prévision");
    EXPECT_EQ(e.fin, "Fin de prévision");
    EXPECT_EQ(EcrireEntete({"4", "Début", "Fin"}), "entete:4:Début&Fin");
    // A definition cut short keeps what it has.
    EXPECT_EQ(LireEntete("entete:3").forme, "3");
    EXPECT_TRUE(LireEntete("entete").forme.empty());
    EXPECT_EQ(LireEntete("entete:2:seul").fin, "");
}

TEST(DefinitionsLigne, ValeursAvecDecimalesEtRegle) {
    // "AUTO" stands first for 7 decimals, then 0 to 6.
    EXPECT_EQ(DecimalesDeChoix(0), 7);
    EXPECT_EQ(DecimalesDeChoix(7), 6);
    EXPECT_EQ(ChoixDeDecimales(7), 0);

    const DefinitionValeurs v = LireValeurs("serie:VLVB.DON+VLVB-3:0:1");
    EXPECT_EQ(v.code, "VLVB.DON+VLVB-3");
    EXPECT_EQ(EcrireValeurs(v), "serie:VLVB.DON+VLVB-3:0:1");
    // Missing decimals and rule read as the renderer reads them; an odd rule keeps the line.
    const DefinitionValeurs court = LireValeurs("serie:X.DON+X-1");
    EXPECT_EQ(court.decimales, 7);
    EXPECT_EQ(court.regleZero, 2);
    EXPECT_EQ(LireValeurs("serie:X:2:9").regleZero, 0);
    EXPECT_EQ(LireValeurs("serie:X:abc:1").decimales, 7);
}

TEST(DefinitionsLigne, Totaux) {
    EXPECT_EQ(FormuleSimple(1, "x", 3), "LG1*LG3");
    EXPECT_EQ(FormuleSimple(2, "-", 1), "LG2-LG1");
    int a = 0, b = 0;
    Texte op;
    ASSERT_TRUE(LireFormuleSimple("lg12*LG3", a, op, b));
    EXPECT_EQ(a, 12);
    EXPECT_EQ(op, "x");
    EXPECT_EQ(b, 3);
    // A free formula is not shown in the simple tab.
    for (const char* libre : {"LG1+LG2+LG3", "(LG1+LG2)", "LG1+"})
        EXPECT_FALSE(LireFormuleSimple(libre, a, op, b)) << libre;
    EXPECT_EQ(FormuleStockee(" lg1+lg(vlvb.don-2)!a-1 "), "LG1+LG(VLVB.DON-2)!A-1");
    EXPECT_EQ(EcrireValeurs({"totalC", FormuleStockee("lg1/2"), 7, 3}), "totalC:LG1/2:7:3");
}

TEST(DefinitionsLigne, CataloguePredefini) {
    const auto noeuds = CataloguePredefinies();
    ASSERT_FALSE(noeuds.empty());
    EXPECT_EQ(noeuds[0].texte, "Tableaux génériques proposés");
    bool p4ricf = false;
    for (std::size_t i = 1; i < noeuds.size(); ++i) {
        // Each parent is listed before its children.
        bool parentVu = false;
        for (std::size_t j = 0; j < i; ++j) parentVu |= noeuds[j].cle == noeuds[i].parent;
        EXPECT_TRUE(parentVu) << noeuds[i].cle;
        p4ricf |= noeuds[i].cle == "prime:p4ricf";
    }
    EXPECT_TRUE(p4ricf);
}

TEST_F(DialoguesTableauTest, RefusDeDefinition) {
    const TableauModele t = Tableau({"serie:A:0:0", "newpg", "espace"});
    EXPECT_TRUE(DefinitionPermise(ctx, t, t.lignes[0], TypeLigne::Serie));
    EXPECT_TRUE(utilisateur.messages.empty());

    EXPECT_FALSE(DefinitionPermise(ctx, t, t.lignes[0], std::nullopt));
    EXPECT_TRUE(utilisateur.ADit("Veuillez d'abord sélectionner un type de valeur"));
    EXPECT_FALSE(DefinitionPermise(ctx, t, t.lignes[1], TypeLigne::Predefinies));
    EXPECT_TRUE(utilisateur.ADit("Les sauts de page ne sont pas paramétrables !"));
    EXPECT_FALSE(DefinitionPermise(ctx, t, t.lignes[2], TypeLigne::Espace));
    EXPECT_TRUE(utilisateur.ADit("cliquez l'autre bouton à gauche sur la ligne."));

    TableauModele sans = t;
    sans.modeAnnees = kSansValeurs;
    EXPECT_FALSE(DefinitionPermise(ctx, sans, sans.lignes[0], TypeLigne::Calcul));
    EXPECT_TRUE(utilisateur.ADit("aucune colonne de valeurs. Edition impossible !"));
}

TEST_F(DialoguesTableauTest, LibelleDeSerieRemplaceSurAccord) {
    EXPECT_FALSE(RemplacerLibelle(ctx, "Lait", "Lait"));
    EXPECT_FALSE(RemplacerLibelle(ctx, "Lait", "  "));
    EXPECT_TRUE(utilisateur.questions.empty());
    utilisateur.reponses = {Reponse::Non, Reponse::Oui};
    EXPECT_FALSE(RemplacerLibelle(ctx, "Lait", "Lait vendu"));
    EXPECT_TRUE(RemplacerLibelle(ctx, "", "Lait vendu"));
    EXPECT_EQ(utilisateur.questions[0].texte,
              "Remplacer le libellé actuel \"Lait\" par \"Lait vendu\" dans la première cellule ?");
}

TEST(Cadres, LusEtEcrits) {
    EXPECT_EQ(EcrireCadre(LireCadre("")), "1;1;1;1;8");
    EXPECT_EQ(EcrireCadre(LireCadre("0;2;1;0;13")), "0;2;1;0;13");
    // Short or wrong fields fall back one by one.
    EXPECT_EQ(EcrireCadre(LireCadre("2;x")), "2;1;1;1;8");
    EXPECT_EQ(EcrireCadre(LireCadre("3;0;0;0;17")), "1;0;0;0;8");
    EXPECT_EQ(EcrireCadre(LireCadre("0;0;0;0;8;trop")), "0;0;0;0;8");
}

TEST_F(DialoguesTableauTest, CadreSurUneCelluleOuLaLigne) {
    TableauModele t = Tableau({"serie:A:0:0", "espace", "imemp:inve1"});
    const Cadre double_{{2, 2, 0, 0}, 3};
    ASSERT_TRUE(AppliquerCadre(ctx, &t, 1, 2, double_, false));
    EXPECT_EQ(t.lignes[0].cellules[1].formatCadre, "2;2;0;0;3");
    EXPECT_EQ(t.lignes[0].cellules[0].formatCadre, "1;1;1;1;8");
    EXPECT_EQ(t.lignes[0].formatCadre, "1;1;1;1;8");

    ASSERT_TRUE(AppliquerCadre(ctx, &t, 1, 0, double_, true));
    EXPECT_EQ(t.lignes[0].cellules[0].formatCadre, "2;2;0;0;3");
    EXPECT_EQ(t.lignes[0].formatCadre, "2;2;0;0;3");
    // Cells beyond the table's label columns are left alone.
    EXPECT_EQ(t.lignes[0].cellules[2].formatCadre, "1;1;1;1;8");

    const TableauModele avant = t;
    EXPECT_FALSE(AppliquerCadre(ctx, &t, 2, 1, double_, true));
    EXPECT_TRUE(utilisateur.ADit("il ne s'agit alors plus de cellules !"));
    EXPECT_FALSE(AppliquerCadre(ctx, &t, 3, 1, double_, true));
    EXPECT_TRUE(utilisateur.ADit("ne peut recevoir une mise en forme personnalisée."));
    EXPECT_FALSE(AppliquerCadre(ctx, nullptr, 1, 1, double_, true));
    EXPECT_FALSE(AppliquerCadre(ctx, &t, 9, 1, double_, true));
    EXPECT_FALSE(AppliquerCadre(ctx, &t, 1, 3, double_, false));
    EXPECT_TRUE(utilisateur.ADit("Problème de sauvegarde de la définition"));
    EXPECT_EQ(t, avant);
}

TEST_F(DialoguesTableauTest, TaillesEtLargeurs) {
    EXPECT_EQ(TexteHauteur(10), "AUTO");
    EXPECT_EQ(TexteHauteur(11), "11");
    EXPECT_EQ(HauteurDeTexte("auto"), std::int16_t{0});
    for (const char* refusee : {"grand", "-3", "99999"}) EXPECT_FALSE(HauteurDeTexte(refusee));

    const TableauModele t = Tableau({"serie:A:0:0", "espace"});
    EXPECT_TRUE(TailleModifiable(ctx, t.lignes[0]));
    EXPECT_FALSE(TailleModifiable(ctx, t.lignes[1]));
    EXPECT_TRUE(utilisateur.ADit("ce n'est pas une ligne de cellules"));

    EXPECT_EQ(QuestionLargeur(1, 1), "Définir la largeur de la colonne de libellé :");
    EXPECT_EQ(QuestionLargeur(1, 3), "Définir la largeur de la 1ère colonne de libellé :");
    EXPECT_EQ(QuestionLargeur(0, 3), "Définir la largeur totale des colonnes de valeurs :");

    EXPECT_EQ(PageDebutDeChoix(0), -1);
    EXPECT_EQ(ChoixDePageDebut(-1), 0);
}

TEST_F(DialoguesTableauTest, ParametresEnregistres) {
    test::DossierTemporaire dossier;
    ctx.etat.chemins.RepVerdane = dossier.Chemin();
    ctx.etat.options.FormatsDefaut[3] = "";
    EXPECT_EQ(PaireDefaut(ctx.etat.options, 1)[1], "1;1;1;1;8");
    EXPECT_EQ(AlignementDeTexte(TexteAlignement("r")), "r");
    EXPECT_EQ(TexteAlignement("x"), "gauche");

    std::array<Texte, 12> formats;
    formats.fill("0;0;0;0;8");
    formats[5] = "2;2;2;2;6";
    ASSERT_TRUE(ValiderParametres(ctx, 12, "centré", formats));
    Etat relu;
    relu.chemins = ctx.etat.chemins;
    ChargerOptions(relu);
    EXPECT_EQ(relu.options.TailleDefaut, 12);
    EXPECT_EQ(relu.options.AlignementDefaut, "c");
    EXPECT_EQ(PaireDefaut(relu.options, 2)[1], "2;2;2;2;6");
    EXPECT_EQ(PaireDefaut(relu.options, 0)[0], "0;0;0;0;8");
}

TEST(SeriesProposees, CataloguesRangesParNomQuelleQueSoitLaCasse) {
    test::DossierTemporaire dossier;
    dossier.Ecrire("Datacfg/VLVB.CFG",
                   test::FichierCatalogue("Vaches", 1, {{"VLVB-1", "Effectif"}}));
    dossier.Ecrire("Datacfg/ABCD.cfg",
                   test::FichierCatalogue("Autre", 1, {{"ABCD-1", "Effectif"}}));
    ArbreCatalogue arbre = SeriesProposees(dossier.Chemin() + "Datacfg/");
    ASSERT_EQ(arbre.racine.enfants.size(), 2u);
    EXPECT_EQ(arbre.racine.enfants[0].texte, "Autre"); // in name order
    EXPECT_NE(arbre.Trouver("VLVB.DON+VLVB-1"), nullptr);
}

} // namespace
} // namespace verdane
