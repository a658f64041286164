#include "engine/AnalyserCodes.h"
#include "engine/InterpreterCode.h"

#include "DossierDeTest.h"
#include "FauxUtilisateurMoteur.h"

#include <gtest/gtest.h>

#include <random>

namespace verdane::test {
namespace {

const char* const kTitreErreur = "Erreur détectée :  cliquez Fermer pour continuer";

class Scanner : public ::testing::Test {
protected:
    void SetUp() override {
        m.ctx.etat.enrDossier.nom = "Dossier Test";
        m.ctx.etat.enrDossier.tel = "0102";
        m.ctx.etat.enrDossier.fax = "0304";
    }
    MoteurDeTest m;
};

TEST_F(Scanner, RemplaceChaqueMarqueEtGardeLeTexteAutour) {
    bool resultat = false;
    EXPECT_EQ(m.Developper("A #mrl(tel)# B #mrl(fax)# C", &resultat), "A 0102 B 0304 C");
    EXPECT_TRUE(resultat);
    EXPECT_EQ(m.Developper("sans code", &resultat), "sans code");
    EXPECT_TRUE(resultat);
    EXPECT_EQ(m.Developper("#mrl(tel)##mrl(fax)#"), "01020304");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Scanner, PositionsComptentDepuisUn) {
    Texte texte = "ab#mrl(tel)#cd";
    long suite = 8;
    EXPECT_TRUE(InterpreterCode(m.ctx, texte, 3, suite, 11, false, false));
    EXPECT_EQ(texte, "ab0102cd");
    EXPECT_EQ(suite, 7); // just behind the value
    EXPECT_EQ(m.ctx.etat.CodeEnCours, "#mrl(tel)#");

    // A code left as text keeps the position of its inside.
    texte = "ab#mrl(type)#cd";
    suite = 8;
    InterpreterCode(m.ctx, texte, 3, suite, 12, false, false);
    EXPECT_EQ(texte, "ab#mrl(type)#cd");
    EXPECT_EQ(suite, 8);
}

TEST_F(Scanner, PremiereMarqueSansCasseLesSuivantesExactes) {
    EXPECT_EQ(m.Developper("#MRL(tel)# et #MRL(fax)#"), "0102 et #MRL(fax)#");
    EXPECT_EQ(m.Developper("x #Mrl(tel)# #mrl(fax)#"), "x 0102 0304");
}

TEST_F(Scanner, MarqueOuverteSansFermetureLaisseGagnerLaSuivante) {
    EXPECT_EQ(m.Developper("#mrl(a#mrl(nomDossier)#"), "#mrl(aDossier Test");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Scanner, MarqueSansFinDonneUnMessageEtResteEnPlace) {
    EXPECT_EQ(m.Developper("debut #mrl(nomDossier fin"), "debut #mrl(nomDossier fin");
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    const Message& msg = m.utilisateur.messages[0];
    EXPECT_EQ(msg.titre, kTitreErreur);
    EXPECT_EQ(msg.texte, "Verdane ne trouve pas une balise \")#\" dans le modèle de document "
                         "utilisé pour la création.");
    EXPECT_EQ(msg.technique, "Modifier le modèle de document pour que l'erreur n'apparaisse plus.");
}

TEST_F(Scanner, CodeCoupeParLeTraitementDeTexte) {
    EXPECT_EQ(m.Developper("#mrl(nom{\\fs22 Dossier})#"), "Dossier Test");
    EXPECT_EQ(m.Developper("#mrl(nom{\\*\\bkmkstart DDE_LINK1}Dossier{\\*\\bkmkend DDE_LINK1})#"),
              "Dossier Test");
    EXPECT_EQ(m.Developper("#mrl(nom\\par Dos\r\nsier)#"), "Dossier Test");
    // LibreOffice's run properties.
    EXPECT_EQ(m.Developper("#mrl(nom{\\rtlch\\fcs1 \\af0 \\ltrch\\fcs0 \\cf1\\insrsid1234 "
                           "Dossier})#"),
              "Dossier Test");
    EXPECT_EQ(m.Developper("#mrl(nom{\\loch\\hich\\f5 Doss}{\\b\\i ier})#"), "Dossier Test");
    EXPECT_TRUE(m.utilisateur.messages.empty());
}

TEST_F(Scanner, CodesImbriquesSansAnnotation) {
    m.ctx.etat.options.SansAnnotation = 0;
    Texte t = "Total %mrl(nomDossier)% fin";
    AnalyserCodesImbriques(m.ctx, t);
    EXPECT_EQ(t, "Total Dossier Test fin");

    t = "%mrl(tel)% et %mrl(fax)%";
    AnalyserCodesImbriques(m.ctx, t);
    EXPECT_EQ(t, "0102 et 0304");

    t = "a %mrl(nomDossier";
    AnalyserCodesImbriques(m.ctx, t);
    EXPECT_EQ(t, "a %mrl(nomDossier");

    // An unknown code stays and the scan goes on behind it.
    t = "%mrl(inconnu)% %mrl(tel)%";
    AnalyserCodesImbriques(m.ctx, t);
    EXPECT_EQ(t, "%mrl(inconnu)% 0102");
    EXPECT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_EQ(m.ctx.etat.CodeEnCours, ""); // left alone by nested codes

    // Opened again before the close: the inner mark wins, the outer opens stay as text.
    t = "%mrl(a %mrl(%mrl(tel)% b)% c";
    AnalyserCodesImbriques(m.ctx, t);
    EXPECT_EQ(t, "%mrl(a %mrl(0102 b)% c");
    EXPECT_EQ(m.utilisateur.messages.size(), 1u);
}

TEST_F(Scanner, EntreesExtremesNeCassentRien) {
    const Texte enorme = "#mrl(" + Texte(100000, 'x') + ")#";
    EXPECT_EQ(m.Developper(enorme), enorme);
    ASSERT_EQ(m.utilisateur.messages.size(), 1u);
    EXPECT_EQ(m.utilisateur.messages[0].texte,
              "La portion de code \"" + Texte(50, 'x') +
                  "...\" dans le modèle est inconnue de l'interpréteur Verdane.");

    EXPECT_EQ(m.Developper("#mrl()#"), "#mrl()#");
    EXPECT_EQ(m.Developper("x #mrl(type)# y"), "x #mrl(type)# y"); // a row, not a code: no "-"
    EXPECT_EQ(m.Developper(")# #mrl( #mrl("), ")# #mrl( #mrl(");
    EXPECT_EQ(m.Developper("#mrl(ORGANOM25)#"), "??"); // the word is "NOM2"
    EXPECT_EQ(m.Developper("#mrl(ORGA)#"), "??");
    EXPECT_EQ(m.Developper("#mrl(INFO:)#"), "\\~");
    EXPECT_EQ(m.Developper("#mrl(date()#"), "dimanche 22 novembre 2026");

    // Random assemblies of the language's pieces.
    const char* const morceaux[] = {
        "#mrl(", ")#",     "%mrl(", ")%",     "si(", ")alors:", "<>0",      "nomDossier", "-",
        ":",     "INFO:",  "ORGA",  "gph(",   ";",   "date(",   "formule:", "a",          "1",
        "{",     "\\par ", "kmk",   "endOLE", "tab", "\\'e9",   "numPage2", "date9"};
    std::mt19937 alea(12345);
    for (int essai = 0; essai < 2000; ++essai) {
        Texte t;
        const int n = static_cast<int>(alea() % 12);
        for (int i = 0; i < n; ++i) t += morceaux[alea() % std::size(morceaux)];
        Texte u = t;
        AnalyserCodes(m.ctx, t, essai % 7 == 0, false);
        AnalyserCodesImbriques(m.ctx, u);
    }
}

} // namespace
} // namespace verdane::test
