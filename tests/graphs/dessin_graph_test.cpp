// A graph model drawn on a chart: the settings each kind of chart receives.

#include "OutilsTestsGraph.h"
#include "SurfaceEnregistree.h"

#include "data/FormatNombre.h"
#include "graphs/DessinGraphique.h"
#include "graphs/ValeursSerie.h"
#include "utils/Binaire.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>

namespace verdane {
namespace {

using test::GrapheComplet;
using test::SurfaceEnregistree;
using test::UtilisateurNote;

using Journal = std::vector<std::string>;

class DessinTest : public ::testing::Test {
protected:
    UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    SurfaceEnregistree apercu;
    SurfaceEnregistree insertion;
    std::vector<double> tirages{0.5};
    std::size_t tire = 0;

    void SetUp() override {
        auto& eg = ctx.etat.graphes;
        eg.graphCourant = &apercu;
        eg.graphInsertion = &insertion;
        eg.avecArguments = true; // the dossier's values unless a test says otherwise
        eg.hasard = [this] { return tirages[tire++ % tirages.size()]; };
        ctx.etat.nbAnEtude = 3;
        ctx.etat.anneeDebut = 2024;
    }
    ModeleGraph& Graphe(int i) { return ctx.etat.graphes.graphes[static_cast<std::size_t>(i)]; }
    void Dessiner(std::int16_t index, bool pourDocument = false) {
        DessinerGraphique(ctx, index, pourDocument);
    }
};

TEST_F(DessinTest, UnGraphiqueABarresRecoitSesReglagesDansLOrdre) {
    ModeleGraph& g = Graphe(3);
    g = GrapheComplet();
    g.typeGraph = 2;
    g.nbSeries = 2;
    g.series[0].brosse = 2;
    g.series[1].brosse = 7; // not a brush: the style stays as it stood
    g.series[0].nomSerie = ChampFixe("  Produits", kLargeurNomSerie);
    Dessiner(3);

    const Journal debut(apercu.journal.begin(), apercu.journal.begin() + 13);
    EXPECT_EQ(debut,
              (Journal{"TypeGraphique=1", "Titre=Marge brute", "Note=Produits et charges en €",
                       "PoliceTitre=Arial", "TailleTitre=22", "PoliceNote=Arial",
                       "NombreColonnes=2", "NombreLignes=3", "PoliceLegende=Arial",
                       "AfficherLegende=oui", "Empilement=oui", "Colonne=1", "StyleBrosse 1=3"}));
    EXPECT_EQ(apercu.Entrees("StyleBrosse"), Journal{"StyleBrosse 1=3"});
    EXPECT_EQ(apercu.Entrees("EpaisseurTrait"),
              (Journal{"EpaisseurTrait 1=2", "EpaisseurTrait 2=3"}));
    EXPECT_EQ(apercu.Entrees("CouleurRemplissage 2"), Journal{"CouleurRemplissage 2=11,22,33"});
    EXPECT_EQ(apercu.Entrees("CouleurBord 2"), Journal{"CouleurBord 2=0,0,0"});
    EXPECT_EQ(apercu.Entrees("CouleurTrait 1"), Journal{"CouleurTrait 1=1,2,3"});
    EXPECT_EQ(apercu.libellesColonnes[1], "Produits");
    EXPECT_EQ(apercu.Entrees("AxeSecondaire"),
              (Journal{"AxeSecondaire 1=non", "AxeSecondaire 2=non"}));
    EXPECT_EQ(apercu.Nombre("TypeSerie"), 0); // not a combination chart

    // One row a year, labelled with the calendar year, for each series.
    EXPECT_EQ(apercu.donnees.size(), 6u);
    EXPECT_EQ(apercu.libellesLignes,
              (std::map<int, std::string>{{1, "2024"}, {2, "2025"}, {3, "2026"}}));
    // The series' settings come between its Column and the next one.
    EXPECT_LT(apercu.Position("LibelleColonne=Charges"), apercu.Position("AxeSecondaire 2"));
    EXPECT_LT(apercu.Position("Colonne=2"), apercu.Position("LibelleColonne=Charges"));

    const Journal fin(apercu.journal.end() - 35, apercu.journal.end());
    EXPECT_EQ(fin,
              (Journal{"RetourTitre=non", "RetourLegende=non", "OrientationTitre=2",
                       "OrientationNote=3", "SeriesEnLignes=oui", "EspaceX=-3", "EspaceBarres=7",
                       "EspaceZ=300", "PoliceAxe 0=Arial", "PoliceAxe 1=Arial", "PoliceAxe 2=Arial",
                       "PoliceAxe 3=Arial", "TitreAxe 0=Axe 0", "TitreAxe 1=Axe 1",
                       "TitreAxe 2=Axe 2", "TitreAxe 3=Axe 3", "AxesUniformes=non", "TailleAxe 0=9",
                       "EpaisseurAxe 0=20", "TailleAxe 1=10", "EpaisseurAxe 1=21", "TailleAxe 2=11",
                       "EpaisseurAxe 2=22", "TailleAxe 3=12", "EpaisseurAxe 3=23", "Redessiner",
                       // The stored geometry follows the repaint.
                       "TypeEmplacement Titre=8", "Rectangle Titre=0.125,1234.5,-7.75,99",
                       "RectanglePlot=10.1,2000.3,15.7,1500.9", "TypeEmplacement Legende=8",
                       "Rectangle Legende=0.001,3e+07,0,0.333333", "TypeEmplacement Note=8",
                       "Rectangle Note=-1.5,2.5,3.25,4", "Rotation=30.5", "Elevation=-12.25"}));
    EXPECT_EQ(ctx.etat.graphes.grapheCourant, 3);
}

TEST_F(DessinTest, SecteursXYEtGenresInconnus) {
    const std::pair<int, int> cas[] = {{1, 0},  {9, 8},   {10, 9},  {11, 14},   {12, 16},
                                       {0, 16}, {13, 16}, {-2, 16}, {32767, 16}};
    for (const auto& [typeGraph, chartType] : cas) {
        Graphe(1).typeGraph = static_cast<std::int16_t>(typeGraph);
        apercu.journal.clear();
        Dessiner(1);
        EXPECT_EQ(apercu.journal.front(), "TypeGraphique=" + std::to_string(chartType))
            << typeGraph;
    }
}

TEST_F(DessinTest, UneCombinaisonPoseLeTypeDeChaqueSerieEtLeSecondAxe) {
    ModeleGraph& g = Graphe(1);
    g = GrapheComplet();
    g.nbSeries = 5;
    const std::int16_t types[] = {1, 2, 3, 4, 0};
    for (std::size_t i = 0; i < 5; ++i) {
        g.series[i].typeSerie = types[i];
        g.series[i].rouge = 1; // no colour to draw
    }
    g.series[3].axeY2 = 1;
    g.series[4].axeY2 = 2; // only 1 means the second axis

    g.typeGraph = 10;
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("TypeSerie"),
              (Journal{"TypeSerie 1=1", "TypeSerie 2=6", "TypeSerie 3=8", "TypeSerie 4=10",
                       "TypeSerie 5=10"}));
    EXPECT_EQ(apercu.Entrees("AxeSecondaire"),
              (Journal{"AxeSecondaire 1=non", "AxeSecondaire 2=non", "AxeSecondaire 3=oui",
                       "AxeSecondaire 4=oui", "AxeSecondaire 5=non"}));
    // The kind of a series is set once the series is complete.
    EXPECT_LT(apercu.Position("AxeSecondaire 4"), apercu.Position("TypeSerie 4"));
    EXPECT_LT(apercu.Position("TypeSerie 4"), apercu.Position("Colonne=5"));

    apercu.journal.clear();
    g.typeGraph = 9;
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("TypeSerie"),
              (Journal{"TypeSerie 1=0", "TypeSerie 2=5", "TypeSerie 3=7", "TypeSerie 4=9",
                       "TypeSerie 5=9"}));
}

TEST_F(DessinTest, UnGraphiqueEn3DRecoitSaVueEtSesBoites) {
    ModeleGraph& g = Graphe(1);
    g.typeGraph = 1;
    g.rectPlot = {1, 2, 3, 4};
    g.rectTitre = {std::numeric_limits<float>::quiet_NaN(), 5, 6, 7};
    g.rotation = std::numeric_limits<float>::infinity();
    g.elevation = 25;
    Dessiner(1);
    EXPECT_EQ(apercu.journal.front(), "TypeGraphique=0");
    EXPECT_EQ(apercu.Rectangle(BoiteGraphique::Titre).minX, 0.0f);
    EXPECT_EQ(apercu.RectanglePlot().maxY, 4.0f);
    EXPECT_EQ(apercu.Rotation(), 0.0f);
    EXPECT_EQ(apercu.Elevation(), 25.0f);
}

TEST_F(DessinTest, SansZoneDeTraceeAucunePositionNEstAppliquee) {
    ModeleGraph& g = Graphe(1);
    g.rectTitre = {1, 2, 3, 4};
    g.rotation = 40;
    g.rectPlot = {0, 0, 0, std::numeric_limits<float>::quiet_NaN()};
    Dessiner(1);
    EXPECT_EQ(apercu.journal.back(), "Redessiner");

    // Nor without a selected graph.
    apercu.journal.clear();
    g.rectPlot = {1, 1, 1, 1};
    ctx.etat.graphes.grapheCourant = 0;
    PositionnerGraph(ctx);
    EXPECT_TRUE(apercu.journal.empty());
    ctx.etat.graphes.grapheCourant = 1;
    PositionnerGraph(ctx);
    EXPECT_EQ(apercu.Nombre("TypeEmplacement"), 3);
}

TEST_F(DessinTest, UneSerieSansCouleurEnTireUneEtLaGarde) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 2;
    g.series[1].bleu = 5; // a colour: kept
    tirages = {0.0, 0.5, 0.99999};
    Dessiner(1);
    EXPECT_EQ(g.series[0].rouge, 100);
    EXPECT_EQ(g.series[0].vert, 227);
    EXPECT_EQ(g.series[0].bleu, 354); // beyond 255, on purpose
    EXPECT_EQ(apercu.CouleurRemplissage(1), (CouleurGraphique{100, 227, 354}));
    EXPECT_EQ(apercu.CouleurTrait(1), (CouleurGraphique{100, 227, 354}));
    EXPECT_EQ(g.series[1].rouge, 0);
    EXPECT_EQ(g.series[1].bleu, 5);
    EXPECT_EQ(tire, 3u);
    // Drawn again: the colour stays.
    Dessiner(1);
    EXPECT_EQ(tire, 3u);

    // A source that misbehaves can't take a component out of its range.
    g.series[0].rouge = g.series[0].vert = g.series[0].bleu = 0;
    tirages = {1e9, -4, std::nan("")};
    Dessiner(1);
    EXPECT_EQ(apercu.CouleurTrait(1), (CouleurGraphique{354, 100, 100}));
}

TEST_F(DessinTest, LApercuSansDossierMontreDesValeursExemples) {
    ctx.etat.graphes.avecArguments = false;
    Graphe(1).nbSeries = 1;
    Dessiner(1);
    ASSERT_EQ(apercu.donnees.size(), 3u);
    EXPECT_DOUBLE_EQ(apercu.donnees[std::make_pair(1, 1)], (std::sin(1.0) + 6.28) * 1000);
    EXPECT_DOUBLE_EQ(apercu.donnees[std::make_pair(1, 3)], (std::sin(3.0) + 6.28) * 1000);
    EXPECT_EQ(apercu.libellesLignes[3], "2026");

    // A document never shows sample values, and it is drawn on its own chart.
    apercu.journal.clear();
    Dessiner(1, true);
    EXPECT_TRUE(apercu.journal.empty());
    EXPECT_EQ(ctx.etat.graphes.graphCourant, &insertion);
    EXPECT_EQ(insertion.donnees[std::make_pair(1, 1)], 0.0);
}

TEST_F(DessinTest, LeNombreDeLignesSuitLesAnneesEtNeResteJamaisNul) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 3;
    ctx.etat.nbAnEtude = 0;
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("NombreLignes"), (Journal{"NombreLignes=0", "NombreLignes=3"}));
    EXPECT_EQ(apercu.libellesLignes.size(), 3u);

    // Two years: the first year and the next.
    apercu = SurfaceEnregistree{};
    ctx.etat.nbAnEtude = 2;
    Dessiner(1);
    EXPECT_EQ(apercu.libellesLignes, (std::map<int, std::string>{{1, "2024"}, {2, "2025"}}));

    // A series holds 13 study years at most; a count beyond draws those 13.
    apercu = SurfaceEnregistree{};
    ctx.etat.nbAnEtude = 400;
    Dessiner(1);
    EXPECT_EQ(apercu.NombreLignes(), 13);
    EXPECT_EQ(apercu.donnees.size(), 39u);

    // No series and no years: an empty grid, and nothing else about series.
    apercu = SurfaceEnregistree{};
    g.nbSeries = 0;
    ctx.etat.nbAnEtude = 0;
    Dessiner(1);
    EXPECT_EQ(apercu.NombreLignes(), 0);
    EXPECT_EQ(apercu.Nombre("Colonne"), 0);
}

TEST_F(DessinTest, UnNombreDeSeriesHorsLimitesNeDessineQueCeQuiExiste) {
    for (std::int16_t n : {std::int16_t{-5}, std::int16_t{11}, std::int16_t{32767}}) {
        apercu = SurfaceEnregistree{};
        Graphe(1).nbSeries = n;
        Dessiner(1);
        EXPECT_EQ(apercu.NombreColonnes(), n < 0 ? 0 : 10) << n;
        EXPECT_EQ(apercu.Nombre("Colonne="), n < 0 ? 0 : 10) << n;
    }
}

TEST_F(DessinTest, LesValeursQueLeGraphiqueRefuseraitNeSontPasPosees) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 1;
    g.tailleTitre = 0;
    g.orientTitre = 0;
    g.orientNote = 5;
    g.axes[0].tailleAxe = -3;
    g.axes[1].tailleAxe = 30000;
    g.axes[2].epaisseurAxe = -1;
    g.axes[3].epaisseurAxe = 32000;
    g.series[0].epaisseur = -7;
    Dessiner(1);
    EXPECT_EQ(apercu.Nombre("TailleTitre"), 0);
    EXPECT_EQ(apercu.Nombre("Orientation"), 0);
    EXPECT_EQ(apercu.Entrees("TailleAxe"),
              (Journal{"TailleAxe 1=100", "TailleAxe 2=12", "TailleAxe 3=12"}));
    EXPECT_EQ(apercu.Entrees("EpaisseurAxe"),
              (Journal{"EpaisseurAxe 0=30", "EpaisseurAxe 1=30", "EpaisseurAxe 3=1000"}));
    EXPECT_EQ(apercu.Nombre("EpaisseurTrait"), 0);
}

TEST_F(DessinTest, LIndexZeroDevientUnEtLesIndexHorsBibliothequeNeDessinentRien) {
    std::int16_t index = 0;
    DessinerGraphique(ctx, index, false);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(ctx.etat.graphes.grapheCourant, 1);

    apercu.journal.clear();
    for (std::int16_t i : {std::int16_t{51}, std::int16_t{-1}}) DessinerGraphique(ctx, i, false);
    EXPECT_TRUE(apercu.journal.empty());

    ctx.etat.graphes.graphCourant = nullptr;
    index = 2;
    DessinerGraphique(ctx, index, false);
    PoserTypeSerie(ctx, 1);
    PositionnerGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.grapheCourant, 1);
}

// The values of a series, read from a data file of the dossier.
class ValeursSerieTest : public DessinTest {
protected:
    test::DossierTemporaire dossier;

    void SetUp() override {
        DessinTest::SetUp();
        ctx.etat.RepDossier[0] = dossier.Dossier();
        ctx.etat.NomDossier[0] = "FERME";
        std::filesystem::create_directories(dossier.Chemin() / "FERME");
        EcrivainBinaire e;
        const char* codes[] = {"AUTRE:0", "LAIT:1", "LAIT:1"};
        for (int n = 0; n < 3; ++n) {
            e.Chaine(codes[n], 12);
            e.Chaine("Libellé", 22);
            for (int k = 0; k < 14; ++k) e.F32(static_cast<float>(100 * (n + 1) + k));
        }
        std::ofstream(dossier.Chemin() / "FERME" / "DONNEES.DON", std::ios::binary) << e.Octets();
    }
    static bool LecteurEnPlace() { return !FormatNombre(1.0f, 0, false).empty(); }
};

TEST_F(ValeursSerieTest, LePremierEnregistrementDuCodeDonneLesValeurs) {
    if (!LecteurEnPlace()) GTEST_SKIP() << "series reader not in place";
    LireValeursSerie(ctx, " donnees.don ", " LAIT:1 ");
    EXPECT_EQ(ctx.etat.graphes.valeursSerie[0], 200.0f);
    EXPECT_EQ(ctx.etat.graphes.valeursSerie[13], 213.0f);

    // Drawn: row 1 is index 1, not the year before the study.
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 1;
    g.series[0].fichierSerie = ChampFixe(" DONNEES.DON", 12);
    g.series[0].codeSerie = ChampFixe("LAIT:1", 12);
    Dessiner(1, true);
    EXPECT_EQ(insertion.donnees[std::make_pair(1, 1)], 201.0);
    EXPECT_EQ(insertion.donnees[std::make_pair(1, 3)], 203.0);
    EXPECT_EQ(g.series[0].fichierSerie, ChampFixe("DONNEES.DON", 12)); // stored back trimmed
}

TEST(EnregistrementDuCode, LePremierCodeEgalApresRognageEstRetenu) {
    EcrivainBinaire e;
    for (const char* code : {"LAIT", " LAIT:1", "LAIT:1", "VIANDE:0"}) {
        e.Chaine(code, 12);
        e.Completer(e.Octets().size() + 78);
    }
    const std::string octets = e.Octets() + "TAIL";
    EXPECT_EQ(EnregistrementDuCode(octets, "LAIT:1"), 2u);
    EXPECT_EQ(EnregistrementDuCode(octets, "VIANDE:0"), 4u);
    EXPECT_EQ(EnregistrementDuCode(octets, "TAIL"), 5u); // a last record cut short still counts
    EXPECT_EQ(EnregistrementDuCode(octets, "LAIT:"), 0u);
    EXPECT_EQ(EnregistrementDuCode("", "LAIT"), 0u);
}

TEST_F(ValeursSerieTest, UnCodeOuUnFichierInconnuDonneUneLigneNulle) {
    if (!LecteurEnPlace()) GTEST_SKIP() << "series reader not in place";
    ctx.etat.graphes.valeursSerie.fill(7.0f);
    LireValeursSerie(ctx, "DONNEES.DON", "LAIT");
    EXPECT_EQ(ctx.etat.graphes.valeursSerie, (std::array<float, 14>{}));
    ctx.etat.graphes.valeursSerie.fill(7.0f);
    LireValeursSerie(ctx, "ABSENT.DON", "LAIT:1");
    EXPECT_EQ(ctx.etat.graphes.valeursSerie, (std::array<float, 14>{}));
    ctx.etat.graphes.valeursSerie.fill(7.0f);
    ctx.etat.NomDossier[0] = "";
    LireValeursSerie(ctx, "DONNEES.DON", "LAIT:1");
    EXPECT_EQ(ctx.etat.graphes.valeursSerie, (std::array<float, 14>{}));
    EXPECT_TRUE(utilisateur.messages.empty());
}

} // namespace
} // namespace verdane
