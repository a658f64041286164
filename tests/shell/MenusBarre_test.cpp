#include "links/Faux.h"
#include "shell/DemarrageBarre.h"
#include "shell/MenusBarre.h"
#include "shell/Options.h"
#include "shell/Proprietes.h"
#include "support/DossierTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

namespace verdane {
namespace {

struct Barre : ::testing::Test {
    Barre() { ctx.etat.chemins.RepVerdane = d.Chemin() + "Verdane/"; }
    const EntreeMenu& Entree(const char* controle) {
        const EntreeMenu* e = EntreeParControle(controle);
        EXPECT_NE(e, nullptr) << controle;
        return *e;
    }
    test::DossierTemporaire d;
    essai::FauxUtilisateur u;
    Contexte ctx{u};
};

TEST_F(Barre, LesEntreesDuTraitementDeTexteVontAuLienChoisiSinonLeDisent) {
    essai::PiloteEnregistreur pilote;
    ctx.pilotes[3] = &pilote;
    // No choice stored, or another program than a word processor.
    for (const char* editeur : {"", "/usr/bin/gedit"}) {
        ctx.etat.options.CheminEditeur = editeur;
        for (const char* c :
             {"lblNewDoc", "lblSvgDoc", "lblSvgDocSous", "lblCloseDoc", "lblRecupMdl1"}) {
            u.messages.clear();
            ExecuterEntree(ctx, Entree(c));
            ASSERT_EQ(u.messages.size(), 1u) << c;
            EXPECT_EQ(u.messages[0].texte,
                      "Aucun traitement de texte n'est actuellement lié à Verdane !");
            EXPECT_EQ(u.messages[0].titre, "Erreur détectée :  cliquez Fermer pour continuer");
        }
    }
    EXPECT_TRUE(pilote.journal.empty());

    u.messages.clear();
    ctx.etat.options.CheminEditeur = "/usr/lib/libreoffice/program/soffice";
    ExecuterEntree(ctx, Entree("lblCloseDoc"));
    EXPECT_EQ(pilote.journal, (std::vector<std::string>{"fermer 0"}));
    // Linked by name but with no link in this build: told, nothing thrown.
    ctx.etat.options.CheminEditeur = "C:\\Office\\winword.exe";
    ExecuterEntree(ctx, Entree("lblSvgDoc"));
    ASSERT_EQ(u.messages.size(), 1u);
}

TEST_F(Barre, LesFormesSOuvrentParLeRegistreAvecLeursArguments) {
    std::vector<std::string> ouverts;
    for (const char* nom : {"FrmCreerDoc", "FrmTrfMdl", "FrmGraphik", "InsererCode"})
        ctx.formulaires.Inscrire(nom, [&ouverts, nom](Contexte&, const std::vector<Texte>& a) {
            std::string s = nom;
            for (const auto& x : a) s += " " + x;
            ouverts.push_back(s);
            return 0;
        });
    for (const char* c : {"lblGenererPDE", "lblGenerer", "lblAddMdl", "lblGraph", "lblSaut"})
        ExecuterEntree(ctx, Entree(c));
    EXPECT_EQ(ouverts, (std::vector<std::string>{"FrmCreerDoc PDE", "FrmCreerDoc", "FrmTrfMdl A",
                                                 "FrmGraphik Insertion de graphique",
                                                 "InsererCode saut2page"}));
    EXPECT_TRUE(u.messages.empty());

    ExecuterEntree(ctx, Entree("lblDate"));
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_NE(u.messages[0].texte.find("pas disponible"), Texte::npos);
    EXPECT_NE(u.messages[0].technique.find("FrmDate"), Texte::npos);
}

TEST_F(Barre, LesAdressesVontAuBureau) {
    ctx.etat.chemins.RepGuide = "/opt/guide/";
    EXPECT_EQ(ExecuterEntree(ctx, Entree("lblAideGene")).adresse, "/opt/guide/index.htm");
    EXPECT_FALSE(ExecuterEntree(ctx, Entree("lblMajDocRes")).adresse.empty());
    EXPECT_EQ(EntreeParControle("lblInconnu"), nullptr);
}

TEST_F(Barre, LesProprietesFontLeTourParLeFichierDesOptions) {
    ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
    ctx.etat.options.sautParagraphe = 7; // any number but 1 is "à la suite"
    ctx.etat.options.SansDemarrage = 0;
    VueProprietes v = LireProprietes(ctx.etat);
    EXPECT_EQ(v.editeur, "Sun OpenOffice");
    EXPECT_FALSE(v.aLaLigne);

    AppliquerProprietes(ctx.etat, true, false);
    ExecuterEntree(ctx, Entree("lblValidProp"));
    Etat relu;
    relu.chemins = ctx.etat.chemins;
    ChargerOptions(relu);
    v = LireProprietes(relu);
    EXPECT_TRUE(v.aLaLigne);
    EXPECT_EQ(relu.options.SansDemarrage, -1);
    relu.options.CheminEditeur.clear();
    EXPECT_EQ(LireProprietes(relu).editeur, "Aucun");
}

TEST_F(Barre, LeMotDePasseDonneLAccesTotalPourLaSeance) {
    EXPECT_TRUE(DemanderAccesTotal(ctx));
    for (const char* faux : {"", "48291", "4829150", " 482915", "482915 "}) {
        EXPECT_FALSE(ValiderMotDePasse(ctx, faux)) << faux;
        EXPECT_EQ(u.boites.back(), "Mot de passe erroné. | Verdane");
    }
    EXPECT_EQ(ctx.etat.AccesTotal, 0);
    EXPECT_TRUE(ValiderMotDePasse(ctx, "482915"));
    EXPECT_EQ(ctx.etat.AccesTotal, -1);
    EXPECT_EQ(u.boites.back(), "Accès total validé. | Mot de passe correct.");
    EXPECT_FALSE(DemanderAccesTotal(ctx));
    EXPECT_EQ(u.boites.back(), "Vous avez déjà l'accès total ! | Saisie du mot de passe inutile");
}

TEST_F(Barre, LaFermetureDemandeEtNonGardeLaBarre) {
    EXPECT_FALSE(ConfirmerFermeture(ctx));
    EXPECT_EQ(u.questions.back(), "Retirer la barre d'outils Verdane ? | Fermeture Verdane");
    u.reponses.push_back(Reponse::Oui);
    EXPECT_TRUE(ConfirmerFermeture(ctx));
}

TEST_F(Barre, UnUtilisateurQuiNAJamaisChoisiAuraLibreOffice) {
    d.Ecrire("bin/autre", "");
    d.Ecrire("office/program/soffice", "");
    ParametresRecherche r;
    r.prioritaires = {CheminSysteme(d / "bin"), CheminSysteme(d / "office/program")};
    r.racines = {CheminSysteme(d.Chemin())}; // never walked here
    ctx.etat.options.SansDemarrage = 0;
    EXPECT_TRUE(PreparerBarre(ctx, r));
    EXPECT_TRUE(ctx.etat.editeurVisible);
    EXPECT_EQ(ctx.etat.options.CheminEditeur, d / "office/program/soffice");

    // None installed: the choice dialog opens when there is one; the news can be off.
    int choix = 0;
    ctx.formulaires.Inscrire("FrmChoixEditeur", [&](Contexte&, const std::vector<Texte>&) {
        ++choix;
        return 0;
    });
    ctx.etat.options.CheminEditeur.clear();
    ctx.etat.options.SansDemarrage = -1;
    r.prioritaires.pop_back();
    EXPECT_FALSE(PreparerBarre(ctx, r));
    EXPECT_EQ(choix, 1);
    EXPECT_TRUE(ctx.etat.options.CheminEditeur.empty());
    // A stored choice is kept and not searched again; one that is gone is told and chosen
    // again.
    d.Ecrire("ailleurs/soffice", "");
    ctx.etat.options.CheminEditeur = d / "ailleurs/soffice";
    PreparerBarre(ctx, r);
    EXPECT_EQ(choix, 1);
    EXPECT_EQ(ctx.etat.options.CheminEditeur, d / "ailleurs/soffice");
    ctx.etat.options.CheminEditeur = "/nulle/part/soffice";
    PreparerBarre(ctx, r);
    EXPECT_EQ(choix, 2);
    ASSERT_FALSE(u.messages.empty());
    EXPECT_NE(u.messages.back().texte.find("/nulle/part/soffice"), Texte::npos);
    // A path of another system is left to the link.
    ctx.etat.options.CheminEditeur = "C:\\Program Files\\OpenOffice\\soffice.exe";
    PreparerBarre(ctx, r);
    EXPECT_EQ(choix, 2);
}

} // namespace
} // namespace verdane
