#include "shell/Options.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

Etat EtatDans(const test::DossierTemporaire& d) {
    Etat e;
    e.chemins.RepVerdane = d.Chemin() + "Verdane/";
    return e;
}

} // namespace

TEST(Options, EcritPuisRelitLesMemesOctets) {
    test::DossierTemporaire d;
    Etat e = EtatDans(d);
    e.options.CheminEditeur = "C:\\Program Files\\OpenOffice.org 3\\program\\soffice.exe";
    e.options.PositionBarre = -1;
    e.options.sautParagraphe = 0;
    e.RepDossier[0] = "D:\\Données\\Marlo\\";
    e.NomDossier[0] = "GAEC Élevage";
    e.NomDossier[5] = "dernier";
    e.options.FormatsDefaut[11] = "2;3;4;5;6";
    e.options.brouillon[4] = "garde sa place";
    e.options.TempsSauvegarde = 5;
    e.options.AlignementDefaut = "r";
    ASSERT_TRUE(EnregistrerOptions(e));
    const std::string ecrit = d.Lire("Verdane/Editeur.svg");
    EXPECT_EQ(ecrit.size(), 45u * 128u);

    Etat relu = EtatDans(d);
    ChargerOptions(relu);
    EXPECT_EQ(relu.NomDossier[0], "GAEC Élevage");
    EXPECT_EQ(relu.options.PositionBarre, -1);
    EXPECT_EQ(relu.options.FormatsDefaut[11], "2;3;4;5;6");
    EXPECT_EQ(OctetsOptions(relu), ecrit);
}

TEST(Options, LesEnregistrementsSontALeurPlace) {
    Etat e;
    e.options.CheminEditeur = "abc";
    e.NomDossier[0] = "N0";
    e.options.CouleurAnnotation = 7;
    e.options.TailleDefaut = 12;
    const std::string o = OctetsOptions(e);
    EXPECT_EQ(o.substr(0, 5), std::string("\x03\x00"
                                          "abc",
                                          5));
    EXPECT_EQ(o.substr(6 * 128, 4), std::string("\x02\x00"
                                                "N0",
                                                4)); // record 7
    EXPECT_EQ(o.substr(17 * 128, 11), std::string("\x09\x00"
                                                  "1;1;1;1;8",
                                                  11));            // record 18
    EXPECT_EQ(o[27 * 128], 1);                                     // record 28
    EXPECT_EQ(o[28 * 128], 7);                                     // record 29
    EXPECT_EQ(o[43 * 128], 12);                                    // record 44
    EXPECT_EQ(o.substr(44 * 128, 3), std::string("\x01\x00l", 3)); // record 45
    // The annotations' record is read as 1 whatever it holds.
    e.options.SansAnnotation = 0;
    Etat relu;
    LireOctetsOptions(relu, OctetsOptions(e));
    EXPECT_EQ(relu.options.SansAnnotation, 1);
}

TEST(Options, FichierAbsentTropCourtTronqueOuAberrant) {
    test::DossierTemporaire d;
    Etat absent = EtatDans(d);
    ChargerOptions(absent); // creates the folder, keeps the defaults
    EXPECT_TRUE(std::filesystem::is_directory(d.Systeme() / "Verdane"));
    EXPECT_EQ(absent.options.sautParagraphe, 1);
    EXPECT_EQ(absent.options.FormatsDefaut[0], "1;1;1;1;8");

    Etat court;
    LireOctetsOptions(court, "\x05");
    EXPECT_EQ(court.options.sautParagraphe, 1);

    Etat e;
    e.options.CheminEditeur = "winword.exe";
    e.options.MemoRepDocuments = 3;
    std::string tronque = OctetsOptions(e).substr(0, 128 + 1);
    Etat relu;
    LireOctetsOptions(relu, tronque);
    EXPECT_EQ(relu.options.CheminEditeur, "winword.exe");
    EXPECT_EQ(relu.options.MemoRepDocuments, 0); // one byte of record 2 is not a record

    // Lengths that no record can hold: nothing beyond the record is read.
    std::string aberrant(45 * 128, '\xFF');
    Etat fou;
    LireOctetsOptions(fou, aberrant);
    EXPECT_TRUE(fou.options.CheminEditeur.empty());
    aberrant[0] = '\x7F';
    aberrant[1] = '\x00';
    LireOctetsOptions(fou, aberrant);
    EXPECT_EQ(fou.options.CheminEditeur.size(), 126u);
    EXPECT_EQ(OctetsOptions(fou).size(), 45u * 128u);

    // A text too long for its record is cut to the record's length.
    Etat long_;
    long_.options.RepDocuments = std::string(300, 'x');
    LireOctetsOptions(relu, OctetsOptions(long_));
    EXPECT_EQ(relu.options.RepDocuments, std::string(126, 'x'));
}

} // namespace verdane
