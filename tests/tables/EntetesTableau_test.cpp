#include "tables/EntetesTableau.h"

#include "shell/etat/Contexte.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class EntetesTest : public ::testing::Test {
protected:
    EntetesTest() : ctx(u) {}
    Texte Annee(const Texte& debut, int colonne, const Texte& forme) {
        ctx.etat.enrDossier.dateDebut = debut;
        return TitreAnnee(ctx, colonne, forme);
    }
    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(EntetesTest, FormesDAnnee) {
    // A study starting on 1 April 2006.
    EXPECT_EQ(Annee("01/04/2006", 1, "1"), "2006/07");
    EXPECT_EQ(Annee("01/04/2006", 0, "1"), "2005/06");
    EXPECT_EQ(Annee("01/04/2006", 1, "2"), "4-2006\\par 3-2007");
    EXPECT_EQ(Annee("01/04/2006", 2, "3"), "Avr. 2007\\par Mars 2008");
    EXPECT_EQ(Annee("01/04/2006", 1, "4"), "2006-2007");
    EXPECT_EQ(Annee("01/04/2006", 1, "6"), "situation au\\par 1/4/2007");
    EXPECT_EQ(Annee("01/04/2006", 4, "7"), "4");
    // Calendar years: the start's year, or the end's for a study starting on 31 December.
    EXPECT_EQ(Annee("01/01/2006", 0, "1"), "2005");
    EXPECT_EQ(Annee("01/01/2006", 1, "4"), "2006");
    EXPECT_EQ(Annee("31/12/2005", 1, "1"), "2006");
    EXPECT_EQ(Annee("31/12/2005", 1, "4"), "2006");
    // The day before crosses the year; a study starting on 29 February keeps the month end.
    EXPECT_EQ(Annee("01/01/2006", 1, "3"), "Jan. 2006\\par Déc. 2006");
    EXPECT_EQ(Annee("29/02/2008", 1, "2"), "2-2008\\par 2-2009");
    EXPECT_EQ(Annee("29/02/2008", 1, "6"), "situation au\\par 28/2/2009");
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(EntetesTest, FormeInconnueDiteAChaqueColonne) {
    for (const Texte forme : {"8", "a", "", "01"}) {
        u.messages.clear();
        EXPECT_EQ(Annee("01/04/2006", 1, forme), "");
        ASSERT_EQ(u.messages.size(), 1u) << forme;
        EXPECT_EQ(u.messages[0].texte,
                  "Le format de la ligne d'intitulé d'un tableau est incorrect.");
        EXPECT_EQ(u.messages[0].titre, "Erreur détectée dans le modèle");
    }
}

TEST_F(EntetesTest, DateIlisibleSeRabatSurLAnneeDebut) {
    ctx.etat.anneeDebut = 2010;
    EXPECT_EQ(Annee("", 1, "1"), "2010");
    ctx.etat.anneeDebut = 0;
    EXPECT_EQ(Annee("32/13/xx", 1, "2"), "");
}

TEST_F(EntetesTest, FormesDeDossier) {
    ctx.etat.NomDossier[1] = "Martin.mrl  ";
    ctx.etat.NomDossier[2] = "DUPONT";
    EXPECT_EQ(TitreDossier(ctx, 1, "1"), "Martin");
    EXPECT_EQ(TitreDossier(ctx, 2, "1"), "DUPONT");
    EXPECT_EQ(TitreDossier(ctx, 2, "2"), "Hypothèse 2");
    EXPECT_EQ(TitreDossier(ctx, 3, "3"), "H3");
    EXPECT_EQ(TitreDossier(ctx, 1, "4"), "Dossier Marlo n°1");
    EXPECT_EQ(TitreDossier(ctx, 4, "6"), "Dossier 4");
    EXPECT_EQ(TitreDossier(ctx, 1, "7"), "");
    EXPECT_EQ(TitreDossier(ctx, 12, "1"), "");
    EXPECT_TRUE(u.messages.empty());
    EXPECT_EQ(NomMois(0), "");
    EXPECT_EQ(NomMois(13), "");
}

} // namespace
} // namespace verdane
