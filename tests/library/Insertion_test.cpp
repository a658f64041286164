// The road of the composed codes into the document, and back.

#include "engine/FauxUtilisateurMoteur.h"
#include "library/FormesDate.h"
#include "library/InfoBulle.h"
#include "library/InsererCode.h"
#include "library/LectureSelection.h"
#include "library/PiloteTexte.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

class Insertion : public ::testing::Test {
protected:
    void SetUp() override { pilote.Lier(m.ctx); }
    bool Inserer(const Texte& code) {
        m.ctx.etat.insertion.codeEnAttente = code;
        return InsererCode(m.ctx);
    }
    // The only message said since the last call.
    const Message& SeulMessage() {
        EXPECT_EQ(m.utilisateur.messages.size(), 1u);
        dernier = m.utilisateur.messages.empty() ? Message{} : m.utilisateur.messages.back();
        m.utilisateur.messages.clear();
        return dernier;
    }
    MoteurDeTest m;
    PiloteTexte pilote;
    Message dernier;
};

TEST_F(Insertion, CodeAuCurseurOuDansLaCelluleEnCours) {
    // At the cursor, its blanks written underlined, in the document's font.
    EXPECT_TRUE(Inserer(" gph(Mon graphe;a b) "));
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"#mrl(_gph(Mon_graphe;a_b)_)#"}));
    EXPECT_EQ(pilote.polices, (std::vector<Texte>{"/0"}));
    EXPECT_TRUE(m.utilisateur.messages.empty());

    // Into the cell of the table being defined.
    Texte colle;
    m.ctx.etat.insertion.modeCellule = true;
    m.ctx.etat.insertion.collerCellule = [&](const Texte& t) {
        colle = t;
        return true;
    };
    EXPECT_TRUE(Inserer("VLVB.DON+VLVB-3a12:2"));
    EXPECT_EQ(colle, "%mrl(VLVB.DON+VLVB-3a12:2)%");
    // A cell that can't take it: the user is told what to write there.
    m.ctx.etat.insertion.collerCellule = [](const Texte&) { return false; };
    EXPECT_FALSE(Inserer("nom Dossier"));
    EXPECT_EQ(SeulMessage().titre, "Erreur d'insertion d'une donnée Marlo");
    EXPECT_NE(dernier.texte.find("Ecrire le code suivant dans votre cellule : %mrl(nom_Dossier)%"),
              Texte::npos);
    m.ctx.etat.insertion.collerCellule = nullptr;
    EXPECT_FALSE(Inserer("x"));
    EXPECT_EQ(pilote.inseres.size(), 1u);
    m.utilisateur.messages.clear();

    // Another program than a word processor: nothing inserted, and said.
    m.ctx.etat.insertion.modeCellule = false;
    m.ctx.etat.options.CheminEditeur = "C:\\Programmes\\notepad.exe";
    EXPECT_FALSE(Inserer("saut2page"));
    EXPECT_EQ(SeulMessage().texte, "Aucun traitement de texte n'est actuellement lié à Verdane !");
    EXPECT_NE(dernier.technique.find("PROPRIETES"), Texte::npos);
    EXPECT_FALSE(InsererDate(m.ctx, 0, true));
    EXPECT_EQ(pilote.inseres.size(), 1u);
}

TEST_F(Insertion, DatesFixesOuMisesAJourALaGeneration) {
    const Instant maintenant = m.extensions.maintenant;
    const auto liste = ListeFormatsDate(maintenant);
    ASSERT_EQ(liste.size(), 16u);
    EXPECT_EQ(liste[3], "22 - 11 - 2026");
    // The code refreshed at each generation writes what the list showed for its entry.
    for (int i = 0; i < kNbFormesDate; ++i) {
        const Texte code = TexteDateAInserer(i, true, maintenant);
        ASSERT_EQ(code.rfind("#mrl(date(", 0), 0u) << code;
        EXPECT_EQ(m.Developper(code), liste[static_cast<std::size_t>(i)]) << code;
    }
    EXPECT_EQ(TexteDateAInserer(16, true, maintenant), "");
    EXPECT_EQ(TexteDateAInserer(-1, false, maintenant), "");
    // Both go to the document as they stand: the blanks of a date stay blanks.
    EXPECT_TRUE(InsererDate(m.ctx, 3, false));
    EXPECT_TRUE(InsererDate(m.ctx, 1, true));
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"22 - 11 - 2026", "#mrl(date(2))#"}));
}

TEST_F(Insertion, InfoBullesComposeesVerifieesEtRelues) {
    ASSERT_TRUE(InsererInfoBulle(m.ctx, {"Titre long", "Le texte", "mot", "", 10}));
    ASSERT_EQ(pilote.inseres.size(), 1u);
    EXPECT_EQ(pilote.inseres[0], "#mrl(INFO:MRL:10:Titre_long:Le_texte:mot)#");
    // A blank of a code comes back to the engine as a blank.
    const Texte document = m.Developper(pilote.inseres[0]);
    EXPECT_NE(document.find("{\\*\\atnauthor Titre long }"), Texte::npos) << document;
    EXPECT_NE(document.find("{Le texte}"), Texte::npos) << document;
    EXPECT_NE(document.find("\\fs20 "), Texte::npos) << document;

    const auto composer = [&](const Texte& titre, const Texte& commentaire, const Texte& texte = "",
                              const Texte& code = "") {
        return ComposerInfoBulle(m.ctx, {titre, commentaire, texte, code, 12});
    };
    EXPECT_EQ(composer(Texte(50, 't'), "c"), "INFO:MRL:12:" + Texte(50, 't') + ":c:");
    EXPECT_EQ(composer("Titre", "Com", "mot", "AB"), "INFO:AB:12:Titre:Com:mot");
    EXPECT_FALSE(composer(Texte(53, 't'), "c"));
    EXPECT_EQ(SeulMessage().titre, "Insertion du commentaire impossible !");
    EXPECT_EQ(dernier.technique, "Vous avez dépassé la taille maximale du titre de 3 caractère(s) "
                                 "( limite imposée par le RTF ).");
    // The length comes first: an overlong title with an empty comment tells the length.
    EXPECT_FALSE(composer(Texte(51, 't'), ""));
    EXPECT_NE(SeulMessage().texte.find("50 caractères"), Texte::npos);
    EXPECT_FALSE(composer("Titre", "  "));
    EXPECT_EQ(SeulMessage().texte,
              "Vous devez inscrire un titre et un commentaire avant de valider l'insertion !");
    EXPECT_FALSE(composer("", "c"));
    SeulMessage();

    const std::pair<PiecesInfoBulle, const char*> deuxPoints[] = {
        {{"a:b", "c", "", "", 10}, "Le titre"},
        {{"a", "c:d", "", "", 10}, "L'annotation"},
        {{"a", "c", "mot:", "", 10}, "Le texte annoté"},
        {{"a", "c", "mot", ":X", 10}, "Le code à afficher"},
        {{"a:", "c:", "", "", 10}, "Le titre"}};
    for (const auto& [pieces, debut] : deuxPoints) {
        EXPECT_FALSE(ComposerInfoBulle(m.ctx, pieces)) << debut;
        EXPECT_EQ(SeulMessage().texte.rfind(debut, 0), 0u) << debut;
        EXPECT_EQ(dernier.titre, "Caractère réservé pour le codage de l'info-bulle");
    }
    EXPECT_EQ(pilote.inseres.size(), 1u);

    EXPECT_TRUE(AvertirInfoBullesOpenOffice(m.ctx));
    EXPECT_EQ(SeulMessage().titre, "OpenOffice ne gère pas les Info-bulles !");
    m.ctx.etat.options.CheminEditeur = "C:\\Office\\winword.exe";
    EXPECT_FALSE(AvertirInfoBullesOpenOffice(m.ctx));
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST(SelectionLue, CodesEtAutresTextes) {
    EXPECT_EQ(LireCodeSelection(" \r\n\t").genre, GenreSelection::Vide);
    EXPECT_EQ(LireCodeSelection("Madame, Monsieur").genre, GenreSelection::SansCode);
    EXPECT_EQ(LireCodeSelection("#mrl(nomDossier").genre, GenreSelection::SansCode);
    EXPECT_EQ(LireCodeSelection("le #MRL(nomDossier)# et #mrl(tel)#").marque, "#mrl(nomDossier)#");
    EXPECT_EQ(LireCodeSelection("%mrl(an4Fin1)%").marque, "#mrl(an4Fin1)#");
    // Megabytes: not looked at.
    Texte enorme(kTailleSelectionMax + 1, 'x');
    enorme.replace(0, 17, "#mrl(nomDossier)#");
    EXPECT_EQ(LireCodeSelection(enorme).genre, GenreSelection::TropLongue);
    // A large table code within the bound is read whole.
    const Texte grand = "#mrl(tab;" + Texte(3u << 20, 'z') + ")#";
    EXPECT_EQ(LireCodeSelection(grand).marque.size(), grand.size());
}

TEST_F(Insertion, CodeSelectionneExpliqueOuRenvoyeASonEditeur) {
    m.ctx.etat.enrDossier.nom = "TILLEULS";
    pilote.selection = "\r#mrl(nomDossier)# ";
    auto e = ExpliquerSelection(m.ctx);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->valeur, "TILLEULS");
    EXPECT_EQ(SeulMessage().genre, "Aide");
    EXPECT_EQ(m.ctx.etat.insertion.codeSelectionne, "#mrl(nomDossier)#");
    // Nothing selected, or no code: said so, and the kept code stays.
    for (const char* selection : {"", "Madame"}) {
        pilote.selection = selection;
        EXPECT_FALSE(ExpliquerSelection(m.ctx));
        EXPECT_EQ(SeulMessage().titre, "Interprétation d'un code Verdane");
    }
    EXPECT_EQ(m.ctx.etat.insertion.codeSelectionne, "#mrl(nomDossier)#");
    // Neither a table nor a graph: no editor to send it to.
    EXPECT_FALSE(RecupererModeleTableau(m.ctx));
    EXPECT_FALSE(RecupererModeleGraph(m.ctx));
    EXPECT_EQ(m.utilisateur.messages.size(), 2u);
    m.utilisateur.messages.clear();

    // A selected graph is not told by its bytes.
    struct ExtensionsImage : FaussesExtensions {
        Texte Graphique(Contexte&, const Texte&) override {
            return "{\\pict\\pngblip " + Texte(4000, 'f') + "}";
        }
    } image;
    m.ctx.extensions = &image;
    pilote.selection = "#mrl(gph(Lait_vendu;2;1))#";
    e = ExpliquerSelection(m.ctx);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->valeur, "une image");
    EXPECT_NE(SeulMessage().texte.find("le graphique \"Lait vendu\"."), Texte::npos);
    EXPECT_LT(dernier.texte.size(), 400u);

    // The editors that don't exist are said not to.
    m.ctx.etat.insertion.codeSelectionne = "#mrl(tab;larg{\\b 500}(x))#";
    EXPECT_FALSE(RecupererModeleTableau(m.ctx));
    EXPECT_NE(SeulMessage().texte.find("n'est pas disponible"), Texte::npos);
    std::vector<Texte> recus;
    for (const char* editeur : {"FrmInserTab", "FrmGraphik"})
        m.ctx.formulaires.Inscrire(editeur, [&](Contexte&, const std::vector<Texte>& a) {
            recus = a;
            return 0;
        });
    EXPECT_TRUE(RecupererModeleTableau(m.ctx));
    // The code reaches the editor cleaned of what the word processor put in it.
    EXPECT_EQ(recus, (std::vector<Texte>{"Récupéré", "tab;larg500(x)"}));
    m.ctx.etat.insertion.codeSelectionne = "#mrl(gph(Ventes_de_lait;1;2))#";
    EXPECT_TRUE(RecupererModeleGraph(m.ctx));
    EXPECT_EQ(recus, (std::vector<Texte>{"Récupéré: Ventes de lait", "gph(Ventes_de_lait;1;2)"}));
}

} // namespace
} // namespace verdane::test
