#include "library/GestInserVal.h"

#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

std::string Catalogue(const Texte& tete, std::int16_t queue,
                      const std::vector<std::pair<Texte, Texte>>& series) {
    EnrCatalogue t;
    t.code = "X";
    t.libelle = tete;
    t.queue = queue;
    std::string octets = EcrireEnrCatalogue(t);
    for (const auto& [code, libelle] : series) {
        EnrCatalogue e;
        e.code = code;
        e.libelle = libelle;
        octets += EcrireEnrCatalogue(e);
    }
    return octets;
}

std::vector<Texte> Cles(const NoeudCatalogue& n) {
    std::vector<Texte> cles;
    for (const auto& e : n.enfants) cles.push_back(e.cle);
    return cles;
}

TEST(ArbreInsertion, CataloguesDuDossierParNomPuisResultatsSupplementaires) {
    DossierTemporaire d;
    d.Ecrire("Datacfg/VLVB.CFG", Catalogue("Vaches laitières", 1, {{"VLVB-2:0", "Lait"}}));
    d.Ecrire("Datacfg/ch.cfg", Catalogue("Charges", 1, {{"CH-1", "Engrais"}}));
    d.Ecrire("Datacfg/RESSUP.CFG", Catalogue("", 0, {{"RES-4:2", "EBE"}, {"RES", "sans tiret"}}));
    d.Ecrire("Datacfg/OFF.CFG", Catalogue("Eteint", 0, {{"OFF-1", "x"}}));
    d.Ecrire("Datacfg/notes.txt", "pas un catalogue");
    Etat etat;
    etat.chemins.RepDatacfg = d / "Datacfg/";

    const ArbreCatalogue arbre = ChargerArbreInsertion(etat, FamilleInsertion::Classic);
    EXPECT_EQ(Cles(arbre.racine), (std::vector<Texte>{"ch.cfg", "VLVB.CFG", "RESSUP.CFG"}));
    const NoeudCatalogue& sup = arbre.racine.enfants[2];
    EXPECT_EQ(sup.texte, "Résultats supplémentaires");
    EXPECT_EQ(Cles(sup), (std::vector<Texte>{"RESSUP.DON+RES-4:2"}));
    EXPECT_EQ(arbre.racine.enfants[1].enfants[0].cle, "VLVB.DON+VLVB-2:0");
    EXPECT_FALSE(ArbreSansFeuille(arbre));
}

TEST(ArbreInsertion, DossierSansCatalogueDonneUnArbreVide) {
    DossierTemporaire d;
    Etat etat;
    EXPECT_TRUE(ArbreSansFeuille(ChargerArbreInsertion(etat, FamilleInsertion::Classic)));
    etat.chemins.RepDatacfg = d / "absent/";
    EXPECT_TRUE(ArbreSansFeuille(ChargerArbreInsertion(etat, FamilleInsertion::Classic)));
    // Catalogues whose series are all unnamed leave folders without leaves.
    d.Ecrire("Datacfg/VL.CFG", Catalogue("VL", 1, {{"VL-1", "[ sans nom ]"}}));
    etat.chemins.RepDatacfg = d / "Datacfg/";
    const ArbreCatalogue arbre = ChargerArbreInsertion(etat, FamilleInsertion::Classic);
    EXPECT_EQ(arbre.racine.enfants.size(), 1u);
    EXPECT_TRUE(ArbreSansFeuille(arbre));
}

TEST(ArbreInsertion, FamillesDesCulturesEtDesActivites) {
    const Etat etat;
    const ArbreCatalogue perennes = ChargerArbreInsertion(etat, FamilleInsertion::CultPer);
    ASSERT_EQ(perennes.racine.enfants.size(), 1u);
    const NoeudCatalogue& famille = perennes.racine.enfants[0];
    EXPECT_EQ(famille.texte, "Données Cultures pérennes");
    ASSERT_GE(famille.enfants.size(), 3u);
    EXPECT_EQ(famille.enfants[0].texte, " Unité de la culture pérenne");
    EXPECT_EQ(famille.enfants[0].cle, kCleUniteFamille);
    EXPECT_EQ(famille.enfants[1].texte, " Libellé de la culture pérenne");
    EXPECT_EQ(famille.enfants[2].texte, "Caractéristiques");
    EXPECT_EQ(famille.enfants[2].image, "rep");
    EXPECT_EQ(famille.enfants[2].enfants[0].cle, "@5");
    EXPECT_EQ(famille.enfants[2].enfants[0].image, "puce");

    EXPECT_EQ(
        ChargerArbreInsertion(etat, FamilleInsertion::Culture).racine.enfants[0].enfants[2].cle,
        "@1");
    EXPECT_EQ(ChargerArbreInsertion(etat, FamilleInsertion::AliBani).racine.enfants[0].texte,
              "Données Activités libres animales");
    EXPECT_EQ(FamilleDuTag("cultper"), FamilleInsertion::CultPer);
    EXPECT_FALSE(FamilleDuTag("AUTRE"));
}

TEST(ChampsParOnglet, OngletsDansLOrdreDuDialogue) {
    const auto onglets = ChargerOngletsChamps();
    ASSERT_EQ(onglets.size(), 6u);
    EXPECT_EQ(onglets[0].champs.front().code, "nomExplSoc");
    EXPECT_EQ(onglets[0].champs.back().code, "numAdh");
    EXPECT_EQ(onglets[1].champs.back().libelle, "Nom du 10ème associé");
    EXPECT_EQ(onglets[2].champs.back().code, "descProjet");
    EXPECT_EQ(onglets[3].champs.back().code, "modeCom");
    EXPECT_EQ(onglets[4].champs.size(), 9u);
    for (const auto& c : onglets[4].champs) EXPECT_EQ(c.suffixe, SuffixeChamp::Annee);
    EXPECT_EQ(onglets[5].champs.size(), 7u);
    for (const auto& c : onglets[5].champs) EXPECT_EQ(c.suffixe, SuffixeChamp::Organisme);
}

TEST(ChampsParOnglet, SeulsLesOrganismesNommes) {
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
