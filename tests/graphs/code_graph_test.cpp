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

class CodeGraphTest : public ::testing::Test {
protected:
    test::UtilisateurNote utilisateur;
    Contexte ctx{utilisateur};
    ModeleGraph& Graphe(int i) { return ctx.etat.graphes.graphes[static_cast<std::size_t>(i)]; }
    // The code of slot `de`, without "gph(" and ")".
    Texte Code(int de) {
        ctx.etat.graphes.grapheCourant = static_cast<std::int16_t>(de);
        const Texte code = EcrireCodeGraph(ctx);
        EXPECT_TRUE(CommencePar(code, "gph(") && FinitPar(code, ")")) << code;
        return code.substr(4, code.size() - 5);
    }
    // The 45 header fields of a default graph with `nbSeries` given, then `suite`.
    static Texte Entete(const Texte& nbSeries, const Texte& suite = "") {
        Texte t = "Marge;4;1;" + nbSeries + ";0;;0;0;2;5;";
        for (int i = 0; i < 18; ++i) t += "0;";
        return t + "1;1;1;1;;12;30;;12;30;;12;30;;12;30;16;" + suite;
    }
};

TEST_F(CodeGraphTest, UnGrapheEcritPuisReluDonneLeMemeEnregistrement) {
    for (const char* marque : {",", "."}) {
        ctx.etat.marques.decimale = marque;
        Graphe(1) = test::GrapheComplet();
        Graphe(1).rectLegende.maxX = std::nextafter(1.0f, 2.0f); // needs nine digits
        Graphe(1).rectNote.minY = 1.17549435e-38f;
        Graphe(1).elevation = -0.0f;
        Graphe(2) = ModeleGraph{};
        LireCodeGraph(ctx, 2, Code(1));
        EXPECT_EQ(EcrireEnrGraph(Graphe(2)), EcrireEnrGraph(Graphe(1))) << marque;
    }
    EXPECT_TRUE(utilisateur.messages.empty());
}

TEST_F(CodeGraphTest, LeTexteSuitLaFormeDesModeles) {
    ModeleGraph g = test::GrapheComplet();
    g.nbSeries = 2;
    g.rectTitre.minX = 0.5f;
    g.rectTitre.maxX = 1e10f;
    g.rectTitre.minY = std::numeric_limits<float>::quiet_NaN(); // can't be told: 0
    g.series[0].nomSerie = ChampFixe("  Produits", kLargeurNomSerie);
    const Texte texte = TexteCodeGraph(g, ",");
    EXPECT_TRUE(CommencePar(texte, "Marge brute;10;1;2;-1;Produits et charges en €;1;7;-3;300;"
                                   "0,5;1E+10;0;99;"))
        << texte;
    EXPECT_TRUE(FinitPar(texte, ";Axe 3;12;23;22;[CODE1;Produits;1;DONNEES.DON;0;1;2;3;2;0]"
                                "[CODE2;Charges;2;DONNEES.DON;0;11;22;33;3;1]"))
        << texte;
    // Trimmed as taken, and stored back so.
    EXPECT_EQ(g.series[0].nomSerie, ChampFixe("Produits", kLargeurNomSerie));
    // No series: the text ends with field 45's ";".
    ModeleGraph vide;
    EXPECT_TRUE(FinitPar(TexteCodeGraph(vide, ","), ";;12;30;16;"));
}

TEST_F(CodeGraphTest, LeLecteurNeChangeQueCeQueLeTexteContient) {
    Graphe(1) = test::GrapheComplet();
    Graphe(1).reserve0 = 99;
    LireCodeGraph(ctx, 1, Entete("1", "[C9;Ventes de lait qui dépassent;4;L.DON;1;5;6;7;8;2]x"));
    const ModeleGraph& g = Graphe(1);
    EXPECT_EQ(g.reserve0, 99);
    EXPECT_EQ(g.rectPlot.maxY, 0.0f);
    EXPECT_EQ(g.series[0].nomSerie, "Ventes de lait qui dép"); // cut to 22
    EXPECT_EQ(g.series[0].brosse, 2);
    EXPECT_EQ(g.series[2].rouge, 21); // beyond the count: as it was
    EXPECT_TRUE(utilisateur.messages.empty());

    // A ";" in the title shifts every later field: the chart kind lands in the legend.
    Graphe(1).titre = ChampFixe("Marge;brute", 60);
    LireCodeGraph(ctx, 2, Code(1));
    EXPECT_EQ(Graphe(2).legende, 4);
}

TEST_F(CodeGraphTest, UnCrochetManquantArreteLaLectureEtLeDit) {
    Graphe(1) = test::GrapheComplet();
    const Texte codeAvant = Graphe(1).series[1].codeSerie;
    LireCodeGraph(ctx, 1, Entete("3", "[A;Un;1;F.DON;0;1;1;1;1;1]B;Deux;1;F.DON;0;2;2;2;2;1]"));
    EXPECT_EQ(Graphe(1).series[0].codeSerie, ChampFixe("A", 12));
    EXPECT_EQ(Graphe(1).series[1].codeSerie, codeAvant);
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

TEST_F(CodeGraphTest, UnEnteteCourtOuUnNombreDeSeriesHorsLimitesSontSignales) {
    Graphe(1) = test::GrapheComplet();
    LireCodeGraph(ctx, 1, "Court;2;0");
    EXPECT_EQ(Graphe(1).typeGraph, 2);
    EXPECT_EQ(Graphe(1).legende, 1); // its ";" is missing: not read
    // The three series of the old record find no "[" either.
    ASSERT_EQ(utilisateur.messages.size(), 2u);
    EXPECT_NE(utilisateur.messages[0].technique.find("2 champ(s) sur les 45"), Texte::npos);

    Texte series;
    for (int i = 0; i < 12; ++i) series += "[C" + std::to_string(i) + ";N;1;F.DON;0;1;2;3;1;1]";
    for (const auto& [annonce, lues] : {std::pair<Texte, int>{"12", 10}, {"-4", 0}}) {
        utilisateur.messages.clear();
        LireCodeGraph(ctx, 1, Entete(annonce, series));
        EXPECT_EQ(Graphe(1).nbSeries, lues);
        ASSERT_EQ(utilisateur.messages.size(), 1u);
        EXPECT_NE(utilisateur.messages[0].technique.find("\"" + annonce + "\""), Texte::npos);
    }
    EXPECT_EQ(Graphe(1).series[9].codeSerie, ChampFixe("C9", 12));
}

TEST_F(CodeGraphTest, UneValeurQuiNEstPasUnNombreGardeLAncienne) {
    // Header fields: integers beyond 16 bits, reals beyond single precision, NaN, infinities,
    // words, blanks, hexadecimal.
    const std::pair<int, const char*> cas[] = {
        {2, "abc"},  {2, "99999"},  {2, ""},      {8, "1.2.3"}, {11, "NaN"},
        {12, "inf"}, {13, "1E+39"}, {27, "-INF"}, {45, "1e"},   {34, "0x10"}};
    Graphe(1) = test::GrapheComplet();
    const std::string avant = EcrireEnrGraph(Graphe(1));
    const Texte valide = Code(1);
    for (const auto& [champ, valeur] : cas) {
        Texte code = valide;
        std::size_t debut = 0;
        for (int k = 1; k < champ; ++k) debut = code.find(';', debut) + 1;
        code.replace(debut, code.find(';', debut) - debut, valeur);
        utilisateur.messages.clear();
        LireCodeGraph(ctx, 1, code);
        EXPECT_EQ(EcrireEnrGraph(Graphe(1)), avant) << champ << " " << valeur;
        ASSERT_EQ(utilisateur.messages.size(), 1u) << valeur;
        EXPECT_NE(utilisateur.messages[0].technique.find("champ n°" + std::to_string(champ)),
                  Texte::npos);
    }
    // In a series: a width that is a word, a brush that is a letter, a code cut short.
    utilisateur.messages.clear();
    LireCodeGraph(ctx, 1,
                  Entete("3", "[A;Un;1;F.DON;0;1;1;1;large;1][B;Deux;1;F.DON;0;2;2;2;2;x][C;T"));
    EXPECT_EQ(Graphe(1).series[0].epaisseur, 2);
    EXPECT_EQ(Graphe(1).series[1].brosse, 1);
    EXPECT_EQ(Graphe(1).series[2].codeSerie, ChampFixe("C", 12));
    ASSERT_FALSE(utilisateur.messages.empty());
    EXPECT_NE(utilisateur.messages[0].technique.find("\"large\" du champ n°9 de la série de "
                                                     "données n°1"),
              Texte::npos);
    EXPECT_EQ(LireEntierCode("2,5"), 2); // a decimal integer rounds half to even
    EXPECT_EQ(LireReelCode("1e-60"), 0.0f);
}

} // namespace
} // namespace verdane
