// The graph editor's rules: the library's tree, graphs added and deleted, series added and
// removed within their limits, the dialog written back into the record, leaving and inserting.

#include "OutilsTestsGraph.h"

#include "data/Catalogue.h"
#include "graphs/EditeurGraph.h"
#include "graphs/FichierGraph.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class EditeurGraphTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    EtatGraphes& eg = ctx.etat.graphes;
    EditeurGraph editeur{ctx};

    void SetUp() override {
        ctx.etat.chemins.RepModelGraph = dossier.Chemin() + "ModelGraph/";
        ctx.etat.chemins.RepDatacfg = dossier.Chemin() + "Datacfg/";
    }
    // A library of graphs with these titles, opened.
    void Bibliotheque(const std::vector<Texte>& titres) {
        std::string o;
        for (const Texte& t : titres) {
            ModeleGraph g;
            g.titre = ChampFixe(t, kLargeurTitreGraph);
            o += EcrireEnrGraph(g);
        }
        dossier.Ecrire("ModelGraph/graph.txt", o);
        editeur.Ouvrir();
    }
    static NoeudCatalogue Feuille(const Texte& code, const Texte& libelle) {
        return {"VLVB.DON+" + code, libelle, "puce", {}};
    }
    std::vector<Texte> Titres() const {
        std::vector<Texte> t;
        for (const auto& n : editeur.Graphes()) t.push_back(n.cle + ":" + n.texte);
        return t;
    }
};

TEST_F(EditeurGraphTest, LArbreDesGraphesSuitLaBibliothequeJusquAuDernierSupprime) {
    Bibliotheque({"Marge", "", "Charges"});
    EXPECT_EQ(editeur.Courant(), 1);
    EXPECT_EQ(Titres(),
              (std::vector<Texte>{"graph1:Marge", "graph2:Sans titre", "graph3:Charges"}));

    // On the root: refused, nothing asked.
    EXPECT_FALSE(editeur.SupprimerGraphe("Racine"));
    EXPECT_TRUE(utilisateur.ADit("Sélectionnez d'abord le graphique que vous voulez supprimer"));
    EXPECT_TRUE(utilisateur.questions.empty());
    // Declined: nothing moves.
    utilisateur.reponses = {Reponse::Non};
    EXPECT_FALSE(editeur.SupprimerGraphe("graph2"));
    EXPECT_EQ(eg.nbGraphes, 3);
    // The middle one: the later ones move down, the one now at its place is selected.
    utilisateur.reponses = {Reponse::Oui};
    EXPECT_TRUE(editeur.SupprimerGraphe("graph2"));
    EXPECT_EQ(utilisateur.questions.back().texte, "Voulez-vous supprimer  ?");
    EXPECT_EQ(Titres(), (std::vector<Texte>{"graph1:Marge", "graph2:Charges"}));
    EXPECT_EQ(editeur.Courant(), 2);
    // The last one: the one before it is selected; then the only one: the empty node.
    utilisateur.reponses = {Reponse::Oui, Reponse::Oui};
    EXPECT_TRUE(editeur.SupprimerGraphe("graph2"));
    EXPECT_EQ(editeur.Courant(), 1);
    EXPECT_TRUE(editeur.SupprimerGraphe("graph1"));
    EXPECT_EQ(editeur.Courant(), 0);
    EXPECT_EQ(editeur.Graphes(),
              (std::vector<NoeudGraph>{{"graph0", "Aucun enregistrement", "Vide"}}));
    EXPECT_EQ(editeur.Modele(), nullptr);
    EXPECT_FALSE(editeur.SupprimerGraphe("graph0"));
}

TEST_F(EditeurGraphTest, UnNouveauGraphePrendLesValeursParDefautJusquALaLimite) {
    Bibliotheque({"Marge"});
    eg.graphes[2].nbSeries = 7; // what a former graph left in the slot
    ASSERT_TRUE(editeur.AjouterGraphe());
    EXPECT_EQ(editeur.Courant(), 2);
    EXPECT_EQ(EcrireEnrGraph(*editeur.Modele()), EcrireEnrGraph(ModeleGraph{}));
    EXPECT_EQ(Titres().back(), "graph2:Sans titre");
    eg.nbGraphes = kMaxGraphes;
    EXPECT_FALSE(editeur.AjouterGraphe());
    EXPECT_EQ(eg.nbGraphes, kMaxGraphes);
    EXPECT_TRUE(utilisateur.ADit("pleine"));
}

TEST_F(EditeurGraphTest, LesSeriesEntrentJusquADixSansDoublonEtSortentEnSeDecalant) {
    Bibliotheque({"Marge"});
    EXPECT_EQ(editeur.SeriesDuGraphe(),
              (std::vector<NoeudGraph>{{"vide", "Aucune série sélectionnée", "graph12"}}));
    // Neither the root nor a folder is a series.
    EXPECT_FALSE(editeur.AjouterSerie(Feuille("VLVB-1", "x"), true));
    NoeudCatalogue dossierCatalogue{"VLVB.CFG\\Lait", "Lait", "VL", {Feuille("VLVB-1", "x")}};
    EXPECT_FALSE(editeur.AjouterSerie(dossierCatalogue, false));
    for (int i = 1; i <= 10; ++i)
        ASSERT_TRUE(
            editeur.AjouterSerie(Feuille("VLVB-" + std::to_string(i),
                                         "Un nom bien plus long que le champ " + std::to_string(i)),
                                 false));
    const std::string avant = EcrireEnrGraph(*editeur.Modele());
    EXPECT_FALSE(editeur.AjouterSerie(Feuille("VLVB-11", "Onze"), false));
    EXPECT_TRUE(utilisateur.ADit("Vous êtes limité à 10 séries par graphique"));
    EXPECT_EQ(EcrireEnrGraph(*editeur.Modele()), avant);

    const SerieGraph& s = editeur.Modele()->series[0];
    EXPECT_EQ(s.nomSerie, "Un nom bien plus long ");
    EXPECT_EQ(Rogner(s.codeSerie) + "|" + Rogner(s.fichierSerie), "VLVB-1|VLVB.DON");
    EXPECT_EQ(s.rouge + s.vert + s.bleu, 0); // drawn at random when the chart is drawn
    EXPECT_EQ(editeur.SeriesDuGraphe()[9].cle, "VLVB.DON+VLVB-10");

    // Removing the second: the third takes its place; declined, nothing moves.
    utilisateur.reponses = {Reponse::Non, Reponse::Oui};
    EXPECT_FALSE(editeur.RetirerSerie(2));
    EXPECT_TRUE(editeur.RetirerSerie(2));
    EXPECT_EQ(Rogner(utilisateur.questions.back().texte),
              "Retirer la série Un nom bien plus long ?");
    EXPECT_EQ(editeur.Modele()->nbSeries, 9);
    EXPECT_EQ(Rogner(editeur.Modele()->series[1].codeSerie), "VLVB-3");
    EXPECT_FALSE(editeur.RetirerSerie(10));

    // A series already there is refused, whatever the case of its names.
    Bibliotheque({"Vide"});
    ASSERT_TRUE(editeur.AjouterSerie(Feuille("VLVB-1", "Lait"), false));
    EXPECT_FALSE(editeur.AjouterSerie({"vlvb.don+vlvb-1", "Lait", "puce", {}}, false));
    EXPECT_TRUE(utilisateur.ADit("Cette série est déjà présente dans l'arbre de destination."));
    utilisateur.reponses = {Reponse::Oui};
    EXPECT_TRUE(editeur.RetirerSerie(1));
    EXPECT_EQ(editeur.SeriesDuGraphe().front().cle, "vide");
}

TEST_F(EditeurGraphTest, LeDialogueRepartDansLEnregistrementSansRienPerdre) {
    ModeleGraph g = test::GrapheComplet();
    g.tailleTitre = 22;
    ModeleGraph copie = g;
    SauverDialogue(ChargerDialogue(g), copie);
    EXPECT_EQ(EcrireEnrGraph(copie), EcrireEnrGraph(g));

    ControlesGraph c = ChargerDialogue(g);
    c.txtTailleTitre = "60";
    c.txtEspaceBarres = "beaucoup"; // doesn't read: the record keeps its value
    c.txtAxeSize[2] = "99999";      // beyond 16 bits: the same
    c.ComboType = 9;
    c.ComboTypeIndiv[0] = -1; // no kind chosen: a bar
    c.ComboTypeIndiv[5] = 2;  // beyond nbSeries: the slot stays as it stands
    c.txtTitre = "Un titre de soixante-dix caractères, bien plus long que ce que tient le champ";
    SauverDialogue(c, g);
    EXPECT_EQ(g.tailleTitre, 50);
    EXPECT_EQ(g.espaceBarres, copie.espaceBarres);
    EXPECT_EQ(g.axes[2].tailleAxe, copie.axes[2].tailleAxe);
    EXPECT_EQ(g.typeGraph, 10);
    EXPECT_TRUE(EstCombinaison(g.typeGraph));
    EXPECT_FALSE(EstCombinaison(4));
    EXPECT_EQ(g.series[0].typeSerie, 1);
    EXPECT_EQ(g.series[5].typeSerie, copie.series[5].typeSerie);
    EXPECT_EQ(g.titre.size(), kLargeurTitreGraph);
}

TEST_F(EditeurGraphTest, LesBoitesDeTailleEtLeDialogueDeSerieGardentLeursRegles) {
    EXPECT_EQ(ValiderTaille(utilisateur, "0", "12"), "12");
    EXPECT_TRUE(utilisateur.ADit("Saisir une taille non nulle !"));
    EXPECT_EQ(ValiderTaille(utilisateur, "14", "12"), "14");

    SerieGraph s;
    DialogueSerie d = ChargerSerie(s);
    d.nom = "Produits";
    d.brosse = 2;
    d.epaisseur = "123"; // above 99: its last two characters
    d.axeY2 = true;
    d.couleur = {10, 20, 30};
    ValiderSerie(d, s);
    EXPECT_EQ(s.epaisseur, 23);
    EXPECT_EQ(s.brosse, 2);
    EXPECT_EQ(s.axeY2, 1);
    EXPECT_EQ(s.rouge + 2 * s.vert + 3 * s.bleu, 10 + 40 + 90);
    EXPECT_EQ(InfoBulleSerie(s, 3), "Série 3  \"Produits\" : utilise le 2ème axe des Y");

    utilisateur.messages.clear();
    EXPECT_FALSE(CouleurPermise(utilisateur, 0));
    EXPECT_TRUE(utilisateur.ADit("la brosse 'vide' applique à la série la couleur"));
    EXPECT_TRUE(CouleurPermise(utilisateur, 1));
}

TEST_F(EditeurGraphTest, QuitterEtInsererEnregistrentLaBibliotheque) {
    Bibliotheque({"Budget", "Budget"});
    const auto fichier = dossier / "ModelGraph/graph.txt";
    // Declined: nothing written, the editor stays.
    utilisateur.reponses = {Reponse::Non};
    EXPECT_FALSE(editeur.Quitter());
    EXPECT_EQ(Rogner(LireEnrGraph(LireFichier(fichier)->substr(kTailleEnrGraph)).titre), "Budget");
    EXPECT_TRUE(editeur.Quitter(false)); // Escape leaves without asking, and saves
    EXPECT_EQ(Rogner(LireEnrGraph(LireFichier(fichier)->substr(kTailleEnrGraph)).titre), "Budget2");

    utilisateur.reponses = {Reponse::Non, Reponse::Oui};
    EXPECT_FALSE(editeur.Inserer().has_value());
    const auto code = editeur.Inserer();
    ASSERT_TRUE(code.has_value());
    EXPECT_TRUE(CommencePar(*code, "gph(Budget;4;"));
    EXPECT_EQ(utilisateur.questions.back().texte,
              "Voulez-vous insérer le graphique en cours dans le document ?");

    // Print: nothing selected is refused; otherwise asked by the graph's name.
    EXPECT_FALSE(editeur.DemanderImpression("graph0"));
    EXPECT_TRUE(utilisateur.ADit("Sélectionner d'abord un graphique à imprimer."));
    utilisateur.reponses = {Reponse::Oui};
    EXPECT_TRUE(editeur.DemanderImpression("graph1"));
    EXPECT_EQ(utilisateur.questions.back().texte, "Imprimer le graphique Budget ?");
}

TEST_F(EditeurGraphTest, LesSeriesProposeesViennentDesCataloguesDuDossierDeConfiguration) {
    auto enr = [](const Texte& code, const Texte& libelle, std::int16_t queue = 0) {
        EnrCatalogue e;
        e.code = ChampFixe(code, 12);
        e.libelle = ChampFixe(libelle, 22);
        e.dossier1 = ChampFixe("", 40);
        e.dossier2 = ChampFixe("", 40);
        e.queue = queue;
        return EcrireEnrCatalogue(e);
    };
    EXPECT_TRUE(editeur.SeriesProposees().racine.enfants.empty()); // no folder: an empty tree
    dossier.Ecrire("Datacfg/VLVB.CFG", enr("VLVB", "Vaches laitières", 1) +
                                           enr("VLVB-3", "Lait livré") +
                                           enr("VLVB-4", "[ sans nom ]"));
    dossier.Ecrire("Datacfg/lisez-moi.txt", "pas un catalogue");
    const ArbreCatalogue arbre = editeur.SeriesProposees();
    EXPECT_EQ(arbre.racine.texte, "Séries proposées");
    ASSERT_EQ(arbre.racine.enfants.size(), 1u);
    ASSERT_EQ(arbre.racine.enfants[0].enfants.size(), 1u);
    EXPECT_EQ(arbre.racine.enfants[0].enfants[0].cle, "VLVB.DON+VLVB-3");
}

} // namespace
} // namespace verdane
