#include "data/Catalogue.h"

#include "EssaisDonnees.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierTemporaire;

EnrCatalogue Enr(const Texte& code, const Texte& libelle, const Texte& d1 = "",
                 const Texte& d2 = "", std::int16_t queue = 0) {
    EnrCatalogue e;
    e.code = code;
    e.libelle = libelle;
    e.dossier1 = d1;
    e.dossier2 = d2;
    e.queue = queue;
    return e;
}

std::string Fichier(const std::vector<EnrCatalogue>& enregistrements) {
    std::string octets;
    for (const auto& e : enregistrements) octets += EcrireEnrCatalogue(e);
    return octets;
}

TEST(EnrCatalogue, Disposition) {
    const std::string o = EcrireEnrCatalogue(Enr("VL-3", "Lait", "Produits", "Vente", 1));
    ASSERT_EQ(o.size(), EnrCatalogue::kTaille);
    EXPECT_EQ(o.substr(12, 4), "Lait");
    EXPECT_EQ(o.substr(34, 8), "Produits");
    EXPECT_EQ(o.substr(74, 5), "Vente");
    EXPECT_EQ(o[114], 1);
    EXPECT_EQ(LireEnrCatalogue(o).queue, 1);
}

TEST(ChargerCatalogue, ArbreDesSeries) {
    DossierTemporaire d;
    const Texte vl = d.Ecrire(
        "Datacfg/VLVB.CFG",
        Fichier({Enr("VLVB", "  Vaches laitières ", "", "", 1), Enr("VLVB-1", "Effectif"),
                 Enr("VLVB-2", "Lait", "Produits"), Enr("VLVB+3", "Sans tiret"),
                 Enr("VLVB-4", " [ sans nom ] "), Enr("VLVB-5", "Vente", "Produits", "Ventes"),
                 Enr("VLVB-6", "Prime", "Aides"), Enr("VLVB-7", "Export", "Produits", "Ventes"),
                 Enr("VLVB-2", "Doublon")}) +
            "reste"); // a record cut short is not read
    ArbreCatalogue arbre;
    ChargerCatalogue(vl, arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 1u);
    const NoeudCatalogue& cat = arbre.racine.enfants[0];
    EXPECT_EQ(cat.cle, "VLVB.CFG");
    EXPECT_EQ(cat.texte, "Vaches laitières");
    EXPECT_EQ(cat.image, "VL");
    ASSERT_EQ(cat.enfants.size(), 3u);
    EXPECT_EQ(cat.enfants[0].cle, "VLVB.DON+VLVB-1");
    EXPECT_EQ(cat.enfants[0].texte, "Effectif");
    EXPECT_EQ(cat.enfants[0].image, "puce");
    const NoeudCatalogue& produits = cat.enfants[1];
    EXPECT_EQ(produits.texte, "Produits");
    EXPECT_EQ(produits.image, "VL");
    ASSERT_EQ(produits.enfants.size(), 2u);
    EXPECT_EQ(produits.enfants[0].cle, "VLVB.DON+VLVB-2");
    const NoeudCatalogue& ventes = produits.enfants[1];
    EXPECT_EQ(ventes.texte, "Ventes");
    ASSERT_EQ(ventes.enfants.size(), 2u);
    EXPECT_EQ(ventes.enfants[0].texte, "Vente");
    EXPECT_EQ(ventes.enfants[1].cle, "VLVB.DON+VLVB-7");
    EXPECT_EQ(cat.enfants[2].texte, "Aides");
    EXPECT_EQ(cat.enfants[2].enfants.at(0).texte, "Prime");

    // A second catalogue with folders of the same names keeps its own.
    const Texte ov =
        d.Ecrire("Datacfg/ol.cfg",
                 Fichier({Enr("OL", "Ovins", "", "", -1), Enr("OL-1", "Agneaux", "Produits")}));
    ChargerCatalogue(ov, arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 2u);
    EXPECT_EQ(arbre.racine.enfants[1].image, "OV");
    EXPECT_EQ(arbre.racine.enfants[1].enfants.at(0).enfants.at(0).cle, "ol.DON+OL-1");
    EXPECT_EQ(arbre.racine.enfants[0].enfants[1].enfants.size(), 2u);

    // Loaded twice: nothing more.
    ChargerCatalogue(vl, arbre);
    EXPECT_EQ(arbre.racine.enfants.size(), 2u);
    EXPECT_NE(arbre.Trouver("VLVB.DON+VLVB-5"), nullptr);
}

TEST(ChargerCatalogue, CataloguesQuiNAjoutentRien) {
    DossierTemporaire d;
    ArbreCatalogue arbre;
    ChargerCatalogue(d.Ecrire("Datacfg/CH.CFG",
                              Fichier({Enr("CH", "Charges", "", "", 0), Enr("CH-1", "Engrais")})),
                     arbre);
    ChargerCatalogue(d.Ecrire("Datacfg/ressup.cfg",
                              Fichier({Enr("RS", "Résultats", "", "", 1), Enr("RS-1", "Marge")})),
                     arbre);
    ChargerCatalogue(d.Ecrire("Datacfg/COURT.CFG", std::string(117, 'x')), arbre);
    ChargerCatalogue(d.Ecrire("Datacfg/VIDE.CFG", ""), arbre);
    ChargerCatalogue(d.Chemin() + "Datacfg/ABSENT.CFG", arbre);
    EXPECT_TRUE(arbre.racine.enfants.empty());
    // A head alone makes the catalogue's node and nothing under it.
    ChargerCatalogue(d.Ecrire("Datacfg/DPU.CFG", Fichier({Enr("DPU", "Droits", "", "", 2)})),
                     arbre);
    ASSERT_EQ(arbre.racine.enfants.size(), 1u);
    EXPECT_TRUE(arbre.racine.enfants[0].enfants.empty());
}

} // namespace
} // namespace verdane
