#include "library/GestInserVal.h"

#include "support/Catalogues.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

std::vector<Texte> Cles(const NoeudCatalogue& n) {
    std::vector<Texte> cles;
    for (const auto& e : n.enfants) cles.push_back(e.cle);
    return cles;
}

TEST(ArbreInsertion, CataloguesDuDossierParNomPuisResultatsSupplementaires) {
    DossierTemporaire d;
    Etat etat;
    EXPECT_TRUE(ArbreSansFeuille(ChargerArbreInsertion(etat, FamilleInsertion::Classic)));
    etat.chemins.RepDatacfg = d / "Datacfg/";
    EXPECT_TRUE(ArbreSansFeuille(ChargerArbreInsertion(etat, FamilleInsertion::Classic)));
    // Catalogues whose series are all unnamed leave folders without leaves.
    d.Ecrire("Datacfg/VL.CFG", FichierCatalogue("VL", 1, {{"VL-1", "[ sans nom ]"}}));
    ArbreCatalogue arbre = ChargerArbreInsertion(etat, FamilleInsertion::Classic);
    EXPECT_EQ(arbre.racine.enfants.size(), 1u);
    EXPECT_TRUE(ArbreSansFeuille(arbre));

    std::filesystem::remove(d.Systeme() / "Datacfg/VL.CFG");
    d.Ecrire("Datacfg/VLVB.CFG", FichierCatalogue("Vaches laitières", 1, {{"VLVB-2:0", "Lait"}}));
    d.Ecrire("Datacfg/ch.cfg", FichierCatalogue("Charges", 1, {{"CH-1", "Engrais"}}));
    d.Ecrire("Datacfg/RESSUP.CFG",
             FichierCatalogue("", 0, {{"RES-4:2", "EBE"}, {"RES", "sans tiret"}}));
    d.Ecrire("Datacfg/OFF.CFG", FichierCatalogue("Eteint", 0, {{"OFF-1", "x"}}));
    d.Ecrire("Datacfg/notes.txt", "pas un catalogue");
    arbre = ChargerArbreInsertion(etat, FamilleInsertion::Classic);
    EXPECT_EQ(Cles(arbre.racine), (std::vector<Texte>{"ch.cfg", "VLVB.CFG", "RESSUP.CFG"}));
    const NoeudCatalogue& sup = arbre.racine.enfants[2];
    EXPECT_EQ(sup.texte, "Résultats supplémentaires");
    EXPECT_EQ(Cles(sup), (std::vector<Texte>{"RESSUP.DON+RES-4:2"}));
    EXPECT_EQ(arbre.racine.enfants[1].enfants[0].cle, "VLVB.DON+VLVB-2:0");
    EXPECT_FALSE(ArbreSansFeuille(arbre));
}

TEST(ArbreInsertion, FamillesDesCulturesEtDesActivites) {
    const Etat etat;
    const ArbreCatalogue perennes = ChargerArbreInsertion(etat, FamilleInsertion::CultPer);
    ASSERT_EQ(perennes.racine.enfants.size(), 1u);
    const NoeudCatalogue& famille = perennes.racine.enfants[0];
    EXPECT_EQ(famille.texte, "Données Cultures pérennes");
    ASSERT_GE(famille.enfants.size(), 3u);
    EXPECT_EQ(famille.enfants[0].cle, kCleUniteFamille);
    EXPECT_EQ(famille.enfants[2].enfants[0].cle, "@5");
    EXPECT_EQ(
        ChargerArbreInsertion(etat, FamilleInsertion::Culture).racine.enfants[0].enfants[2].cle,
        "@1");
    EXPECT_EQ(FamilleDuTag("cultper"), FamilleInsertion::CultPer);
    EXPECT_FALSE(FamilleDuTag("AUTRE"));
}

TEST(ChampsParOnglet, SuffixesEtOrganismesNommes) {
    const auto onglets = ChargerOngletsChamps();
    ASSERT_EQ(onglets.size(), 6u);
    for (const auto& c : onglets[4].champs) EXPECT_EQ(c.suffixe, SuffixeChamp::Annee);
    for (const auto& c : onglets[5].champs) EXPECT_EQ(c.suffixe, SuffixeChamp::Organisme);

    Etat etat;
    etat.Organismes[0].sigle = "CA53";
    etat.Organismes[3].sigle = "   ";
    etat.Organismes[19].sigle = " CER ";
    const auto liste = OrganismesNommes(etat);
    ASSERT_EQ(liste.size(), 2u);
    EXPECT_EQ(liste[0].numero, 0);
    EXPECT_EQ(liste[1].numero, 19);
    EXPECT_EQ(liste[1].nom, "CER");
}

} // namespace
} // namespace verdane::test
