#include "data/ValeurCode.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierTemporaire;
using test_donnees::FauxUtilisateurDonnees;
using test_donnees::FichierDon;
using test_donnees::Serie;

class ValeurSerieTest : public ::testing::Test {
protected:
    ValeurSerieTest() : ctx(u) {
        ctx.etat.RepDossier[0] = d.Chemin();
        ctx.etat.NomDossier[0] = "Ferme";
        d.Ecrire("Ferme/vl.DON", FichierDon({Serie("VL-1:0", "  Vaches  ", 10), Serie("", ""),
                                             Serie("VL-3:0", std::string(1, '\0'))}));
        ctx.etat.domaine.numModuleAnimal = 7;
        d.Ecrire("Ferme/AL07AL.don", FichierDon({Serie("A-1:0", "Agneaux", 70)}));
    }
    DossierTemporaire d;
    FauxUtilisateurDonnees u;
    Contexte ctx;
};

TEST_F(ValeurSerieTest, ValeurDeLAnnee) {
    EXPECT_EQ(ValeurSerie(ctx, "VL-1", 3), 13.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-1", 13), 23.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-1", 14), 0.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-1", -1), 0.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-9", 3), 0.0f);
    EXPECT_EQ(ValeurSerie(ctx, "XX-1", 3), 0.0f);
    EXPECT_EQ(ValeurSerie(ctx, "AL-1", 2), 72.0f);
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(ValeurSerieTest, DecalageDAnnee) {
    EXPECT_EQ(ValeurSerie(ctx, "VL-1!A-1", 3), 12.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-1!A5", 3), 15.0f);
    EXPECT_EQ(ValeurSerie(ctx, "VL-1!A-1", 0), 0.0f);
    EXPECT_TRUE(u.messages.empty());
    EXPECT_EQ(ValeurSerie(ctx, "VL-1!A-1", 3, true), 0.0f);
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte,
              "Erreur de conception du modèle de tableau en cours d'interprétation :\r\nUne "
              "formule de calcul demande à ce que les valeurs d'une ligne débute à "
              "NumAnnee-1\r\npour un tableau qui débute déjà à l'année début ! Modifier le "
              "modèle.");
}

TEST_F(ValeurSerieTest, SansDossier) {
    ctx.etat.NomDossier[0] = "  ";
    EXPECT_EQ(ValeurSerie(ctx, "VL-1", 3), 0.0f);
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].titre, "Dossier Marlo non sélectionné !");
    EXPECT_EQ(u.messages[0].texte,
              "Veuillez préalablement sélectionner un dossier Marlo dans le menu \"CREATION "
              "DOC\" -> \"GENERER\" -> bouton \"Dossier\", afin de pouvoir récupérer les valeurs "
              "des fichiers .DON du dossier ! Merci.");
    EXPECT_EQ(LibelleSerie(ctx, "VL-1"), "Enregistrement n°1 de VL");
}

TEST_F(ValeurSerieTest, Libelle) {
    EXPECT_EQ(LibelleSerie(ctx, "VL-1"), "Vaches");
    EXPECT_EQ(LibelleSerie(ctx, "VL-1!A-1"), "Vaches");
    EXPECT_EQ(LibelleSerie(ctx, "AL-1"), "Agneaux");
    EXPECT_EQ(LibelleSerie(ctx, "VL-2"), "Enregistrement n°2 de VL");
    EXPECT_EQ(LibelleSerie(ctx, "VL-3"), "Enregistrement n°3 de VL");
    EXPECT_EQ(LibelleSerie(ctx, "VL-4"), "Enregistrement n°4 de VL");
    EXPECT_EQ(LibelleSerie(ctx, "ABS-1"), "Enregistrement n°1 de ABS");
    EXPECT_EQ(LibelleSerie(ctx, "VL"), "Enregistrement n°0 de VL");
}

} // namespace
} // namespace verdane
