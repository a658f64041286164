#include "links/Faux.h"
#include "links/FinDocument.h"
#include "links/FormatFichier.h"
#include "links/PiloteOpenOffice.h"
#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace verdane::essai {
namespace {

namespace fs = std::filesystem;

class FinDocumentTest : public ::testing::Test {
protected:
    void SetUp() override {
        ctx.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word;
        ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &office;
        word.disponible = false;
    }
    Texte Chemin(const std::string& nom) { return d / nom; }

    FauxUtilisateur u;
    Contexte ctx{u};
    PiloteEnregistreur word;
    PiloteEnregistreur office;
    test::DossierTemporaire d;
};

TEST_F(FinDocumentTest, LotDocAvecWordIndisponibleConvertiParLibreOffice) {
    ctx.etat.options.CheminEditeur = "C:\\Office\\WINWORD.EXE";
    d.Ecrire("r.doc", "{\\rtf1 x}");
    d.Ecrire("r.rtf", "copie");
    TerminerDocument(ctx, "m.vdm", Chemin("r.doc"), false, true);
    const std::vector<std::string> attendu = {"ouvrir cache " + Chemin("r.doc"),
                                              "enregistrer " + Chemin("r.doc") + " 1 fermer"};
    EXPECT_EQ(office.journal, attendu);
    EXPECT_TRUE(word.journal.empty());
    EXPECT_FALSE(fs::exists(d.Systeme() / "r.rtf"));
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

TEST_F(FinDocumentTest, ConversionManqueeGardeLeRtfSousSonNom) {
    const std::string rtf = "{\\rtf1 Dupont}";
    const std::vector<std::function<void()>> pannes = {
        [&] { ctx.pilotes = {}; },       // no word processor at all
        [&] { office.refuse = true; },   // the save fails
        [&] { office.ecritRtf = true; }, // the office says it saved, but didn't convert
    };
    for (std::size_t i = 0; i < pannes.size(); ++i) {
        SCOPED_TRACE(i);
        ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &office;
        office.refuse = office.ecritRtf = false;
        u.messages.clear();
        pannes[i]();
        d.Ecrire("r.odt", rtf);
        d.Ecrire("r.rtf", "ancienne copie");
        TerminerDocument(ctx, "m.vdm", Chemin("r.odt"), false, true);
        const ConversionManquee& manquee = ctx.etat.conversionManquee;
        ASSERT_TRUE(manquee.Manquee());
        EXPECT_EQ(manquee.copieRtf, Chemin("r.rtf"));
        EXPECT_FALSE(fs::exists(d.Systeme() / "r.odt"))
            << "no RTF under the name of another format";
        // The RTF found under the asked name: the program's, or the office's own.
        if (i < 2)
            EXPECT_EQ(LireFichier(Chemin("r.rtf")), rtf);
        else
            EXPECT_EQ(FormatDesOctets(LireFichier(Chemin("r.rtf")).value_or("")),
                      FormatDocument::Rtf);
        ASSERT_FALSE(u.messages.empty());
        EXPECT_EQ(u.messages.back().titre, "Conversion impossible");
        EXPECT_EQ(u.messages.back().texte,
                  "Le document " + Chemin("r.odt") +
                      " n'a pas pu être créé au format ODT : il est gardé au format RTF sous le "
                      "nom " +
                      Chemin("r.rtf") + ".");
        EXPECT_EQ(u.messages.back().technique, manquee.raison);
    }
    EXPECT_EQ(ctx.etat.conversionManquee.raison, "Le fichier écrit n'est pas au format ODT.");
    office.ecritRtf = false;
    office.refuse = true;
    d.Ecrire("r.odt", rtf);
    TerminerDocument(ctx, "m.vdm", Chemin("r.odt"), false, true);
    EXPECT_EQ(ctx.etat.conversionManquee.raison, "Accès refusé") << "the office's own words";

    // The next document that converts clears the failure.
    office.refuse = false;
    d.Ecrire("r.odt", rtf);
    TerminerDocument(ctx, "m.vdm", Chemin("r.odt"), false, true);
    EXPECT_FALSE(ctx.etat.conversionManquee.Manquee());
    EXPECT_TRUE(FichierAuFormat(Chemin("r.odt"), FormatDocument::Odt));
}

TEST_F(FinDocumentTest, MiseAJourDUnDocManqueeGardeLeDocumentEtSaCopie) {
    // The Word document as it was, and its refreshed RTF copy.
    d.Ecrire("r.doc", OctetsDuFormat(FormatDocument::Doc));
    d.Ecrire("r.rtf", "{\\rtf1 frais}");
    office.refuse = true;
    TerminerDocument(ctx, Chemin("r.rtf"), Chemin("r.doc"), true, true);
    EXPECT_EQ(ctx.etat.conversionManquee.copieRtf, Chemin("r.rtf"));
    EXPECT_EQ(LireFichier(Chemin("r.rtf")), "{\\rtf1 frais}") << "not deleted";
    EXPECT_TRUE(FichierAuFormat(Chemin("r.doc"), FormatDocument::Doc));

    // An RTF document refreshed without a word processor is no failure.
    ctx.pilotes = {};
    TerminerDocument(ctx, Chemin("r.rtf"), Chemin("r.rtf"), true, true);
    EXPECT_FALSE(ctx.etat.conversionManquee.Manquee());
}

TEST_F(FinDocumentTest, DocumentPerduAvecSonOfficeDitCommeTel) {
    FauxBureau bureau;
    PiloteOpenOffice lo(ctx, bureau);
    ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &lo;
    bureau.perdu = "LibreOffice s'est arrêté brutalement : le document en cours est perdu.";
    d.Ecrire("r.pdf", "{\\rtf1 x}");
    TerminerDocument(ctx, "m.vdm", Chemin("r.pdf"), false, true);
    EXPECT_EQ(ctx.etat.conversionManquee.raison,
              "LibreOffice s'est arrêté brutalement : le document en cours est perdu.");
    EXPECT_EQ(ctx.etat.conversionManquee.copieRtf, Chemin("r.rtf"));
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
