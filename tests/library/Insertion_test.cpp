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
    MoteurDeTest m;
    PiloteTexte pilote;
};

TEST_F(Insertion, CodeAuCurseurAvecSesBlancsEcritsSouligne) {
    EXPECT_TRUE(Inserer(" gph(Mon graphe;a b) "));
    EXPECT_EQ(pilote.inseres, (std::vector<Texte>{"#mrl(_gph(Mon_graphe;a_b)_)#"}));
    EXPECT_EQ(pilote.polices, (std::vector<Texte>{"/0"}));
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Insertion, UnBlancDUnCodeRevientAuMoteur) {
    PiecesInfoBulle p;
    p.titre = "Titre long";
    p.commentaire = "Le texte";
    p.texteAnnote = "mot";
    ASSERT_TRUE(InsererInfoBulle(m.ctx, p));
    ASSERT_EQ(pilote.inseres.size(), 1u);
    EXPECT_EQ(pilote.inseres[0], "#mrl(INFO:MRL:10:Titre_long:Le_texte:mot)#");
    const Texte document = m.Developper(pilote.inseres[0]);
    EXPECT_NE(document.find("{\\*\\atnauthor Titre long }"), Texte::npos) << document;
    EXPECT_NE(document.find("{Le texte}"), Texte::npos) << document;
    EXPECT_NE(document.find("\\fs20 "), Texte::npos) << document;
}

TEST_F(Insertion, CelluleDuTableauEnCoursDeDefinition) {
    Texte colle;
    m.ctx.etat.insertion.modeCellule = true;
    m.ctx.etat.insertion.collerCellule = [&](const Texte& t) {
        colle = t;
        return true;
    };
    EXPECT_TRUE(Inserer("VLVB.DON+VLVB-3a12:2"));
    EXPECT_EQ(colle, "%mrl(VLVB.DON+VLVB-3a12:2)%");
    EXPECT_TRUE(pilote.inseres.empty());

    // A cell that can't take it: the user is told what to write there.
    m.ctx.etat.insertion.collerCellule = [](const Texte&) { return false; };
    EXPECT_FALSE(Inserer("nom Dossier"));
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_EQ(m.utilisateur.messages[0].titre, "Erreur d'insertion d'une donnée Marlo");
    EXPECT_NE(m.utilisateur.messages[0].texte.find(
                  "Ecrire le code suivant dans votre cellule : %mrl(nom_Dossier)%"),
              Texte::npos);
    m.ctx.etat.insertion.collerCellule = nullptr;
    EXPECT_FALSE(Inserer("x"));
    EXPECT_TRUE(pilote.inseres.empty());
}

TEST_F(Insertion, SansTraitementDeTexteRienNEstInsere) {
    for (const char* chemin : {"", "C:\\Programmes\\notepad.exe"}) {
        m.utilisateur.messages.clear();
        m.ctx.etat.options.CheminEditeur = chemin;
        EXPECT_FALSE(Inserer("saut2page"));
        EXPECT_FALSE(InsererDate(m.ctx, 0, true));
        ASSERT_EQ(m.utilisateur.messages.size(), 2u);
        EXPECT_EQ(m.utilisateur.messages[0].texte,
                  "Aucun traitement de texte n'est actuellement lié à Verdane !");
        EXPECT_NE(m.utilisateur.messages[0].technique.find("PROPRIETES"), Texte::npos);
    }
    EXPECT_TRUE(pilote.inseres.empty());
}

TEST_F(Insertion, DatesFixesOuMisesAJourALaGeneration) {
    const Instant maintenant = m.extensions.maintenant;
    const auto liste = ListeFormatsDate(maintenant);
    ASSERT_EQ(liste.size(), 16u);
    EXPECT_EQ(liste[3], "22 - 11 - 2026");
    EXPECT_EQ(liste[8], "22");
    EXPECT_EQ(liste[15], "09-05");
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

class InfoBulles : public Insertion {
protected:
    std::optional<Texte> Composer(const Texte& titre, const Texte& commentaire,
                                  const Texte& texte = "", const Texte& code = "") {
        m.utilisateur.messages.clear();
        return ComposerInfoBulle(m.ctx, {titre, commentaire, texte, code, 12});
    }
};

TEST_F(InfoBulles, LongueurDuTitre) {
    EXPECT_EQ(Composer(Texte(50, 't'), "c"), "INFO:MRL:12:" + Texte(50, 't') + ":c:");
    EXPECT_FALSE(Composer(Texte(53, 't'), "c"));
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_EQ(m.utilisateur.messages[0].titre, "Insertion du commentaire impossible !");
    EXPECT_EQ(m.utilisateur.messages[0].technique,
              "Vous avez dépassé la taille maximale du titre de 3 caractère(s) ( limite imposée "
              "par le RTF ).");
    // The length comes first: an overlong title with an empty comment tells the length.
    EXPECT_FALSE(Composer(Texte(51, 't'), ""));
    EXPECT_NE(m.utilisateur.messages[0].texte.find("50 caractères"), Texte::npos);
}

TEST_F(InfoBulles, PiecesObligatoiresEtDeuxPoints) {
    EXPECT_FALSE(Composer("Titre", "  "));
    EXPECT_EQ(m.utilisateur.messages[0].texte,
              "Vous devez inscrire un titre et un commentaire avant de valider l'insertion !");
    EXPECT_FALSE(Composer("", "c"));

    const struct {
        PiecesInfoBulle pieces;
        const char* debut;
    } cas[] = {{{"a:b", "c", "", "", 10}, "Le titre"},
               {{"a", "c:d", "", "", 10}, "L'annotation"},
               {{"a", "c", "mot:", "", 10}, "Le texte annoté"},
               {{"a", "c", "mot", ":X", 10}, "Le code à afficher"},
               {{"a:", "c:", "", "", 10}, "Le titre"}};
    for (const auto& c : cas) {
        m.utilisateur.messages.clear();
        EXPECT_FALSE(ComposerInfoBulle(m.ctx, c.pieces)) << c.debut;
        ASSERT_EQ(m.utilisateur.messages.size(), 1u);
        EXPECT_EQ(m.utilisateur.messages[0].texte.rfind(c.debut, 0), 0u);
        EXPECT_EQ(m.utilisateur.messages[0].titre,
                  "Caractère réservé pour le codage de l'info-bulle");
    }
    EXPECT_EQ(Composer("Titre", "Com", "mot", "AB"), "INFO:AB:12:Titre:Com:mot");
    EXPECT_TRUE(pilote.inseres.empty());
}

TEST_F(InfoBulles, OpenOfficeEstPrevenu) {
    EXPECT_TRUE(AvertirInfoBullesOpenOffice(m.ctx));
    EXPECT_EQ(m.utilisateur.messages[0].titre, "OpenOffice ne gère pas les Info-bulles !");
    m.ctx.etat.options.CheminEditeur = "C:\\Office\\winword.exe";
    EXPECT_FALSE(AvertirInfoBullesOpenOffice(m.ctx));
    EXPECT_EQ(m.utilisateur.messages.size(), 1u);
}

TEST(SelectionLue, CodesEtAutresTextes) {
    EXPECT_EQ(LireCodeSelection("").genre, GenreSelection::Vide);
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

TEST_F(Insertion, CodeSelectionneExplique) {
    m.ctx.etat.enrDossier.nom = "TILLEULS";
    pilote.selection = "\r#mrl(nomDossier)# ";
    const auto e = ExpliquerSelection(m.ctx);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->valeur, "TILLEULS");
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_EQ(m.utilisateur.messages[0].genre, "Aide");
    EXPECT_EQ(m.ctx.etat.insertion.codeSelectionne, "#mrl(nomDossier)#");

    // Nothing selected, or no code: said so, and the kept code stays.
    for (const char* selection : {"", "Madame"}) {
        m.utilisateur.messages.clear();
        pilote.selection = selection;
        EXPECT_FALSE(ExpliquerSelection(m.ctx));
        ASSERT_EQ(m.utilisateur.messages.size(), 1u);
        EXPECT_EQ(m.utilisateur.messages[0].titre, "Interprétation d'un code Verdane");
    }
    EXPECT_EQ(m.ctx.etat.insertion.codeSelectionne, "#mrl(nomDossier)#");
}

TEST_F(Insertion, UnGraphiqueSelectionneNeDitPasSesOctets) {
    struct ExtensionsImage : FaussesExtensions {
        Texte Graphique(Contexte&, const Texte&) override {
            return "{\\pict\\pngblip " + Texte(4000, 'f') + "}";
        }
    } extensions;
    m.ctx.extensions = &extensions;
    pilote.selection = "#mrl(gph(Lait_vendu;2;1))#";
    const auto e = ExpliquerSelection(m.ctx);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->valeur, "une image");
    EXPECT_NE(m.utilisateur.messages.back().texte.find("le graphique \"Lait vendu\"."),
              Texte::npos);
    EXPECT_LT(m.utilisateur.messages.back().texte.size(), 400u);
}

TEST_F(Insertion, ModeleRecupereDansSonEditeur) {
    // Not a table, nor a graph.
    m.ctx.etat.insertion.codeSelectionne = "#mrl(nomDossier)#";
    EXPECT_FALSE(RecupererModeleTableau(m.ctx));
    EXPECT_FALSE(RecupererModeleGraph(m.ctx));
    EXPECT_EQ(m.utilisateur.messages.size(), 2u);

    // The editors that don't exist are said not to.
    m.utilisateur.messages.clear();
    m.ctx.etat.insertion.codeSelectionne = "#mrl(tab;larg{\\b 500}(x))#";
    EXPECT_FALSE(RecupererModeleTableau(m.ctx));
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_NE(m.utilisateur.messages[0].texte.find("n'est pas disponible"), Texte::npos);

    std::vector<Texte> recus;
    m.ctx.formulaires.Inscrire("FrmInserTab", [&](Contexte&, const std::vector<Texte>& a) {
        recus = a;
        return 0;
    });
    m.ctx.formulaires.Inscrire("FrmGraphik", [&](Contexte&, const std::vector<Texte>& a) {
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
