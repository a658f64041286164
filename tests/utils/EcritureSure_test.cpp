#include "support/DossierTemporaire.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <set>

namespace verdane {
namespace {

namespace fs = std::filesystem;

std::set<std::string> Noms(const test::DossierTemporaire& d) {
    std::set<std::string> noms;
    for (const auto& e : fs::directory_iterator(d.Systeme())) noms.insert(e.path().filename());
    return noms;
}

// A part as a run killed while writing leaves it: a process number and a random end.
std::string Part(const std::string& resultat, const std::string& processus) {
    return "." + resultat + ".part-" + processus + "-abcdefghij";
}

std::string NumeroDeCeProcessus() {
    return fs::read_symlink("/proc/self").filename().string();
}

} // namespace

TEST(EcritureSure, SansRemplacerUnNomPrisEntreTempsNEstPasEcrase) {
    test::DossierTemporaire d;
    FichierSur f(d / "r.rtf", false);
    ASSERT_TRUE(f.Ouvert());
    f.Ecrire("le nôtre");
    d.Ecrire("r.rtf", "celui d'un autre run"); // comes while we write
    EXPECT_FALSE(f.Valider());
    EXPECT_TRUE(f.NomPris());
    EXPECT_EQ(d.Lire("r.rtf"), "celui d'un autre run");
    EXPECT_EQ(Noms(d), std::set<std::string>{"r.rtf"});

    FichierSur libre(d / "s.rtf", false);
    libre.Ecrire("complet");
    EXPECT_TRUE(libre.Valider());
    EXPECT_FALSE(libre.NomPris());
    EXPECT_EQ(d.Lire("s.rtf"), "complet");
    EXPECT_EQ(Noms(d), (std::set<std::string>{"r.rtf", "s.rtf"}));
}

// A result to convert: its complete RTF waits under a part's name, the old result staying
// whole, until the converted file takes the name.
TEST(EcritureSure, UnFichierFermeAttendSaPlaceSousUnNomDePart) {
    test::DossierTemporaire d;
    d.Ecrire("r.pdf", "ancien");
    FichierSur f(d / "r.pdf", false);
    f.Ecrire("rtf");
    const Texte rtf = f.Fermer();
    EXPECT_FALSE(f.Valider()); // the caller's now
    EXPECT_EQ(d.Lire("r.pdf"), "ancien");
    EXPECT_EQ(NomFichier(rtf).rfind(".r.pdf.part-" + NumeroDeCeProcessus() + "-", 0), 0u);
    const Texte converti = CheminTemporaire(d / "r.pdf", ".pdf");
    d.Ecrire(NomFichier(converti), "converti");
    bool pris = false;
    EXPECT_FALSE(PlacerFichier(converti, d / "r.pdf", false, pris));
    EXPECT_TRUE(pris);
    EXPECT_TRUE(PlacerFichier(rtf, d / "r.pdf", true, pris));
    EXPECT_EQ(d.Lire("r.pdf"), "rtf");
    EXPECT_EQ(Noms(d), std::set<std::string>{"r.pdf"}); // no part left
}

TEST(EcritureSure, UnFichierNonValideOuUnRepertoireNeRemplaceRien) {
    test::DossierTemporaire d;
    d.Ecrire("doc.rtf", "ancien");
    FichierSur(d / "doc.rtf").Ecrire("nouveau mais incomplet"); // dies without Valider
    EXPECT_EQ(d.Lire("doc.rtf"), "ancien");
    EXPECT_EQ(Noms(d), std::set<std::string>{"doc.rtf"});
    EXPECT_FALSE(EcrireFichierSur(d / "absent/doc.rtf", "x"));
    fs::remove(d.Systeme() / "doc.rtf");
    fs::create_directories(d.Systeme() / "r.rtf");
    EXPECT_FALSE(FichierSur(d / "r.rtf").Ouvert());
    EXPECT_FALSE(FichierSur(d.Chemin()).Ouvert());
    EXPECT_FALSE(EcrireFichierSur(d / "r.rtf", "x"));
    EXPECT_TRUE(fs::is_directory(d.Systeme() / "r.rtf"));
    EXPECT_EQ(Noms(d), std::set<std::string>{"r.rtf"});
}

TEST(EcritureSure, LesPartsAbandonneesDuMemeResultatSontNettoyees) {
    test::DossierTemporaire d;
    const auto vieux = fs::file_time_type::clock::now() - std::chrono::hours(48);
    d.Ecrire(Part("r.rtf", "999999999"), "d'un run tué"); // its process is gone
    d.Ecrire(Part("r.rtf", NumeroDeCeProcessus()), "en cours ici");
    d.Ecrire(".r.rtf.part-0123456789", "ancienne forme, récente");
    d.Ecrire(".r.rtf.part-zyxwvutsrq", "ancienne forme, vieille");
    fs::last_write_time(d.Systeme() / ".r.rtf.part-zyxwvutsrq", vieux);
    d.Ecrire(Part("autre.rtf", "999999999"), "d'un autre résultat");
    d.Ecrire(".r.rtf.part-999999999", "un dossier de ce nom");
    fs::remove(d.Systeme() / ".r.rtf.part-999999999");
    fs::create_directories(d.Systeme() / ".r.rtf.part-999999999");

    EXPECT_TRUE(EcrireFichierSur(d / "r.rtf", "neuf"));
    EXPECT_EQ(Noms(d), (std::set<std::string>{
                           "r.rtf", Part("r.rtf", NumeroDeCeProcessus()), ".r.rtf.part-0123456789",
                           Part("autre.rtf", "999999999"), ".r.rtf.part-999999999"}));
}

} // namespace verdane
