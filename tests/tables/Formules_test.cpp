#include "tables/Formules.h"

#include "data/FormatNombre.h"
#include "tables/Calculateur.h"
#include "utils/Chaines.h"

#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace verdane {
namespace {

using UtilisateurTemoin = test::FauxUtilisateur;

class Formules : public ::testing::Test {
protected:
    UtilisateurTemoin temoin;
    Contexte ctx{temoin};
    TableauFormule tableau;
    std::vector<std::pair<Texte, int>> seriesLues;

    void SetUp() override {
        auto& v = ctx.etat.tableaux.valeursLignes;
        v[2][1] = 10;
        v[2][2] = -3;
        v[2][3] = 1.5f;
        v[2][9] = 7; // left by an earlier table
        ctx.etat.marques.decimale = ",";
        tableau.valeurSerie = [this](const Texte& code, int annee) {
            seriesLues.emplace_back(code, annee);
            return 100.0f + static_cast<float>(annee);
        };
        tableau.libelleSerie = [](const Texte& code) { return "<" + code + ">"; };
        tableau.libelleLigne = [](int ligne) {
            const std::map<int, Texte> libelles = {{1, "Produit"}, {2, "Charges"}};
            auto it = libelles.find(ligne);
            return it == libelles.end() ? Texte{} : it->second;
        };
    }
    Texte Substituer(const Texte& f, int colonne) {
        return SubstituerFormule(ctx, f, colonne, tableau);
    }
    // The value of a formula at a column, as the calculator reads the substituted text.
    std::optional<double> Valeur(const Texte& f, int colonne) {
        return Calculer(RemplacerExact(Substituer(f, colonne), ",", "."));
    }
};

TEST_F(Formules, LignesDevenuesNombres) {
    EXPECT_EQ(Substituer("LG1+LG3*2", 2), "10+1,5*2");
    EXPECT_EQ(Substituer("(LG1_+_LG3)/2", 2), "(10 + 1,5)/2");
    EXPECT_EQ(Substituer("LG9", 2), "7");  // a line further down reads what the array held
    EXPECT_EQ(Valeur("LG1-LG2", 2), 13.0); // "10--3"
    EXPECT_EQ(Valeur("LG1\xB2+LG2^2", 2), 109.0);
    ctx.etat.marques.decimale = ".";
    EXPECT_EQ(Substituer("LG3", 2), "1.5");
    EXPECT_TRUE(temoin.messages.empty());
}

TEST_F(Formules, ReferenceSansObjetIllisible) {
    for (const char* f : {"LG0", "LG512", "LGX", "LG1A+1", "LG03.5"})
        EXPECT_FALSE(Valeur(f, 2).has_value()) << f;
    EXPECT_FALSE(Valeur("LG1", 16).has_value());
    EXPECT_EQ(Valeur("LG03", 2), 1.5); // leading zeros name the same line
}

TEST_F(Formules, SeriesALAnneeDeLaColonne) {
    EXPECT_EQ(Substituer("LG(VL-5)+LG(VL-6!A-1)+LG(OV-2!A3)", 4), "104+103+103");
    const std::vector<std::pair<Texte, int>> attendu = {{"VL-5", 4}, {"VL-6", 3}, {"OV-2", 3}};
    EXPECT_EQ(seriesLues, attendu);
    seriesLues.clear();
    EXPECT_EQ(Substituer("LG(X-5!A-1)", 1), "100"); // the first year column reads year 0
    EXPECT_EQ(seriesLues.back().second, 0);
    EXPECT_TRUE(temoin.messages.empty());
}

TEST_F(Formules, AnneePrecedenteDansUnTableauQuiCommenceALAnneeDebut) {
    tableau.modeAnnees = 1;
    EXPECT_EQ(Substituer("LG(X-5!A-1)", 0), "100");
    EXPECT_EQ(Substituer("LG(X-5!A-1)", 3), "103"); // the column's own year
    ASSERT_EQ(temoin.messages.size(), 2u);          // at each column
    EXPECT_EQ(temoin.messages[0].texte,
              "Erreur de conception du modèle de tableau en cours d'interprétation :\r"
              "Une formule de calcul demande à ce que les valeurs d'une ligne débute à "
              "NumAnnee-1\rpour un tableau qui débute déjà à l'année début ! Modifier le modèle.");
}

TEST_F(Formules, FautesDeReference) {
    EXPECT_EQ(Substituer("LG1+LG(VL-5", 2), "10+LG(VL-5");
    ASSERT_EQ(temoin.messages.size(), 1u);
    EXPECT_EQ(temoin.messages[0].texte, "La formule de calcul d'une ligne de total est erronée.");
    EXPECT_EQ(temoin.messages[0].technique,
              "Diagnostic : Il manque la parenthèse fermante après le code d'un LG.");
    EXPECT_EQ(temoin.messages[0].titre, "Tableau incorrect dans le modèle de document.");

    EXPECT_EQ(Substituer("LG(VL5)*LG1", kColonneLibelles), "LG(VL5)*LG1");
    EXPECT_EQ(temoin.messages[1].technique,
              "Diagnostic : Concernant le code entre parenthèse d'un LG, il manque le tiret "
              "entre le nom du fichier et le numéro d'enregistrement.");
    EXPECT_EQ(temoin.messages[1].titre, "Formule de total incorrecte.");

    for (const char* f : {"LG1+LG", "LG", "LG+1", "2*LG_+1"}) {
        temoin.messages.clear();
        EXPECT_EQ(Substituer(f, 2), "") << f;
        ASSERT_EQ(temoin.messages.size(), 1u) << f;
        EXPECT_EQ(temoin.messages[0].texte, "Formule erronée.");
        EXPECT_EQ(temoin.messages[0].technique,
                  "Il manque le code après un LG qui n'a pas de sens écrit tout seul");
    }
}

TEST_F(Formules, FormuleEnClair) {
    EXPECT_EQ(Substituer("(LG1-LG2)/LG(VL-5!A-1)", kColonneLibelles), "(Produit-Charges)/<VL-5>");
    EXPECT_TRUE(seriesLues.empty());
    // A label that holds the letters LG is read as a reference in its turn.
    tableau.libelleLigne = [](int ligne) { return ligne == 1 ? Texte("Solde LG2") : "Marge"; };
    EXPECT_EQ(Substituer("LG1", kColonneLibelles), "Solde Marge");
    // The search starts over: an L before the reference and a G in front of its label meet.
    tableau.libelleLigne = [](int ligne) { return ligne == 1 ? Texte("G2") : "Marge"; };
    EXPECT_EQ(Substituer("LLG1", kColonneLibelles), "Marge");
    // A label that names itself doesn't loop for ever.
    tableau.libelleLigne = [](int) { return Texte("xLG1"); };
    EXPECT_EQ(Substituer("LG1", kColonneLibelles).substr(0, 4), "xxxx");
    tableau.libelleLigne = nullptr;
    EXPECT_EQ(Substituer("LG1+1", kColonneLibelles), "+1");
}

TEST_F(Formules, HorsTableauLesLignesSontRefusees) {
    EXPECT_EQ(Substituer("LG1+LG(VL-5)", kColonneHorsTableau), "+<VL-5>");
    ASSERT_EQ(temoin.messages.size(), 1u);
    EXPECT_EQ(temoin.messages[0].texte, "Formule erronée. Insertion impossible.");
    EXPECT_EQ(temoin.messages[0].technique,
              "Votre formule contient le code LGn qui désigne une ligne n de tableau. \r"
              "Vous ne pouvez utiliser ce type de code ici, utilisez la formulation "
              "LG<nomFic-numEnreg>\ren sélectionnant vos séries de données directement dans "
              "l'arbre de choix ci-contre.");
    // The L before and the G behind an emptied reference meet into a new LG.
    temoin.messages.clear();
    tableau.libelleSerie = [](const Texte&) { return Texte{}; };
    EXPECT_EQ(Substituer("LLG(VL-5)G", kColonneHorsTableau), "");
    ASSERT_EQ(temoin.messages.size(), 1u);
    EXPECT_EQ(temoin.messages[0].texte, "Formule erronée.");
}

TEST_F(Formules, LongueFormuleSansRelecture) {
    Texte f = "LG1";
    for (int i = 0; i < 20000; ++i) f += "+LG3";
    EXPECT_EQ(Valeur(f, 2), 10 + 20000 * 1.5);
}

TEST_F(Formules, ResultatMisEnFormeEtIllisibleCompteZero) {
    const auto Nombre = [&](float v, std::int16_t d) {
        return FormatNombre(v, d, false, ctx.etat.marques);
    };
    const auto Evaluer = [&](const Texte& f, int colonne) {
        return EvaluerFormule(ctx, f, colonne, tableau);
    };
    EXPECT_EQ(Evaluer("LG1*LG3:2", 2), Nombre(15, 2));
    EXPECT_EQ(Evaluer("LG1/3", 2), Nombre(10.0f / 3, 7)); // automatic decimals
    // A comma between arguments becomes a decimal mark as well.
    EXPECT_EQ(Evaluer("MAX(2,5):1", 2), Nombre(2.5f, 1));
    EXPECT_EQ(Evaluer("LG(VL-1!A2)+1:0", 5), Nombre(103, 0));
    for (const char* f :
         {"LG1/0:2", "FOO(LG1):2", "(LG1:2", "LG1+LG(VL-5:2", "LG600:2", ":2", "LG:2"})
        EXPECT_EQ(Evaluer(f, 2), Nombre(0, 2)) << f;
}

TEST(VerifierFormule, MessagesDeLEditeur) {
    UtilisateurTemoin temoin;
    Contexte ctx{temoin};
    auto auDessus = [](int ligne) { return ligne >= 1 && ligne <= 4; };
    struct Cas {
        const char* formule;
        const char* message;
    };
    for (const Cas& c : std::vector<Cas>{
             {"  ", "Vous devez saisir une formule !"},
             {"LG1+LG(VL-5", "Il manque la parenthèse fermante après le code du 2e LG !"},
             {"LG(VL5)", "Concernant le code entre parenthèse du 1e LG, il manque le tiret entre "
                         "le nom du fichier et le numéro d'enregistrement !"},
             {"LG1+LG", "Il manque un numéro de ligne après le dernier LG !"},
             {"LG1+LG2*LG7", "Le numéro de ligne \"7\" suivant le 3e LG est incorrect !"},
             {"LG1+LGX", "Le numéro de ligne \"X\" suivant le 2e LG est incorrect !"},
             {"LG1+*LG2", "Le calcul de la formule ne peut être lu"},
             {"FOO(LG1)", "Le calcul de la formule ne peut être lu"},
         }) {
        temoin.messages.clear();
        EXPECT_FALSE(VerifierFormule(ctx, c.formule, auDessus)) << c.formule;
        ASSERT_EQ(temoin.messages.size(), 1u) << c.formule;
        EXPECT_EQ(temoin.messages[0].texte.rfind(c.message, 0), 0u) << temoin.messages[0].texte;
        EXPECT_EQ(temoin.messages[0].titre,
                  Texte(c.formule)[0] == ' ' ? "Validation impossible." : "Formule erronée.");
    }
    temoin.messages.clear();
    EXPECT_TRUE(VerifierFormule(ctx, " lg1+lg(vl-5!a-1)*2 ", auDessus));
    EXPECT_TRUE(VerifierFormule(ctx, "SOMME(LG1;LG4)/(LG(OV-3)-1)^2", auDessus));
    EXPECT_TRUE(temoin.messages.empty());
}

TEST(RenumeroterFormule, InsertionEtSuppression) {
    UtilisateurTemoin temoin;
    Contexte ctx{temoin};
    auto jusquA = [](int n) { return [n](int ligne) { return ligne >= 1 && ligne <= n; }; };

    Texte d = "totalC:LG1+LG3*LG(VL-3)/LG4:2:0";
    EXPECT_TRUE(RenumeroterFormule(ctx, d, 2, 9, SensRenumerotation::Plus, jusquA(8)));
    EXPECT_EQ(d, "totalC:LG1+LG4*LG(VL-3)/LG5:2:0");
    ASSERT_EQ(temoin.messages.size(), 1u);
    EXPECT_EQ(temoin.messages[0].texte,
              "Formule mise à jour : LG1+LG4*LG(VL-3)/LG5\rLa formule de total de la ligne n°9 a "
              "été mise à jour avec la nouvelle numérotation des lignes.");

    d = "totalS:LG1+LG3:7:2";
    EXPECT_TRUE(RenumeroterFormule(ctx, d, 2, 6, SensRenumerotation::Moins, jusquA(5)));
    EXPECT_EQ(d, "totalS:LG1+LG2:7:2");

    temoin.messages.clear();
    d = "totalC:LG1+LG3:2:0";
    EXPECT_TRUE(RenumeroterFormule(ctx, d, 3, 6, SensRenumerotation::Moins, jusquA(5)));
    EXPECT_EQ(d, "");
    ASSERT_EQ(temoin.messages.size(), 1u);
    EXPECT_EQ(temoin.messages[0].texte, "Formule invalide : LG1+LG3\rLa ligne supprimée était "
                                        "totalisée dans la ligne n°6.\rLa formule de la ligne n°6 "
                                        "est donc à ré-écrire !");

    temoin.messages.clear();
    d = "totalC:LG1+LG5:2:0";
    EXPECT_TRUE(RenumeroterFormule(ctx, d, 1, 6, SensRenumerotation::Plus, jusquA(5)));
    EXPECT_EQ(d, "");
    EXPECT_EQ(temoin.messages.at(0).texte,
              "Formule non valide : LG1+LG5\rLa formule de la ligne n°6 est à ré-écrire !");

    temoin.messages.clear();
    for (Texte autre : {"totalC:LG1+LG2:2:0", "serie:VL-LG3:2:0", "total"}) {
        const Texte avant = autre;
        EXPECT_FALSE(RenumeroterFormule(ctx, autre, 4, 6, SensRenumerotation::Plus, jusquA(9)));
        EXPECT_EQ(autre, avant);
    }
    EXPECT_TRUE(temoin.messages.empty());
    EXPECT_EQ(LignesReferencees("LG3+LG(VL-5)*LG12-LGX/LG1"), (std::vector<int>{3, 12, 1}));
    EXPECT_TRUE(LignesReferencees("LG(VL-5)").empty());
}

} // namespace
} // namespace verdane
