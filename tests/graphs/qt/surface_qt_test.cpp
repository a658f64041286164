// Charts of every kind drawn off screen: real pictures, different from one kind to another,
// and the settings that change what is seen.

#include "engine/CreationDoc.h"
#include "graphs/CodeGraph.h"
#include "graphs/DessinGraphique.h"
#include "graphs/ImageGraph.h"
#include "graphs/qt/RenduGraphique.h"
#include "graphs/qt/SurfaceQt.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/Chaines.h"
#include "utils/ImageRtf.h"
#include "utils/OutilsFichiers.h"

#include <QByteArray>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>

namespace verdane::qt {
namespace {

constexpr int kTypes[] = {kBarres3D,      kBarres2D,      kCourbes3D,   kCourbes2D,
                          kAires3D,       kAires2D,       kEscaliers3D, kEscaliers2D,
                          kCombinaison3D, kCombinaison2D, kSecteurs2D,  kXY2D};

// Three series over five years, the third on the second axis, each with its own kind in a
// combination.
void Remplir(SurfaceGraphique& s, int type) {
    s.PoserTypeGraphique(type);
    s.PoserTitre("Marge brute de l'exploitation");
    s.PoserNote("Données prévisionnelles");
    s.PoserNombreColonnes(3);
    s.PoserNombreLignes(5);
    s.PoserAfficherLegende(true);
    const CouleurGraphique couleurs[] = {{30, 90, 200}, {230, 120, 20}, {40, 160, 60}};
    for (int c = 1; c <= 3; ++c) {
        s.PoserColonne(c);
        s.PoserLibelleColonne("Série " + std::to_string(c));
        for (int r = 1; r <= 5; ++r) {
            s.PoserLigne(r);
            s.PoserDonnee(1000.0 * c + 300.0 * r * (c % 2 ? 1 : -1) + 2000);
            s.PoserLibelleLigne(std::to_string(2023 + r));
        }
        s.PoserStyleBrosse(c, kBrossePleine);
        s.PoserCouleurRemplissage(c, couleurs[c - 1]);
        s.PoserCouleurTrait(c, couleurs[c - 1]);
        s.PoserEpaisseurTrait(c, 2);
        s.PoserAxeSecondaire(c, c == 3 && type != kXY2D);
        const bool troisD = type == kCombinaison3D;
        const int kinds3D[] = {kSerieBarres3D, kSerieCourbe3D, kSerieAire3D};
        const int kinds2D[] = {kSerieBarres2D, kSerieCourbe2D, kSerieEscalier2D};
        if (type == kCombinaison3D || type == kCombinaison2D)
            s.PoserTypeSerie(troisD ? kinds3D[c - 1] : kinds2D[c - 1]);
    }
    s.PoserTitreAxe(0, "Années");
    s.PoserTitreAxe(1, "€");
    s.PoserTitreAxe(2, "Litres");
}

QImage Image(const std::string& png) {
    QImage image;
    image.loadFromData(QByteArray(png.data(), static_cast<qsizetype>(png.size())), "PNG");
    return image;
}

// Share of the pixels that aren't near white, on a grid.
double Encre(const QImage& image) {
    int encre = 0, total = 0;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3, ++total)
            if (qGray(image.pixel(x, y)) < 235) ++encre;
    return total ? static_cast<double>(encre) / total : 0;
}

int Differences(const QImage& a, const QImage& b) {
    int n = 0;
    for (int y = 0; y < a.height(); y += 2)
        for (int x = 0; x < a.width(); x += 2)
            if (a.pixel(x, y) != b.pixel(x, y)) ++n;
    return n;
}

std::string Dessiner(int type, auto&& reglerEnPlus) {
    SurfaceQt s;
    Remplir(s, type);
    reglerEnPlus(s);
    s.Redessiner();
    return s.CopierImage();
}

// Keeps a picture in the build folder, to be looked at.
void Garder(const std::string& nom, const std::string& png) {
    const std::filesystem::path dossier = std::filesystem::path(VERDANE_BIN_DIR) / "graphiques";
    std::filesystem::create_directories(dossier);
    std::ofstream(dossier / (nom + ".png"), std::ios::binary) << png;
}

std::string Dessiner(int type) {
    return Dessiner(type, [](SurfaceQt&) {});
}

TEST(SurfaceQt, DrawsEveryKindAsADistinctPicture) {
    std::vector<QImage> images;
    for (int type : kTypes) {
        const std::string png = Dessiner(type);
        ASSERT_FALSE(png.empty()) << type;
        Garder("type" + std::to_string(type), png);
        const QImage image = Image(png);
        ASSERT_FALSE(image.isNull()) << type;
        EXPECT_EQ(image.width(), 2 * kLargeurGraphique);
        EXPECT_GT(Encre(image), 0.02) << "chart " << type << " is nearly blank";
        images.push_back(image);
    }
    for (std::size_t i = 0; i < images.size(); ++i)
        for (std::size_t j = i + 1; j < images.size(); ++j)
            EXPECT_GT(Differences(images[i], images[j]), 2000)
                << "kinds " << kTypes[i] << " and " << kTypes[j] << " look alike";
}

TEST(SurfaceQt, ThreeDimensionalKindsHaveDepthThatFollowsTheView) {
    // Depth faces are drawn beside the bars: a 3D picture holds more ink than its 2D twin,
    // and turning the view changes it.
    const QImage plat = Image(Dessiner(kBarres2D));
    const QImage relief = Image(Dessiner(kBarres3D));
    EXPECT_GT(Encre(relief), Encre(plat));
    const std::string png = Dessiner(kBarres3D, [](SurfaceQt& s) {
        s.PoserRotation(-60);
        s.PoserElevation(45);
    });
    Garder("tourne", png);
    const QImage tourne = Image(png);
    EXPECT_GT(Differences(relief, tourne), 2000);
}

TEST(SurfaceQt, BrushesWidthsAndBoxesChangeThePicture) {
    const QImage pleine = Image(Dessiner(kBarres2D));
    const QImage vide = Image(Dessiner(kBarres2D, [](SurfaceQt& s) {
        for (int c = 1; c <= 3; ++c) s.PoserStyleBrosse(c, kBrosseVide);
    }));
    const QImage hachuree = Image(Dessiner(kBarres2D, [](SurfaceQt& s) {
        for (int c = 1; c <= 3; ++c) s.PoserStyleBrosse(c, kBrosseHachuree);
    }));
    EXPECT_LT(Encre(vide), Encre(hachuree));
    EXPECT_LT(Encre(hachuree), Encre(pleine));

    const QImage fine = Image(Dessiner(kCourbes2D));
    const QImage epaisse = Image(Dessiner(kCourbes2D, [](SurfaceQt& s) {
        for (int c = 1; c <= 3; ++c) s.PoserEpaisseurTrait(c, 8);
    }));
    EXPECT_GT(Encre(epaisse), Encre(fine));

    // The plot in the left half only, the legend bottom right: the right top quarter of the
    // picture empties of bars.
    const std::string png = Dessiner(kBarres2D, [](SurfaceQt& s) {
        s.PoserTypeEmplacement(BoiteGraphique::Titre, kEmplacementLibre);
        s.PoserRectangle(BoiteGraphique::Titre, {0, 1000, 900, 1000});
        s.PoserRectanglePlot({50, 480, 50, 850});
        s.PoserRectangle(BoiteGraphique::Legende, {600, 1000, 0, 300});
        s.PoserRectangle(BoiteGraphique::Note, {0, 500, 0, 40});
    });
    Garder("boites", png);
    const QImage placee = Image(png);
    const QImage quartPlace = placee.copy(placee.width() / 2 + 20, placee.height() / 8,
                                          placee.width() / 2 - 40, placee.height() / 3);
    const QImage quartLibre = pleine.copy(pleine.width() / 2 + 20, pleine.height() / 8,
                                          pleine.width() / 2 - 40, pleine.height() / 3);
    EXPECT_LT(Encre(quartPlace), Encre(quartLibre) / 2);
}

TEST(SurfaceQt, StrangeSettingsStillGiveAPicture) {
    // Colours beyond 255, a huge width, NaN data and a grid without rows or series.
    for (int type : kTypes) {
        const std::string png = Dessiner(type, [](SurfaceQt& s) {
            s.PoserCouleurRemplissage(1, {354, -20, 300});
            s.PoserEpaisseurTrait(2, 1e9f);
            s.PoserColonne(1);
            s.PoserLigne(2);
            s.PoserDonnee(std::nan(""));
            s.PoserRectanglePlot({std::nanf(""), 1, 2, 3});
            s.PoserRotation(1e30f);
            s.PoserOrientationTitre(kVerticalPivote1);
            s.PoserOrientationNote(kVerticalEmpile);
            s.PoserSeriesEnLignes(true);
            s.PoserEmpilement(true);
            s.PoserTailleAxe(1, 1e6f);
        });
        EXPECT_FALSE(Image(png).isNull()) << type;
        SurfaceQt vide;
        vide.PoserTypeGraphique(type);
        EXPECT_FALSE(Image(vide.CopierImage()).isNull()) << type;
    }
    EXPECT_EQ(VersQColor({354, -4, 12}), QColor(255, 0, 12));
}

// A gph( code of one line series; `titre` and `type` make each chart its own.
Texte CodeGraphique(const Texte& titre, int type) {
    return "gph(" + titre + ";" + std::to_string(type) +
           ";1;1;0;;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;1;1;1;1;;12;30;;12;30;;12;30;;12;"
           "30;16;[VLVB-1:0;Lait;1;VLVB.don;0;200;40;40;1;1])";
}

TEST(SurfaceQt, ChartsFinishedOnTheSecondThreadGiveTheSameDocument) {
    test::DossierTemporaire d;
    Texte modele = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\r\n";
    const int types[] = {kCourbes2D, kBarres3D, kSecteurs2D, kAires2D, kXY2D};
    for (int i = 0; i < 5; ++i)
        modele += "\\pard\\plain Texte " + std::to_string(i) +
                  " #mrl(si(1)alors:" + CodeGraphique("Graphique_" + std::to_string(i), types[i]) +
                  ")# suite #mrl(saut2page)#\\par\r\n";
    modele += "#mrl(gph(ancien))#}\r\n";
    d.Ecrire("modele.vdm", modele);
    std::string documents[2], travail[2];
    for (const bool parallele : {false, true}) {
        test::FauxUtilisateur u;
        Contexte ctx(u);
        FabriqueSurfaceQt fabrique;
        ctx.etat.graphes.fabriqueSurface = &fabrique;
        ctx.etat.graphes.imagesEnParallele = parallele;
        ctx.etat.chemins.RepModelGraph = d / ("graphes" + std::to_string(parallele) + "/");
        ctx.etat.nbAnEtude = 4;
        const Texte resultat = d / ("resultat" + std::to_string(parallele) + ".rtf");
        ASSERT_EQ(CreerDocument(ctx, d / "modele.vdm", resultat, false, true, false),
                  IssueCreation::Faite);
        documents[parallele] = LireFichier(resultat).value_or("");
        travail[parallele] = LireFichier(CheminImageGraph(ctx.etat)).value_or("");
    }
    EXPECT_EQ(documents[1], documents[0]);
    std::size_t images = 0;
    for (auto n = documents[1].find("{\\pict"); n != Texte::npos;
         n = documents[1].find("{\\pict", n + 1))
        ++images;
    EXPECT_EQ(images, 5u);
    EXPECT_EQ(documents[1].find('\0'), Texte::npos);
    // The work file holds the last chart, as when each overwrites it in turn.
    EXPECT_FALSE(travail[0].empty());
    EXPECT_EQ(travail[1], travail[0]);
    EXPECT_NE(ImageVersRtf(travail[1], kLargeurImageGraphTwips), "");
    EXPECT_NE(documents[1].find(Texte(ImageVersRtf(travail[1], kLargeurImageGraphTwips))),
              Texte::npos);
}

} // namespace
} // namespace verdane::qt
