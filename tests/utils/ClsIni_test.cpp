#include "support/DossierTemporaire.h"
#include "utils/ClsIni.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class ClsIniTest : public ::testing::Test {
protected:
    void Ecrire(const std::string& contenu) { d.Ecrire("Essai.ini", contenu); }
    std::string Contenu() { return LireFichier(fichier).value_or("<absent>"); }
    test::DossierTemporaire d;
    Texte fichier = d / "Essai.ini";
};

const char* const kExemple = "; en-tête\r\n"
                             "[Général]\r\n"
                             "Nom = Dupont \r\n"
                             "; note=1\r\n"
                             "Ville;x=Rodez\r\n"
                             "Vide=\r\n"
                             "Cité=\"  entre guillemets \"\r\n"
                             "Formule=a=b\r\n"
                             "sans égal\r\n"
                             "\r\n"
                             "[Banque]\r\n"
                             "Nom=Crédit\r\n"
                             "[banque]\r\n"
                             "Nom=Doublon\r\n"
                             "Agence=Doublon\r\n";

TEST_F(ClsIniTest, Lecture) {
    Ecrire(kExemple);
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Nom", "?"), "Dupont");
    EXPECT_EQ(ClsIni::Lire(fichier, " général ", "NOM", "?"), "Dupont");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Vide", "?"), "");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "cité", "?"), "  entre guillemets ");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Formule", "?"), "a=b");
    // Comments: a ";" in front of the "=".
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "; note", "?"), "?");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "note", "?"), "?");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Ville;x", "?"), "?");
    // Missing key, section or file; a key of another section.
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Absente", "défaut"), "défaut");
    EXPECT_EQ(ClsIni::Lire(fichier, "Autre", "Nom", "défaut"), "défaut");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Agence", "?"), "?");
    EXPECT_EQ(ClsIni::Lire(fichier + "x", "Général", "Nom", "?"), "?");
    // The first of two sections of one name is the one read.
    EXPECT_EQ(ClsIni::Lire(fichier, "BANQUE", "Nom", "?"), "Crédit");
}

TEST_F(ClsIniTest, SectionsEtCles) {
    Ecrire(kExemple);
    ClsIni ini(fichier, "général");
    EXPECT_TRUE(ini.CheckIniFile());
    EXPECT_TRUE(ini.CheckSection());
    EXPECT_EQ(ini.GetAllSectionsFromInifile(), (std::vector<Texte>{"Général", "Banque"}));
    EXPECT_EQ(ini.GetAllKeysFromSection(), (std::vector<Texte>{"Nom", "Vide", "Cité", "Formule"}));
    ini.Section = "Rien";
    EXPECT_FALSE(ini.CheckSection());
    EXPECT_TRUE(ini.GetAllKeysFromSection().empty());
    ClsIni absent(fichier + ".non", "Général");
    EXPECT_FALSE(absent.CheckIniFile());
    EXPECT_FALSE(absent.CheckSection());
    EXPECT_TRUE(absent.GetAllSectionsFromInifile().empty());
}

TEST_F(ClsIniTest, Ecriture) {
    Ecrire(kExemple);
    ClsIni ini(fichier, "GÉNÉRAL");
    EXPECT_TRUE(ini.SaveKey("nom", "Martin"));
    EXPECT_TRUE(ini.SaveKey("Nouvelle", "1"));
    ini.Section = "Banque";
    EXPECT_TRUE(ini.SaveKey("Agence", "Rodez"));
    ini.Section = "Fin";
    EXPECT_TRUE(ini.SaveKey("Clé", "deux\r\nlignes"));
    EXPECT_TRUE(ini.FlushInifile());

    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Nom"), "Martin");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Nouvelle"), "1");
    EXPECT_EQ(ClsIni::Lire(fichier, "Banque", "Agence"), "Rodez");
    EXPECT_EQ(ClsIni::Lire(fichier, "Fin", "Clé"), "deux  lignes");
    const std::string c = Contenu();
    // The new key goes behind the last line of its section, not behind the blank line; the
    // rest of the file and its line ends stay.
    EXPECT_NE(c.find("sans égal\r\nNouvelle=1\r\n\r\n[Banque]"), std::string::npos) << c;
    EXPECT_EQ(c.find('\n'), c.find("\r\n") + 1);
    EXPECT_NE(c.find("Nom=Crédit\r\nAgence=Rodez\r\n[banque]"), std::string::npos);
    EXPECT_TRUE(c.ends_with("Agence=Doublon\r\n[Fin]\r\nClé=deux  lignes\r\n")) << c;
    EXPECT_EQ(c.substr(0, 11), "; en-tête\r\n");
}

TEST_F(ClsIniTest, EcritureCreeLeFichierEtGardeSesFinsDeLigne) {
    ClsIni ini(fichier, "Général");
    EXPECT_FALSE(ini.SaveKey("", "x"));
    EXPECT_TRUE(ini.SaveKey("Nom", "Durand"));
    EXPECT_EQ(Contenu(), "[Général]\r\nNom=Durand\r\n");
    ini.Section = "";
    EXPECT_FALSE(ini.SaveKey("Nom", "x"));
    Ecrire("[A]\nk=v\n");
    ini.Section = "a";
    ini.SaveKey("j", "w");
    EXPECT_EQ(Contenu(), "[A]\nk=v\nj=w\n");
}

TEST_F(ClsIniTest, Suppressions) {
    Ecrire(kExemple);
    ClsIni ini(fichier, "Général");
    EXPECT_TRUE(ini.DeleteKeyFromSection("NOM"));
    EXPECT_FALSE(ini.DeleteKeyFromSection("NOM"));
    EXPECT_FALSE(ini.DeleteKeyFromSection("note"));
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Nom", "?"), "?");
    EXPECT_EQ(ClsIni::Lire(fichier, "Général", "Vide", "?"), "");

    ini.Section = "banque";
    EXPECT_TRUE(ini.DeleteSectionFromInifile());
    // The second section of that name is now the first.
    EXPECT_EQ(ClsIni::Lire(fichier, "Banque", "Nom"), "Doublon");
    EXPECT_TRUE(ini.DeleteSectionFromInifile());
    EXPECT_FALSE(ini.DeleteSectionFromInifile());
    EXPECT_EQ(ini.GetAllSectionsFromInifile(), std::vector<Texte>{"Général"});

    EXPECT_TRUE(ini.DeleteAllSectionFromInifile());
    EXPECT_TRUE(ini.GetAllSectionsFromInifile().empty());
    EXPECT_EQ(Contenu(), "; en-tête\r\n");
    ClsIni absent(fichier + ".non", "A");
    EXPECT_FALSE(absent.DeleteAllSectionFromInifile());
    EXPECT_FALSE(absent.DeleteKeyFromSection("k"));
    EXPECT_FALSE(FichierExiste(fichier + ".non"));
}

} // namespace
} // namespace verdane
