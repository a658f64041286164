#include "data/Catalogue.h"

#include "EssaisDonnees.h"
#include "support/Catalogues.h"
#include "support/OctetsPlaces.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test::FichierCatalogue;
using test_donnees::DossierTemporaire;
using E = EnrCatalogue;

// A catalogue record: code, label, then its folders and tail when given.
EnrCatalogue R(const auto&... champs) {
    return test::EnregistrementCatalogue(champs...);
}

TEST(EnrCatalogue, Disposition) {
    // Code 12, label 22, two folders of 40, then the 4-byte tail.
    const std::string o = test::OctetsPlaces(E::kTaille)
                              .Chaine(0, "VL-3", 12)
                              .Chaine(12, "Lait", 22)
                              .Chaine(34, "Produits", 40)
                              .Chaine(74, "Vente", 40)
                              .I16(114, 1)
                              .Octets();
    const E e = LireEnrCatalogue(o);
    EXPECT_EQ(e.libelle.substr(0, 4) + e.dossier1.substr(0, 8) + e.dossier2.substr(0, 5),
              "LaitProduitsVente");
    EXPECT_EQ(e.queue, 1);
    EXPECT_EQ(EcrireEnrCatalogue(e), o);
}

TEST(ChargerCatalogue, ArbreDesSeries) {
    DossierTemporaire d;
    const Texte vl = d.Ecrire(
        "Datacfg/VLVB.CFG",
        FichierCatalogue({R("VLVB", "  Vaches laitières ", "", "", 1), R("VLVB-1", "Effectif"),
                          R("VLVB-2", "Lait", "Produits"), R("VLVB+3", "Sans tiret"),
                          R("VLVB-4", " [ sans nom ] "), R("VLVB-5", "Vente", "Produits", "Ventes"),
                          R("VLVB-6", "Prime", "Aides"),
                          R("VLVB-7", "Export", "Produits", "Ventes"), R("VLVB-2", "Doublon")}) +
            "reste"); // a record cut short is not read
    ArbreCatalogue arbre;
    ChargerCatalogue(vl, arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 1u);
    const NoeudCatalogue& cat = arbre.racine.enfants[0];
    // Series straight under the catalogue, in folders and sub-folders, in the order first met.
    ASSERT_EQ(cat.enfants.size(), 3u);
    const NoeudCatalogue &produits = cat.enfants[1], &ventes = produits.enfants.at(1);
    ASSERT_EQ(produits.enfants.size() + ventes.enfants.size(), 4u);
    EXPECT_EQ(
        (std::vector<Texte>{cat.cle, cat.texte, cat.image, cat.enfants[0].cle, cat.enfants[0].image,
                            produits.texte, produits.image, ventes.texte, ventes.enfants.at(1).cle,
                            cat.enfants[2].enfants.at(0).texte}),
        (std::vector<Texte>{"VLVB.CFG", "Vaches laitières", "VL", "VLVB.DON+VLVB-1", "puce",
                            "Produits", "VL", "Ventes", "VLVB.DON+VLVB-7", "Prime"}));

    // A second catalogue with folders of the same names keeps its own; one loaded twice adds
    // nothing.
    ChargerCatalogue(
        d.Ecrire("Datacfg/ol.cfg", FichierCatalogue({R("OL", "Ovins", "", "", -1),
                                                     R("OL-1", "Agneaux", "Produits")})),
        arbre);
    ChargerCatalogue(vl, arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 2u);
    EXPECT_EQ(arbre.racine.enfants[1].image, "OV");
    EXPECT_EQ(arbre.racine.enfants[1].enfants.at(0).enfants.at(0).cle, "ol.DON+OL-1");
    EXPECT_EQ(arbre.racine.enfants[0].enfants[1].enfants.size(), 2u);
    EXPECT_NE(arbre.Trouver("VLVB.DON+VLVB-5"), nullptr);
}

TEST(ChargerCatalogue, CataloguesQuiNAjoutentRien) {
    DossierTemporaire d;
    ArbreCatalogue arbre;
    ChargerCatalogue(d.Ecrire("Datacfg/CH.CFG", FichierCatalogue("Charges", 0, {{"CH-1", "E"}})),
                     arbre);
    ChargerCatalogue(d.Ecrire("Datacfg/ressup.cfg", FichierCatalogue("Rés.", 1, {{"RS-1", "M"}})),
                     arbre);
    ChargerCatalogue(d.Ecrire("Datacfg/COURT.CFG", std::string(117, 'x')), arbre);
    ChargerCatalogue(d.Chemin() + "Datacfg/ABSENT.CFG", arbre);
    EXPECT_TRUE(arbre.racine.enfants.empty());
    // A head alone makes the catalogue's node and nothing under it.
    ChargerCatalogue(d.Ecrire("Datacfg/DPU.CFG", FichierCatalogue("Droits", 2, {})), arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 1u);
    EXPECT_TRUE(arbre.racine.enfants[0].enfants.empty());
}

} // namespace
} // namespace verdane
