// The dossier record written as Marlo writes it, field by field at the offsets and in the
// types of its layout, then read by the program; and the same record cut short.

#include "data/ChargerDossier.h"

#include "EssaisDonnees.h"
#include "support/OctetsPlaces.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierFerme;

std::string OctetsDossier() {
    test::OctetsPlaces o(2110);
    o.Chaine(0, "C:\\Marlo\\Dossiers\\FERME\\", 50)
        .Chaine(50, "FERME", 50)
        .Chaine(100, "GAEC du Haut", 30)
        .Chaine(130, "La Lande", 30)
        .Chaine(160, "Vire", 30)
        .I16(190, 77)
        .I16(192, 2024)
        .I16(194, 6)
        .I32(196, 1)
        .Chaine(200, "Projet\rSuite", 500)
        .Chaine(700, "01/10/2024", 10)
        .Chaine(710, "M. Conseil", 20)
        .I16(730, 10);
    for (std::size_t i = 0; i <= 10; ++i) {
        o.Chaine(732 + 30 * i, "Associé " + std::to_string(i), 30)
            .I16(1062 + 2 * i, i == 10 ? 1 : 0)
            .Chaine(1084 + 10 * i, i == 10 ? "05/06/1985" : "**/**/****", 10)
            .Chaine(1194 + 15 * i, "Marié", 15);
    }
    o.Chaine(1359, "Bocage", 40).Chaine(1399, "Gîtes", 40).Chaine(1439, "Crédit", 40);
    o.Chaine(1479, "A123", 15);
    for (std::size_t i = 0; i <= 6; ++i)
        o.Chaine(1494 + 80 * i, "Produit " + std::to_string(i), 40)
            .Chaine(1534 + 80 * i, "Mode " + std::to_string(i), 40);
    o.I16(2054, 3).Chaine(2056, "reserve", 12).I16(2068, 1);
    o.Chaine(2070, "0231000000", 20).Chaine(2090, "0231000001", 20);
    return o.Octets();
}

// The texts trimmed of their padding.
std::vector<Texte> Rognes(std::initializer_list<Texte> textes) {
    std::vector<Texte> r;
    for (const auto& t : textes) r.push_back(Rogner(t));
    return r;
}

TEST(EnrDossier, LuChampParChamp) {
    const std::string octets = OctetsDossier();
    const EnrDossier e = LireEnrDossier(octets);
    EXPECT_EQ(Rognes({e.chemin, e.nom, e.nomExploitation, e.adresse, e.commune, e.descProjet,
                      e.dateDebut, e.conseiller, e.nomAssocie[0], e.nomAssocie[10]}),
              (std::vector<Texte>{"C:\\Marlo\\Dossiers\\FERME\\", "FERME", "GAEC du Haut",
                                  "La Lande", "Vire", "Projet\rSuite", "01/10/2024", "M. Conseil",
                                  "Associé 0", "Associé 10"}));
    EXPECT_EQ(Rognes({e.naissanceAssocie[10], e.situationAssocie[10], e.regionAgri, e.activAutre,
                      e.banque, e.numAdh, e.produit[6], e.modeCom[6], e.tel, e.fax}),
              (std::vector<Texte>{"05/06/1985", "Marié", "Bocage", "Gîtes", "Crédit", "A123",
                                  "Produit 6", "Mode 6", "0231000000", "0231000001"}));
    EXPECT_EQ((std::vector<int>{e.anneeDebut, e.nbAnEtude, e.nbAssocies, e.jaAssocie[9],
                                e.jaAssocie[10], e.moisTva, e.devise}),
              (std::vector<int>{2024, 6, 10, 0, 1, 3, 1}));
    EXPECT_TRUE(e.EstSociete());
    EXPECT_EQ(EcrireEnrDossier(e), octets);
}

// The dossier's record file is found whatever the case of its folder and name; a file cut short
// gives blanks and zeros for its missing fields; without its files the dossier is forgotten.
TEST_F(DossierFerme, ChargerDossier) {
    d.Ecrire("Marlo/FERME/ferme", OctetsDossier());
    ctx.etat.RepDossier[0] = d.Chemin() + "Marlo";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.anneeDebut + ctx.etat.nbAnEtude, 2030);
    EXPECT_EQ(Rogner(ctx.etat.enrDossier.fax), "0231000001");

    // Half the record: the fields up to byte 1055 are there, the rest blank or zero; the last
    // name is cut inside its padding, and what is there is read.
    d.Ecrire("FERME/FERME", OctetsDossier().substr(0, 1055));
    ctx.etat.RepDossier[0] = d.Chemin();
    ctx.etat.NomDossier[0] = "FERME";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.NomDossier[0], "FERME");
    const EnrDossier& e = ctx.etat.enrDossier;
    EXPECT_EQ(Rognes({e.nomExploitation, e.nomAssocie[10]}),
              (std::vector<Texte>{"GAEC du Haut", "Associé 10"}));
    EXPECT_EQ(e.jaAssocie[10] + e.devise, 0);
    EXPECT_EQ(e.naissanceAssocie[10] + e.fax, Texte(30, ' '));

    ctx.etat.NomDossier[0] = "Absent";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.NomDossier[0], "");
    EXPECT_EQ(ctx.etat.RepDossier[0], d.Chemin());
    ctx.etat.RepDossier[0] = d.Chemin() + "rien";
    ctx.etat.NomDossier[0] = "Absent";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.RepDossier[0] + ctx.etat.NomDossier[0], "");
}

} // namespace
} // namespace verdane
