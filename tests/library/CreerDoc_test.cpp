#include "library/CreerDoc.h"
#include "library/OuvrirDoc.h"

#include "library/DocumentLot.h"
#include "shell/etat/Annulation.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace verdane {
namespace {

namespace fs = std::filesystem;

// Stops the work at the `n`-th time it is asked.
class UtilisateurPresse : public test::FauxUtilisateur, public Annulable {
public:
    bool Annulation() override { return ++demandes >= n; }
    int demandes = 0;
    int n = 1000000;
};

class Creation : public ::testing::Test, protected test::InstallationTemporaire {
protected:
    Creation() : ctx(u) { Initialiser(ctx, env); }

    void ChoisirDossier(const Texte& nom) {
        ctx.etat.RepDossier[0] = d / "Marlo/Dossiers/";
        ctx.etat.NomDossier[0] = nom;
    }
    DemandeCreation Demande(const Texte& nom) {
        DemandeCreation demande;
        demande.modele = d / "a b/m.vdm";
        demande.dossierResultat = d / "a b";
        demande.nomResultat = nom;
        return demande;
    }

    UtilisateurPresse u;
    Contexte ctx;
    Texte resultat;
};

TEST_F(Creation, LesVerificationsDansLeurOrdre) {
    EXPECT_FALSE(LancerCreation(ctx, Demande("r"), resultat));
    EXPECT_EQ(u.messages.at(0).texte, "Vous devez d'abord sélectionner un dossier !");
    EXPECT_FALSE(fs::exists(d.Systeme() / "a b/r.rtf"));

    // A dossier folder without its record.
    d.Ecrire("Marlo/Dossiers/SANS/autre.don", "x");
    ChoisirDossier("SANS");
    EXPECT_FALSE(LancerCreation(ctx, Demande("r"), resultat));
    EXPECT_EQ(u.messages.back().texte, "Aucun dossier d'étude Marlo n'est lié !");

    ChoisirDossier("DUPONT");
    EXPECT_FALSE(LancerCreation(ctx, Demande("  "), resultat));
    auto demande = Demande("r");
    demande.dossierResultat = d / "parti";
    EXPECT_FALSE(LancerCreation(ctx, demande, resultat));
    EXPECT_EQ(u.messages.size(), 4u);
    EXPECT_TRUE(u.questions.empty());
}

TEST_F(Creation, LeDocumentDuDialogueEstCeluiDeVerdaneLot) {
    ChoisirDossier("DUPONT");
    ASSERT_EQ(LancerCreation(ctx, Demande("Résultat du dialogue.RTF"), resultat),
              IssueCreation::Faite);
    // The name's own extension is kept, in its case.
    EXPECT_EQ(resultat, d / "a b/Résultat du dialogue.RTF");
    EXPECT_EQ(d.Lire(Cp1252VersUtf8("a b/Résultat du dialogue.RTF")),
              test::DocumentDeVerdaneLot(*this, "DUPONT", d / "a b/m.vdm", "lot.rtf"));
    EXPECT_NE(d.Lire("lot.rtf").find("DUPONT"), std::string::npos);
}

TEST_F(Creation, LePDEEntierSurUneExploitationIndividuelleDemandeLesPagesSociete) {
    d.Ecrire("Marlo/Verdane/ModlDocs/PDE/PDECerfa.vdm", "{\\rtf1 individuel}");
    d.Ecrire("Marlo/Verdane/ModlDocs/PDE/PDECerfasoc.vdm", "{\\rtf1 societe}");
    ChoisirDossier("DUPONT");
    auto demande = Demande("tout");
    demande.pagePDE = 0;
    u.reponses = {Reponse::Non};
    ASSERT_EQ(LancerCreation(ctx, demande, resultat), IssueCreation::Faite);
    EXPECT_NE(u.questions.at(0).texte.find("afficher les tableaux vides des Fiches Société en "
                                           "pages 14 et 15 ?"),
              Texte::npos);
    EXPECT_NE(d.Lire("a b/tout.rtf").find("individuel"), std::string::npos);
    u.reponses = {Reponse::Oui, Reponse::Oui}; // company pages, then replace the result
    ASSERT_EQ(LancerCreation(ctx, demande, resultat), IssueCreation::Faite);
    EXPECT_NE(d.Lire("a b/tout.rtf").find("societe"), std::string::npos);
}

TEST_F(Creation, UneCreationAnnuleeNeLaisseRienDeMoitieEcrit) {
    ChoisirDossier("DUPONT");
    Texte modele;
    for (int i = 0; i < 200; ++i) modele += "{\\pard ligne #mrl(nomDossier)# de texte\\par}\r\n";
    d.Ecrire("a b/long.vdm", "{\\rtf1 " + modele + "}");
    d.Ecrire("a b/r.rtf", "ancien");
    auto demande = Demande("r");
    demande.modele = d / "a b/long.vdm";
    u.n = 3;
    u.reponses = {Reponse::Oui}; // replace it
    ASSERT_EQ(LancerCreation(ctx, demande, resultat), IssueCreation::Abandonnee);
    EXPECT_TRUE(u.ADit("Traitement en cours annulé."));
    EXPECT_EQ(d.Lire("a b/r.rtf"), "ancien");
    EXPECT_EQ(u.jauges.back(), "fermer");
    for (const auto& f : fs::directory_iterator(d.Systeme() / "a b"))
        EXPECT_TRUE(
            std::set<fs::path>({"m.vdm", "long.vdm", "r.rtf"}).contains(f.path().filename()))
            << f.path();
}

TEST_F(Creation, MiseAJourDepuisLeDialogueDOuverture) {
    const Texte doc = d.Ecrire("doc.rtf", "{\\rtf1 {\\v #debdata#}vieux{\\v #findata=#mrl("
                                          "nomDossier)#}}");
    const auto liste = ListerFichiers(ctx.etat, d / "Marlo/Dossiers", "DOS");
    ASSERT_EQ(liste.lignes.size(), 1u);
    // Cancelling is asked in the update mode only.
    EXPECT_TRUE(ConfirmerAnnulation(ctx, ModeOuverture::Document));
    EXPECT_TRUE(u.questions.empty());

    EXPECT_FALSE(OuvrirElement(ctx, ModeOuverture::DossierMaj, liste, nullptr, doc));
    EXPECT_TRUE(u.ADit("Aucun dossier à choisir !"));
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(OuvrirElement(ctx, ModeOuverture::DossierMaj, liste, &liste.lignes[0], doc));
    EXPECT_EQ(u.questions.back().texte, "Choisir le répertoire du dossier \"DUPONT\" ?");
    EXPECT_EQ(ctx.etat.NomDossier[0], "DUPONT");
    const std::string lu = d.Lire("doc.rtf");
    EXPECT_EQ(lu.find("vieux"), std::string::npos);
    EXPECT_NE(lu.find("{\\v #debdata#}DUPONT{\\v #findata=#mrl(nomDossier)#}"), std::string::npos);
}

TEST_F(Creation, LesDossiersDeMarloNeSontPasSupprimes) {
    const auto liste = ListerFichiers(ctx.etat, d / "Marlo/Dossiers", "DOS");
    EXPECT_EQ(SupprimerToutDepuisListe(ctx, liste), 0);
    EXPECT_EQ(SupprimerDepuisListe(ctx, liste, liste.lignes), 0);
    EXPECT_TRUE(u.questions.empty());
    EXPECT_TRUE(fs::exists(d.Systeme() / "Marlo/Dossiers/DUPONT/DUPONT"));

    d.Ecrire("docs/a.rtf", "a");
    u.reponses = {Reponse::Oui};
    EXPECT_EQ(SupprimerToutDepuisListe(ctx, ListerFichiers(ctx.etat, d / "docs", "DOC")), 1);
    EXPECT_EQ(u.questions.back().texte,
              "Supprimer définitivement TOUS les documents texte de la liste ?");
    EXPECT_EQ(SupprimerDepuisListe(ctx, ListerFichiers(ctx.etat, d / "docs", "DOC"), {}), 0);
    EXPECT_TRUE(u.ADit("Aucun document texte à supprimer dans la liste."));
}

} // namespace
} // namespace verdane
