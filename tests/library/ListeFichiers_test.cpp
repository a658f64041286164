#include "library/FormatsDocument.h"
#include "library/ListeFichiers.h"

#include "library/EssaisBibliotheque.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

namespace verdane {
namespace {

namespace fs = std::filesystem;

TEST(TailleKo, UnChiffreApresLaVirguleArrondiAuPlusProche) {
    // 0.25: the half goes up.
    const std::tuple<std::uintmax_t, const char*, const char*> cas[] = {
        {0, ",", "0,0 ko"},   {51, ",", "0,0 ko"},   {52, ",", "0,1 ko"},
        {256, ".", "0.3 ko"}, {1224, ",", "1,2 ko"}, {1048576 * 150, ",", "153600,0 ko"}};
    for (const auto& [octets, virgule, texte] : cas) EXPECT_EQ(TailleKo(octets, virgule), texte);
}

class Listes : public ::testing::Test {
protected:
    ListeFichiers Lister(const Texte& tag) { return ListerFichiers(etat, d.Chemin(), tag); }
    test::DossierTemporaire d;
    Etat etat;
};

TEST_F(Listes, ListesVidesRepertoireDisparuEtDossiers) {
    auto l = Lister("MDL");
    EXPECT_TRUE(l.Vide());
    EXPECT_TRUE(l.probleme.empty());
    // No library file: an empty list, nothing to tell.
    EXPECT_TRUE(Lister("TAB").Vide());
    EXPECT_TRUE(Lister("GPH").probleme.empty());

    l = ListerFichiers(etat, d / "parti", "DOC");
    EXPECT_TRUE(l.Vide());
    EXPECT_EQ(l.probleme, "Le répertoire " + d.Chemin() + "parti/ est introuvable ou illisible.");
    EXPECT_EQ(l.titreProbleme, "Lecteur indisponible.");

    // The folders of Marlo's dossiers, with their record (its name in any case).
    d.Ecrire("DUPONT/DUPONT", std::string(2110, ' '));
    d.Ecrire(Cp1252VersUtf8("Élevage/ÉLEVAGE"), std::string(2110, ' '));
    d.Ecrire("VIDE/autre.don", "x"); // a folder without its record
    l = Lister("DOS");
    ASSERT_EQ(l.lignes.size(), 2u);
    EXPECT_EQ(l.lignes[0].nom, "DUPONT");
    EXPECT_EQ(l.lignes[1].nom, "Élevage");
}

TEST_F(Listes, DocumentsEtModelesParType) {
    d.Ecrire(Cp1252VersUtf8("zèbre.RTF"), std::string(2048, 'x'));
    d.Ecrire("Avis.doc", "x");
    d.Ecrire("b.odt", "x");
    d.Ecrire("c.lwp", "x");
    d.Ecrire("m.vdm", "x");
    d.Ecrire("notes.txt", "x");
    d.Ecrire("sous/d.rtf", "x");
    auto l = Lister("DOC");
    ASSERT_EQ(l.lignes.size(), 3u);
    EXPECT_EQ(l.lignes[0].nom, "Avis.doc");
    EXPECT_EQ(l.lignes[2].nom, "zèbre.RTF");
    EXPECT_EQ(l.lignes[2].type, "Rich Text Format");
    EXPECT_EQ(l.lignes[2].taille, "2,0 ko");
    EXPECT_EQ(l.lignes[2].date.size(), 10u);
    EXPECT_EQ(l.lignes[2].date[2], '/');
    EXPECT_EQ(l.lignes[2].heure.size(), 8u);

    // Word Pro documents only with Word Pro.
    etat.options.CheminEditeur = "C:\\Lotus\\wordpro.exe";
    EXPECT_EQ(Lister("DOC").lignes.size(), 4u);
    etat.options.CheminEditeur = "C:\\wordpro.exe\\autre.exe";
    EXPECT_EQ(Lister("DOC").lignes.size(), 3u);

    EXPECT_EQ(Lister("MDL").lignes.size(), 1u);
}

TEST_F(Listes, GraphesParNomEtGenre) {
    d.Ecrire("graph.txt", test::EnregistrementGraphe("Produits", 2) +
                              test::EnregistrementGraphe("Parts", 11) +
                              test::EnregistrementGraphe("Bizarre", 40) + "reste");
    const auto l = Lister("GPH");
    ASSERT_EQ(l.lignes.size(), 3u);
    EXPECT_EQ(l.lignes[0].nom, "Produits");
    EXPECT_EQ(l.lignes[0].type, "barres 2D");
    EXPECT_EQ(l.lignes[2].type, "");
    EXPECT_EQ(l.lignes[2].numero, 3);
    EXPECT_EQ(l.lignes[0].taille, "1,2 ko");
    EXPECT_EQ(l.titreProbleme, "Bibliothèque de graphiques endommagée");
}

TEST(FormatsDocument, SuiventLeTraitementDeTexteLie) {
    const std::pair<const char*, std::vector<Texte>> cas[] = {
        {"", {"Rich Text Format (.rtf)"}},
        {"C:\\Office\\WINWORD.EXE", {"Rich Text Format (.rtf)", "Microsoft Word (.doc)"}},
        {"C:\\Lotus\\wordpro.exe", {"Rich Text Format (.rtf)", "Lotus Word Pro (.lwp)"}}};
    Etat etat;
    for (const auto& [editeur, attendus] : cas) {
        etat.options.CheminEditeur = editeur;
        std::vector<Texte> libelles;
        for (const auto& f : FormatsOfferts(etat)) libelles.push_back(f.libelle);
        EXPECT_EQ(libelles, attendus) << editeur;
    }
    etat.options.CheminEditeur = "/usr/bin/soffice";
    const auto lo = FormatsOfferts(etat);
    EXPECT_EQ(lo.size(), 5u);
    for (const auto& f : lo) {
        EXPECT_NE(f.libelle, "Microsoft Word (.doc)");
        EXPECT_EQ(ExtensionFormat(f.lettre), f.extension);
    }
    // The letter in any case; an unknown one makes RTF.
    EXPECT_EQ(ExtensionFormat('m'), ".doc");
    EXPECT_EQ(ExtensionFormat('Z'), ".rtf");
}

} // namespace
} // namespace verdane
