#include "links/Faux.h"
#include "links/PiloteIndisponible.h"
#include "links/RechercheEditeurs.h"
#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane::essai {
namespace {

namespace fs = std::filesystem;

class Suivi : public SuiviRecherche {
public:
    void Commencer(const Texte& titre) override { titres.push_back(titre); }
    void Progresser(int valeur) override { valeurs.push_back(valeur); }
    bool Annulee() override { return ++demandes > annulerApres; }
    void Terminer() override { ++fins; }
    std::vector<Texte> titres;
    std::vector<int> valeurs;
    int demandes = 0;
    int annulerApres = 1 << 30;
    int fins = 0;
};

class RechercheTest : public ::testing::Test {
protected:
    void SetUp() override {
        d.Ecrire("Program Files/Microsoft Office/OFFICE11/WINWORD.EXE", "MZ");
        d.Ecrire("opt/libreoffice7.6/program/soffice", "#!/bin/sh");
        // A link back to the top must not make the walk loop.
        fs::create_directories(racine / "a/b/c");
        fs::create_directory_symlink(racine, racine / "a/b/boucle");
        parametres.racines = {racine};
    }

    test::DossierTemporaire d;
    const fs::path racine = d.Systeme();
    FauxUtilisateur u;
    Contexte ctx{u};
    Suivi suivi;
    ParametresRecherche parametres;
};

TEST_F(RechercheTest, ParcoursEnLargeurSansCasseNiBoucle) {
    const EditeursTrouves t = DetecterEditeurs(ctx, suivi, parametres);
    EXPECT_EQ(t.cheminWord,
              CheminTexte(racine / "Program Files/Microsoft Office/OFFICE11/WINWORD.EXE"));
    EXPECT_EQ(t.cheminWordPro, "") << "only the others can be chosen";
    EXPECT_EQ(t.cheminOffice, CheminTexte(racine / "opt/libreoffice7.6/program/soffice"));
    const std::vector<Texte> titres = {"Recherche de winword.exe sur votre PC",
                                       "Recherche de wordpro.exe sur votre PC",
                                       "Recherche de soffice.exe sur votre PC"};
    EXPECT_EQ(suivi.titres, titres);
    EXPECT_EQ(suivi.fins, 3);
    for (int v : suivi.valeurs) EXPECT_TRUE(v >= 0 && v < 90 && v % 5 == 0) << v;
}

TEST_F(RechercheTest, DossiersPrioritairesAvantLeDisque) {
    d.Ecrire("bin/libreoffice", "#!/bin/sh");
    parametres.prioritaires = {racine / "absent", racine / "bin"};
    EXPECT_EQ(ChercherEditeur(ctx, "soffice.exe", suivi, parametres),
              CheminTexte(racine / "bin/libreoffice"));
    EXPECT_TRUE(suivi.valeurs.empty()) << "no walk needed";
}

TEST_F(RechercheTest, AnnulationEtLimite) {
    suivi.annulerApres = 2;
    EXPECT_EQ(ChercherEditeur(ctx, "wordpro.exe", suivi, parametres), "");
    EXPECT_EQ(u.boites, std::vector<std::string>{"Recherche de wordpro.exe annulée. | Choix d'un "
                                                 "éditeur de texte pour Verdane"});

    Suivi patient;
    parametres.maxDossiers = 1;
    EXPECT_EQ(ChercherEditeur(ctx, "soffice.exe", patient, parametres), "");
    EXPECT_EQ(patient.valeurs.size(), 1u);
}

TEST(ChoixEditeur, CheminChoisiALaMain) {
    EXPECT_EQ(CheminExecutableChoisi("C:\\Office\\WINWORD.EXE"), "C:\\Office\\WINWORD.EXE");
    EXPECT_EQ(CheminExecutableChoisi("C:\\Office\\winword_exe"), "C:\\Office\\winword.exe");
    EXPECT_EQ(CheminExecutableChoisi("/usr/bin/soffice"), "/usr/bin/soffice");
    EXPECT_EQ(CheminExecutableChoisi("C:"), "C:");
}

TEST(ChoixEditeur, CheminVideSigneEtWordIndisponibleLeDit) {
    FauxUtilisateur u;
    Contexte ctx(u);
    PiloteIndisponible word(ctx, "Microsoft Word");
    ctx.pilotes[static_cast<std::size_t>(Editeur::Word)] = &word;
    ValiderChoixEditeur(ctx, "   ");
    EXPECT_EQ(ctx.etat.options.CheminEditeur, "");
    EXPECT_EQ(u.boites, std::vector<std::string>{"Le chemin de l'éditeur choisi est vide ! | Choix "
                                                 "d'un éditeur de texte pour Verdane"});
    ValiderChoixEditeur(ctx, " C:\\Office\\WINWORD.EXE ");
    EXPECT_EQ(ctx.etat.options.CheminEditeur, "C:\\Office\\WINWORD.EXE");
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages[0].texte, "Microsoft Word n'est pas disponible sur ce système.");
}

} // namespace
} // namespace verdane::essai
