#include "links/Faux.h"
#include "links/Liens.h"
#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane::essai {
namespace {

namespace fs = std::filesystem;

class Dialogue : public DialogueFichiers {
public:
    Texte CheminSauvegarde(const Texte& dossier, const Texte& filtre) override {
        demandes.push_back(dossier + " " + filtre);
        return reponse;
    }
    Texte reponse;
    std::vector<std::string> demandes;
};

class SauverSousTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (auto e : {Editeur::Word, Editeur::WordPro, Editeur::OpenOffice})
            ctx.pilotes[static_cast<std::size_t>(e)] = &pilote;
        pilote.PoserDialogue(&dialogue);
    }
    Texte Chemin(const std::string& nom) { return d / nom; }

    FauxUtilisateur u;
    Contexte ctx{u};
    PiloteEnregistreur pilote;
    Dialogue dialogue;
    test::DossierTemporaire d;
};

TEST(EditeurCourant, NomDuProgrammeEnMinusculesQuelQueSoitLeSysteme) {
    FauxUtilisateur u;
    Contexte ctx(u);
    const std::pair<const char*, const char*> cas[] = {
        {"C:\\Program Files\\Microsoft Office\\OFFICE11\\WINWORD.EXE", "winword.exe"},
        {"C:\\lotus\\wordpro\\WordPro.exe  ", "wordpro.exe"},
        {"/opt/libreoffice7.6/program/soffice.bin", "soffice.exe"},
        {"/usr/local/bin/libreoffice7.6", "soffice.exe"},
        {"/usr/bin/libreoffice-writer", "libreoffice-writer"},
        {"", ""}};
    for (const auto& [chemin, nom] : cas) {
        ctx.etat.options.CheminEditeur = chemin;
        EXPECT_EQ(EditeurCourant(ctx.etat), nom) << chemin;
    }
    ctx.etat.options.CheminEditeur = "/usr/bin/gedit";
    EXPECT_EQ(EditeurLie(ctx.etat), Editeur::Aucun);
}

TEST(NomEditeurAffiche, NomsConnusEtAutres) {
    std::vector<Texte> noms;
    for (const char* chemin :
         {"", "/usr/bin/soffice", "C:\\Outils\\NOTEPAD.EXE", "/usr/bin/abiword"})
        noms.push_back(NomEditeurAffiche(chemin));
    EXPECT_EQ(noms, (std::vector<Texte>{"Aucun", "Sun OpenOffice", "Notepad", "Abiword"}));
}

TEST(CheminVersURL, BlancsEtSeparateursSeulement) {
    EXPECT_EQ(CheminVersURL("C:\\Mes documents\\r.doc"), "file:///C|/Mes%20documents/r.doc");
    EXPECT_EQ(CheminVersURL("/tmp/a b/r#1.rtf"), "file:///tmp/a%20b/r#1.rtf");
}

TEST(FormatDuChemin, TroisDernieresLettres) {
    std::vector<FormatDocument> formats;
    for (const char* chemin : {"x.RTF", "x.Doc", "x.docx", "x.lwp", "x.txt", "x"})
        formats.push_back(FormatDuChemin(chemin));
    using enum FormatDocument;
    EXPECT_EQ(formats, (std::vector<FormatDocument>{Rtf, Doc, Docx, Lwp, Autre, Autre}));
}

TEST(OuvrirDansEditeur, SansTraitementDeTexteLieLeDit) {
    FauxUtilisateur u;
    Contexte ctx(u);
    ctx.etat.options.CheminEditeur = "/usr/bin/gedit";
    OuvrirDansEditeur(ctx, "/tmp/r.rtf");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Aucun traitement de texte n'est actuellement lié à Verdane !");
    EXPECT_EQ(u.messages[0].titre, "Erreur détectée :  cliquez Fermer pour continuer");
}

TEST_F(SauverSousTest, UnModeleEstSauveEnRtfPuisRenommeEnVdm) {
    d.Ecrire("lettre.vdm", "ancien");
    ASSERT_TRUE(SauverSous(ctx, false, Editeur::OpenOffice, Chemin("lettre.VDM"), true));
    EXPECT_FALSE(fs::exists(d.Systeme() / "lettre.rtf"));
    EXPECT_EQ(*LireFichier(Chemin("lettre.vdm")), OctetsDuFormat(FormatDocument::Rtf));
    const std::vector<std::string> attendu = {"enregistrer " + Chemin("lettre.rtf") + " 0",
                                              "fermer 7", "ouvrir " + Chemin("lettre.vdm")};
    EXPECT_EQ(pilote.journal, attendu);
    EXPECT_TRUE(u.questions.empty()) << "RTF is no change of format";
}

TEST_F(SauverSousTest, ConfirmationDuChangementDeFormat) {
    u.reponses = {Reponse::Non};
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::Word, Chemin("r.doc"), true));
    EXPECT_EQ(u.questions,
              std::vector<std::string>{
                  "Confirmer la sauvegarde au format Microsoft Word | Sauvegarde au format DOC"});
    EXPECT_EQ(u.boites, std::vector<std::string>{"Sauvegarde annulée | "});
    EXPECT_TRUE(pilote.journal.empty());

    // Closing, or not asked to confirm: no question.
    u.questions.clear();
    EXPECT_TRUE(SauverSous(ctx, true, Editeur::OpenOffice, Chemin("r.doc"), true));
    EXPECT_TRUE(SauverSous(ctx, false, Editeur::OpenOffice, Chemin("r.doc"), false));
    EXPECT_TRUE(u.questions.empty());

    // Word Pro asks only for its own format.
    EXPECT_TRUE(SauverSous(ctx, false, Editeur::WordPro, Chemin("r.doc"), true));
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(SauverSous(ctx, false, Editeur::WordPro, Chemin("r.lwp"), true));
    EXPECT_EQ(u.questions, std::vector<std::string>{"Confirmer la sauvegarde au format Lotus Word "
                                                    "Pro | Sauvegarde au format LWP"});
}

TEST_F(SauverSousTest, LwpRefuseHorsDeWordPro) {
    for (auto e : {Editeur::Word, Editeur::OpenOffice})
        for (bool fermeture : {false, true})
            EXPECT_FALSE(SauverSous(ctx, fermeture, e, Chemin("r.lwp"), false));
    EXPECT_TRUE(pilote.journal.empty());
    ASSERT_EQ(u.messages.size(), 4u);
    EXPECT_EQ(u.messages[0].titre, "Sauvegarde impossible dans le format demandé");
    EXPECT_EQ(u.messages[0].texte, "Pour pouvoir sauvegarder au format LWP, Verdane doit être lié "
                                   "à l'éditeur de texte Lotus Word Pro.");
}

TEST_F(SauverSousTest, CheminVideDialogueEtCheminSansDossier) {
    ctx.etat.options.RepDocuments = "/docs/";
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::OpenOffice, "", false));
    ASSERT_EQ(dialogue.demandes.size(), 1u);
    EXPECT_EQ(dialogue.demandes[0], "/docs/ Modèle document Verdane (*.vdm)|*.vdm|Document Rich "
                                    "Text Format (*.rtf)|*.rtf");
    EXPECT_TRUE(pilote.journal.empty()) << "a cancelled dialog leaves the document as it is";

    ctx.etat.options.CheminEditeur = "C:\\Lotus\\WORDPRO.EXE";
    dialogue.reponse = "r.rtf";
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::WordPro, "", false));
    EXPECT_NE(dialogue.demandes[1].find("|Document Lotus Word Pro (*.lwp)|*.lwp"), Texte::npos);
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Le chemin du document à sauvegarder est erroné.");
    EXPECT_EQ(u.messages[0].technique, "Erreur : sauvegarde impossible.");
}

TEST_F(SauverSousTest, EchecDuTraitementDeTexteDecrit) {
    pilote.refuse = true;
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::OpenOffice, Chemin("r.rtf\\"), false));
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Erreur du traitement de texte lors de la sauvegarde du "
                                   "document en cours :\nDescription technique de l'erreur : "
                                   "Accès refusé");
}

TEST_F(SauverSousTest, SansPiloteLeDit) {
    ctx.pilotes = {};
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::Word, Chemin("r.rtf"), false));
    ASSERT_EQ(u.messages.size(), 1u);
}

} // namespace
} // namespace verdane::essai
