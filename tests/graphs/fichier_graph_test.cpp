// The record of graph.txt and the library file.

#include "OutilsTestsGraph.h"

#include "graphs/FichierGraph.h"
#include "utils/Binaire.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace verdane {
namespace {

std::string OctetsAuHasard(std::size_t n, unsigned graine) {
    std::mt19937 g(graine);
    std::string o(n, '\0');
    for (auto& c : o) c = static_cast<char>(g() & 0xFF);
    return o;
}

TEST(EnrGraph, ChaqueChampEstALaPlaceDuFichierEtToutOctetRepartTelQuel) {
    ModeleGraph g = test::GrapheComplet();
    g.series[9].brosse = 2;
    const std::string o = EcrireEnrGraph(g);
    ASSERT_EQ(o.size(), kTailleEnrGraph);
    LecteurBinaire l(o);
    auto i16 = [&](std::size_t p) { return l.Placer(p), l.I16(); };
    auto f32 = [&](std::size_t p) { return l.Placer(p), l.F32(); };
    EXPECT_EQ(o.substr(2, 11) + o.substr(70, 8) + o.substr(1066, 5), "Marge bruteProduitsAxe 1");
    EXPECT_EQ(o.substr(170 + 76 + 12, 7) + o.substr(170 + 36, 11), "ChargesDONNEES.DON");
    const std::vector<int> entiers = {i16(62),
                                      i16(66),
                                      i16(68),
                                      i16(170 + 2 * 76 + 48),
                                      i16(170 + 2 * 76 + 54),
                                      i16(170 + 9 * 76 + 58),
                                      i16(936),
                                      i16(1012),
                                      i16(1018),
                                      i16(1154 + 42),
                                      i16(1198)};
    EXPECT_EQ(entiers, (std::vector<int>{10, 3, -1, 1, 63, 2, 300, 3, 4, 23, 22}));
    const std::vector<float> reels = {f32(938), f32(954), f32(986 + 12), f32(1002), f32(1006)};
    EXPECT_EQ(reels, (std::vector<float>{0.125f, 10.1f, 4.0f, 30.5f, -12.25f}));
    EXPECT_EQ(o.substr(1200), std::string(18, ' ') + std::string(6, '\0'));

    // NaN, infinities, zero bytes in texts, reserved fields: all travel with the record.
    for (unsigned graine = 1; graine <= 20; ++graine) {
        const std::string hasard = OctetsAuHasard(kTailleEnrGraph, graine);
        EXPECT_EQ(EcrireEnrGraph(LireEnrGraph(hasard)), hasard);
    }
    EXPECT_EQ(LireEnrGraph(std::string(50, 'x')).nbSeries, 0); // cut short: zeros
}

class FichierGraphTest : public ::testing::Test {
protected:
    test::DossierTemporaire dossier;
    test::UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    EtatGraphes& eg = ctx.etat.graphes;

    void SetUp() override { ctx.etat.chemins.RepModelGraph = dossier.Chemin() + "ModelGraph/"; }
    std::filesystem::path Fichier() const { return dossier.Systeme() / "ModelGraph" / "graph.txt"; }
    std::string Contenu() const { return LireFichier(CheminTexte(Fichier())).value_or("?"); }
    // `n` records of random bytes with titles of their own, then `queue`.
    std::string Poser(int n, const std::string& queue = "") const {
        std::string o;
        for (int i = 0; i < n; ++i)
            o += OctetsAuHasard(kTailleEnrGraph, static_cast<unsigned>(i))
                     .replace(2, 60, ChampFixe("Graphe " + std::to_string(i), 60));
        std::filesystem::create_directories(Fichier().parent_path());
        std::ofstream(Fichier(), std::ios::binary) << o << queue;
        return o;
    }
};

TEST_F(FichierGraphTest, SansDossierNiFichierLaBibliothequeNaitVide) {
    eg.nbGraphes = 7;
    LireFichierGraph(ctx);
    EXPECT_EQ(eg.nbGraphes, 0);
    EXPECT_EQ(Contenu(), "");
    EXPECT_TRUE(utilisateur.messages.empty());
}

TEST_F(FichierGraphTest, LuPuisEcritLeFichierResteIdentiqueEtPerdSaQueue) {
    const std::string biblio = Poser(3, std::string(kTailleEnrGraph - 1, 'z'));
    LireFichierGraph(ctx);
    ASSERT_EQ(eg.nbGraphes, 3);
    EXPECT_EQ(Rogner(eg.graphes[2].titre), "Graphe 1");
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    EXPECT_EQ(Contenu(), biblio);
}

TEST_F(FichierGraphTest, AuDelaDeCinquanteLesPremiersSontGardesEtLUtilisateurPrevenu) {
    const std::string biblio = Poser(52);
    LireFichierGraph(ctx);
    EXPECT_EQ(eg.nbGraphes, 50);
    ASSERT_EQ(utilisateur.messages.size(), 1u);
    EXPECT_NE(utilisateur.messages[0].texte.find("plus de 50"), std::string::npos);
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    EXPECT_EQ(Contenu(), biblio.substr(0, 50 * kTailleEnrGraph));
    // Exactly 50 is not too many; a code has no room left.
    LireFichierGraph(ctx);
    EXPECT_EQ(utilisateur.messages.size(), 1u);
    EXPECT_EQ(AjouterCodeAuFichier(ctx, "Trop;1;"), 0);
    EXPECT_EQ(utilisateur.messages.size(), 2u);
    EXPECT_EQ(Contenu().size(), 50 * kTailleEnrGraph);
}

TEST_F(FichierGraphTest, LesJumeauxSontNumerotesALEnregistrement) {
    const char* titres[] = {"Budget", "Marge", " Budget", "Budget  ", "Marge", "Budget2"};
    eg.nbGraphes = 6;
    for (std::size_t i = 0; i < 6; ++i) eg.graphes[i + 1].titre = ChampFixe(titres[i], 60);
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    LireFichierGraph(ctx);
    std::vector<Texte> lus;
    for (std::size_t i = 1; i <= 6; ++i) lus.push_back(Rogner(eg.graphes[i].titre));
    // The renamed third twin meets the sixth record afterwards: that one becomes Budget22.
    EXPECT_EQ(lus,
              (std::vector<Texte>{"Budget", "Marge", "Budget2", "Budget3", "Marge2", "Budget22"}));
}

TEST_F(FichierGraphTest, UnCodeRecupereDevientLeDernierGraphe) {
    ASSERT_EQ(AjouterCodeAuFichier(ctx, "gph(Marge;9;1;0;0;;)"), 1);
    ASSERT_EQ(AjouterCodeAuFichier(ctx, Texte(kPrefixeRecupere) + "Marge;2;0;0;"), 2);
    LireFichierGraph(ctx);
    ASSERT_EQ(eg.nbGraphes, 2);
    EXPECT_EQ(eg.graphes[1].typeGraph, 9);
    EXPECT_EQ(Rogner(eg.graphes[2].titre), "Récupéré: Marge");
    EXPECT_EQ(eg.graphes[2].espaceSeries, 5); // a new graph's default where the code is silent
}

} // namespace
} // namespace verdane
