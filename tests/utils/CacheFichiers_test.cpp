#include "utils/CacheFichiers.h"

#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

namespace verdane {
namespace {

using test::DossierTemporaire;
namespace fs = std::filesystem;

std::string Lire(CacheFichiers& c, std::string_view chemin, std::uint64_t position,
                 std::size_t taille, long* lus = nullptr) {
    std::string t(taille, '\0');
    const long n = c.LireDans(chemin, position, t.data(), taille);
    if (lus) *lus = n;
    t.resize(n < 0 ? 0 : static_cast<std::size_t>(n));
    return t;
}

// A folder's time moved, as any change of its entries does: the clock of file times is coarse,
// and a quick test could leave it where it was.
void Vieillir(const fs::path& chemin) {
    static int fois = 0;
    fs::last_write_time(chemin, fs::last_write_time(chemin) - std::chrono::seconds(10 * ++fois));
}

TEST(CacheFichiers, LectureEnPlaceEtFinsDeFichier) {
    DossierTemporaire d;
    d.Ecrire("D/VL.don", "0123456789");
    d.Ecrire("D/vide.don", "");
    CacheFichiers c;
    EXPECT_EQ(Lire(c, d / "D/VL.don", 2, 3), "234");
    EXPECT_EQ(Lire(c, d / "D\\VL.don", 0, 4), "0123");
    long lus = 0;
    EXPECT_EQ(Lire(c, d / "D/VL.don", 8, 5, &lus), "89"); // cut short by the end
    Lire(c, d / "D/VL.don", 50, 5, &lus);
    EXPECT_EQ(lus, 0);
    Lire(c, d / "D/vide.don", 0, 5, &lus);
    EXPECT_EQ(lus, 0);
    Lire(c, d / "D/absent.don", 0, 5, &lus);
    EXPECT_EQ(lus, -1);
    Lire(c, d / "absent/VL.don", 0, 5, &lus);
    EXPECT_EQ(lus, -1);
    EXPECT_TRUE(c.Existe(d / "D/VL.don"));
    EXPECT_FALSE(c.Existe(d / "D/"));
    EXPECT_FALSE(c.Existe(""));
}

TEST(CacheFichiers, NomsSansEgardALaCasseEtChangementsDuDossier) {
    DossierTemporaire d;
    d.Ecrire("Dossiers/DUPONT/CULT3.DON", "ancien");
    CacheFichiers c;
    const Texte chemin = d / "dossiers/dupont/Cult3.don";
    EXPECT_EQ(Lire(c, chemin, 0, 6), "ancien");
    // Another file of the same name in another case replaces it: the read that fails looks at
    // the folder again.
    fs::remove(d.Systeme() / "Dossiers/DUPONT/CULT3.DON");
    d.Ecrire("Dossiers/DUPONT/cult3.Don", "nouveau");
    Vieillir(d.Systeme() / "Dossiers/DUPONT");
    EXPECT_EQ(Lire(c, chemin, 0, 7), "nouveau");
    // A file that was missing is found once it is made.
    long lus = 0;
    Lire(c, d / "Dossiers/DUPONT/AL05AL.don", 0, 2, &lus);
    EXPECT_EQ(lus, -1);
    d.Ecrire("Dossiers/DUPONT/al05al.DON", "ok");
    Vieillir(d.Systeme() / "Dossiers/DUPONT");
    EXPECT_EQ(Lire(c, d / "Dossiers/DUPONT/AL05AL.don", 0, 2), "ok");
    // The exact spelling wins once the folder is looked at again, at the next document.
    d.Ecrire("Dossiers/DUPONT/Cult3.don", "exact");
    Vieillir(d.Systeme() / "Dossiers/DUPONT");
    c.NouveauDocument();
    EXPECT_EQ(Lire(c, chemin, 0, 5), "exact");
    // Each record read sees the file as it is now.
    d.Ecrire("Dossiers/DUPONT/Cult3.don", "change");
    EXPECT_EQ(Lire(c, chemin, 0, 6), "change");
}

TEST(CacheFichiers, UnFichierEntierGardeTantQuIlNeChangePas) {
    DossierTemporaire d;
    d.Ecrire("D/ModAniLib.ini", "[GLOBAL]\nNumLastMod=2\n");
    CacheFichiers c;
    const auto premier = c.LireFichier(d / "D/modanilib.ini");
    ASSERT_TRUE(premier);
    EXPECT_EQ(*premier, "[GLOBAL]\nNumLastMod=2\n");
    EXPECT_EQ(c.LireFichier(d / "D/ModAniLib.ini"), premier); // read once
    // Same size, another time: read again.
    d.Ecrire("D/ModAniLib.ini", "[GLOBAL]\nNumLastMod=7\n");
    const auto f = d.Systeme() / "D/ModAniLib.ini";
    fs::last_write_time(f, fs::last_write_time(f) + std::chrono::seconds(5));
    EXPECT_EQ(*c.LireFichier(d / "D/ModAniLib.ini"), "[GLOBAL]\nNumLastMod=7\n");
    d.Ecrire("D/ModAniLib.ini", "[GLOBAL]\n");
    EXPECT_EQ(*c.LireFichier(d / "D/ModAniLib.ini"), "[GLOBAL]\n");
    EXPECT_FALSE(c.LireFichier(d / "D/absent.ini"));
    EXPECT_FALSE(c.LireFichier(d / "D"));
    // A large file is read whole, and not kept.
    const std::string grand(CacheFichiers::kTailleGardee + 10, 'x');
    d.Ecrire("D/grand.don", grand);
    const auto g = c.LireFichier(d / "D/grand.don");
    ASSERT_TRUE(g);
    EXPECT_EQ(*g, grand);
    EXPECT_NE(c.LireFichier(d / "D/grand.don"), g);
}

TEST(CacheFichiers, UneCopieRepartDeRien) {
    DossierTemporaire d;
    d.Ecrire("a.txt", "a");
    CacheFichiers c;
    const auto lu = c.LireFichier(d / "a.txt");
    CacheFichiers copie = c;
    EXPECT_NE(copie.LireFichier(d / "a.txt"), lu);
    EXPECT_EQ(*copie.LireFichier(d / "a.txt"), "a");
}

} // namespace
} // namespace verdane
