#include "engine/CreationDoc.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace verdane {
namespace {

// Stands for the scanner: "#mrl(x)#" becomes "[x]"; a code starting with "faux" is a false
// condition; `pendant` runs at each code, as the world may change during a creation.
class AnalyseurFaux : public AnalyseurCodes {
public:
    bool Analyser(Contexte&, Texte& texte, bool, bool miseAJour) override {
        if (pendant) pendant();
        const auto debut = TrouverSansCasse(texte, "#mrl(");
        const auto fin = texte.rfind(")#");
        if (debut == Texte::npos || fin == Texte::npos || fin < debut) return true;
        const Texte code = texte.substr(debut + 5, fin - debut - 5);
        codes.push_back(code);
        misesAJour += miseAJour ? 1 : 0;
        texte = texte.substr(0, debut) + "[" + code + "]" + texte.substr(fin + 2);
        return code.rfind("faux", 0) != 0;
    }
    std::vector<Texte> codes;
    int misesAJour = 0;
    std::function<void()> pendant;
};

class CreationDoc : public ::testing::Test {
protected:
    CreationDoc() : ctx(u) { ctx.analyseur = &analyseur; }

    // Creates from `modele` and returns the result with its line ends taken out.
    std::string Creer(const std::string& modele, IssueCreation attendue = IssueCreation::Faite) {
        d.Ecrire("modele.vdm", modele);
        EXPECT_EQ(CreerDocument(ctx, d / "modele.vdm", d / "resultat.rtf", false, true, false),
                  attendue);
        return RemplacerExact(d.Lire("resultat.rtf"), "\r\n", "");
    }

    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    AnalyseurFaux analyseur;
    Contexte ctx;
};

std::string Ligne(char c, std::size_t n) {
    return std::string(n, c) + "\r\n";
}

} // namespace

TEST_F(CreationDoc, UnModeleSansCodeNeChangeQueParSesTablesDePolicesEtDeCouleurs) {
    const std::string modele = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\r\n"
                               "{\\colortbl;\\red1\\green2\\blue3;}\r\n"
                               "\\pard Bonjour \\'e9t\\'e9\\par\r\n}";
    const std::string r = Creer(modele);
    const std::string attendu = RemplacerExact(modele, "\r\n", "");
    Texte sansAjouts = r;
    const auto polices = sansAjouts.find("{\\f5000");
    sansAjouts.erase(polices, sansAjouts.find("{\\f0 Arial") - polices);
    const auto couleurs = sansAjouts.find("\\red0\\green0\\blue0;");
    sansAjouts.erase(couleurs, sansAjouts.find(";}", couleurs) + 1 - couleurs);
    EXPECT_EQ(sansAjouts, attendu);
    EXPECT_EQ(ctx.etat.decalageCouleurs, 1);
    EXPECT_TRUE(u.jauges.empty());
    EXPECT_TRUE(u.messages.empty());
    EXPECT_EQ(d.Lire("modele.vdm"), modele); // the model is never changed
}

TEST_F(CreationDoc, LesCodesSontRemplacesEtLaJaugeAvance) {
    const std::string r = Creer("A #mrl(un)# B #MRL(deux)# C");
    EXPECT_EQ(r, "A [un] B [deux] C");
    EXPECT_EQ(analyseur.codes, (std::vector<Texte>{"un", "deux"}));
    EXPECT_EQ(u.jauges,
              (std::vector<std::string>{"ouvrir:", "1485:50 %", "2970:100 %",
                                        "2970:            Création terminée !", "fermer"}));
}

TEST_F(CreationDoc, UnCodeCoupeEntreDeuxMorceauxEstRetrouve) {
    // The first piece ends inside the code; the second holds its end.
    const std::string r = Creer(Ligne('a', 995) + "x#mrl(nom\r\nDossier)# fin");
    EXPECT_EQ(r, std::string(995, 'a') + "x[nomDossier] fin");
    // "#mrl" at the very end of one piece and "(...)#" at the start of the next.
    const std::string r2 = Creer(Ligne('b', 997) + "#mrl\r\n(code)#!");
    EXPECT_EQ(r2, std::string(997, 'b') + "[code]!");
    // A "#" near the end of a piece without any mark: nothing lost, nothing doubled.
    const std::string r3 = Creer(Ligne('c', 1001) + "#\r\nsuite");
    EXPECT_EQ(r3, std::string(1001, 'c') + "#suite");
}

TEST_F(CreationDoc, LesInformationsDuDocumentNeSontPasInterpretees) {
    const std::string r =
        Creer("{\\info{\\title #mrl(titre)#}{\\author #mrl(auteur)#}} #mrl(corps)#");
    EXPECT_EQ(r, "{\\info{\\title #mrl(titre)#}{\\author [auteur]}} [corps]");
    const std::string sansAuteur = Creer("{\\info{\\title #mrl(titre)#}} #mrl(corps)#");
    EXPECT_EQ(sansAuteur, "{\\info{\\title #mrl(titre)#}} #mrl(corps)#");
}

TEST_F(CreationDoc, UneConditionFausseMangeLaFinDeParagrapheSuivante) {
    EXPECT_EQ(Creer("A#mrl(faux)#texte cache\\par B\\par C"), "A[faux]texte cache\\p B\\par C");
    // At the end of a piece, the next piece loses its first paragraph end.
    EXPECT_EQ(Creer(Ligne('x', 995) + "#mrl(faux)#\r\nsuite\\par fin\\par"),
              std::string(995, 'x') + "[faux]suite\\p fin\\par");
    // "\par" at the very end of the text loses its "ar"; "\pard" becomes "\pd", unknown too.
    EXPECT_EQ(Creer("#mrl(faux)#a\\par"), "[faux]a\\p");
    EXPECT_EQ(Creer("#mrl(faux)#a\\pard\\plain b"), "[faux]a\\pd\\plain b");
    // Each false condition eats the next paragraph end still whole, which may leave another
    // behind it; codes in between are still interpreted.
    EXPECT_EQ(Creer("#mrl(faux)##mrl(faux)##mrl(faux)#a\\par b\\par c\\par d\\par"),
              "[faux][faux][faux]a\\p b\\p c\\p d\\par");
    EXPECT_EQ(Creer("#mrl(faux)##mrl(faux)#x\\pararar y#mrl(faux)#z\\par"),
              "[faux][faux]x\\par y[faux]z\\p");
    EXPECT_EQ(Creer("#mrl(faux)#a#mrl(b)#c\\par d"), "[faux]a[b]c\\p d");
}

TEST_F(CreationDoc, UneMarqueSansFinLaisseSaPlainteDansLeDocument) {
    std::string modele = "debut #mrl(jamais fermee";
    for (int i = 0; i < 30; ++i) modele += "\r\n" + std::string(999, 'z');
    modele += "\r\nfin #mrl(ok)#";
    const std::string r = Creer(modele);
    ASSERT_FALSE(u.messages.empty());
    EXPECT_EQ(u.messages[0].titre, "Le modèle de document comporte une erreur !");
    EXPECT_EQ(u.messages[0].technique.rfind("Le code concerné est : #mrl(jamais fermee", 0), 0u);
    EXPECT_NE(u.messages[0].technique.find("zzz..."), Texte::npos);
    EXPECT_NE(r.find("Verdane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la "
                     "balise de fin \")#\" : #mrl(jamais fermee"),
              Texte::npos);
    EXPECT_TRUE(r.ends_with("fin [ok]")); // what follows is still interpreted
    EXPECT_EQ(r.find("debut "), 0u);
}

TEST_F(CreationDoc, RemplacerUnResultatExistantSeDemande) {
    d.Ecrire("modele.vdm", "nouveau");
    d.Ecrire("resultat.rtf", "ancien");
    // Default answer: No, the result stays.
    EXPECT_EQ(CreerDocument(ctx, d / "modele.vdm", d / "resultat.rtf", false, true, true),
              IssueCreation::Abandonnee);
    ASSERT_EQ(u.questions.size(), 1u);
    EXPECT_EQ(u.questions[0].texte,
              "Le document demandé existe déjà !\r\nVoulez-vous le remplacer ?");
    EXPECT_EQ(u.questions[0].parDefaut, Reponse::Non);
    EXPECT_EQ(d.Lire("resultat.rtf"), "ancien");
    u.reponses.push_back(Reponse::Oui);
    EXPECT_EQ(CreerDocument(ctx, d / "modele.vdm", d / "resultat.rtf", false, true, true),
              IssueCreation::Faite);
    EXPECT_EQ(d.Lire("resultat.rtf"), "nouveau\r\n");
    // Without leave to replace, a result that appeared during the creation stays.
    std::filesystem::remove(d.Systeme() / "resultat.rtf");
    analyseur.pendant = [&] { d.Ecrire("resultat.rtf", "d'un autre run"); };
    d.Ecrire("modele.vdm", "#mrl(x)#");
    EXPECT_EQ(CreerDocument(ctx, d / "modele.vdm", d / "resultat.rtf", false, true, true),
              IssueCreation::ResultatImpossible);
    EXPECT_EQ(d.Lire("resultat.rtf"), "d'un autre run");
    EXPECT_NE(u.ToutCeQuiAEteDit().find("Un autre document a pris ce nom"), std::string::npos);
    analyseur.pendant = nullptr;
    // Without the question, it is replaced.
    d.Ecrire("modele.vdm", "encore");
    CreerDocument(ctx, d / "modele.vdm", d / "resultat.rtf", false, true, false);
    EXPECT_EQ(d.Lire("resultat.rtf"), "encore\r\n");
}

TEST_F(CreationDoc, CeQuiEmpecheLaCreation) {
    EXPECT_EQ(CreerDocument(ctx, "   ", d / "r.rtf", false, true, false),
              IssueCreation::Abandonnee);
    EXPECT_TRUE(u.messages.empty());
    EXPECT_EQ(CreerDocument(ctx, d / "absent.vdm", d / "r.rtf", false, true, false),
              IssueCreation::ModeleIllisible);
    d.Ecrire("m.vdm", "x");
    EXPECT_EQ(CreerDocument(ctx, d / "m.vdm", d / "pas/de/dossier/r.rtf", false, true, false),
              IssueCreation::ResultatImpossible);
    EXPECT_EQ(u.messages.size(), 2u);
    // A folder named as the model or the result: said before anything is interpreted.
    std::filesystem::create_directories(d.Systeme() / "dossier.vdm");
    EXPECT_EQ(CreerDocument(ctx, d / "dossier.vdm", d / "r.rtf", false, true, false),
              IssueCreation::ModeleIllisible);
    std::filesystem::create_directories(d.Systeme() / "r.rtf");
    d.Ecrire("code.vdm", "a #mrl(x)# b");
    EXPECT_EQ(CreerDocument(ctx, d / "code.vdm", d / "r.rtf", false, true, false),
              IssueCreation::ResultatImpossible);
    EXPECT_TRUE(analyseur.codes.empty());
    EXPECT_NE(u.ToutCeQuiAEteDit().find("Un répertoire porte ce nom."), std::string::npos);
    std::filesystem::remove(d.Systeme() / "r.rtf");
    // An empty model gives an empty result.
    d.Ecrire("vide.vdm", "");
    EXPECT_EQ(CreerDocument(ctx, d / "vide.vdm", d / "r.rtf", false, true, false),
              IssueCreation::Faite);
    EXPECT_EQ(d.Lire("r.rtf"), "");
}

TEST_F(CreationDoc, SansTraitementDeTexteLeDocumentEstLaEtLUtilisateurLeSait) {
    d.Ecrire("m.vdm", "x");
    EXPECT_EQ(CreerDocument(ctx, d / "m.vdm", d / "r.rtf", false, false, false),
              IssueCreation::Faite);
    EXPECT_EQ(d.Lire("r.rtf"), "x\r\n");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Aucun traitement de texte n'est actuellement lié à Verdane !");
}

TEST_F(CreationDoc, LaMiseAJourRafraichitLesValeursEntreLesMarqueurs) {
    const std::string doc = "Avant {\\v #debdata#}12{\\v #findata=#mrl(a)#} milieu "
                            "{\\v #debdata#}34{\\v #findata=#mrl(b)#} apres #mrl(horsmarqueur)#";
    d.Ecrire("doc.rtf", doc);
    EXPECT_EQ(CreerDocument(ctx, d / "doc.rtf", d / "doc.rtf", true, true, true),
              IssueCreation::Faite);
    EXPECT_EQ(RemplacerExact(d.Lire("doc.rtf"), "\r\n", ""),
              "Avant {\\v #debdata#}[a]{\\v #findata=#mrl(a)#} milieu "
              "{\\v #debdata#}[b]{\\v #findata=#mrl(b)#} apres #mrl(horsmarqueur)#");
    EXPECT_EQ(ctx.etat.ChampsMaj, 2);
    EXPECT_EQ(analyseur.misesAJour, 2);
    EXPECT_EQ(u.jauges.back(), "fermer");
    EXPECT_EQ(u.jauges[u.jauges.size() - 2], "2970:        2 champs mis à jour !");
    EXPECT_TRUE(u.questions.empty()); // an update never asks to replace
}

TEST(NomJauge, LesLongsNomsSontRaccourcis) {
    EXPECT_EQ(NomJauge("court.rtf"), "court.rtf");
    EXPECT_EQ(NomJauge(std::string(32, 'a')), std::string(32, 'a'));
    EXPECT_EQ(NomJauge("abc" + std::string(10, 'x') + std::string(30, 'z')),
              "abc..." + std::string(30, 'z'));
}

} // namespace verdane

namespace verdane {

// The marks found when the model is read, or searched for when a model made of little else
// keeps none; pieces changed on the way (a hidden paragraph end, a bookmark repaired) are
// searched too. Every way gives the same document.
TEST_F(CreationDoc, LesMarquesTrouveesALaLectureOuCherchees) {
    std::string serre, aere, attendu;
    for (int i = 0; i < 400; ++i) {
        const std::string code = (i % 7 == 3 ? "faux" : "c") + std::to_string(i);
        serre += "#mrl(" + code + ")#\\par\r\n";
        aere += std::string(60, 'x') + "#mrl{\\*\\bkmkend DDE_LINK}(" + code + ")#\\par\r\n";
    }
    const std::string r = Creer(serre);
    for (int i = 0; i < 400; ++i) {
        const bool faux = i % 7 == 3;
        attendu += "[" + std::string(faux ? "faux" : "c") + std::to_string(i) + "]";
        // A false condition takes the paragraph end behind it.
        attendu += faux ? "\\p" : "\\par";
    }
    // The blanks that stand for line ends aside (none at the turn of a piece).
    EXPECT_EQ(RemplacerExact(r, " ", ""), attendu);
    EXPECT_EQ(analyseur.codes.size(), 400u);
    const std::string r2 = Creer(aere);
    const std::string sansRemplissage = RemplacerExact(r2, std::string(60, 'x'), "");
    EXPECT_EQ(
        RemplacerExact(RemplacerExact(sansRemplissage, "{\\*\\bkmkend DDE_LINK}", ""), " ", ""),
        attendu);
    EXPECT_EQ(analyseur.codes.size(), 800u);
}

} // namespace verdane
