#include "tables/BibliothequeTableaux.h"

#include "EssaisTableaux.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "tables/LectureCode.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using namespace essais_tableaux;

class BibliothequeTableaux : public ::testing::Test {
protected:
    BibliothequeTableaux() : ctx(utilisateur) {}
    std::vector<TableauModele>& Tableaux() { return ctx.etat.tableaux.TableauxCourants; }

    test::DossierTemporaire dossier;
    UtilisateurTemoin utilisateur;
    Contexte ctx;
};

TEST_F(BibliothequeTableaux, EcritureEtRelectureSansPerte) {
    TableauModele a = ModeleComplet();
    a.nom = "Marge brute à l'hectare";
    a.dossier = "Résultats";
    a.sousDossier = "Cultures";
    TableauModele b = ModeleComplet();
    b.nom = "Par culture";
    b.dossier = "Divers";
    b.genre = kTableauCulture;
    b.pageDebut = 3;
    // A table with a line still to define is saved whole, silently.
    b.lignes[4].definition.clear();
    TableauModele c;
    c.nom = "Vide";
    c.dossier = "Divers";
    const std::vector<TableauModele> ecrits = {a, b, c};
    Tableaux() = ecrits;

    const Texte chemin = dossier.Ecrire("PDE/tableaux.txt", "");
    ASSERT_TRUE(EcrireTableaux(ctx, chemin));
    const auto premier = LireFichier(chemin);
    ASSERT_TRUE(premier);
    EXPECT_TRUE(premier->starts_with("[Marge brute à l'hectare][Résultats][Cultures]\r\n#mrl(tab"));
    EXPECT_TRUE(premier->ends_with(")#\r\n\r\n"));

    // Found again whatever the case of its name.
    Tableaux().clear();
    ChargerTableaux(ctx, dossier.Chemin() + "\\pde\\TABLEAUX.TXT", true);
    EXPECT_EQ(Tableaux(), ecrits);
    ASSERT_TRUE(EcrireTableaux(ctx, chemin));
    EXPECT_EQ(LireFichier(chemin), premier);
    EXPECT_TRUE(utilisateur.messages.empty());
}

TEST_F(BibliothequeTableaux, UnTableauNonOuvertEstReecritOctetPourOctet) {
    // Entries as another hand wrote them: line ends, blanks, lines between, short formats.
    const Texte a =
        "[A][Bovins][Lait]\n  #mrl(taba2p1;larg1;larg2([280;120][Lait;1][serie:X-1]))#\n"
        "commentaire\r\n\r\n";
    const Texte b = "[B][][]\r\n#mrl(tabd3p2;larg5;larg6;larg7([0;0][x][y][espace]))#\r\n";
    const Texte c = "[C][Divers][]\r#mrl(cultper2tab)#";
    const auto lus = LireTexteTableaux("avant\r\n" + a + b + c, false);
    ASSERT_EQ(lus.size(), 3u);
    // Names, folders and heads are read at once, the lines only when the table is opened.
    EXPECT_EQ(lus[0].sousDossier + lus[1].dossier, "LaitDivers");
    EXPECT_EQ(lus[1].nbDossiers, 3);
    EXPECT_EQ(lus[2].genre, kTableauCulturePerenne);
    EXPECT_EQ(lus[1].nbLignes(), 0);
    EXPECT_EQ(TexteTableaux(lus, Options{}), a + b + c);

    Tableaux() = lus;
    LireLignesEnAttente(Tableaux()[1]);
    ASSERT_EQ(Tableaux()[1].nbLignes(), 1);
    EXPECT_EQ(Tableaux()[1].Ligne(1)->cellules[1].texte, "y");
    EXPECT_EQ(TexteTableaux(Tableaux(), Options{}), a + b + c); // opened, not changed
    // A changed table is written from its model; a table moved to another folder without being
    // opened keeps its lines; the others stay as they were.
    Tableaux()[1].Ligne(1)->definition = "newpg";
    Tableaux()[0].dossier = "Divers";
    const Texte texte = TexteTableaux(Tableaux(), Options{});
    EXPECT_EQ(texte.substr(texte.size() - c.size()), c);
    const auto relus = LireTexteTableaux(texte, true);
    ASSERT_EQ(relus.size(), 3u);
    EXPECT_EQ(relus[0].dossier, "Divers");
    EXPECT_EQ(relus[0].Ligne(1)->definition, "serie:X-1");
    EXPECT_EQ(relus[1].Ligne(1)->definition, "newpg");
    EXPECT_EQ(relus[1].nbDossiers, 3);
}

TEST_F(BibliothequeTableaux, LignesDEntreeMalFormees) {
    const Texte texte = "Texte libre avant\r\n"
                        "\r\n"
                        "[Sans dossier][]\r\n"
                        "#mrl(taba2p1;larg1;larg2([280;120][a;b][espace]))#\r\n"
                        " [décalé][X][Y]\n"
                        "[Deux][  ]\n"
                        "  #mrl(cultper2tab)#  \n"
                        "\n"
                        "[Un seul\r"
                        "#mrl()#\r"
                        "[][Dossier][Sous]][plus]\r\n"
                        "#mrl(tab)#";
    const auto tableaux = LireTexteTableaux(texte, true);
    ASSERT_EQ(tableaux.size(), 4u);
    EXPECT_EQ(tableaux[0].nom, "Sans dossier");
    EXPECT_EQ(tableaux[0].dossier, "Divers");
    EXPECT_EQ(tableaux[0].sousDossier, "");
    EXPECT_EQ(tableaux[0].nbLignes(), 1);
    EXPECT_EQ(tableaux[1].nom, "Deux");
    EXPECT_EQ(tableaux[1].dossier, "Divers");
    EXPECT_EQ(tableaux[1].genre, kTableauCulturePerenne);
    EXPECT_EQ(tableaux[1].typeEntete, 2);
    EXPECT_EQ(tableaux[2].nom, "erreur"); // a bracket without its "]"
    EXPECT_EQ(tableaux[2].dossier, "erreur");
    EXPECT_EQ(tableaux[2].nbLignes(), 0);
    EXPECT_EQ(tableaux[3].nom, "");
    EXPECT_EQ(tableaux[3].dossier, "Dossier");
    EXPECT_EQ(tableaux[3].sousDossier, "Sous");
}

TEST_F(BibliothequeTableaux, UneMarqueIllisibleArreteLaLecture) {
    const Texte texte = "[A][D][]\r\n#mrl(tab)#\r\n\r\n"
                        "[B][D][]\r\n#mrl(tab)\r\n\r\n" // mark not closed: the rest is lost
                        "[C][D][]\r\n#mrl(tab)#\r\n\r\n";
    const auto tableaux = LireTexteTableaux(texte, true);
    ASSERT_EQ(tableaux.size(), 1u);
    EXPECT_EQ(tableaux[0].nom, "A");
    // A name line at the very end has no code: no table.
    EXPECT_EQ(LireTexteTableaux("[A][D][]\r\n#mrl(tab)#\r\n[B][D][]", true).size(), 1u);
    EXPECT_EQ(LireTexteTableaux("[B][D][]\r\n\r\n#mrl(tab)#", true).size(), 0u);
}

TEST_F(BibliothequeTableaux, FichierAbsentOuVide) {
    dossier.Ecrire("vide.txt", "");
    for (const char* nom : {"absent.txt", "vide.txt"}) {
        Tableaux() = {TableauModele{}};
        ChargerTableaux(ctx, dossier / nom, true);
        EXPECT_TRUE(Tableaux().empty()) << nom;
    }
    EXPECT_TRUE(utilisateur.messages.empty());
}

} // namespace
} // namespace verdane
