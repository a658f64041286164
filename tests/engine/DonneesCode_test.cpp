#include "data/FormatNombre.h"
#include "engine/AnalyserCodes.h"
#include "utils/Binaire.h"

#include "DossierDeTest.h"
#include "FauxUtilisateurMoteur.h"

#include <gtest/gtest.h>

#include <array>

namespace verdane::test {
namespace {

// One 90-byte series record.
std::string Serie(const Texte& code, const Texte& libelle, const std::array<float, 14>& valeurs) {
    EcrivainBinaire e;
    e.Chaine(code, 12);
    e.Chaine(libelle, 22);
    for (float v : valeurs) e.F32(v);
    return e.Octets();
}

class Donnees : public ::testing::Test {
protected:
    void SetUp() override {
        if (FormatNombre(1.0f, 0, false).empty()) GTEST_SKIP() << "lecteurs de donnees absents";
        EnrDossier d = SocieteDeTest();
        dossier.Installer(m.ctx, d);
        dossier.Ecrire("VLVB.don", Serie("VL1:1", "Lait|litres",
                                         {0, 1234.5f, 0, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}) +
                                       Serie("VL2:0", "Vaches", {}));
    }
    MoteurDeTest m;
    DossierMoteur dossier;
};

TEST_F(Donnees, ValeursEtDecimales) {
    EXPECT_EQ(m.Valeur("VLVB.don+VLVB-1a1"), FormatNombre(1234.5f, 1, false));
    EXPECT_EQ(m.Valeur("VLVB.don+VLVB-1a1:0"), FormatNombre(1234.5f, 0, false));
    EXPECT_EQ(m.Valeur("VLVB.don+VLVB-10a1:2"), FormatNombre(10.0f, 2, false));
    EXPECT_EQ(m.Valeur("VLVB.don+VLVB-i1"), "lait");
    EXPECT_EQ(m.Valeur("VLVB.don+VLVB-u1"), "litres");
    // Blanks written by the word processor inside the code are cleaned away.
    EXPECT_EQ(m.Valeur("VLVB.don+{\\fs22 VLVB-1a1}:0"), FormatNombre(1234.5f, 0, false));
    // A missing file: a blank, and no message.
    EXPECT_EQ(m.Valeur("ABSENT.don+X-1a1"), "\\~");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Donnees, ConditionsSurUneDonnee) {
    bool resultat = true;
    EXPECT_EQ(m.Valeur("si(VLVB.don+VLVB-1a2<>0)alors:nomDossier", &resultat), "\\v");
    EXPECT_FALSE(resultat);
    EXPECT_EQ(m.Valeur("si(VLVB.don+VLVB-1a1<>0)alors:nomDossier", &resultat), "Dossier Test");
    EXPECT_TRUE(resultat);
    // A missing file reads empty: the condition is false.
    EXPECT_EQ(m.Valeur("si(ABSENT.don+X-1a1<>0)alors:nomDossier", &resultat), "\\v");
    EXPECT_FALSE(resultat);
}

} // namespace
} // namespace verdane::test
