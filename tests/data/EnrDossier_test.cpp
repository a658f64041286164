// The dossier record written as Marlo writes it, field by field at the offsets and in the
// types of its layout, then read by the program; and the same record cut short.

#include "data/ChargerDossier.h"

#include "EssaisDonnees.h"
#include "support/OctetsPlaces.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

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

TEST(EnrDossier, LuChampParChamp) {
    const std::string octets = OctetsDossier();
    const EnrDossier e = LireEnrDossier(octets);
    EXPECT_EQ(Rogner(e.chemin), "C:\\Marlo\\Dossiers\\FERME\\");
    EXPECT_EQ(Rogner(e.nom), "FERME");
    EXPECT_EQ(Rogner(e.nomExploitation), "GAEC du Haut");
    EXPECT_EQ(Rogner(e.adresse), "La Lande");
    EXPECT_EQ(Rogner(e.commune), "Vire");
    EXPECT_EQ(e.anneeDebut, 2024);
    EXPECT_EQ(e.nbAnEtude, 6);
    EXPECT_TRUE(e.EstSociete());
    EXPECT_EQ(Rogner(e.descProjet), "Projet\rSuite");
    EXPECT_EQ(e.dateDebut, "01/10/2024");
    EXPECT_EQ(Rogner(e.conseiller), "M. Conseil");
    EXPECT_EQ(e.nbAssocies, 10);
    EXPECT_EQ(Rogner(e.nomAssocie[0]), "Associé 0");
    EXPECT_EQ(Rogner(e.nomAssocie[10]), "Associé 10");
    EXPECT_EQ(e.jaAssocie[9], 0);
    EXPECT_EQ(e.jaAssocie[10], 1);
    EXPECT_EQ(e.naissanceAssocie[10], "05/06/1985");
    EXPECT_EQ(Rogner(e.situationAssocie[10]), "Marié");
    EXPECT_EQ(Rogner(e.regionAgri), "Bocage");
    EXPECT_EQ(Rogner(e.activAutre), "Gîtes");
    EXPECT_EQ(Rogner(e.banque), "Crédit");
    EXPECT_EQ(Rogner(e.numAdh), "A123");
    EXPECT_EQ(Rogner(e.produit[6]), "Produit 6");
    EXPECT_EQ(Rogner(e.modeCom[6]), "Mode 6");
    EXPECT_EQ(e.moisTva, 3);
    EXPECT_EQ(e.devise, 1);
    EXPECT_EQ(Rogner(e.tel), "0231000000");
    EXPECT_EQ(Rogner(e.fax), "0231000001");
    EXPECT_EQ(EcrireEnrDossier(e), octets);
}

TEST(EnrDossier, FichierCourtLuJusquOuIlVa) {
    // Half the record: the fields up to byte 1055 are there, the rest blank or zero.
    test_donnees::DossierTemporaire d;
    d.Ecrire("FERME/FERME", OctetsDossier().substr(0, 1055));
    test_donnees::FauxUtilisateurDonnees u;
    Contexte ctx(u);
    ctx.etat.RepDossier[0] = d.Chemin();
    ctx.etat.NomDossier[0] = "FERME";
    ChargerDossier(ctx);
    EXPECT_EQ(ctx.etat.NomDossier[0], "FERME");
    EXPECT_EQ(ctx.etat.nbAnEtude, 6);
    EXPECT_EQ(Rogner(ctx.etat.enrDossier.nomExploitation), "GAEC du Haut");
    // The last name is cut inside its padding: what is there is read.
    EXPECT_EQ(Rogner(ctx.etat.enrDossier.nomAssocie[10]), "Associé 10");
    EXPECT_EQ(ctx.etat.enrDossier.jaAssocie[10], 0);
    EXPECT_EQ(ctx.etat.enrDossier.naissanceAssocie[10], Texte(10, ' '));
    EXPECT_EQ(ctx.etat.enrDossier.devise, 0);
    EXPECT_EQ(ctx.etat.enrDossier.fax, Texte(20, ' '));
}

} // namespace
} // namespace verdane
