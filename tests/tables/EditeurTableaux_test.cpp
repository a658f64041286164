// The table editor's rules: the library's tree, the line operations and the totals that follow
// them, folders and kinds, inserting and recovering, and a library never lost on saving.

#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "tables/BibliothequeTableaux.h"
#include "tables/CodeTableau.h"
#include "tables/EditeurTableaux.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class EditeurTableauxTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};
    EditeurTableaux editeur{ctx};

    void SetUp() override { ctx.etat.chemins.RepModlDocs = dossier.Chemin() + "ModlDocs/"; }

    // A library of tables named `noms`, in "Divers", each with `lignes` series lines.
    void Bibliotheque(const std::vector<Texte>& noms, int lignes = 1) {
        std::vector<TableauModele> tableaux;
        for (const Texte& n : noms) {
            TableauModele t = NouveauTableau(ctx.etat.options);
            t.nom = n;
            t.lignes.clear();
            for (int i = 1; i <= lignes; ++i) {
                LigneModele l = NouvelleLigne(ctx.etat.options);
                l.cellules[0].texte = "L" + std::to_string(i);
                l.definition = "serie:VLVB.DON+VLVB-" + std::to_string(i) + ":0:0";
                t.lignes.push_back(l);
            }
            tableaux.push_back(t);
        }
        dossier.Ecrire("ModlDocs/tableaux.txt", TexteTableaux(tableaux, ctx.etat.options));
        editeur.Ouvrir();
    }
    std::vector<Texte> Libelles() {
        std::vector<Texte> r;
        for (const auto& l : editeur.Tableau()->lignes)
            r.push_back(l.cellules[0].texte + "=" + l.definition);
        return r;
    }
};

TEST_F(EditeurTableauxTest, LArbreRangeLesTableauxParDossierEtSousDossier) {
    editeur.Ouvrir();
    EXPECT_EQ(ArbreTableaux(editeur.Tableaux()),
              (std::vector<NoeudTableau>{{"Racine", "Tableaux enregistrés", ""},
                                         {"tab0", "Aucun enregistrement", "Racine"}}));
    std::vector<TableauModele> t(3, NouveauTableau(ctx.etat.options));
    t[0].nom = "Marge";
    t[1].nom = "Lait";
    t[1].dossier = "Bovins";
    t[1].sousDossier = "Lait";
    t[2].nom = "Sans dossier";
    t[2].dossier = "";
    EXPECT_EQ(ArbreTableaux(t),
              (std::vector<NoeudTableau>{{"Racine", "Tableaux enregistrés", ""},
                                         {"#DossDivers", "Divers", "Racine"},
                                         {"#DossBovins", "Bovins", "Racine"},
                                         {"#ssDoss##Bovins##Lait", "Lait", "#DossBovins"},
                                         {"tab1", "Marge", "#DossDivers"},
                                         {"tab2", "Lait", "#ssDoss##Bovins##Lait"},
                                         {"tab3", "Sans dossier", "#DossDivers"}}));
    EXPECT_EQ(NumeroTableau("tab12"), 12);
    EXPECT_EQ(NumeroTableau("#DossDivers"), 0);
}

TEST_F(EditeurTableauxTest, LesTotauxSuiventLesLignesAjouteesDeplaceesEtSupprimees) {
    Bibliotheque({"Marge"}, 3);
    TableauModele& t = *editeur.Tableau();
    t.lignes.push_back(NouvelleLigne(ctx.etat.options));
    t.lignes.back().cellules[0].texte = "TOTAL";
    t.lignes.back().definition = "totalC:LG1+LG3:0:0";

    // A line inserted at the top: every reference moves down, and the user is told.
    ASSERT_TRUE(editeur.AjouterLigne(0));
    EXPECT_EQ(editeur.Tableau()->Ligne(5)->definition, "totalC:LG2+LG4:0:0");
    EXPECT_TRUE(utilisateur.ADit("a été mise à jour"));
    editeur.Tableau()->Ligne(1)->definition = "espace";

    // Duplicating line 2 puts its copy behind it; the total follows again.
    ASSERT_TRUE(editeur.DupliquerLigne(2));
    EXPECT_EQ(Libelles()[2], "L1=serie:VLVB.DON+VLVB-1:0:0");
    EXPECT_EQ(editeur.Tableau()->Ligne(6)->definition, "totalC:LG2+LG5:0:0");

    // Moving line 5 (L3) before line 2: it is taken out, then put back.
    ASSERT_TRUE(editeur.DeplacerLigne(5, 2, false));
    EXPECT_EQ(Libelles()[1], "L3=serie:VLVB.DON+VLVB-3:0:0");
    EXPECT_EQ(editeur.Tableau()->Ligne(6)->definition, "totalC:LG3+LG2:0:0");
    // Moves that go nowhere, or onto themselves, are refused.
    EXPECT_FALSE(editeur.DeplacerLigne(2, 3, false));
    EXPECT_TRUE(utilisateur.ADit("Ce choix n'entraîne pas de déplacement !"));
    EXPECT_FALSE(editeur.DeplacerLigne(2, 2, true));
    EXPECT_TRUE(utilisateur.ADit("Déplacer la ligne 2 après elle-même ?! impossible !"));

    // Deleting a line the total adds: the formula can't follow and is emptied.
    ASSERT_TRUE(editeur.SupprimerLigne(3));
    EXPECT_EQ(editeur.Tableau()->Ligne(5)->definition, "");
    EXPECT_TRUE(utilisateur.ADit("est donc à ré-écrire"));

    // A total moved above the lines it adds can't follow them.
    Bibliotheque({"Total"}, 2);
    editeur.AjouterLigne(2);
    editeur.Tableau()->Ligne(3)->definition = "totalS:LG1+LG2:0:0";
    ASSERT_TRUE(editeur.DeplacerLigne(3, 1, false));
    EXPECT_EQ(editeur.Tableau()->Ligne(1)->definition, "");
    EXPECT_TRUE(utilisateur.ADit("la formule de la ligne de total n°1 est à ré-écrire."));
    EXPECT_TRUE(utilisateur.ADit("totalS:LG1+LG2:0:0"));

    // One line left can't go; 511 lines can't grow.
    Bibliotheque({"Seule"}, 1);
    EXPECT_FALSE(editeur.SupprimerLigne(1));
    EXPECT_TRUE(utilisateur.ADit("Plus de ligne à supprimer !"));
    editeur.Tableau()->lignes.resize(kMaxLignesTableau);
    EXPECT_FALSE(editeur.AjouterLigne(3));
    EXPECT_TRUE(utilisateur.ADit("Ajout impossible : les tableaux sont limités à 511 maxi !"));
}

TEST_F(EditeurTableauxTest, LeGenreDuTableauSuitSesLignes) {
    // A line given a kind takes that kind's frame pair from the options, the default frame
    // when the pair is unset.
    ctx.etat.options.FormatsDefaut[4] = "2;2;0;0;3"; // the third pair: totals
    ctx.etat.options.FormatsDefaut[5] = "";
    LigneModele l = NouvelleLigne(ctx.etat.options);
    AppliquerTypeLigne(l, TypeLigne::Calcul, ctx.etat.options, 2);
    EXPECT_EQ(l.cellules[0].formatCadre + "|" + l.formatCadre, "2;2;0;0;3|1;1;1;1;8");
    EXPECT_EQ(TypeDeLigne(l), TypeLigne::Serie); // no definition yet

    // A table with crop series lines keeps its kind until they are gone.
    Bibliotheque({"Cultures"}, 1);
    editeur.Tableau()->Ligne(1)->definition = "scult:CULT.DON+CULT-1:0:0";
    EXPECT_FALSE(editeur.ChangerGenre(kTableauClassique));
    EXPECT_TRUE(utilisateur.ADit("Le tableau contient des séries de données pour les cultures"));
    EXPECT_TRUE(editeur.ChangerGenre(kTableauCulture));
    editeur.Tableau()->Ligne(1)->definition = "newpg";
    EXPECT_FALSE(editeur.ChangerGenre(kTableauActiviteLibre));
    EXPECT_TRUE(utilisateur.ADit("Vous devez d'abord supprimer les sauts de page"));
}

TEST_F(EditeurTableauxTest, DossiersTableauxEtNomsSuiventLeursRegles) {
    Bibliotheque({"A", "B", "C"});
    editeur.Tableaux()[1].dossier = "Bovins";
    editeur.Tableaux()[2].dossier = "Bovins";
    editeur.Tableaux()[2].sousDossier = "Lait";
    EXPECT_FALSE(editeur.SupprimerDossier("Divers"));
    EXPECT_TRUE(utilisateur.ADit("' Divers ' est le dossier par défaut."));
    utilisateur.reponses = {Reponse::Oui, Reponse::Oui};
    EXPECT_TRUE(editeur.SupprimerSousDossier("Bovins", "Lait"));
    EXPECT_EQ(editeur.Tableaux()[2].dossier + "/" + editeur.Tableaux()[2].sousDossier, "Bovins/");
    EXPECT_TRUE(editeur.SupprimerDossier("Bovins"));
    EXPECT_EQ(editeur.Tableaux()[2].dossier, "Divers");
    EXPECT_FALSE(editeur.NomDossierAccepte("Tableaux du lait", false));
    EXPECT_TRUE(utilisateur.ADit("Le nom de votre dossier ne doit pas contenir le mot \"tab\""));
    EXPECT_TRUE(editeur.NomDossierAccepte("Lait", true));

    // Deleting down to nothing leaves the empty node.
    editeur.Selectionner(2);
    utilisateur.reponses = {Reponse::Oui, Reponse::Oui, Reponse::Oui};
    EXPECT_TRUE(editeur.SupprimerTableau());
    EXPECT_EQ(Rogner(editeur.Tableau()->nom), "C");
    EXPECT_TRUE(editeur.SupprimerTableau());
    EXPECT_TRUE(editeur.SupprimerTableau());
    EXPECT_EQ(editeur.Tableau(), nullptr);
    EXPECT_FALSE(editeur.SupprimerTableau());
    EXPECT_TRUE(utilisateur.ADit("Aucun tableau à supprimer !"));
    EXPECT_EQ(ArbreTableaux(editeur.Tableaux()).back().cle, "tab0");
}

TEST_F(EditeurTableauxTest, InsererEtRecupererPassentParLaBibliothequeEnregistree) {
    Bibliotheque({"Marge", "Lait"}, 2);
    const auto fichier = dossier / "ModlDocs/tableaux.txt";
    editeur.Selectionner(2);
    editeur.Tableau()->Ligne(2)->definition = "espace"; // a spacing line last
    utilisateur.reponses = {Reponse::Oui};
    const auto code = editeur.Inserer();
    ASSERT_TRUE(code.has_value());
    EXPECT_TRUE(CommencePar(*code, "tab"));
    EXPECT_EQ(utilisateur.questions.back().texte,
              "Insérer le tableau 'Lait' dans le document en cours ?");
    // Saved, and read back the same.
    auto relu = LireTexteTableaux(LireFichier(fichier).value_or(""), true);
    ASSERT_EQ(relu.size(), 2u);
    EXPECT_EQ(relu[1].Ligne(2)->definition, "espace");

    // The code of a table of the library selects it; another becomes a recovered table.
    editeur.Selectionner(1);
    EXPECT_EQ(editeur.Recuperer("#mrl(" + *code + ")#"), 2);
    Texte autre = *code;
    autre.replace(autre.find("VLVB-1"), 6, "VLVB-9");
    EXPECT_EQ(editeur.Recuperer(autre), 3);
    relu = LireTexteTableaux(LireFichier(fichier).value_or(""), true);
    ASSERT_EQ(relu.size(), 3u);
    EXPECT_EQ(relu[2].dossier, "Récupéré");
}

TEST_F(EditeurTableauxTest, UneBibliothequeLueEnPartieNEstPasEcraseeSansAccord) {
    Bibliotheque({"Marge", "Lait"});
    const Texte texte = LireFichier(dossier / "ModlDocs/tableaux.txt").value_or("");
    const Texte abime = texte.substr(0, texte.rfind("#mrl(")) + "#pas un code\r\n";
    dossier.Ecrire("ModlDocs/tableaux.txt", abime);
    EXPECT_FALSE(editeur.Ouvrir());
    EXPECT_TRUE(utilisateur.ADit("n'a pu être lue qu'en partie : 1 tableaux sur 2"));
    utilisateur.reponses = {Reponse::Non};
    EXPECT_FALSE(editeur.Enregistrer());
    EXPECT_EQ(LireFichier(dossier / "ModlDocs/tableaux.txt").value_or(""), abime);
    EXPECT_TRUE(editeur.Enregistrer(true));

    // In full access, the PDE library when the user asks for it.
    ctx.etat.AccesTotal = -1;
    dossier.Ecrire("ModlDocs/PDE/tableaux.txt", texte);
    utilisateur.reponses = {Reponse::Oui};
    EXPECT_TRUE(editeur.Ouvrir());
    EXPECT_EQ(utilisateur.questions.back().texte, "Gérer les tableaux du PDE Cerfa ?");
    EXPECT_EQ(editeur.Tableaux().size(), 2u);
}

} // namespace
} // namespace verdane
