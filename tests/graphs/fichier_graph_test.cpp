// The record of graph.txt and the library file.

#include "OutilsTestsGraph.h"

#include "graphs/FichierGraph.h"
#include "utils/Binaire.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace verdane {
namespace {

using test::DossierTemporaire;
using test::GrapheComplet;
using test::UtilisateurNote;

std::string OctetsAuHasard(std::size_t n, unsigned graine) {
    std::mt19937 g(graine);
    std::string o(n, '\0');
    for (auto& c : o) c = static_cast<char>(g() & 0xFF);
    return o;
}

void EcrireBrut(const std::filesystem::path& p, const std::string& octets) {
    std::ofstream f(p, std::ios::binary);
    f << octets;
}

TEST(EnrGraph, ChaqueChampALaPlaceDuFichier) {
    ModeleGraph g = GrapheComplet();
    g.series[1].nomSerie = ChampFixe("Deuxième", kLargeurNomSerie);
    g.series[9].brosse = 2;
    g.axes[3].epaisseurAxe = 77;
    const std::string o = EcrireEnrGraph(g);
    ASSERT_EQ(o.size(), kTailleEnrGraph);

    LecteurBinaire l(o);
    auto i16 = [&](std::size_t p) {
        l.Placer(p);
        return l.I16();
    };
    auto f32 = [&](std::size_t p) {
        l.Placer(p);
        return l.F32();
    };
    EXPECT_EQ(o.substr(2, 11), "Marge brute");
    EXPECT_EQ(i16(62), 10);
    EXPECT_EQ(i16(64), 1);
    EXPECT_EQ(i16(66), 3);
    EXPECT_EQ(i16(68), -1);
    EXPECT_EQ(o.substr(70, 24), "Produits et charges en €");
    EXPECT_EQ(o.substr(170, 5), "CODE1");
    EXPECT_EQ(o.substr(170 + 76 + 12, 8), "Deuxième");
    EXPECT_EQ(o.substr(170 + 36, 11), "DONNEES.DON");
    EXPECT_EQ(i16(170 + 2 * 76 + 48), 1);  // axeY2 of series 3
    EXPECT_EQ(i16(170 + 2 * 76 + 54), 63); // bleu of series 3
    EXPECT_EQ(i16(170 + 9 * 76 + 58), 2);  // brosse of series 10
    EXPECT_EQ(i16(930), 1);
    EXPECT_EQ(i16(936), 300);
    EXPECT_EQ(f32(938), 0.125f);
    EXPECT_EQ(f32(954), 10.1f);
    EXPECT_EQ(f32(986 + 12), 4.0f);
    EXPECT_EQ(f32(1002), 30.5f);
    EXPECT_EQ(f32(1006), -12.25f);
    EXPECT_EQ(i16(1012), 3);
    EXPECT_EQ(i16(1018), 4);
    EXPECT_EQ(o.substr(1066, 5), "Axe 1");
    EXPECT_EQ(i16(1154 + 42), 77);
    EXPECT_EQ(i16(1198), 22);
    EXPECT_EQ(o.substr(1200, 18), std::string(18, ' '));
    EXPECT_EQ(o.substr(1218, 6), std::string(6, '\0'));
}

TEST(EnrGraph, UnNouveauGraphePorteLesValeursParDefaut) {
    const ModeleGraph g;
    EXPECT_EQ(g.titre, ChampFixe("Sans titre", 60));
    EXPECT_EQ(g.typeGraph, 4);
    EXPECT_EQ(g.espaceAnnees, 2);
    EXPECT_EQ(g.espaceSeries, 5);
    EXPECT_EQ(g.retourTitre, 1);
    EXPECT_EQ(g.orientNote, 1);
    EXPECT_EQ(g.axes[2].tailleAxe, 12);
    EXPECT_EQ(g.axes[2].epaisseurAxe, 30);
    EXPECT_EQ(g.tailleTitre, 16);
    EXPECT_EQ(LireEnrGraph(EcrireEnrGraph(g)).titre, g.titre);
}

TEST(EnrGraph, DesOctetsQuelconquesRepartentTelsQuels) {
    // NaN, infinities, zero bytes in texts, reserved fields: all travel with the record.
    for (unsigned graine = 1; graine <= 20; ++graine) {
        const std::string o = OctetsAuHasard(kTailleEnrGraph, graine);
        EXPECT_EQ(EcrireEnrGraph(LireEnrGraph(o)), o) << graine;
    }
}

TEST(EnrGraph, UnEnregistrementTronqueSeLitSansFaute) {
    const ModeleGraph g = LireEnrGraph(std::string(50, 'x'));
    EXPECT_EQ(g.nbSeries, 0);
    EXPECT_EQ(EcrireEnrGraph(g).size(), kTailleEnrGraph);
}

class FichierGraphTest : public ::testing::Test {
protected:
    DossierTemporaire dossier;
    UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};

    std::filesystem::path Fichier() const { return dossier.Chemin() / "ModelGraph" / "graph.txt"; }
    void SetUp() override { ctx.etat.chemins.RepModelGraph = dossier.Dossier() + "ModelGraph/"; }
    std::string Contenu() const { return LireFichier(CheminTexte(Fichier())).value_or("?"); }
    // Records of random bytes with titles of their own.
    std::string Bibliotheque(int n) const {
        std::string o;
        for (int i = 0; i < n; ++i) {
            std::string r = OctetsAuHasard(kTailleEnrGraph, static_cast<unsigned>(100 + i));
            r.replace(2, 60, ChampFixe("Graphe " + std::to_string(i), 60));
            o += r;
        }
        return o;
    }
};

TEST_F(FichierGraphTest, SansDossierNiFichierLaBibliothequeNaitVide) {
    ctx.etat.graphes.nbGraphes = 7;
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 0);
    EXPECT_TRUE(std::filesystem::exists(Fichier()));
    EXPECT_EQ(std::filesystem::file_size(Fichier()), 0u);
    EXPECT_TRUE(utilisateur.boites.empty());
}

TEST_F(FichierGraphTest, LuPuisEcritLeFichierResteIdentiqueEtPerdSaQueue) {
    std::filesystem::create_directories(Fichier().parent_path());
    const std::string biblio = Bibliotheque(3);
    EcrireBrut(Fichier(), biblio + std::string(1000, 'z'));
    LireFichierGraph(ctx);
    ASSERT_EQ(ctx.etat.graphes.nbGraphes, 3);
    EXPECT_EQ(Rogner(ctx.etat.graphes.graphes[2].titre), "Graphe 1");
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    EXPECT_EQ(Contenu(), biblio);
}

TEST_F(FichierGraphTest, AuDelaDeCinquanteLesPremiersSontGardesEtLUtilisateurPrevenu) {
    std::filesystem::create_directories(Fichier().parent_path());
    const std::string biblio = Bibliotheque(52);
    EcrireBrut(Fichier(), biblio);
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 50);
    ASSERT_EQ(utilisateur.boites.size(), 1u);
    EXPECT_NE(utilisateur.boites[0].find("plus de 50"), std::string::npos);
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    EXPECT_EQ(Contenu(), biblio.substr(0, 50 * kTailleEnrGraph));

    // Exactly 50 is not too many.
    utilisateur.boites.clear();
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 50);
    EXPECT_TRUE(utilisateur.boites.empty());
}

TEST_F(FichierGraphTest, LesJumeauxSontNumerotesALEnregistrement) {
    auto& eg = ctx.etat.graphes;
    const char* titres[] = {"Budget", "Marge", " Budget", "Budget  ", "Marge", "Budget2"};
    eg.nbGraphes = 6;
    for (int i = 0; i < 6; ++i)
        eg.graphes[static_cast<std::size_t>(i + 1)].titre = ChampFixe(titres[i], 60);
    ASSERT_TRUE(EcrireFichierGraph(ctx));
    LireFichierGraph(ctx);
    std::vector<Texte> lus;
    for (int i = 1; i <= eg.nbGraphes; ++i)
        lus.push_back(Rogner(eg.graphes[static_cast<std::size_t>(i)].titre));
    // The renamed third twin meets the sixth record afterwards: that one becomes Budget22.
    EXPECT_EQ(lus,
              (std::vector<Texte>{"Budget", "Marge", "Budget2", "Budget3", "Marge2", "Budget22"}));
}

TEST(NormaliserNoms, UnTitrePleinPerdSonNumero) {
    EtatGraphes eg;
    eg.nbGraphes = 2;
    eg.graphes[1].titre = ChampFixe(std::string(60, 'A'), 60);
    eg.graphes[2].titre = eg.graphes[1].titre;
    NormaliserNoms(eg);
    EXPECT_EQ(eg.graphes[2].titre, std::string(60, 'A'));
}

TEST_F(FichierGraphTest, UnCodeRecupereDevientLeDernierGraphe) {
    auto& eg = ctx.etat.graphes;
    ASSERT_EQ(AjouterCodeAuFichier(ctx, "gph(Marge;9;1;0;0;;)"), 1);
    const int index = AjouterCodeAuFichier(ctx, Texte(kPrefixeRecupere) + "Marge;2;0;0;");
    ASSERT_EQ(index, 2);
    LireFichierGraph(ctx);
    ASSERT_EQ(eg.nbGraphes, 2);
    EXPECT_EQ(eg.graphes[1].typeGraph, 9);
    EXPECT_EQ(Rogner(eg.graphes[2].titre), "Récupéré: Marge");
    EXPECT_EQ(eg.graphes[2].typeGraph, 2);
    EXPECT_EQ(eg.graphes[2].espaceSeries, 5); // a new graph's default where the code says nothing
}

TEST_F(FichierGraphTest, UneBibliothequePleineRefuseLeCode) {
    std::filesystem::create_directories(Fichier().parent_path());
    EcrireBrut(Fichier(), Bibliotheque(50));
    EXPECT_EQ(AjouterCodeAuFichier(ctx, "Trop;1;"), 0);
    EXPECT_EQ(utilisateur.boites.size(), 1u);
    EXPECT_EQ(std::filesystem::file_size(Fichier()), 50 * kTailleEnrGraph);
}

TEST(FichierGraph, SansDossierDesModelesRienNEstTouche) {
    UtilisateurNote u;
    Contexte ctx{u};
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 0);
    EXPECT_FALSE(EcrireFichierGraph(ctx));
}

TEST(ChargerGraphes, LesLongueursQuelconquesDonnentLeQuotientEntier) {
    EtatGraphes eg;
    EXPECT_EQ(ChargerGraphes(eg, std::string(kTailleEnrGraph - 1, 'a')), 0);
    EXPECT_EQ(eg.nbGraphes, 0);
    EXPECT_EQ(ChargerGraphes(eg, std::string(2 * kTailleEnrGraph + 5, 'a')), 2);
    EXPECT_EQ(eg.nbGraphes, 2);
    EXPECT_EQ(OctetsGraphes(eg), std::string(2 * kTailleEnrGraph, 'a'));
}

} // namespace
} // namespace verdane
