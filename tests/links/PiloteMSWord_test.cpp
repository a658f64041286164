#include "links/Faux.h"
#include "links/PiloteMSWord.h"
#include "links/PiloteWordPro.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace verdane::essai {
namespace {

bool Contient(const std::vector<std::string>& journal, const std::string& ligne) {
    return std::find(journal.begin(), journal.end(), ligne) != journal.end();
}

std::ptrdiff_t Position(const std::vector<std::string>& journal, const std::string& ligne) {
    return std::find(journal.begin(), journal.end(), ligne) - journal.begin();
}

class WordTest : public ::testing::Test {
protected:
    WordTest() {
        ctx.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word;
        ctx.pilotes[static_cast<std::size_t>(Editeur::WordPro)] = &wordPro;
        monde().valeurs["App.Documents.Count"] = 1L;
        monde().valeurs["App.ActiveDocument.FullName"] = Texte("C:\\Docs\\lettre.doc");
    }
    MondeAutomation& monde() { return automation.monde; }
    FauxUtilisateur u;
    Contexte ctx{u};
    FauxAutomation automation;
    PiloteMSWord word{ctx, automation};
    PiloteWordPro wordPro{ctx, automation};
};

// Launched, given its title, a document opened maximised, a code inserted in its own font, saved,
// saved as each format, closed: Word quits when nothing is left open.
TEST_F(WordTest, WordDuLancementALaFermeture) {
    auto& j = monde().journal;
    const auto fin = [&](std::size_t n) { return std::vector<std::string>(j.end() - n, j.end()); };
    ASSERT_TRUE(word.LierApplication());
    EXPECT_TRUE(Contient(j, "Creer Word.Application"));
    EXPECT_TRUE(Contient(j, "App.Caption = \"Editeur Verdane\""));

    ASSERT_TRUE(word.OuvrirDocument("C:\\Docs\\lettre.rtf"));
    EXPECT_EQ(fin(4),
              (std::vector<std::string>{
                  "App.Documents.Open(Filename:=\"C:\\Docs\\lettre.rtf\", ReadOnly:=Faux)",
                  "App.Documents.Open().Activate()", "App.Visible = Vrai", "App.WindowState = 1"}));

    // A paragraph before, the font asked, then the user's font given back.
    ctx.etat.options.sautParagraphe = 1;
    monde().valeurs["App.Selection.Font.Name"] = Texte("Times New Roman");
    monde().valeurs["App.Selection.Font.Size"] = 10L;
    ASSERT_TRUE(
        word.InsererTexteMisEnForme("#mrl(x)#", true, std::nullopt, std::nullopt, "Arial", 14));
    const auto paragraphe = Position(j, "App.Selection.TypeParagraph()");
    const auto texte = Position(j, "App.Selection.TypeText(Text:=\"#mrl(x)#\")");
    const auto arial = Position(j, "App.Selection.Font.Name = \"Arial\"");
    const auto rendu = Position(j, "App.Selection.Font.Name = \"Times New Roman\"");
    ASSERT_LT(rendu, static_cast<std::ptrdiff_t>(j.size()));
    EXPECT_LT(paragraphe, arial);
    EXPECT_LT(arial, texte);
    EXPECT_LT(texte, rendu);
    EXPECT_TRUE(Contient(j, "App.Selection.Font.Bold = Vrai"));
    EXPECT_FALSE(Contient(j, "App.Selection.Font.Italic = Vrai"));
    EXPECT_TRUE(Contient(j, "App.Selection.Font.Size = 10"));
    EXPECT_EQ(j.back(), "App.Activate()");

    word.SauverDocument(0, false);
    EXPECT_TRUE(Contient(j, "App.ActiveDocument.Save()"));
    word.EnregistrerSous("C:\\r.rtf", FormatDocument::Rtf, true);
    word.EnregistrerSous("C:\\r.doc", FormatDocument::Doc, true);
    word.EnregistrerSous("C:\\r.rtf", FormatDocument::Rtf, false);
    EXPECT_EQ(fin(4),
              (std::vector<std::string>{
                  "App.ActiveDocument.Close(Vrai, \"Rich Text Format\", \"C:\\r.rtf\")",
                  "App.ActiveDocument.SaveAs(\"C:\\r.doc\", 0)", "App.ActiveDocument.Close(Faux)",
                  "App.ActiveDocument.SaveAs(\"C:\\r.rtf\", 6)"}));

    j.clear();
    monde().apresAppel = [this](const std::string& chemin) {
        if (chemin == "App.ActiveDocument.Close") monde().valeurs["App.Documents.Count"] = 0L;
    };
    u.reponses = {Reponse::Non};
    ASSERT_TRUE(word.FermerDocument(0));
    EXPECT_EQ(u.questions.back(), "Voulez-vous enregistrer les changements apportés à :\n"
                                  "C:\\Docs\\lettre.doc ? | Fermeture du document");
    EXPECT_TRUE(Contient(j, "App.ActiveDocument.Close(Faux)"));
    EXPECT_EQ(j.back(), "App.Quit()");
}

// A Word already running is taken as it is; a document without a name, or a save forced, goes
// through the save dialog; no document at all is said so.
TEST_F(WordTest, WordRepriDocumentSansNomOuAbsent) {
    FauxAutomation autre;
    autre.fenetre = true;
    PiloteMSWord repris(ctx, autre);
    ASSERT_TRUE(repris.LierApplication());
    EXPECT_EQ(autre.monde.journal, std::vector<std::string>{"Actif Word.Application"});

    class Annule : public DialogueFichiers {
        Texte CheminSauvegarde(const Texte&, const Texte&) override {
            ++n;
            return {};
        }

    public:
        int n = 0;
    } dialogue;
    word.PoserDialogue(&dialogue);
    monde().valeurs["App.ActiveDocument.FullName"] = Texte("Document1");
    word.SauverDocument(0, false);
    EXPECT_EQ(dialogue.n, 1);
    monde().valeurs["App.ActiveDocument.FullName"] = Texte("C:\\Docs\\lettre.doc");
    word.SauverDocument(1, false);
    EXPECT_EQ(dialogue.n, 2) << "forced";

    monde().valeurs["App.Documents.Count"] = 0L;
    EXPECT_FALSE(word.SauverDocument(0, false));
    EXPECT_EQ(u.messages.back().texte, "Aucun document n'est actuellement ouvert dans MSWord.");
}

// Word Pro is shown in two steps, inserts through its text object, reads the selection through
// the clipboard and saves by folder and name.
TEST_F(WordTest, WordProDuLancementALaSauvegarde) {
    ASSERT_TRUE(wordPro.NouveauDocument());
    EXPECT_EQ(monde().journal,
              (std::vector<std::string>{"Creer WordPro.Application", "App.NewDocument()",
                                        "App.Visible = Faux", "App.Visible = Vrai"}));
    ctx.etat.options.sautParagraphe = 1;
    ASSERT_TRUE(wordPro.InsererTexte("#mrl(x)#", "", 0));
    EXPECT_TRUE(Contient(monde().journal, "App.Text.InsertText(\"#mrl(x)#\", 1)"));
    EXPECT_EQ(wordPro.LireSelection(), "presse-papiers");
    EXPECT_EQ(monde().journal.back(), "App.CopySelection()");

    wordPro.EnregistrerSous("C:\\Docs\\r.doc", FormatDocument::Doc, false);
    wordPro.EnregistrerSous("C:\\Docs\\r.txt", FormatDocument::Autre, true);
    const std::vector<std::string> fin(monde().journal.end() - 4, monde().journal.end());
    EXPECT_EQ(fin, (std::vector<std::string>{
                       "App.AnswerMsgBox(2079)",
                       "App.ActiveDocument.SaveAs(\"C:\\Docs\", \"r.doc\", \"MS Word 97\")",
                       "App.AnswerMsgBox(2079)",
                       "App.ActiveDocument.Close(Vrai, \"C:\\Docs\", \"r.txt\", \"Lotus Word "
                       "Pro\")"}));
}

TEST_F(WordTest, WordProAbsentOuSansDocument) {
    automation.creable = false;
    EXPECT_FALSE(wordPro.OuvrirDocument("C:\\r.lwp"));
    EXPECT_EQ(u.messages.back().texte, "Impossible de lancer Word Pro.");
    EXPECT_EQ(u.messages.back().titre, "Problème de liaison entre Verdane et Word Pro");
    EXPECT_FALSE(wordPro.InsererTexte("x", "", 0));
    EXPECT_EQ(u.messages.back().technique, "Lotus Word Pro n'est pas ouvert.");

    automation.creable = true;
    ASSERT_TRUE(wordPro.LierApplication());
    monde().valeurs["App.ActiveDocument"] = Valeur{};
    EXPECT_FALSE(wordPro.SauverDocument(0, false));
    EXPECT_EQ(u.messages.back().texte, "Aucun document n'est actuellement ouvert dans WordPro.");
}

} // namespace
} // namespace verdane::essai
