#include "links/Faux.h"
#include "links/FinDocument.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace verdane::essai {
namespace {

namespace fs = std::filesystem;

class FinDocumentTest : public ::testing::Test {
protected:
    void SetUp() override {
        dossier = fs::temp_directory_path() / ("verdane-fin-" + std::to_string(::getpid()));
        fs::create_directories(dossier);
        ctx.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word;
        ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &office;
        word.disponible = false;
    }
    void TearDown() override { fs::remove_all(dossier); }
    Texte Chemin(const std::string& nom) { return CheminTexte(dossier / nom); }

    FauxUtilisateur u;
    Contexte ctx{u};
    PiloteEnregistreur word;
    PiloteEnregistreur office;
    fs::path dossier;
};

TEST_F(FinDocumentTest, LotDocAvecWordIndisponibleConvertiParLibreOffice) {
    ctx.etat.options.CheminEditeur = "C:\\Office\\WINWORD.EXE";
    std::ofstream(dossier / "r.doc") << "{\\rtf1 x}";
    std::ofstream(dossier / "r.rtf") << "copie";
    TerminerDocument(ctx, "m.vdm", Chemin("r.doc"), false, true);
    const std::vector<std::string> attendu = {"ouvrir cache " + Chemin("r.doc"),
                                              "enregistrer " + Chemin("r.doc") + " 1 fermer"};
    EXPECT_EQ(office.journal, attendu);
    EXPECT_TRUE(word.journal.empty());
    EXPECT_FALSE(fs::exists(dossier / "r.rtf"));
    EXPECT_TRUE(u.messages.empty());
}

TEST_F(FinDocumentTest, ResultatRtfMontreSansNouvelleSauvegarde) {
    ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
    TerminerDocument(ctx, "m.vdm", Chemin("r.rtf"), false, false);
    EXPECT_EQ(office.journal, std::vector<std::string>{"ouvrir " + Chemin("r.rtf")});

    // Shown, then saved again in place as the format of its name.
    office.journal.clear();
    TerminerDocument(ctx, "m.vdm", Chemin("r.odt"), false, false);
    const std::vector<std::string> attendu = {"ouvrir " + Chemin("r.odt"),
                                              "enregistrer " + Chemin("r.odt") + " 3"};
    EXPECT_EQ(office.journal, attendu);
}

TEST_F(FinDocumentTest, ConvertirViaOOLaisseLeDocumentOuvertDansOpenOffice) {
    ctx.etat.options.ConvertirViaOO = 1;
    ctx.etat.options.CheminEditeur = "/usr/bin/libreoffice";
    bool sansOuverture = false;
    ConvertirViaOO(ctx, Chemin("r.rtf"), sansOuverture);
    EXPECT_TRUE(sansOuverture);
    const std::vector<std::string> attendu = {"ouvrir " + Chemin("r.rtf"),
                                              "enregistrer " + Chemin("r.doc") + " 1"};
    EXPECT_EQ(office.journal, attendu);

    // With another word processor linked the copy is closed.
    office.journal.clear();
    ctx.etat.options.CheminEditeur = "C:\\Office\\WINWORD.EXE";
    sansOuverture = false;
    ConvertirViaOO(ctx, Chemin("r.rtf"), sansOuverture);
    EXPECT_FALSE(sansOuverture);
    EXPECT_EQ(office.journal.back(), "enregistrer " + Chemin("r.doc") + " 1 fermer");
}

TEST_F(FinDocumentTest, SansTraitementDeTexteLeDocumentResteRtf) {
    ctx.pilotes = {};
    EXPECT_FALSE(ResauverResultat(ctx, Chemin("r.doc"), Chemin("r.doc"), false));
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].titre, "Conversion impossible");
}

TEST_F(FinDocumentTest, CheminRelatifCompleteParLeDossierCourant) {
    EXPECT_EQ(CheminComplet("/tmp/r.doc"), "/tmp/r.doc");
    EXPECT_EQ(CheminComplet("C:\\r.doc"), "C:\\r.doc");
    EXPECT_EQ(CheminComplet("r.doc"), CheminTexte(fs::current_path() / "r.doc"));
}

TEST_F(FinDocumentTest, MiseAJourDUnDocPasseParSaCopieRtf) {
    EXPECT_EQ(PreparerMiseAJour(ctx, Chemin("r.rtf")), Chemin("r.rtf"));

    u.reponses = {Reponse::Annuler};
    EXPECT_EQ(PreparerMiseAJour(ctx, Chemin("r.doc")), std::nullopt);
    EXPECT_EQ(u.boites.back(), "Mise à jour annulée par l'utilisateur. | ");
    EXPECT_NE(u.questions.back().find("autorisant la création de " + Chemin("r") + ".rtf ?"),
              std::string::npos);

    EXPECT_EQ(PreparerMiseAJour(ctx, Chemin("r.doc")), Chemin("r.rtf"));
    const std::vector<std::string> attendu = {"ouvrir cache " + Chemin("r.doc"),
                                              "enregistrer " + Chemin("r.rtf") + " 0 fermer"};
    EXPECT_EQ(office.journal, attendu);
    EXPECT_EQ(u.boites.back(), "Verdane a terminé la conversion au RTF de votre document MS Word."
                               "\nLa mise à jour du document MS Word va pouvoir se faire à partir "
                               "de la copie RTF. | Cliquez OK pour lancer la mise à jour !");
}

TEST_F(FinDocumentTest, ConversionDeLaBibliotheque) {
    EXPECT_FALSE(ConvertirDocument(ctx, Chemin("r.doc"), "DOC"));
    EXPECT_EQ(u.boites.back(), "Le document est déjà au format doc ! | Conversion d'un document");
    EXPECT_TRUE(u.questions.empty());

    u.reponses = {Reponse::Non};
    EXPECT_FALSE(ConvertirDocument(ctx, Chemin("r.rtf"), "doc"));
    EXPECT_TRUE(office.journal.empty());

    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(ConvertirDocument(ctx, Chemin("r.rtf"), "pdf"));
    EXPECT_EQ(u.questions.back(),
              "Convertir le document au format pdf ? | Conversion d'un document");
    const std::vector<std::string> attendu = {"ouvrir cache " + Chemin("r.rtf"),
                                              "enregistrer " + Chemin("r.pdf") + " 5", "fermer 7"};
    EXPECT_EQ(office.journal, attendu);
}

} // namespace
} // namespace verdane::essai
