// The text form of a graph: writer, reader, and what bad codes give.

#include "OutilsTestsGraph.h"

#include "graphs/CodeGraph.h"
#include "graphs/NombresCode.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace verdane {
namespace {

using test::GrapheComplet;
using test::UtilisateurNote;

class CodeGraphTest : public ::testing::Test {
protected:
    UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    ModeleGraph& Graphe(int i) { return ctx.etat.graphes.graphes[static_cast<std::size_t>(i)]; }
    // The code of slot 1, read into slot 2.
    void Recopier() {
        ctx.etat.graphes.grapheCourant = 1;
        const Texte code = EcrireCodeGraph(ctx);
        ASSERT_TRUE(CommencePar(code, "gph(") && FinitPar(code, ")")) << code;
        LireCodeGraph(ctx, 2, code.substr(4, code.size() - 5));
    }
    // The 45 header fields of a default graph with `nbSeries` given, then `suite`.
    static Texte Entete(const Texte& nbSeries, const Texte& suite = "") {
        Texte t = "Marge;4;1;" + nbSeries + ";0;;0;0;2;5;";
        for (int i = 0; i < 18; ++i) t += "0;";
        t += "1;1;1;1;;12;30;;12;30;;12;30;;12;30;16;";
        return t + suite;
    }
};

TEST_F(CodeGraphTest, UnGrapheEcritPuisReluDonneLeMemeEnregistrement) {
    for (const char* marque : {",", "."}) {
        ctx.etat.marques.decimale = marque;
        Graphe(1) = GrapheComplet();
        Graphe(1).rectLegende.maxX = std::nextafter(1.0f, 2.0f); // needs nine digits
        Graphe(1).rectNote.minY = 1.17549435e-38f;
        Graphe(1).elevation = -0.0f;
        Graphe(2) = ModeleGraph{};
        Recopier();
        EXPECT_EQ(EcrireEnrGraph(Graphe(2)), EcrireEnrGraph(Graphe(1))) << marque;
        EXPECT_TRUE(utilisateur.messages.empty());
    }
}

TEST_F(CodeGraphTest, LeTexteSuitLaFormeDesModeles) {
    ctx.etat.marques.decimale = ",";
    ModeleGraph g = GrapheComplet();
    g.nbSeries = 2;
    g.rectTitre.minX = 0.5f;
    g.series[0].nomSerie = ChampFixe("  Produits", kLargeurNomSerie);
    const Texte texte = TexteCodeGraph(g, ",");
    EXPECT_TRUE(CommencePar(texte, "Marge brute;10;1;2;-1;Produits et charges en €;1;7;-3;300;"
                                   "0,5;1234,5;-7,75;99;"))
        << texte;
    EXPECT_TRUE(FinitPar(texte, ";Axe 3;12;23;22;[CODE1;Produits;1;DONNEES.DON;0;1;2;3;2;0]"
                                "[CODE2;Charges;2;DONNEES.DON;0;11;22;33;3;1]"))
        << texte;
    // Trimmed as taken, and stored back so.
    EXPECT_EQ(g.series[0].nomSerie, ChampFixe("Produits", kLargeurNomSerie));
    EXPECT_EQ(TexteReel(1e10f, ","), "1E+10");
    EXPECT_EQ(TexteReel(std::numeric_limits<float>::quiet_NaN(), ","), "0");
    EXPECT_EQ(TexteReel(-std::numeric_limits<float>::infinity(), "."), "0");
}

TEST_F(CodeGraphTest, SansSerieLeTexteFinitAuQuaranteCinquiemeChamp) {
    ModeleGraph g;
    const Texte texte = TexteCodeGraph(g, ",");
    EXPECT_EQ(std::count(texte.begin(), texte.end(), ';'), 45);
    EXPECT_EQ(texte.back(), ';');
    EXPECT_TRUE(CommencePar(texte, "Sans titre;4;0;0;0;;0;0;2;5;0;"));
}

TEST_F(CodeGraphTest, LeLecteurNeChangeQueCeQueLeTexteContient) {
    Graphe(1) = GrapheComplet();
    Graphe(1).reserve0 = 99;
    Graphe(1).reserveTexte = ChampFixe("secret", 18);
    const SerieGraph troisieme = Graphe(1).series[2];
    LireCodeGraph(ctx, 1,
                  Entete("1", "[CODE9;Ventes de lait qui dépassent;4;LAIT.DON;1;5;6;7;8;2]reste"));
    const ModeleGraph& g = Graphe(1);
    EXPECT_EQ(g.reserve0, 99);
    EXPECT_EQ(g.reserveTexte, ChampFixe("secret", 18));
    EXPECT_EQ(g.nbSeries, 1);
    EXPECT_EQ(g.typeGraph, 4);
    EXPECT_EQ(g.rectPlot.maxY, 0.0f);
    EXPECT_EQ(g.axes[3].tailleAxe, 12);
    EXPECT_EQ(g.series[0].codeSerie, ChampFixe("CODE9", 12));
    EXPECT_EQ(g.series[0].nomSerie, "Ventes de lait qui dép"); // cut to 22
    EXPECT_EQ(g.series[0].bleu, 7);
    EXPECT_EQ(g.series[0].brosse, 2);
    EXPECT_EQ(EcrireEnrGraph(ModeleGraph{}).size(), kTailleEnrGraph);
    // Series beyond the count keep what they had.
    EXPECT_EQ(g.series[2].codeSerie, troisieme.codeSerie);
    EXPECT_EQ(g.series[2].rouge, troisieme.rouge);
    EXPECT_TRUE(utilisateur.messages.empty());
}

TEST_F(CodeGraphTest, UnPointVirguleDansLeTitreDecaleLesChamps) {
    Graphe(1) = GrapheComplet();
    Graphe(1).titre = ChampFixe("Marge;brute", 60);
    Graphe(1).nbSeries = 0;
    Recopier();
    EXPECT_EQ(Rogner(Graphe(2).titre), "Marge");
    EXPECT_EQ(Graphe(2).legende, 10); // the chart kind landed in the legend
}

TEST_F(CodeGraphTest, UnCrochetManquantArreteLaLectureEtLeDit) {
    Graphe(1) = GrapheComplet();
    const SerieGraph ancienne = Graphe(1).series[1];
    LireCodeGraph(ctx, 1, Entete("3", "[A;Un;1;F.DON;0;1;1;1;1;1]B;Deux;1;F.DON;0;2;2;2;2;1]"));
    EXPECT_EQ(Graphe(1).series[0].codeSerie, ChampFixe("A", 12));
    EXPECT_EQ(Graphe(1).series[1].codeSerie, ancienne.codeSerie);
    EXPECT_EQ(Graphe(1).series[1].rouge, ancienne.rouge);
    ASSERT_EQ(utilisateur.messages.size(), 1u);
    const Message& m = utilisateur.messages[0];
    EXPECT_EQ(m.titre, "Code d'un graphique erroné dans le modèle VDM");
    EXPECT_EQ(m.texte, "Le code du graphique \"Marge\" comporte des erreurs dans le modèle de "
                       "document en cours d'analyse.");
    EXPECT_EQ(m.technique,
              "Description technique de l'erreur : Le crochet \"[\", annonçant une série de "
              "données pour le graphique, n'apparaît pas à l'endroit demandé.\r\nLa série de "
              "données n°2 (et suivante(s) s'il y en a) n'a (n'ont) donc pas été correctement "
              "récupérée(s).");
    EXPECT_EQ(m.genre, "");
}

TEST_F(CodeGraphTest, UnEnteteCourtGardeLesChampsSuivantsEtLeDit) {
    Graphe(1) = GrapheComplet();
    LireCodeGraph(ctx, 1, "Court;2;0");
    EXPECT_EQ(Rogner(Graphe(1).titre), "Court");
    EXPECT_EQ(Graphe(1).typeGraph, 2);
    EXPECT_EQ(Graphe(1).legende, 1); // its ";" is missing: not read
    EXPECT_EQ(Graphe(1).tailleTitre, 22);
    // Three series announced by the old record: the first "[" is missing too.
    ASSERT_EQ(utilisateur.messages.size(), 2u);
    EXPECT_NE(utilisateur.messages[0].technique.find("2 champ(s) sur les 45"), std::string::npos);
    EXPECT_NE(utilisateur.messages[1].technique.find("n°1 "), std::string::npos);
}

TEST_F(CodeGraphTest, UnNombreDeSeriesHorsLimitesEstRamene) {
    Texte series;
    for (int i = 0; i < 12; ++i) series += "[C" + std::to_string(i) + ";N;1;F.DON;0;1;2;3;1;1]";
    LireCodeGraph(ctx, 1, Entete("12", series));
    EXPECT_EQ(Graphe(1).nbSeries, 10);
    EXPECT_EQ(Graphe(1).series[9].codeSerie, ChampFixe("C9", 12));
    ASSERT_EQ(utilisateur.messages.size(), 1u);
    EXPECT_NE(utilisateur.messages[0].technique.find("\"12\""), std::string::npos);

    utilisateur.messages.clear();
    LireCodeGraph(ctx, 1, Entete("-4", "[X;N;1;F.DON;0;1;2;3;1;1]"));
    EXPECT_EQ(Graphe(1).nbSeries, 0);
    EXPECT_EQ(Graphe(1).series[0].codeSerie, ChampFixe("C0", 12));
    EXPECT_EQ(utilisateur.messages.size(), 1u);
}

TEST_F(CodeGraphTest, UneValeurQuiNEstPasUnNombreGardeLAncienne) {
    struct Cas {
        int champ; // 1-based header field
        const char* valeur;
    };
    // Integers beyond 16 bits, reals beyond single precision, NaN, infinities, words, blanks.
    const Cas cas[] = {{2, "abc"},  {2, "99999"},  {2, ""},      {8, "1.2.3"}, {11, "NaN"},
                       {12, "inf"}, {13, "1E+39"}, {27, "-INF"}, {45, "1e"},   {34, "0x10"}};
    for (const auto& c : cas) {
        Graphe(1) = GrapheComplet();
        const std::string avant = EcrireEnrGraph(Graphe(1));
        ctx.etat.graphes.grapheCourant = 1;
        Texte code = EcrireCodeGraph(ctx);
        code = code.substr(4, code.size() - 5);
        // Put the bad value in place of the field.
        std::size_t debut = 0;
        for (int k = 1; k < c.champ; ++k) debut = code.find(';', debut) + 1;
        code.replace(debut, code.find(';', debut) - debut, c.valeur);
        utilisateur.messages.clear();
        LireCodeGraph(ctx, 1, code);
        EXPECT_EQ(EcrireEnrGraph(Graphe(1)), avant) << c.champ << " " << c.valeur;
        ASSERT_EQ(utilisateur.messages.size(), 1u) << c.valeur;
        EXPECT_NE(utilisateur.messages[0].technique.find("champ n°" + std::to_string(c.champ)),
                  std::string::npos)
            << utilisateur.messages[0].technique;
    }
}

TEST_F(CodeGraphTest, UneSerieMalFormeeNeFaitPasTomberLaLecture) {
    Graphe(1) = GrapheComplet();
    // A width that is a word, a brush that is a letter, and a code cut inside the last series.
    LireCodeGraph(ctx, 1,
                  Entete("3", "[A;Un;1;F.DON;0;1;1;1;large;1][B;Deux;1;F.DON;0;2;2;2;2;x][C;Tr"));
    EXPECT_EQ(Graphe(1).series[0].epaisseur, 2);
    EXPECT_EQ(Graphe(1).series[1].brosse, 1);
    EXPECT_EQ(Graphe(1).series[2].codeSerie, ChampFixe("C", 12));
    EXPECT_EQ(Graphe(1).series[2].nomSerie, ChampFixe("Marge", 22));
    ASSERT_FALSE(utilisateur.messages.empty());
    EXPECT_NE(utilisateur.messages[0].technique.find("\"large\" du champ n°9 de la série de "
                                                     "données n°1"),
              std::string::npos);
}

TEST_F(CodeGraphTest, LesLecteursDeNombresSuiventLaRegle) {
    EXPECT_EQ(LireEntierCode(" 12 "), 12);
    EXPECT_EQ(LireEntierCode("-32768"), -32768);
    EXPECT_EQ(LireEntierCode("32768"), std::nullopt);
    EXPECT_EQ(LireEntierCode("2,5"), 2); // half to even
    EXPECT_EQ(LireEntierCode("3.5"), 4);
    EXPECT_EQ(LireEntierCode("1 000"), std::nullopt);
    EXPECT_EQ(LireReelCode("1,5E-3"), 1.5e-3f);
    EXPECT_EQ(LireReelCode("1e-60"), 0.0f);
    EXPECT_EQ(LireReelCode("+.5"), 0.5f);
    EXPECT_EQ(LireReelCode("."), std::nullopt);
    EXPECT_EQ(LireReelCode("nan"), std::nullopt);
}

TEST_F(CodeGraphTest, UnIndexHorsDeLaBibliothequeNeFaitRien) {
    LireCodeGraph(ctx, 0, Entete("0"));
    LireCodeGraph(ctx, 51, Entete("0"));
    EXPECT_EQ(Rogner(Graphe(0).titre), "Sans titre");
    ctx.etat.graphes.grapheCourant = 0;
    EXPECT_EQ(EcrireCodeGraph(ctx), "");
}

// Codes altered at random but with a fixed seed: nothing may fail, every text field keeps its
// width, and what is read writes back to a text that reads the same once more.
TEST_F(CodeGraphTest, DesCodesAlteresNeFontRienTomber) {
    std::mt19937 hasard(20240611);
    const Texte bouts[] = {";", "[", "]", "0", "-", "9999999", "1E+40", "NaN", ",", " ", "é"};
    ModeleGraph complet = GrapheComplet();
    const Texte valides[] = {TexteCodeGraph(complet, ","), Entete("0"),
                             Entete("1", "[A;B;2;C.DON;1;0;0;0;1;1]")};
    for (int essai = 0; essai < 3000; ++essai) {
        Texte code = valides[essai % 3];
        const int changements = 1 + static_cast<int>(hasard() % 4);
        for (int k = 0; k < changements && !code.empty(); ++k) {
            const std::size_t p = hasard() % code.size();
            switch (hasard() % 5) {
            case 0:
                code.erase(p, 1 + hasard() % 8);
                break;
            case 1:
                code.insert(p, bouts[hasard() % std::size(bouts)]);
                break;
            case 2:
                code[p] = static_cast<char>(hasard() & 0xFF);
                break;
            case 3:
                code.resize(p);
                break;
            default:
                code.insert(p, code.substr(p, hasard() % 40));
                break;
            }
        }
        Graphe(1) = GrapheComplet();
        LireCodeGraph(ctx, 1, code);
        const ModeleGraph& g = Graphe(1);
        ASSERT_EQ(EcrireEnrGraph(g).size(), kTailleEnrGraph);
        ASSERT_EQ(g.titre.size(), kLargeurTitreGraph);
        ASSERT_EQ(g.series[0].nomSerie.size(), kLargeurNomSerie);
        ASSERT_GE(g.nbSeries, 0);
        ASSERT_LE(g.nbSeries, 10);

        ctx.etat.graphes.grapheCourant = 1;
        const Texte premier = EcrireCodeGraph(ctx);
        if (premier.find(";", 0) == Texte::npos) continue;
        Graphe(2) = Graphe(1);
        LireCodeGraph(ctx, 2, premier.substr(4, premier.size() - 5));
        ctx.etat.graphes.grapheCourant = 2;
        const bool pointVirguleDansUnTexte =
            TexteCodeGraph(Graphe(2), ",") != TexteCodeGraph(Graphe(1), ",");
        if (!pointVirguleDansUnTexte) continue;
        // Only a ";" inside a text field may shift the fields of the second reading.
        bool texteAvecPointVirgule =
            g.titre.find(';') != Texte::npos || g.commentaire.find(';') != Texte::npos;
        for (const auto& a : g.axes) texteAvecPointVirgule |= a.titreAxe.find(';') != Texte::npos;
        for (const auto& s : g.series)
            texteAvecPointVirgule |=
                (s.codeSerie + s.nomSerie + s.fichierSerie).find(';') != Texte::npos;
        EXPECT_TRUE(texteAvecPointVirgule) << code;
    }
}

} // namespace
} // namespace verdane
