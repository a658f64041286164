#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane {

TEST(OutilsFichiers, AjouterBarreEtUrl) {
    EXPECT_EQ(AjouterBarre("   "), Texte(1, kSeparateur));
    EXPECT_EQ(AjouterBarre(" C:\\a\\ "), "C:\\a\\");
    EXPECT_EQ(AjouterBarre("/tmp/a/"), "/tmp/a/");
    EXPECT_EQ(AjouterBarre("/tmp/a"), std::string("/tmp/a") + kSeparateur);
    EXPECT_EQ(UrlFichier("C:\\a b\\c.rtf"), "file:///C|/a%20b/c.rtf");
    EXPECT_EQ(NomFichier("C:\\a/b\\c.rtf"), "c.rtf");
    EXPECT_EQ(DossierParent("C:\\a/b\\c.rtf"), "C:\\a/b\\");
    EXPECT_EQ(DossierParent("c.rtf"), "");
}

TEST(OutilsFichiers, LesNomsSeResolventSansEgardALaCasse) {
    test::DossierTemporaire d;
    d.Ecrire("DOSSIERS/Dupont/CULT3.DON", "abc");
    // A dossier written on Windows, asked with another case and the other separator.
    const Texte demande = d.Chemin() + "dossiers\\DUPONT\\Cult3.don";
    EXPECT_TRUE(FichierExiste(demande));
    EXPECT_EQ(TailleFichier(demande), 3);
    EXPECT_EQ(LireFichier(demande).value_or(""), "abc");
    EXPECT_FALSE(FichierExiste(d.Chemin() + "dossiers\\DUPONT\\Cult4.don"));
    EXPECT_EQ(TailleFichier(d.Chemin() + "absent/x"), 0);
    // A folder is a file only when the folder bit is asked.
    EXPECT_FALSE(FichierExiste(d.Chemin() + "dossiers"));
    EXPECT_TRUE(FichierExiste(d.Chemin() + "dossiers", kAttributDossier));
    EXPECT_TRUE(DossierExiste(d.Chemin() + "Dossiers\\dupont\\"));
    EXPECT_FALSE(FichierExiste(""));
}

TEST(OutilsFichiers, UnNomAccentueSurLeDisqueEstEnUtf8) {
    test::DossierTemporaire d;
    d.Ecrire(Cp1252VersUtf8("Modèles/Été.rtf"), "x"); // names on the disk are UTF-8
    EXPECT_TRUE(FichierExiste(d.Chemin() + "modèles/ÉTÉ.RTF"));
    EXPECT_EQ(CheminTexte(CheminSysteme(d.Chemin() + "modèles/été.rtf")),
              d.Chemin() + "Modèles/Été.rtf");
}

TEST(OutilsFichiers, CreerCheminEtSupprimer) {
    test::DossierTemporaire d;
    CreerChemin(d.Chemin() + "a\\b/c\\fichier.txt");
    EXPECT_TRUE(DossierExiste(d.Chemin() + "a/b/c"));
    EXPECT_FALSE(FichierExiste(d.Chemin() + "a/b/c/fichier.txt"));
    d.Ecrire("a/lecture-seule", "x");
    std::filesystem::permissions(d.Systeme() / "a/lecture-seule",
                                 std::filesystem::perms::owner_read);
    SupprimerFichier(d.Chemin() + "A/LECTURE-SEULE");
    EXPECT_FALSE(FichierExiste(d.Chemin() + "a/lecture-seule"));
    SupprimerFichier(d.Chemin() + "absent"); // errors ignored
}

TEST(OutilsFichiers, LireOctetsAuBoutDuFichier) {
    test::DossierTemporaire d;
    d.Ecrire("f", "0123456789");
    EXPECT_EQ(LireOctets(d / "f", 8, 5).value_or("?"), "89");
    EXPECT_EQ(LireOctets(d / "f", 50, 5).value_or("?"), "");
    EXPECT_FALSE(LireOctets(d / "absent", 0, 5).has_value());
}

TEST(OutilsFichiers, UnRepertoireOuUnNomCoupeParUnNulNeSeLitPas) {
    test::DossierTemporaire d;
    d.Ecrire("D/VL.don", "valeurs");
    d.Ecrire("D/Editeur.svg/dedans", "x"); // a folder where a file is expected
    for (const Texte& chemin : {d / "D/Editeur.svg", d / "D", d.Chemin(), d / "D/"}) {
        EXPECT_FALSE(LireFichier(chemin).has_value()) << chemin;
        EXPECT_FALSE(LireOctets(chemin, 0, 90).has_value()) << chemin;
        EXPECT_FALSE(FichierExiste(chemin)) << chemin;
        EXPECT_EQ(TailleFichier(chemin), 0) << chemin;
    }
    // A name read from a damaged record: it ends at its first NUL, and so names the folder
    // itself, or the file before the NUL.
    EXPECT_FALSE(LireFichier(d / "D/" + Texte("\0VL.don", 7)).has_value());
    EXPECT_EQ(LireFichier(d / "D/VL.don" + Texte("\0\0\0", 3)).value_or("?"), "valeurs");
    EXPECT_EQ(LireOctets(d / "D/VL.don" + Texte("\0x", 2), 4, 90).value_or("?"), "urs");
}

} // namespace verdane
