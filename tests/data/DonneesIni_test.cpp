#include "data/DonneesIni.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using LireDonneesIniTest = test_donnees::DossierFerme;

TEST_F(LireDonneesIniTest, SectionParDefautOuNommeeEtFichierAbsent) {
    ctx.etat.chemins.RepVerdane = d.Chemin();
    EXPECT_EQ(LireDonneesIni(ctx, "INI:Nom"), "");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Attention ! Le fichier \"donnees.INI\" n'existe pas dans le "
                                   "répertoire de Winmarlo\\Verdane\\ ! Données non récupérable !");

    // The default section or a named one: the section stands before the second ":", the key
    // behind the last.
    d.Ecrire("DONNEES.ini", "[Général]\r\nNom=Exploitation du Causse\r\n"
                            "[Banque]\r\nNom=Crédit Agricole\r\n");
    std::vector<Texte> lus;
    for (const char* code :
         {"INI:Nom", "INI:Banque:Nom", "INI:Banque:x:Nom", "INI:Absente", "INI:", "INI"})
        lus.push_back(LireDonneesIni(ctx, code));
    EXPECT_EQ(lus, (std::vector<Texte>{"Exploitation du Causse", "Crédit Agricole",
                                       "Crédit Agricole", "", "", ""}));
    EXPECT_EQ(u.messages.size(), 1u);
}

} // namespace
} // namespace verdane
