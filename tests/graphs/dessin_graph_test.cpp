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

using test::SurfaceEnregistree;
using Journal = std::vector<std::string>;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

class DessinTest : public ::testing::Test {
protected:
    test::UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    SurfaceEnregistree apercu, insertion;
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
        apercu.journal.clear();
        DessinerGraphique(ctx, index, pourDocument);
    }
    Journal Tranche(std::size_t debut, std::size_t fin) const {
        return Journal(apercu.journal.begin() + static_cast<long>(debut),
                       apercu.journal.begin() + static_cast<long>(fin));
    }
};

TEST_F(DessinTest, UnGraphiqueABarresRecoitSesReglagesDansLOrdre) {
    ModeleGraph& g = Graphe(3);
    g = test::GrapheComplet();
    g.typeGraph = 2;
    g.nbSeries = 2;
    g.series[0].brosse = 2;
    g.series[1].brosse = 7; // not a brush: the style stays as it stood
    Dessiner(3);
    const auto& j = apercu.journal;

    EXPECT_EQ(Tranche(0, 11),
              (Journal{"TypeGraphique=1", "Titre=Marge brute", "Note=Produits et charges en €",
                       "PoliceTitre=Arial", "TailleTitre=22", "PoliceNote=Arial",
                       "NombreColonnes=2", "NombreLignes=3", "PoliceLegende=Arial",
                       "AfficherLegende=oui", "Empilement=oui"}));
    // One series: its look, then one row a year labelled with the calendar year.
    EXPECT_EQ(Tranche(11, apercu.Position("Colonne=2")),
              (Journal{"Colonne=1", "StyleBrosse 1=3", "EpaisseurTrait 1=2", "Remplissage 1=1,2,3",
                       "Bord 1=0,0,0", "CouleurTrait 1=1,2,3", "LibelleColonne=Produits", "Ligne=1",
                       "Donnee=0", "LibelleLigne=2024", "Ligne=2", "Donnee=0", "LibelleLigne=2025",
                       "Ligne=3", "Donnee=0", "LibelleLigne=2026", "AxeSecondaire 1=non"}));
    EXPECT_EQ(apercu.Entrees("StyleBrosse"), Journal{"StyleBrosse 1=3"});
    EXPECT_TRUE(apercu.Entrees("TypeSerie").empty()); // not a combination chart

    EXPECT_EQ(Tranche(apercu.Position("RetourTitre"), j.size()),
              (Journal{"RetourTitre=non", "RetourLegende=non", "OrientationTitre=2",
                       "OrientationNote=3", "SeriesEnLignes=oui", "EspaceX=-3", "EspaceBarres=7",
                       "EspaceZ=300", "PoliceAxe 0=Arial", "PoliceAxe 1=Arial", "PoliceAxe 2=Arial",
                       "PoliceAxe 3=Arial", "TitreAxe 0=Axe 0", "TitreAxe 1=Axe 1",
                       "TitreAxe 2=Axe 2", "TitreAxe 3=Axe 3", "AxesUniformes=non", "TailleAxe 0=9",
                       "EpaisseurAxe 0=20", "TailleAxe 1=10", "EpaisseurAxe 1=21", "TailleAxe 2=11",
                       "EpaisseurAxe 2=22", "TailleAxe 3=12", "EpaisseurAxe 3=23", "Redessiner",
                       // The stored geometry follows the repaint.
                       "Emplacement 0=8", "Rect 0=0.125,1234.5,-7.75,99",
                       "RectanglePlot=10.1,2000.3,15.7,1500.9", "Emplacement 1=8",
                       "Rect 1=0.001,3e+07,0,0.333333", "Emplacement 2=8", "Rect 2=-1.5,2.5,3.25,4",
                       "Rotation=30.5", "Elevation=-12.25"}));
    EXPECT_EQ(ctx.etat.graphes.grapheCourant, 3);
}

TEST_F(DessinTest, SecteursXYEtGenresInconnus) {
    const std::pair<int, int> cas[] = {{1, 0},  {9, 8},   {10, 9},  {11, 14},   {12, 16},
                                       {0, 16}, {13, 16}, {-2, 16}, {32767, 16}};
    for (const auto& [typeGraph, chartType] : cas) {
        Graphe(1).typeGraph = static_cast<std::int16_t>(typeGraph);
        Dessiner(1);
        EXPECT_EQ(apercu.journal.front(), "TypeGraphique=" + std::to_string(chartType));
    }
}

TEST_F(DessinTest, UneCombinaisonPoseLeTypeDeChaqueSerieEtLeSecondAxe) {
    ModeleGraph& g = Graphe(1);
    g = test::GrapheComplet();
    g.nbSeries = 5;
    const std::int16_t types[] = {1, 2, 3, 4, 0};
    for (std::size_t i = 0; i < 5; ++i) g.series[i].typeSerie = types[i];
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
    EXPECT_EQ(apercu.Position("AxeSecondaire 4") + 1, apercu.Position("TypeSerie 4"));

    g.typeGraph = 9;
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("TypeSerie"),
              (Journal{"TypeSerie 1=0", "TypeSerie 2=5", "TypeSerie 3=7", "TypeSerie 4=9",
                       "TypeSerie 5=9"}));
}

TEST_F(DessinTest, LaGeometrieNeSAppliqueQuAvecUneZoneDeTrace) {
    ModeleGraph& g = Graphe(1);
    g.typeGraph = 1;
    g.rectPlot = {1, 2, 3, 4};
    g.rectTitre = {kNaN, 5, 6, 7};
    g.rotation = std::numeric_limits<float>::infinity();
    g.elevation = 25;
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("Rect 0"), Journal{"Rect 0=0,5,6,7"});
    EXPECT_EQ(apercu.Entrees("Rotation"), Journal{"Rotation=0"});
    EXPECT_EQ(apercu.journal.back(), "Elevation=25");

    // A plot area all zero, the title box set: nothing at all is placed.
    g.rectPlot = {0, 0, 0, kNaN};
    Dessiner(1);
    EXPECT_EQ(apercu.journal.back(), "Redessiner");
    // Nor without a selected graph.
    g.rectPlot = {1, 1, 1, 1};
    ctx.etat.graphes.grapheCourant = 0;
    apercu.journal.clear();
    PositionnerGraph(ctx);
    EXPECT_TRUE(apercu.journal.empty());
}

TEST_F(DessinTest, UneSerieSansCouleurEnTireUneEtLaGarde) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 2;
    g.series[1].bleu = 5; // a colour: kept
    tirages = {0.0, 0.5, 0.99999};
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("CouleurTrait"),
              (Journal{"CouleurTrait 1=100,227,354", "CouleurTrait 2=0,0,5"}));
    EXPECT_EQ(apercu.Entrees("Remplissage 1"), Journal{"Remplissage 1=100,227,354"});
    EXPECT_EQ(g.series[0].bleu, 354); // beyond 255 on purpose, and kept in the record
    Dessiner(1);
    EXPECT_EQ(tire, 3u);

    // A source that misbehaves can't take a component out of its range.
    g.series[0].rouge = g.series[0].vert = g.series[0].bleu = 0;
    tirages = {1e9, -4, std::nan("")};
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("CouleurTrait 1"), Journal{"CouleurTrait 1=354,100,100"});
}

TEST_F(DessinTest, LApercuSansDossierMontreDesValeursExemples) {
    ctx.etat.graphes.avecArguments = false;
    Graphe(1).nbSeries = 1;
    Dessiner(1);
    const Journal donnees = apercu.Entrees("Donnee");
    ASSERT_EQ(donnees.size(), 3u);
    EXPECT_NEAR(std::stod(donnees[0].substr(7)), (std::sin(1.0) + 6.28) * 1000, 0.01);
    EXPECT_NEAR(std::stod(donnees[2].substr(7)), (std::sin(3.0) + 6.28) * 1000, 0.01);
    EXPECT_EQ(apercu.Entrees("LibelleLigne").back(), "LibelleLigne=2026");

    // A document never shows sample values, and it is drawn on its own chart.
    Dessiner(1, true);
    EXPECT_TRUE(apercu.journal.empty());
    EXPECT_EQ(ctx.etat.graphes.graphCourant, &insertion);
    EXPECT_EQ(insertion.Entrees("Donnee").front(), "Donnee=0");
}

TEST_F(DessinTest, LesLignesSuiventLesAnneesEtLesColonnesLesSeries) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 3;
    ctx.etat.nbAnEtude = 0;
    Dessiner(1); // never left without rows while there are series
    EXPECT_EQ(apercu.Entrees("NombreLignes"), (Journal{"NombreLignes=0", "NombreLignes=3"}));
    EXPECT_EQ(apercu.Entrees("LibelleLigne").size(), 9u);

    ctx.etat.nbAnEtude = 400; // a series holds 13 study years
    Dessiner(1);
    EXPECT_EQ(apercu.Entrees("NombreLignes"), Journal{"NombreLignes=13"});

    for (std::int16_t n : {std::int16_t{-5}, std::int16_t{0}, std::int16_t{11}}) {
        g.nbSeries = n;
        ctx.etat.nbAnEtude = 0;
        Dessiner(1);
        const int attendu = n == 11 ? 10 : 0;
        EXPECT_EQ(apercu.Entrees("NombreColonnes"),
                  Journal{"NombreColonnes=" + std::to_string(attendu)});
        EXPECT_EQ(apercu.Entrees("Colonne=").size(), static_cast<std::size_t>(attendu));
    }
}

TEST_F(DessinTest, LesValeursQueLeGraphiqueRefuseraitNeSontPasPosees) {
    ModeleGraph& g = Graphe(1);
    g.nbSeries = 1;
    g.tailleTitre = g.orientTitre = 0;
    g.orientNote = 5;
    g.axes[0].tailleAxe = -3;
    g.axes[1].tailleAxe = 30000;
    g.series[0].epaisseur = -7;
    Dessiner(1);
    for (const char* refuse : {"TailleTitre", "Orientation", "EpaisseurTrait", "TailleAxe 0"})
        EXPECT_TRUE(apercu.Entrees(refuse).empty()) << refuse;
    EXPECT_EQ(apercu.Entrees("TailleAxe 1"), Journal{"TailleAxe 1=100"});

    // Index 0 is 1, in the caller's variable too; an index outside the library draws nothing.
    std::int16_t index = 0;
    DessinerGraphique(ctx, index, false);
    EXPECT_EQ(index, 1);
    Dessiner(51);
    EXPECT_TRUE(apercu.journal.empty());
    ctx.etat.graphes.graphCourant = nullptr; // no chart: nothing, and no fault
    Dessiner(2);
    EXPECT_EQ(ctx.etat.graphes.grapheCourant, 1);
}

TEST(EnregistrementDuCode, LePremierCodeEgalApresRognageEstRetenu) {
    EcrivainBinaire e;
    for (const char* code : {"LAIT", " LAIT:1", "LAIT:1"}) {
        e.Chaine(code, 12);
        e.Completer(e.Octets().size() + 78);
    }
    const std::string octets = e.Octets() + "TAIL";
    EXPECT_EQ(EnregistrementDuCode(octets, "LAIT:1"), 2u);
    EXPECT_EQ(EnregistrementDuCode(octets, "TAIL"), 4u); // a last record cut short counts
    EXPECT_EQ(EnregistrementDuCode(octets, "LAIT:"), 0u);
}

// The values of a series, read from a data file of the dossier.
class ValeursSerieTest : public DessinTest {
protected:
    test::DossierTemporaire dossier;

    void SetUp() override {
        if (FormatNombre(1.0f, 0, false).empty()) GTEST_SKIP() << "series reader not in place";
        DessinTest::SetUp();
        ctx.etat.RepDossier[0] = dossier.Chemin();
        ctx.etat.NomDossier[0] = "FERME";
        std::filesystem::create_directories(dossier.Systeme() / "FERME");
        EcrivainBinaire e;
        for (int n = 0; n < 3; ++n) {
            e.Chaine(n == 0 ? "AUTRE:0" : "LAIT:1", 12);
            e.Chaine("Libellé", 22);
            for (int k = 0; k < 14; ++k) e.F32(static_cast<float>(100 * (n + 1) + k));
        }
        std::ofstream(dossier.Systeme() / "FERME" / "DONNEES.DON", std::ios::binary) << e.Octets();
    }
};

TEST_F(ValeursSerieTest, LePremierEnregistrementDuCodeDonneLesValeurs) {
    LireValeursSerie(ctx, " donnees.don ", " LAIT:1 ");
    EXPECT_EQ(ctx.etat.graphes.valeursSerie[0], 200.0f);
    EXPECT_EQ(ctx.etat.graphes.valeursSerie[13], 213.0f);

    ModeleGraph& g = Graphe(1);
    g.nbSeries = 1;
    g.series[0].fichierSerie = ChampFixe(" DONNEES.DON", 12);
    g.series[0].codeSerie = ChampFixe("LAIT:1", 12);
    Dessiner(1, true);
    // Row 1 is index 1, not the year before the study.
    EXPECT_EQ(insertion.Entrees("Donnee"), (Journal{"Donnee=201", "Donnee=202", "Donnee=203"}));
    EXPECT_EQ(g.series[0].fichierSerie, ChampFixe("DONNEES.DON", 12)); // stored back trimmed

    for (const auto& [fichier, code] : {std::pair<Texte, Texte>{"DONNEES.DON", "LAIT"},
                                        {"ABSENT.DON", "LAIT:1"},
                                        {"DONNEES", "LAIT:1"},
                                        // a damaged name: up to its NUL, the dossier's folder
                                        {Texte("\0DONNEES.DON", 12), "LAIT:1"}}) {
        ctx.etat.graphes.valeursSerie.fill(7.0f);
        LireValeursSerie(ctx, fichier, code);
        EXPECT_EQ(ctx.etat.graphes.valeursSerie, (std::array<float, 14>{})) << fichier << code;
    }
    EXPECT_TRUE(utilisateur.messages.empty());
}

} // namespace
} // namespace verdane
