#include "engine/AnalyserCodes.h"
#include "engine/InterpreterCode.h"

#include "FauxUtilisateurMoteur.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

const char* const kExemple =
    "Par exemple, pour le dossier Marlo actuellement lié à Verdane, le résultat du code serait ";

class Explications : public ::testing::Test {
protected:
    void SetUp() override {
        EnrDossier& d = m.ctx.etat.enrDossier;
        d.nom = "Dossier Test";
        d.typeExploitation = 1;
        d.nbAssocies = 2;
        d.nomAssocie[1] = "Jean";
        d.nomAssocie[2] = "Paul";
    }
    const Message& Dernier() {
        EXPECT_FALSE(m.utilisateur.messages.empty());
        return m.utilisateur.messages.back();
    }
    MoteurDeTest m;
};

TEST_F(Explications, ChampSimple) {
    const Explication e = ExpliquerCode(m.ctx, "#mrl(nomDossier)#");
    const Message& msg = Dernier();
    EXPECT_EQ(msg.titre, "Interprétation d'un code Verdane");
    EXPECT_EQ(msg.genre, "Aide");
    EXPECT_EQ(msg.texte, "#mrl(nomDossier)# est le code pour afficher le nom du dossier." +
                             Texte(kExemple) + ": Dossier Test");
    EXPECT_EQ(e.code, "#mrl(nomDossier)#");
    EXPECT_EQ(e.phrase, msg.texte);
    EXPECT_EQ(e.valeur, "Dossier Test");
    EXPECT_TRUE(e.valeurCalculee);
    EXPECT_FALSE(e.tableau);
    // The bare inside is taken as well.
    EXPECT_EQ(ExpliquerCode(m.ctx, "nomDossier").valeur, "Dossier Test");
}

TEST_F(Explications, ListeSurPlusieursLignes) {
    const Explication e = ExpliquerCode(m.ctx, "nomAssocies");
    EXPECT_EQ(e.valeur, "Nom des associés : \n- Jean\n- Paul\n");
    EXPECT_EQ(Dernier().texte,
              "#mrl(nomAssocies)# est le code pour afficher la liste ( noms ) des associés." +
                  Texte(kExemple) + "( avec un saut de ligne après chaque nom ) : " + e.valeur);
}

TEST_F(Explications, TableauxSansCalcul) {
    const Texte code = "tabd3;" + Texte(80, 'z');
    const Explication e = ExpliquerCode(m.ctx, code);
    EXPECT_EQ(Dernier().texte, code.substr(0, 50) +
                                   "...  est le code d'un tableau permettant de comparer les "
                                   "données de 3 dossiers.");
    EXPECT_EQ(e.technique.rfind("En cliquant ci-dessous, Verdane re-constitutera", 0), 0u);
    EXPECT_TRUE(e.tableau);
    EXPECT_FALSE(e.valeurCalculee);
    EXPECT_EQ(e.valeur, "");

    ExpliquerCode(m.ctx, "cultper;x");
    EXPECT_NE(Dernier().texte.find(" est le code d'un tableau des cultures ( pérennes ou non )."),
              Texte::npos);
    EXPECT_FALSE(m.extensions.perenne);
    ExpliquerCode(m.ctx, "gph(Mon_graph;1)");
    EXPECT_NE(Dernier().texte.find("le graphique \"Mon graph\"."), Texte::npos);
}

} // namespace
} // namespace verdane::test
