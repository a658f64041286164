// Codes composed by the insertion dialogs, put at the cursor of a real LibreOffice Writer
// document through the link, read back from it, and explained.

#include "library/ComposeurCode.h"
#include "library/InfoBulle.h"
#include "library/InsererCode.h"
#include "library/LectureSelection.h"
#include "links/uno/LiensSysteme.h"

#include <gtest/gtest.h>

#include <csignal>
#include <memory>

namespace verdane {
namespace {

class Enregistreur : public UtilisateurMuet {
public:
    void AfficherMessage(const Message& m) override { messages.push_back(m); }
    std::vector<Message> messages;
};

class InsertionDansWriter : public ::testing::Test {
protected:
    void SetUp() override {
        ctx.etat.options.sautParagraphe = 0;
        ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
        ctx.etat.enrDossier.nom = "TILLEULS";
        liens = std::make_unique<LiensSysteme>(ctx, OptionsOffice{"", "", true, 180000});
    }
    Texte ToutLeTexte() {
        liens->Bureau().SelectionnerTout();
        return liens->Office().LireSelection();
    }
    Enregistreur u;
    Contexte ctx{u};
    std::unique_ptr<LiensSysteme> liens;
};

// One office for the three steps: a code and its tooltip put at the cursor, then a code of a new
// document explained, then the office killed under the link.
TEST_F(InsertionDansWriter, CodeInsereReluExpliqueEtOfficeFerme) {
    ASSERT_TRUE(liens->Office().NouveauDocument())
        << (u.messages.empty() ? "" : u.messages[0].technique);
    ChoixDonnee choix;
    choix.cle = "VLVB.DON+VLVB-12:0";
    choix.indexValeur = 4 + 3;
    choix.decimales = 2;
    ctx.etat.insertion.codeEnAttente = ComposeurCode::CodeDonnee(choix);
    ASSERT_TRUE(InsererCode(ctx));
    // Behind it, a tooltip whose blanks travel as "_": the cursor stands behind the first.
    ASSERT_TRUE(InsererInfoBulle(ctx, {"Titre long", "Le texte", "mot", "", 10}));
    EXPECT_EQ(ToutLeTexte(),
              "#mrl(VLVB.DON+VLVB-3a12:2)##mrl(INFO:MRL:10:Titre_long:Le_texte:mot)#");
    ASSERT_TRUE(u.messages.empty()) << u.messages[0].texte;

    ASSERT_TRUE(liens->Office().NouveauDocument());
    ctx.etat.insertion.codeEnAttente = "nomDossier";
    ASSERT_TRUE(InsererCode(ctx));
    liens->Bureau().SelectionnerTout();
    const auto explication = ExpliquerSelection(ctx);
    ASSERT_TRUE(explication);
    EXPECT_EQ(explication->valeur, "TILLEULS");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].titre, "Interprétation d'un code Verdane");
    EXPECT_NE(u.messages[0].texte.find("le nom du dossier"), Texte::npos);

    ASSERT_TRUE(liens->Office().NouveauDocument());
    ctx.etat.insertion.codeEnAttente = "saut2page";
    ASSERT_TRUE(InsererCode(ctx));
    const pid_t pid = liens->Bureau().PidOffice();
    ASSERT_GT(pid, 0);
    ::kill(-pid, SIGKILL);
    // The link starts another office, which has no document: said so, nothing breaks.
    EXPECT_FALSE(InsererCode(ctx));
    ASSERT_GT(u.messages.size(), 1u);
    EXPECT_EQ(u.messages.back().texte,
              "Aucun document n'est actuellement ouvert dans OpenOffice avec Verdane.");
    ASSERT_TRUE(liens->Office().NouveauDocument());
    EXPECT_TRUE(InsererCode(ctx));
    EXPECT_EQ(ToutLeTexte(), "#mrl(saut2page)#");
}

} // namespace
} // namespace verdane
