// The creation driver against odd results and paragraphs hidden many times over.
#include "engine/CreationDoc.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace verdane {
namespace {

// Stands for the scanner: "#mrl(x)#" becomes "[x]", a code starting with "faux" is a false
// condition; `pendant` runs at each code, as the world may change during a creation.
class AnalyseurTemoin : public AnalyseurCodes {
public:
    bool Analyser(Contexte&, Texte& texte, bool, bool) override {
        if (pendant) pendant();
        const Texte code = texte.substr(5, texte.size() - 7);
        ++codes;
        texte = "[" + code + "]";
        return !CommencePar(code, "faux");
    }
    std::function<void()> pendant;
    int codes = 0;
};

class CreationSure : public ::testing::Test {
protected:
    CreationSure() : ctx(u) { ctx.analyseur = &analyseur; }

    IssueCreation Creer(const std::string& modele, const Texte& resultat,
                        bool demanderRemplacement = false) {
        d.Ecrire("modele.vdm", modele);
        return CreerDocument(ctx, d / "modele.vdm", resultat, false, true, demanderRemplacement);
    }
    std::string Resultat() { return RemplacerExact(d.Lire("r.rtf"), "\r\n", ""); }

    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    AnalyseurTemoin analyseur;
    Contexte ctx;
};

} // namespace

TEST_F(CreationSure, ChaqueConditionFausseMangeLaFinDeParagrapheSuivante) {
    // Three false conditions in a row: each eats the next paragraph end still whole.
    ASSERT_EQ(Creer("#mrl(faux)##mrl(faux)##mrl(faux)#a\\par b\\par c\\par d\\par", d / "r.rtf"),
              IssueCreation::Faite);
    EXPECT_EQ(Resultat(), "[faux][faux][faux]a\\p b\\p c\\p d\\par");
    // A paragraph end eaten may leave another behind it, which the next false condition eats.
    ASSERT_EQ(Creer("#mrl(faux)##mrl(faux)#x\\pararar y#mrl(faux)#z\\par", d / "r.rtf"),
              IssueCreation::Faite);
    EXPECT_EQ(Resultat(), "[faux][faux]x\\par y[faux]z\\p");
    // Codes between the condition and the paragraph end are still interpreted.
    ASSERT_EQ(Creer("#mrl(faux)#a#mrl(b)#c\\par d", d / "r.rtf"), IssueCreation::Faite);
    EXPECT_EQ(Resultat(), "[faux]a[b]c\\p d");
}

TEST_F(CreationSure, UnResultatQuiEstUnRepertoireEstVuAvantDeCreer) {
    std::filesystem::create_directories(d.Systeme() / "r.rtf");
    EXPECT_EQ(Creer("a #mrl(x)# b", d / "r.rtf"), IssueCreation::ResultatImpossible);
    EXPECT_EQ(analyseur.codes, 0);
    EXPECT_NE(u.ToutCeQuiAEteDit().find("Un répertoire porte ce nom."), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_directory(d.Systeme() / "r.rtf"));
}

TEST_F(CreationSure, UnModeleQuiEstUnRepertoireEstIllisible) {
    std::filesystem::create_directories(d.Systeme() / "m.vdm");
    EXPECT_EQ(CreerDocument(ctx, d / "m.vdm", d / "r.rtf", false, true, false),
              IssueCreation::ModeleIllisible);
    EXPECT_TRUE(u.ADit("introuvable ou illisible"));
}

TEST_F(CreationSure, SansPermissionDeRemplacerUnResultatApparuEntreTempsReste) {
    analyseur.pendant = [&] { d.Ecrire("r.rtf", "d'un autre run"); };
    EXPECT_EQ(Creer("a #mrl(x)# b", d / "r.rtf", true), IssueCreation::ResultatImpossible);
    EXPECT_EQ(d.Lire("r.rtf"), "d'un autre run");
    EXPECT_NE(u.ToutCeQuiAEteDit().find("Un autre document a pris ce nom"), std::string::npos);
    EXPECT_TRUE(u.questions.empty()); // nothing stood there when the creation began

    // Leave given (no question asked): the result is replaced.
    EXPECT_EQ(Creer("a #mrl(x)# b", d / "r.rtf", false), IssueCreation::Faite);
    EXPECT_EQ(Resultat(), "a [x] b");
}

} // namespace verdane
