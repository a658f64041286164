#include "shell/Demarrage.h"
#include "shell/Options.h"
#include "shell/Parametres.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"
#include "utils/Chaines.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

class Installation : public ::testing::Test, protected test::InstallationTemporaire {
protected:
    Installation() : ctx(u) {}

    int Executer(const std::string& ligne) {
        return ExecuterProgramme(ctx, LigneCommande(ligne), env);
    }

    test::FauxUtilisateur u;
    Contexte ctx;
};

} // namespace

TEST_F(Installation, LeTravailIniCreeLeResultat) {
    EXPECT_EQ(
        Executer("INI \"" + d / "a b/m.vdm" + "\" \"" + d / "a b/r.rtf" + "\" \"\" remplacer"),
        kSortieFaite);
    // The job blanks the current dossier: the field is a non-breaking space.
    EXPECT_EQ(d.Lire("a b/r.rtf"), "{\\rtf1 Bonjour \\~\r\n}\r\n");
    // The same job with "#esp#" for the blanks, in lower case.
    EXPECT_EQ(Executer("ini " + Remplacer(d / "a b/m.vdm", " ", "#esp#") + " " +
                       Remplacer(d / "a b/r2.rtf", " ", "#ESP#") + " X REMPLACER"),
              kSortieFaite);
    EXPECT_EQ(d.Lire("a b/r2.rtf"), d.Lire("a b/r.rtf"));
    // The options are saved at the end, with the current dossier blanked by the job.
    Etat relu;
    relu.chemins.RepVerdane = d.Chemin() + "Marlo/Verdane/";
    ChargerOptions(relu);
    EXPECT_TRUE(relu.NomDossier[0].empty());

    // Without leave to replace: asked, and by default left as it was.
    d.Ecrire("a b/r.rtf", "ancien");
    EXPECT_EQ(Executer("INI \"" + d / "a b/m.vdm" + "\" \"" + d / "a b/r.rtf" + "\""),
              kSortieFaite);
    EXPECT_EQ(d.Lire("a b/r.rtf"), "ancien");
    ASSERT_EQ(u.questions.size(), 1u);
}

TEST_F(Installation, LesOptionsAbsentesSontCreeesVidesPuisEcritesEnFinDeTravail) {
    const auto fichier = d.Systeme() / "Marlo/Verdane/Editeur.svg";
    ASSERT_FALSE(std::filesystem::exists(fichier.parent_path()));
    ASSERT_TRUE(Initialiser(ctx, env));
    ASSERT_TRUE(std::filesystem::exists(fichier));
    EXPECT_EQ(std::filesystem::file_size(fichier), 0u);

    // Whatever the job word, even one that isn't a job, the options are saved at the end, the
    // annotations' record forced to 1.
    Etat e;
    e.options.SansAnnotation = 0;
    e.options.CheminEditeur = "/usr/bin/soffice";
    d.Ecrire("Marlo/Verdane/Editeur.svg", OctetsOptions(e));
    for (const std::string& ligne :
         {std::string("FAIRE quelque chose"), "CREER " + d / "Marlo/Dossiers/DUPONT"}) {
        std::filesystem::remove(fichier);
        Contexte c(u);
        ExecuterProgramme(c, LigneCommande(ligne), env);
        const std::string ecrit = d.Lire("Marlo/Verdane/Editeur.svg");
        ASSERT_EQ(ecrit.size(), 45u * 128u) << ligne;
        EXPECT_EQ(ecrit[27 * 128], 1);
    }
    d.Ecrire("Marlo/Verdane/Editeur.svg", OctetsOptions(e));
    Contexte c(u);
    ExecuterProgramme(c, LigneCommande("FAIRE"), env);
    EXPECT_EQ(c.etat.options.CheminEditeur, "/usr/bin/soffice") << "read, then written back";
    EXPECT_EQ(d.Lire("Marlo/Verdane/Editeur.svg").substr(2, 16), "/usr/bin/soffice");
}

TEST_F(Installation, CeQuiEmpecheUnTravail) {
    EXPECT_EQ(Executer("INI " + d / "absent.vdm" + " " + d / "r.rtf"), kSortieEchec);
    EXPECT_EQ(Executer("INI \"" + d / "a b/m.vdm" + "\" " + d / "nulle/part/r.rtf"), kSortieEchec);
    EXPECT_EQ(Executer("INI \"  \" " + d / "r.rtf"), kSortieFaite); // empty model: nothing, quietly
    EXPECT_EQ(Executer("FAIRE quelque chose"), kSortieUsage);
    EXPECT_EQ(Executer(""), kSortieUsage);
    env.marloHome = d.Chemin() + "Ailleurs";
    EXPECT_EQ(Executer("INI a b"), kSortieEchec);
    EXPECT_NE(u.ToutCeQuiAEteDit().find("WinMarlo est introuvable !"), Texte::npos);
}

TEST_F(Installation, UnTravailDeDossierChargeLeDossier) {
    for (const std::string fin : {"", "/"}) {
        Contexte c(u);
        EXPECT_EQ(
            ExecuterProgramme(c, LigneCommande("creer " + d / "Marlo/Dossiers/DUPONT" + fin), env),
            kSortieUsage); // no dialog in this build
        EXPECT_EQ(Rogner(c.etat.enrDossier.nom), "DUPONT");
        EXPECT_EQ(c.etat.NomDossier[0], "DUPONT");
        EXPECT_EQ(c.etat.nbAnEtude, 5);
    }
    Contexte blancs(u);
    Initialiser(blancs, env);
    d.Ecrire("Marlo/Dossiers/LE PRE/LE PRE", std::string(2110, ' '));
    PreparerDossierLigneCommande(
        blancs, LigneCommande("CERFA " + Remplacer(d / "Marlo/Dossiers/LE PRE", " ", "#mrl#")));
    EXPECT_EQ(blancs.etat.NomDossier[0], "LE PRE");
    Contexte absent(u);
    PreparerDossierLigneCommande(absent, LigneCommande("GRAPH " + d / "Marlo/Dossiers/PERSONNE"));
    EXPECT_TRUE(absent.etat.NomDossier[0].empty()); // a dossier that isn't there is blanked
}

TEST_F(Installation, CreerEtCerfaAppliquentLeChoixDuTraitementDeTexteAvantLeurFenetre) {
    std::vector<Texte> ouvertes;
    for (const char* nom : {"FrmChoixEditeur", "FrmCreerDoc", "FrmOuvrDoc"})
        ctx.formulaires.Inscrire(nom, [&ouvertes, nom](Contexte&, const std::vector<Texte>&) {
            ouvertes.push_back(nom);
            return 0;
        });
    env.rechercheEditeurs = {}; // no office anywhere: the user is asked
    EXPECT_EQ(Executer("CERFA " + d / "Marlo/Dossiers/DUPONT"), kSortieFaite);
    EXPECT_EQ(ouvertes, (std::vector<Texte>{"FrmChoixEditeur", "FrmCreerDoc"}));
    ouvertes.clear();
    EXPECT_EQ(Executer("OUVRIR " + d / "Marlo/Dossiers/DUPONT" + " Bilan"), kSortieFaite);
    EXPECT_EQ(ouvertes, (std::vector<Texte>{"FrmOuvrDoc"}));
}

} // namespace verdane
