#include "engine/AnalyserCodes.h"
#include "engine/DatesCode.h"

#include "DossierDeTest.h"
#include "FauxUtilisateurMoteur.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

const char* const kTitreErreur = "Erreur détectée :  cliquez Fermer pour continuer";

class Interpreteur : public ::testing::Test {
protected:
    void SetUp() override {
        m.ctx.etat.enrDossier.nom = "Dossier Test";
        m.ctx.etat.enrDossier.dateDebut = "01/10/2004";
    }
    MoteurDeTest m;
};

TEST_F(Interpreteur, DatesDesExercices) {
    EXPECT_EQ(m.Valeur("date1"), "Oct. 2004 - Sep. 2005");
    EXPECT_EQ(m.Valeur("date0"), "Oct. 2003 - Sep. 2004");
    EXPECT_EQ(m.Valeur("an4Fin1"), "2005");
    EXPECT_EQ(m.Valeur("moisCFin3"), "Sep.");

    // A calendar exercise: the "Fin" years take no day off.
    m.ctx.etat.enrDossier.dateDebut = "01/01/2004";
    EXPECT_EQ(m.Valeur("date9"), "Jan. 2012 - Déc. 2012");
    EXPECT_EQ(m.Valeur("an2Fin9"), "13");
    EXPECT_EQ(m.Valeur("mois2Fin9"), "12");

    // 29 February moved by a year.
    m.ctx.etat.enrDossier.dateDebut = "29/02/2004";
    EXPECT_EQ(m.Valeur("date2"), "Fév. 2005 - Fév. 2006");
    EXPECT_EQ(m.Valeur("moisCFin1"), "Fév.");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Interpreteur, DateDeDebutIllisibleNArretePasLeDocument) {
    m.ctx.etat.enrDossier.dateDebut = "xx/yy";
    Texte texte = "#mrl(date1)# et #mrl(nomDossier)# #mrl(an4Fin2)#";
    AnalyserCodes(m.ctx, texte, false, false);
    EXPECT_EQ(texte, "#mrl(date1)# et Dossier Test #mrl(an4Fin2)#");
}

TEST(DateCode, FormesDuJour) {
    const Instant t{2026, 11, 22, 9, 5, 7};
    EXPECT_EQ(DateCode(0, t), "dimanche 22 novembre 2026");
    EXPECT_EQ(DateCode(1, t), "22 novembre 2026");
    EXPECT_EQ(DateCode(3, t), "22/11/2026");
    EXPECT_EQ(DateCode(6, t), "22-11-26");
    EXPECT_EQ(DateCode(11, t), "22/11/2026 09:05:07");
    EXPECT_EQ(DateCode(17, t), "09-05");
    EXPECT_EQ(DateCode(18, t), "");
    EXPECT_EQ(DateCode(0, Instant{2000, 1, 1}), "samedi 1 janvier 2000");
    EXPECT_EQ(DateCode(0, Instant{2024, 2, 29}), "jeudi 29 février 2024");
}

TEST_F(Interpreteur, Conditions) {
    bool resultat = true;
    EXPECT_EQ(m.Valeur("si(x)alors:nomDossier", &resultat), "Dossier Test");
    EXPECT_TRUE(resultat);
    EXPECT_EQ(m.Valeur("si(0<>0)alors:nomDossier", &resultat), "\\v");
    EXPECT_FALSE(resultat);
    EXPECT_EQ(m.Valeur("si(<>0)alors:nomDossier", &resultat), "\\v");
    EXPECT_FALSE(resultat);

    // The result of a run of marks is that of the last code.
    Texte texte = "#mrl(si(0<>0)alors:nomDossier)# puis #mrl(nomDossier)#";
    EXPECT_TRUE(AnalyserCodes(m.ctx, texte, false, false));
    EXPECT_EQ(texte, "\\v puis Dossier Test");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Interpreteur, ConditionSansAlors) {
    const Texte attendu = "< Portion de code erronée dans le modèle de document >";
    EXPECT_EQ(m.Valeur("si("), attendu);
    EXPECT_EQ(m.Valeur("si(x)nomDossier"), attendu);
    ASSERT_EQ(m.utilisateur.messages.size(), 2u);
    EXPECT_EQ(m.utilisateur.messages[0].titre, kTitreErreur);
    EXPECT_EQ(m.utilisateur.messages[1].texte,
              "La portion de code \"si(x)nomDossier\" dans le modèle est mal renseignée : il "
              "manque la balise \")alors:\" de fin d'une condition Si... Alors...");
    const Texte longue = "si(" + Texte(60, 'v');
    m.Valeur(longue);
    EXPECT_NE(m.utilisateur.messages.back().texte.find("\"" + longue.substr(0, 50) + "...\""),
              Texte::npos);
}

TEST_F(Interpreteur, TransfoPerennePourLaSeuleSuiteDuCode) {
    EXPECT_EQ(m.Valeur("si(TransfoPerenne=VRAI)alors:cultper1"), "[perennes cultper1]");
    EXPECT_TRUE(m.extensions.perenne);
    EXPECT_EQ(m.Valeur("culture1"), "[cultures culture1]");
    EXPECT_FALSE(m.extensions.perenne);
    EXPECT_FALSE(m.ctx.etat.TransfoPerenne);
}

TEST_F(Interpreteur, TablesGraphiquesFormules) {
    EXPECT_EQ(m.Valeur("actlibr2"), "[activites actlibr2]");
    EXPECT_EQ(m.Valeur("tabd2;x"), "[tableau tabd2;x]");
    EXPECT_EQ(m.Valeur("gph(Mon_graph;1;2)"), "[graphique Mon_graph;1;2]");
    EXPECT_EQ(m.Valeur("formule:3a:VL-1+2"), "[formule VL-1+2 en 3]");
    EXPECT_TRUE(m.utilisateur.messages.empty());

    // Without engines behind them these codes give a blank.
    m.ctx.extensions = nullptr;
    EXPECT_EQ(m.Valeur("culture1"), "\\~");
    EXPECT_EQ(m.Valeur("tab1"), "\\~");
    EXPECT_EQ(m.Valeur("gph(a;b)"), "\\~");
    EXPECT_EQ(m.Valeur("formule:3a:1+1"), "\\~");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Interpreteur, GraphiqueMalFormeResteEnTexte) {
    EXPECT_EQ(m.Valeur("gph(a;b"), "#mrl(gph(a;b)#");
    EXPECT_TRUE(m.utilisateur.messages.empty());
    EXPECT_EQ(m.Valeur("gph(ancien)"), "#mrl(gph(ancien))#");
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    const Message& msg = m.utilisateur.messages[0];
    EXPECT_EQ(msg.titre, "Code d'un graphique erroné dans le modèle VDM");
    EXPECT_EQ(msg.texte,
              "Le code balisé #mrl(gph(...))# est mal renseigné dans le modèle de document.");
}

TEST_F(Interpreteur, FormulesMalRenseignees) {
    const Texte mal = "<Code Mal renseigné : valeur non calculée>";
    EXPECT_EQ(m.Valeur("formule:3:1+1"), mal);
    EXPECT_EQ(m.Valeur("formule:3a"), mal);
    ASSERT_EQ(m.utilisateur.messages.size(), 2u);
    EXPECT_EQ(m.utilisateur.messages[0].texte,
              "La portion de code \"formule:3:1+1\" dans le modèle est mal renseignée : il manque "
              "l'indicateur \"a\" suivant l'année d'exercice sur laquelle doit être fait le "
              "calcul.");
    EXPECT_EQ(m.utilisateur.messages[1].texte,
              "La portion de code \"formule:3a\" dans le modèle est mal renseignée : il manque le "
              "caractère \":\" séparant l'année d'étude de la formule à calculer.");
    EXPECT_EQ(m.utilisateur.messages[1].titre, kTitreErreur);
}

TEST_F(Interpreteur, ProfilsDesPrefixes) {
    // Exact words first: `date1` is a study date, `date(1)` today's; `tel` isn't a table.
    m.ctx.etat.enrDossier.tel = "0102";
    EXPECT_EQ(m.Valeur("tel"), "0102");
    EXPECT_EQ(m.Valeur("date(1)"), "22 novembre 2026"); // by the injected clock
    EXPECT_EQ(m.Valeur("date( 17 )"), "09-05");
    EXPECT_EQ(m.Valeur("date(99)"), "\\~");
    // Keywords are case sensitive but for ORGA, INFO: and INI:.
    EXPECT_EQ(m.Valeur("NomDossier"), "#mrl(NomDossier)#");
    EXPECT_NE(m.Valeur("info:a:10:b:c:d").find("{\\*\\atnauthor b }"), Texte::npos);
    EXPECT_EQ(m.Valeur("ini:rien"), "\\~");
}

} // namespace
} // namespace verdane::test
