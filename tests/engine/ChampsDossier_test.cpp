#include "engine/AnalyserCodes.h"

#include "DossierDeTest.h"
#include "FauxUtilisateurMoteur.h"

#include <gtest/gtest.h>

#include <regex>
#include <utility>
#include <vector>

namespace verdane::test {
namespace {

class Champs : public ::testing::Test {
protected:
    void Verifier(const std::vector<std::pair<Texte, Texte>>& attendus) {
        for (const auto& [code, valeur] : attendus) EXPECT_EQ(m.Valeur(code), valeur) << code;
        EXPECT_TRUE(m.utilisateur.messages.empty());
    }
    MoteurDeTest m;
    DossierMoteur dossier;
};

TEST_F(Champs, SocieteAvecAssocies) {
    dossier.Installer(m.ctx, SocieteDeTest());
    Verifier({
        {"nomExplSoc", "GAEC des Prés"},
        {"nomExplJA", "Paul Martin"},
        {"nomExploit", "\\~"},
        {"nomSocAss",
         "Nom société : GAEC des Prés\\par - Jean Martin\\par - Paul Martin\\par - Marie "
         "Martin\\par"},
        {"sitExplJA", "célibataire"},
        {"ageExplJA", "41"},
        {"typeSoc", "société"},
        {"associes",
         "Liste des associés : \\par - Jean Martin, né(e) le : 12/03/1960\\par - Paul Martin, "
         "né(e) le : 05/06/1985, Jeune Agriculteur\\par - Marie Martin\\par"},
        {"nbAssocies", "3"},
        {"nomAssocies",
         "Nom des associés : \\par - Jean Martin\\par - Paul Martin\\par - Marie Martin\\par"},
        {"assNesLe",
         "Date de naissance des associés : \\par - Jean Martin : 12/03/1960\\par - Paul Martin : "
         "05/06/1985\\par - Marie Martin : non renseignée\\par"},
        {"situAss",
         "Situation familiale des associés : \\par - Jean Martin : marié\\par - Paul Martin : "
         "célibataire\\par - Marie Martin : non renseignée\\par"},
        {"nomAssJA", "Nom des associés : \\par - Paul Martin\\par"},
        {"nomAss2", "JA : Paul Martin"},
        {"nomAss10", "\\~"},
        {"dateDebut", "01/10/2004"},
        {"nbAnEtude", "6"},
        {"descProjet",
         "Ligne un\\par Ligne deux\\par Ligne trois\\par Ligne quatre\\par Ligne cinq\\par"},
        {"descProjet1", "Ligne un"},
        {"cheminDoss", "C:\\\\Marlo\\\\DOSS\\\\"},
        {"devise", "€uro"},
        {"modeCom", "- Lait : Laiterie\\par - Viande : non renseigné\\par - Cidre : Vente "
                    "directe\\par"},
        {"modeCom2", "- Viande : non renseigné"},
        {"modeCom3", "\\~"},
        {"saut2page", "\\page"},
    });
}

TEST_F(Champs, ExploitationIndividuelle) {
    EnrDossier d = SocieteDeTest();
    d.typeExploitation = 0;
    d.nomExploitation = "Ferme du Haut";
    d.devise = 0;
    d.descProjet = "Une seule ligne";
    dossier.Installer(m.ctx, d);
    Verifier({
        {"nomExplJA", "Ferme du Haut"},
        {"nomExploit", "Ferme du Haut"},
        {"nomSociete", "\\~"},
        {"nomSocAss", "Nom société : Ferme du Haut\\par"},
        {"sitExplJA", "veuf"},
        {"ageExplJA", "76"},
        {"typeSoc", "individuelle"},
        {"associes", "Liste des associés : \\par"},
        {"nbAssJA", "0"},
        {"nomAss2", "\\~"},
        {"devise", "Franc"},
        {"descProjet", "Une seule ligne"},
        {"descProjet1", "Une seule ligne"},
        {"descProjet2", "\\~"},
        {"descProjet4etFin", "\\~"},
    });
}

TEST_F(Champs, AgesInconnusEtIllisibles) {
    EnrDossier d = SocieteDeTest();
    d.naissanceAssocie[2] = "**/**/****";
    d.naissanceAssocie[0] = "10/12/1970";
    dossier.Installer(m.ctx, d);
    // The JA partner's unknown date gives an empty age, not that of entry 0.
    EXPECT_EQ(m.Valeur("ageExplJA"), "\\~");
    // In the lists the starred date is unknown as the blank one is.
    EXPECT_EQ(m.Valeur("assNesLe"),
              "Date de naissance des associés : \\par - Jean Martin : 12/03/1960\\par - Paul "
              "Martin : non renseignée\\par - Marie Martin : non renseignée\\par");
    EXPECT_EQ(m.Valeur("associes"),
              "Liste des associés : \\par - Jean Martin, né(e) le : 12/03/1960\\par - Paul "
              "Martin, Jeune Agriculteur\\par - Marie Martin\\par");
    m.ctx.etat.enrDossier.jaAssocie[2] = 0;
    // 22/11/2026 against 10/12/1970, months of 30.5 days: 55.9 years.
    EXPECT_EQ(m.Valeur("ageExplJA"), "55");

    // A date that can't be read ends that code alone.
    m.ctx.etat.enrDossier.naissanceAssocie[0] = "31/02/1970";
    Texte texte = "#mrl(ageExplJA)# de #mrl(nomDossier)#";
    AnalyserCodes(m.ctx, texte, false, false);
    EXPECT_EQ(texte, "#mrl(ageExplJA)# de Dossier Test");
}

TEST_F(Champs, CompteurDePages) {
    EXPECT_EQ(m.Valeur("numPage2"), "\\v0 -21");
    EXPECT_EQ(m.Valeur("numPage2bis"), "\\v0 -2bis2");
    EXPECT_EQ(m.Valeur("numPage2"), "\\v0 -23");
    EXPECT_EQ(m.ctx.etat.NumPageCourant, 3);
}

TEST_F(Champs, DateDuDossierEtDossierAbsent) {
    EnrDossier d = SocieteDeTest();
    d.chemin = dossier.Dossier();
    dossier.Installer(m.ctx, d);
    EXPECT_TRUE(std::regex_match(m.Valeur("dateDossier"), std::regex(R"(\d\d/\d\d/\d\d\d)")));
    m.ctx.etat.enrDossier.chemin = dossier.Racine() + "absent" + kSeparateur;
    EXPECT_EQ(m.Valeur("dateDossier"), "#mrl(dateDossier)#");
}

TEST_F(Champs, Organismes) {
    EnrOrganisme& o = m.ctx.etat.Organismes[3];
    o.nom = "Chambre d'agriculture   ";
    o.sigle = "CA14";
    m.ctx.etat.Organismes[13].nom = "Treize";
    Verifier({
        {"ORGANOM3", "Chambre d'agriculture"},
        {"orgaSigle3", "CA14"},
        {"ORGANOM13", "Treize"},
        {"ORGAADRESSE3", "??"},
        {"ORGALOGO3", "\\~"},
    });
    o.logo = dossier.Dossier() + "absent.png";
    EXPECT_EQ(m.Valeur("ORGALOGO3"), "\\~");

    const std::string png("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\0\x02\0\0\0\x01\x08\x02\0\0\0", 29);
    dossier.Ecrire("logo.png", png);
    o.logo = dossier.Dossier() + "logo.png";
    const Texte rtf = m.Valeur("ORGALOGO3");
    EXPECT_EQ(rtf.rfind("{\\pict\\pngblip\\picw2\\pich1", 0), 0u) << rtf;
}

} // namespace
} // namespace verdane::test
