#include "tables/DefinitionLigne.h"
#include "tables/StyleCellule.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

TEST(DefinitionLigne, GenresDeLigne) {
    struct Cas {
        const char* definition;
        GenreLigne genre;
    };
    const Cas cas[] = {
        {"totalS:LG1+LG2:0", GenreLigne::TotalS},
        {"totalC:LG1*2", GenreLigne::TotalC},
        // The spacing and crop words are read by their head; the others are whole words, and
        // a longer word or another case is unknown.
        {"espacement libre", GenreLigne::Espace},
        {"cultures", GenreLigne::Cultu},
        {"scltp:SURF", GenreLigne::Scltp},
        {"ALani:EFF:0:1", GenreLigne::ALani},
        {"series:A", GenreLigne::Autre},
        {"Serie:A", GenreLigne::Autre},
        {"totals:A", GenreLigne::Autre},
        {"entete", GenreLigne::Entete},
        {"", GenreLigne::Autre},
        {"ESPACE", GenreLigne::Autre},
    };
    for (const Cas& c : cas) EXPECT_EQ(GenreDeLigne(c.definition), c.genre) << c.definition;
}

TEST(DefinitionLigne, DecimalesEtRegleDesZeros) {
    DefinitionLigne d = AnalyserDefinition("serie:PROD.DON+PROD-3:0:1");
    EXPECT_EQ(d.mot, "serie");
    EXPECT_EQ(d.reste, "PROD.DON+PROD-3:0");
    EXPECT_EQ(d.code, "PROD.DON+PROD-3");
    EXPECT_EQ(d.decimales, 0);
    EXPECT_EQ(d.regleZero, "1");
    // Without ":" behind the kind: rule "2", decimals 7.
    d = AnalyserDefinition("serie");
    EXPECT_EQ(d.regleZero, "2");
    EXPECT_EQ(d.decimales, 7);
    EXPECT_EQ(d.code, "");
    d = AnalyserDefinition("totalS:LG1-LG2:3");
    EXPECT_EQ(d.decimales, 3);
    EXPECT_EQ(d.regleZero, "2");
    d = AnalyserDefinition("ALani:EFF:x:9");
    EXPECT_EQ(d.decimales, 0);
    EXPECT_EQ(d.regleZero, "9");
    // The header keeps its two ":" as they stand.
    d = AnalyserDefinition("entete:1:1ère année&Fin");
    EXPECT_EQ(d.reste, "1:1ère année&Fin");
    EXPECT_EQ(d.regleZero, "2");
    d = AnalyserDefinition("bidule:a:b:c");
    EXPECT_EQ(d.genre, GenreLigne::Autre);
    EXPECT_EQ(d.reste, "a:b:c");
}

TEST(StyleCellule, LectureEcritureEtDefauts) {
    Options options;
    options.TailleDefaut = 12;
    options.AlignementDefaut = "r";
    StyleCellule s = LireStyleCellule("5010;9.7;3;1;0;1;0;1;l", "2;0;1;0;16", options);
    EXPECT_EQ(s.police, 5010);
    EXPECT_EQ(s.taille, 9); // decimals cut
    EXPECT_TRUE(s.gras && s.souligne && s.ombre && !s.italique);
    EXPECT_EQ(FormatTexteDe(s), "5010;9;3;1;0;1;0;1;l");
    EXPECT_EQ(FormatCadreDe(s), "2;0;1;0;16");

    // Empty formats: the writer's defaults; a font below 5000 reads 5006.
    s = LireStyleCellule("", " ", options);
    EXPECT_EQ(FormatTexteDe(s), "5006;12;1;0;0;0;0;0;r");
    EXPECT_EQ(FormatCadreDe(s), "0;0;0;0;8");
    s = LireStyleCellule("12;0", "1", options);
    EXPECT_EQ(FormatTexteDe(s), "5006;0;1;0;0;0;0;0;r");
    EXPECT_EQ(FormatCadreDe(s), "1;0;0;0;8");
}

} // namespace
} // namespace verdane
