#include "links/Faux.h"
#include "links/PiloteOpenOffice.h"

#include <gtest/gtest.h>

namespace verdane::essai {
namespace {

class PiloteOpenOfficeTest : public ::testing::Test {
protected:
    PiloteOpenOfficeTest() {
        ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = &pilote;
        ctx.etat.options.sautParagraphe = 0;
    }
    std::vector<std::string> SansConnexions() const {
        std::vector<std::string> j;
        for (const auto& l : bureau.journal)
            if (l != "Connecter") j.push_back(l);
        return j;
    }
    FauxUtilisateur u;
    Contexte ctx{u};
    FauxBureau bureau;
    PiloteOpenOffice pilote{ctx, bureau};
};

TEST_F(PiloteOpenOfficeTest, OuvertureParUrlEtNouveauDocument) {
    EXPECT_TRUE(pilote.NouveauDocument());
    EXPECT_TRUE(pilote.OuvrirDocument("/tmp/Mes documents/lettre été.rtf"));
    EXPECT_TRUE(pilote.OuvrirDocumentCache("/tmp/r.rtf"));
    const std::vector<std::string> attendu = {
        "ChargerURL private:factory/swriter",
        "ChargerURL file:///tmp/Mes%20documents/lettre%20été.rtf",
        "ChargerURL file:///tmp/r.rtf cache"};
    EXPECT_EQ(SansConnexions(), attendu);
}

TEST_F(PiloteOpenOfficeTest, OfficeIntrouvableOuDocumentIlisible) {
    bureau.joignable = false;
    EXPECT_FALSE(pilote.NouveauDocument());
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].technique, "soffice introuvable");
    bureau.joignable = true;
    bureau.enPanne = "ChargerURL";
    EXPECT_FALSE(pilote.OuvrirDocument("/tmp/r.rtf"));
    ASSERT_EQ(u.messages.size(), 2u);
    EXPECT_EQ(u.messages[1].technique, "Erreur d'écriture générale");
}

TEST_F(PiloteOpenOfficeTest, SauverDocumentSelonEtat) {
    EXPECT_FALSE(pilote.SauverDocument(0, false)) << "no frame: nothing happens";
    EXPECT_TRUE(u.messages.empty());
    bureau.cadres = 1;

    bureau.lectureSeule = true;
    EXPECT_FALSE(pilote.SauverDocument(0, false));
    EXPECT_EQ(u.messages.back().titre, "Sauvegarde du document impossible !");
    bureau.lectureSeule = false;

    bureau.modifie = false;
    EXPECT_FALSE(pilote.SauverDocument(0, false));
    EXPECT_EQ(u.messages.back().texte,
              "Vous n'avez pas modifié le document depuis sa dernière ouverture !");
    bureau.modifie = true;
    EXPECT_TRUE(pilote.SauverDocument(0, false));
    EXPECT_EQ(SansConnexions(), std::vector<std::string>{"Stocker"});
}

TEST_F(PiloteOpenOfficeTest, FermerDocument) {
    bureau.cadres = 1;
    bureau.modifie = false;
    EXPECT_TRUE(pilote.FermerDocument(0)) << "unmodified: closed without a question";
    EXPECT_TRUE(u.questions.empty());

    bureau.cadres = 1;
    bureau.modifie = true;
    u.reponses = {Reponse::Annuler};
    EXPECT_FALSE(pilote.FermerDocument(0));
    EXPECT_EQ(u.questions.back(), "Voulez-vous enregistrer les changements apportés au document "
                                  "en cours ? | Fermeture du document");

    EXPECT_TRUE(pilote.FermerDocument(5));
    EXPECT_EQ(u.boites, std::vector<std::string>{"A faire ! | "});
    const std::vector<std::string> attendu = {"Fermer", "Fermer"};
    EXPECT_EQ(SansConnexions(), attendu) << "5 closes without saving";

    bureau.cadres = 1;
    EXPECT_TRUE(pilote.FermerDocument(6));
    EXPECT_EQ(SansConnexions().back(), "Fermer");
    EXPECT_EQ(SansConnexions()[2], "Stocker");
}

TEST_F(PiloteOpenOfficeTest, InsertionEtSelection) {
    EXPECT_FALSE(pilote.InsererTexte("#mrl(x)#", "", 0));
    EXPECT_EQ(u.messages.back().technique, "Erreur : insertion impossible.");
    EXPECT_EQ(pilote.LireSelection(), "");
    EXPECT_EQ(u.messages.back().technique, "Erreur : récupération de la sélection impossible.");

    bureau.cadres = 1;
    ctx.etat.options.sautParagraphe = 1;
    EXPECT_TRUE(pilote.InsererTexte("#mrl(x)#", "Arial", 12));
    EXPECT_EQ(SansConnexions().back(), "Inserer [#mrl(x)#\n] Arial 12") << "line feed behind";
    EXPECT_EQ(pilote.LireSelection(), "#mrl(nomExplSoc)#");
}

TEST_F(PiloteOpenOfficeTest, SauvegardesSousAvecLeurFiltre) {
    // A PDF is exported; a Word document saved with the closing kept last.
    bureau.cadres = 1;
    pilote.EnregistrerSous("/tmp/a b.pdf", FormatDocument::Pdf, false);
    pilote.EnregistrerSous("/tmp/r.doc", FormatDocument::Doc, true);
    const std::vector<std::string> attendu = {
        "StockerSous file:///tmp/a%20b.pdf [writer_pdf_Export] export",
        "StockerSous file:///tmp/r.doc [MS Word 97]", "Fermer"};
    EXPECT_EQ(SansConnexions(), attendu);
    EXPECT_THROW(pilote.EnregistrerSous("/tmp/r.doc", FormatDocument::Doc, true), ErreurEditeur)
        << "no document left";
}

} // namespace
} // namespace verdane::essai
