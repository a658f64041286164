#include "data/ValeurCode.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::FichierDon;
using test_donnees::Serie;

class ValeurSerieTest : public test_donnees::DossierFerme {
protected:
    ValeurSerieTest() {
        d.Ecrire("Ferme/vl.DON", FichierDon({Serie("VL-1:0", "  Vaches  ", 10), Serie("", ""),
                                             Serie("VL-3:0", std::string(1, '\0'))}));
        ctx.etat.domaine.numModuleAnimal = 7;
        d.Ecrire("Ferme/AL07AL.don", FichierDon({Serie("A-1:0", "Agneaux", 70)}));
    }
};

TEST_F(ValeurSerieTest, ValeurDeLAnneeEtDecalage) {
    // A year shift moves the index read, never before year 0.
    const std::tuple<const char*, int, float> cas[] = {
        {"VL-1", 3, 13},    {"VL-1", 13, 23},  {"VL-1", 14, 0}, {"VL-1", -1, 0},
        {"VL-9", 3, 0},     {"XX-1", 3, 0},    {"AL-1", 2, 72}, {"VL-1!A-1", 3, 12},
        {"VL-1!A5", 3, 15}, {"VL-1!A-1", 0, 0}};
    for (const auto& [code, annee, valeur] : cas)
        EXPECT_EQ(ValeurSerie(ctx, code, annee), valeur) << code << " " << annee;
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
    std::vector<Texte> libelles;
    for (const char* code : {"VL-1", "VL-1!A-1", "AL-1", "VL-2", "VL-3", "VL-4", "ABS-1", "VL"})
        libelles.push_back(LibelleSerie(ctx, code));
    EXPECT_EQ(libelles,
              (std::vector<Texte>{"Vaches", "Vaches", "Agneaux", "Enregistrement n°2 de VL",
                                  "Enregistrement n°3 de VL", "Enregistrement n°4 de VL",
                                  "Enregistrement n°1 de ABS", "Enregistrement n°0 de VL"}));
}

} // namespace
} // namespace verdane
