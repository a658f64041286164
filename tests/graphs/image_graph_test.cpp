// The road of a gph( code to a picture in the document, and the job GRAPH, on a fake chart
// that hands back a small PNG.

#include "Fabrique.h"
#include "graphs/FabriqueSurface.h"
#include "graphs/FichierGraph.h"
#include "graphs/GraphDossier.h"
#include "graphs/ImageGraph.h"
#include "graphs/OutilsTestsGraph.h"
#include "graphs/SurfaceEnregistree.h"
#include "support/InstallationTemporaire.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

// The head of a PNG of 400 by 250 pixels: enough for its size to be read.
std::string PetitPng() {
    std::string o("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x01\x90\0\0\0\xfa\x08\x02\0\0\0", 29);
    return o + std::string(16, '\0');
}

class SurfacePng : public SurfaceEnregistree {
public:
    std::string image = PetitPng();
    std::string CopierImage() override { return image; }
};

class FabriqueFausse : public FabriqueSurface {
public:
    int creees = 0;
    std::unique_ptr<SurfaceGraphique> Creer() override {
        ++creees;
        return std::make_unique<SurfacePng>();
    }
};

// A two-series code as a word processor may leave it: blanks, "_" for the blanks of the
// texts, escaped accents.
const Texte kCode = "Ma_marge_\\'e9t\\'e9;4;1;2;0;Note;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;"
                    "0;0;1;1;1;1;;12;30;;12;30;;12;30;;12;30;16;"
                    "[CODE1;Lait;1;VLVB.don;0;1;2;3;1;1][CODE2;Viande;2;VLVB.don;1;4;5;6;1; 1]";

struct Route : testing::Test {
    DossierTemporaire d;
    UtilisateurNote u;
    Contexte ctx{u};
    SurfacePng surface;

    void SetUp() override {
        ctx.etat.chemins.RepModelGraph = d / "ModelGraph/";
        ctx.etat.graphes.graphInsertion = &surface;
        ctx.etat.nbAnEtude = 3;
    }
};

TEST_F(Route, ACodeBecomesAPictureSixteenCentimetresWideAndLeavesTheWorkFile) {
    const Texte rtf = ImageGraphRtf(ctx, kCode);
    ASSERT_EQ(rtf.rfind("{\\pict\\pngblip", 0), 0u) << rtf.substr(0, 40);
    EXPECT_EQ(rtf.back(), '}');
    EXPECT_NE(rtf.find("\\picwgoal9072"), Texte::npos);
    EXPECT_NE(rtf.find("\\pichgoal5670"), Texte::npos); // in proportion: 9072 * 250 / 400
    // The code was read into record 1 and drawn on the hidden chart.
    EXPECT_EQ(Rogner(ctx.etat.graphes.graphes[1].titre), "Ma marge été");
    EXPECT_EQ(ctx.etat.graphes.graphes[1].series[1].brosse, 1);
    EXPECT_EQ(surface.Entrees("Titre=").at(0), "Titre=Ma marge été");
    EXPECT_EQ(surface.Entrees("Colonne=").size(), 2u);
    EXPECT_EQ(ctx.etat.graphes.graphCourant, &surface);
    EXPECT_EQ(LireFichier(d / "ModelGraph/graphSvg.bmp"), PetitPng());
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(Route, EachCodeOverwritesTheWorkFileAndRecordOne) {
    ctx.etat.graphes.graphes[1].titre = "Ancien";
    EXPECT_EQ(ConstruireImageGraph(ctx, kCode), d / "ModelGraph/graphSvg.bmp");
    surface.image = PetitPng() + "second";
    const Texte second = "Second;2;0;1;0;;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;1;1;1;;12;"
                         "30;;12;30;;12;30;;12;30;16;[C;S;1;F.don;0;9;9;9;1;1]";
    EXPECT_EQ(ConstruireImageGraph(ctx, second), d / "ModelGraph/graphSvg.bmp");
    EXPECT_EQ(LireFichier(d / "ModelGraph/graphSvg.bmp"), surface.image);
    EXPECT_EQ(Rogner(ctx.etat.graphes.graphes[1].titre), "Second");
    EXPECT_EQ(surface.Entrees("TypeGraphique=").back(), "TypeGraphique=1");
}

TEST_F(Route, WithoutWorkFileOrPictureOrChartTheDocumentGoesOn) {
    // No work file: the picture is still made.
    const Texte dossierGraphes = ctx.etat.chemins.RepModelGraph;
    ctx.etat.chemins.RepModelGraph.clear();
    EXPECT_EQ(ConstruireImageGraph(ctx, kCode), "");
    EXPECT_EQ(ImageGraphRtf(ctx, kCode).rfind("{\\pict", 0), 0u);
    ctx.etat.chemins.RepModelGraph = dossierGraphes;
    // No picture from the chart: told, and no work file.
    surface.image.clear();
    EXPECT_EQ(ImageGraphRtf(ctx, kCode), "");
    EXPECT_TRUE(u.ADit("n'a pas pu être dessiné"));
    EXPECT_FALSE(FichierExiste(d / "ModelGraph/graphSvg.bmp"));
    // No chart: told once a run; the platform's maker makes the hidden chart once.
    ctx.etat.graphes.graphInsertion = nullptr;
    EXPECT_EQ(ImageGraphRtf(ctx, kCode), "");
    EXPECT_EQ(ImageGraphRtf(ctx, kCode), "");
    EXPECT_EQ(u.messages.size(), 2u);
    EXPECT_TRUE(u.ADit("pas de moteur de graphiques"));
    FabriqueFausse fabrique;
    ctx.etat.graphes.fabriqueSurface = &fabrique;
    EXPECT_FALSE(ImageGraphRtf(ctx, kCode).empty());
    EXPECT_FALSE(ImageGraphRtf(ctx, kCode).empty());
    EXPECT_EQ(fabrique.creees, 1);
    EXPECT_EQ(u.messages.size(), 2u);
}

TEST_F(Route, BadCodesAreToldAndStillDrawWhatCanBeRead) {
    // A header cut short, a series count out of range, NaN in a real.
    EXPECT_FALSE(ImageGraphRtf(ctx, "Court;4;1").empty());
    EXPECT_FALSE(ImageGraphRtf(ctx, "X;4;1;99;0;;0;0;2;5;NaN;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;"
                                    "1;1;1;;12;30;;12;30;;12;30;;12;30;16;")
                     .empty());
    EXPECT_GE(u.messages.size(), 2u);
}

struct TravailGraph : testing::Test {
    InstallationTemporaire i;
    UtilisateurNote u;
    SurfacePng surface;
    FabriqueFausse fabrique;

    int Executer(Contexte& c, const Texte& ligne) {
        c.etat.graphes.fabriqueSurface = &fabrique;
        return ExecuterProgramme(c, LigneCommande(ligne), i.env);
    }
};

TEST_F(TravailGraph, DrawsTheFirstGraphOfTheLibraryBesideTheDossier) {
    ModeleGraph g = GrapheComplet();
    g.titre = ChampFixe("Premier", kLargeurTitreGraph);
    i.d.Ecrire("Marlo/ModelGraph/graph.txt", EcrireEnrGraph(g) + EcrireEnrGraph(ModeleGraph{}));
    Contexte c(u);
    EXPECT_EQ(Executer(c, "GRAPH " + i.Dossier("DUPONT")), kSortieFaite);
    const Texte image = i.d / "Marlo/Dossiers/DUPONT-graphique.png";
    EXPECT_EQ(LireFichier(image), PetitPng());
    EXPECT_TRUE(u.ADit(image));
    EXPECT_TRUE(u.ADit("\"Premier\""));
    EXPECT_TRUE(c.etat.graphes.avecArguments); // the dossier's values, not sample ones
}

TEST_F(TravailGraph, AnEmptyLibraryOrNoDossierDrawNothing) {
    Contexte vide(u);
    EXPECT_EQ(Executer(vide, "GRAPH " + i.Dossier("DUPONT")), kSortieEchec);
    EXPECT_TRUE(u.ADit("bibliothèque des graphiques est vide"));
    Contexte absent(u);
    EXPECT_EQ(Executer(absent, "GRAPH " + i.d / "Marlo/Dossiers/PERSONNE"), kSortieEchec);
    EXPECT_TRUE(u.ADit("Aucun dossier"));
}

TEST(BibliothequeExemple, HoldsOneGraphOfEachKindOverTheSampleSeries) {
    const auto texte =
        LireFichier(Texte(VERDANE_SOURCE_DIR) + "/samples/source/ModelGraph/graph.gph.txt");
    ASSERT_TRUE(texte);
    const auto fabrication = fabrique::Fabriquer("graph.gph.txt", *texte, "");
    ASSERT_TRUE(fabrication);
    EXPECT_EQ(fabrication->nom, "graph.txt");
    ASSERT_EQ(fabrication->octets.size(), 12 * kTailleEnrGraph);
    EtatGraphes eg;
    ChargerGraphes(eg, fabrication->octets);
    for (int k = 1; k <= 12; ++k) {
        const ModeleGraph& g = eg.graphes[static_cast<std::size_t>(k)];
        EXPECT_EQ(g.typeGraph, k);
        EXPECT_GE(g.nbSeries, 1);
        for (int s = 0; s < g.nbSeries; ++s)
            EXPECT_EQ(Rogner(g.series[static_cast<std::size_t>(s)].fichierSerie), "VLVB.don");
    }
    EXPECT_EQ(Rogner(eg.graphes[1].titre), "Produits de l'élevage");
}

} // namespace
} // namespace verdane::test
