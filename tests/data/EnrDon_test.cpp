#include "data/EnrDon.h"

#include "EssaisDonnees.h"
#include "support/OctetsPlaces.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

using test_donnees::DossierTemporaire;
using test_donnees::FichierDon;
using test_donnees::Serie;

TEST(EnrDon, DispositionSurDisque) {
    EnrDon e = Serie("VLVB-12:2", "Lait vendu|litres", 10.0f, 0.5f);
    e.valeur[13] = -1.25f;
    // The code, the label, then 14 little-endian float32 from byte 34.
    const std::string octets = test::OctetsPlaces(EnrDon::kTaille)
                                   .Chaine(0, "VLVB-12:2", 12)
                                   .Chaine(12, "Lait vendu|litres", 22)
                                   .F32s(34, 13, 10.0f, 0.5f)
                                   .F32(86, -1.25f)
                                   .Octets();
    EXPECT_EQ(EcrireEnrDon(e), octets);
    const EnrDon relu = LireEnrDon(octets);
    EXPECT_EQ(relu.code, "VLVB-12:2   ");
    EXPECT_EQ(relu.valeur, e.valeur);
}

TEST(EnrDon, LectureParNumeroSansSortirDuFichier) {
    DossierTemporaire d;
    std::string octets = FichierDon(
        {Serie("A-1:0", "un", 1), Serie("A-2:0", "deux", 2), Serie("A-3:0", "trois", 3)});
    const Texte complet = d.Ecrire("A.don", octets);
    // A fourth record cut short by the end of the file.
    const Texte tronque =
        d.Ecrire("B.don", octets + EcrireEnrDon(Serie("B-4:0", "x")).substr(0, 50));

    ASSERT_TRUE(LireEnregistrementDon(complet, 1));
    EXPECT_EQ(LireEnregistrementDon(complet, 3)->valeur[2], 5.0f);
    for (long long numero : {0LL, -2LL, 4LL, 1LL << 40})
        EXPECT_FALSE(LireEnregistrementDon(complet, numero)) << numero;
    EXPECT_TRUE(LireEnregistrementDon(tronque, 3));
    EXPECT_FALSE(LireEnregistrementDon(tronque, 4));
    EXPECT_FALSE(LireEnregistrementDon(d.Chemin() + "absent.don", 1));
    EXPECT_FALSE(LireEnregistrementDon(d.Chemin(), 1)); // a folder

    // Each read sees the file as it is now.
    d.Ecrire("A.don", FichierDon({Serie("A-1:0", "c", 7)}));
    EXPECT_EQ(LireEnregistrementDon(complet, 1)->valeur[1], 8.0f);
}

} // namespace
} // namespace verdane
