#include "data/DonneesIni.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierTemporaire;
using test_donnees::FauxUtilisateurDonnees;

TEST(LireDonneesIni, SectionParDefautOuNommee) {
    DossierTemporaire d;
    FauxUtilisateurDonnees u;
    Contexte ctx(u);
    ctx.etat.chemins.RepVerdane = d.Chemin();
    d.Ecrire("DONNEES.ini", "[Général]\r\nNom=Exploitation du Causse\r\n"
                            "[Banque]\r\nNom=Crédit Agricole\r\n");
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Nom"), "Exploitation du Causse");
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Banque:Nom"), "Crédit Agricole");
    // The section stands before the second ":", the key behind the last.
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Banque:x:Nom"), "Crédit Agricole");
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Absente"), "");
    EXPECT_EQ(LireDonneesIni(ctx, "INI:"), "");
    EXPECT_EQ(LireDonneesIni(ctx, "INI"), "");
    EXPECT_TRUE(u.messages.empty());
    EXPECT_TRUE(u.messages.empty());
}

TEST(LireDonneesIni, FichierAbsent) {
    DossierTemporaire d;
    FauxUtilisateurDonnees u;
    Contexte ctx(u);
    ctx.etat.chemins.RepVerdane = d.Chemin();
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Nom"), "");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Attention ! Le fichier \"donnees.INI\" n'existe pas dans le "
                                   "répertoire de Winmarlo\\Verdane\\ ! Données non récupérable !");
}

} // namespace
} // namespace verdane
