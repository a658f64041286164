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
    EXPECT_EQ(o.substr(12, 4) + o.substr(34, 8) + o.substr(74, 5), "LaitProduitsVente");
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
    EXPECT_EQ((std::vector<Texte>{cat.cle, cat.texte, cat.image}),
              (std::vector<Texte>{"VLVB.CFG", "Vaches laitières", "VL"}));
    // Series straight under the catalogue, in folders and sub-folders, in the order first met.
    ASSERT_EQ(cat.enfants.size(), 3u);
    const NoeudCatalogue &produits = cat.enfants[1], &ventes = produits.enfants.at(1);
    ASSERT_EQ((std::vector<std::size_t>{produits.enfants.size(), ventes.enfants.size()}),
              (std::vector<std::size_t>{2, 2}));
    EXPECT_EQ(
        (std::vector<Texte>{cat.enfants[0].cle, cat.enfants[0].texte, cat.enfants[0].image,
                            produits.texte, produits.image, produits.enfants[0].cle, ventes.texte,
                            ventes.enfants.at(0).texte, ventes.enfants.at(1).cle,
                            cat.enfants[2].texte, cat.enfants[2].enfants.at(0).texte}),
        (std::vector<Texte>{"VLVB.DON+VLVB-1", "Effectif", "puce", "Produits", "VL",
                            "VLVB.DON+VLVB-2", "Ventes", "Vente", "VLVB.DON+VLVB-7", "Aides",
                            "Prime"}));

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
