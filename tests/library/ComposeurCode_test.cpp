#include "library/ComposeurCode.h"

#include "data/EnrDon.h"
#include "engine/FauxUtilisateurMoteur.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

ChoixDonnee Choix(FamilleInsertion famille, const Texte& cle, GenreValeur genre, int index = 4,
                  int decimales = 0) {
    ChoixDonnee c;
    c.famille = famille;
    c.cle = cle;
    c.genre = genre;
    c.indexValeur = index;
    c.indexAnMinMax = index;
    c.decimales = decimales;
    return c;
}

constexpr auto kClassic = FamilleInsertion::Classic;
constexpr auto kValeur = GenreValeur::Valeur;

TEST(ComposeurCode, SerieDuDossierSelonLeGenreDeValeur) {
    const Texte cle = "VLVB.DON+VLVB-12:0";
    // The key is cut at its ":"; the word goes behind its "-"; values end with the decimals.
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, kValeur, 4 + 3, 2)),
              "VLVB.DON+VLVB-3a12:2");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, kValeur, 4 + 10, 1)),
              "VLVB.DON+VLVB-10a12:1");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, kValeur, 4, 0)),
              "VLVB.DON+VLVB-0a12:0");
    const char* const statistiques[] = {"som", "moy", "min", "max"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, kValeur, i, 7)),
                  "VLVB.DON+VLVB-" + Texte(statistiques[i]) + "12:7");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, GenreValeur::AnneeVal, 0, 3)),
              "VLVB.DON+VLVB-mina12:3");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, GenreValeur::AnneeVal, 1, 0)),
              "VLVB.DON+VLVB-maxa12:0");
    // Label and unit take no decimals.
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, GenreValeur::Intitule, 0, 3)),
              "VLVB.DON+VLVB-i12");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, cle, GenreValeur::Unite, 0, 3)),
              "VLVB.DON+VLVB-u12");
    // With two "-" the word goes behind the second.
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, "CH.DON+CH-A-5", kValeur, 0, 1)),
              "CH.DON+CH-A-som5:1");
    // No leaf chosen: no code.
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, "", kValeur)), "");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(kClassic, ":2", kValeur)), "");
}

TEST(ComposeurCode, ArticlesDesCulturesEtDesActivites) {
    // The family's letter and a "-" come in behind the "@"; the word behind that "-".
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(FamilleInsertion::Culture, "@14", kValeur, 4 + 3)),
              "@-3a14:0");
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(FamilleInsertion::CultPer, "@5/1", kValeur, 0, 2)),
              "@p-som5/1:2");
    EXPECT_EQ(ComposeurCode::CodeDonnee(
                  Choix(FamilleInsertion::AliBani, "@156", GenreValeur::Intitule, 0)),
              "@a-i156");
    // A composite item with a "-" of its own: the word goes behind the second "-".
    EXPECT_EQ(ComposeurCode::CodeDonnee(Choix(FamilleInsertion::Culture, "@6-5", kValeur, 5)),
              "@-6-1a5:0");

    // The unit and label entries of each family.
    const struct {
        FamilleInsertion famille;
        const char* unite;
        const char* libelle;
    } attendus[] = {{FamilleInsertion::Culture, "@-c", "@-n"},
                    {FamilleInsertion::CultPer, "@p-pc", "@p-p"},
                    {FamilleInsertion::AliBani, "@a-ac", "@a-a"}};
    for (const auto& a : attendus) {
        ChoixDonnee c = Choix(a.famille, kCleUniteFamille, GenreValeur::InfoGene, 0, 4);
        EXPECT_EQ(ComposeurCode::CodeDonnee(c), a.unite);
        c.cle = kCleLibelleFamille;
        c.entreeUnite = false;
        EXPECT_EQ(ComposeurCode::CodeDonnee(c), a.libelle);
    }
}

TEST(ComposeurCode, TexteEnClair) {
    EXPECT_EQ(ComposeurCode::EnClair(" Lait vendu ", Choix(kClassic, "k", kValeur, 4)),
              "Lait vendu pour l'année début");
    EXPECT_EQ(ComposeurCode::EnClair("Lait", Choix(kClassic, "k", kValeur, 5)),
              "Lait pour la 1ère année");
    EXPECT_EQ(ComposeurCode::EnClair("Lait", Choix(kClassic, "k", kValeur, 4 + 7)),
              "Lait pour la 7e année");
    EXPECT_EQ(ComposeurCode::EnClair("Lait", Choix(kClassic, "k", kValeur, 1)),
              "Lait : moyenne de la série");
    EXPECT_EQ(ComposeurCode::EnClair("Lait", Choix(kClassic, "k", GenreValeur::AnneeVal, 1)),
              "Lait : année de la valeur maximale");
    // Every entry of the value list has its words.
    const auto valeurs = ComposeurCode::ListeValeurs();
    EXPECT_EQ(valeurs.size(), 4u + 14u);
    for (int i = 0; i < static_cast<int>(valeurs.size()); ++i)
        EXPECT_GT(ComposeurCode::EnClair("L", Choix(kClassic, "k", kValeur, i)).size(), 3u);
}

TEST(ComposeurCode, ChampsGeneraux) {
    EXPECT_EQ(ComposeurCode::CodeChamp({"Nom du dossier", "nomDossier"}, 4), "nomDossier");
    EXPECT_EQ(ComposeurCode::CodeChamp({"x", "an4Fin", SuffixeChamp::Annee}, 3), "an4Fin3");
    EXPECT_EQ(ComposeurCode::CodeChamp({"x", "OrgaTel", SuffixeChamp::Organisme}, 12), "OrgaTel12");
}

TEST(ComposeurCode, FormulesHorsTableau) {
    MoteurDeTest m;
    EXPECT_EQ(ComposeurCode::CodeFormule(m.ctx, 2, " LG(VLVB-3) * 2 ", 1),
              "formule:2a:LG(VLVB-3) * 2:1");
    EXPECT_EQ(ComposeurCode::CodeFormule(m.ctx, 0, "(150 + COS(45)) * 10^4", 0),
              "formule:0a:(150 + COS(45)) * 10^4:0");
    EXPECT_TRUE(m.utilisateur.messages.empty());

    EXPECT_FALSE(ComposeurCode::CodeFormule(m.ctx, 2, "  \t", 1));
    EXPECT_TRUE(m.utilisateur.ADit("La formule n'a pas été renseignée !"));

    // A line of a table, a reference without its ")" or its "-": refused, and told.
    for (const char* faute : {"LG3*2", "LG(VLVB-3)+LG", "LG(VLVB-3", "LG(VLVB3)"}) {
        m.utilisateur.messages.clear();
        EXPECT_FALSE(ComposeurCode::CodeFormule(m.ctx, 1, faute, 0)) << faute;
        EXPECT_FALSE(m.utilisateur.messages.empty()) << faute;
    }
    EXPECT_TRUE(m.utilisateur.ADit("Formule erronée. Insertion impossible.") ||
                m.utilisateur.ADit("tiret"));
}

// The codes composed by the dialog, read by the interpreter over a dossier: what the user
// chose is what the document shows.
class CodesRelus : public ::testing::Test {
protected:
    void SetUp() override {
        Etat& e = m.ctx.etat;
        e.RepDossier[0] = d.Chemin();
        e.NomDossier[0] = "D";
        e.nbAnEtude = 5;
        e.anneeDebut = 2024;
        EnrDon serie;
        serie.code = "VLVB-12:0";
        serie.libelle = "Lait vendu|litres";
        serie.valeur = {1, 10, 40, 30, 20, 5, 0, 0, 0, 0, 0, 0, 0, 99};
        std::string octets(11 * EnrDon::kTaille, ' ');
        octets += EcrireEnrDon(serie);
        d.Ecrire("D/VLVB.don", octets);
        d.Ecrire("D/Cult1.don", octets);
        e.domaine.numCulture = 1;
        e.domaine.uniteCulture = "ha";
    }
    Texte Relu(const ChoixDonnee& choix) { return m.Valeur(ComposeurCode::CodeDonnee(choix)); }

    DossierTemporaire d;
    MoteurDeTest m;
};

TEST_F(CodesRelus, ValeursDesSeries) {
    const Texte cle = "VLVB.DON+VLVB-12:0";
    EXPECT_EQ(Relu(Choix(kClassic, cle, kValeur, 4 + 2, 0)), "40");
    EXPECT_EQ(Relu(Choix(kClassic, cle, kValeur, 4 + 13, 0)), "99");
    EXPECT_EQ(Relu(Choix(kClassic, cle, kValeur, 0, 0)), "105");
    EXPECT_EQ(Relu(Choix(kClassic, cle, kValeur, 3, 0)), "40");
    EXPECT_EQ(Relu(Choix(kClassic, cle, GenreValeur::AnneeVal, 0, 0)), "2028");
    EXPECT_EQ(Relu(Choix(kClassic, cle, GenreValeur::AnneeVal, 1, 0)), "2025");
    EXPECT_EQ(Relu(Choix(kClassic, cle, GenreValeur::Intitule)), "lait vendu");
    EXPECT_EQ(Relu(Choix(kClassic, cle, GenreValeur::Unite)), "litres");
}

TEST_F(CodesRelus, ArticlesDeLaCultureEnCours) {
    EXPECT_EQ(Relu(Choix(FamilleInsertion::Culture, "@12", kValeur, 4 + 3, 0)), "30");
    EXPECT_EQ(Relu(Choix(FamilleInsertion::Culture, "@12", kValeur, 2, 0)), "5");
    EXPECT_EQ(Relu(Choix(FamilleInsertion::Culture, "@12", GenreValeur::Intitule)), "lait vendu");
    EXPECT_EQ(Relu(Choix(FamilleInsertion::Culture, kCleUniteFamille, GenreValeur::InfoGene)),
              "ha");
    EXPECT_TRUE(m.utilisateur.messages.empty()) << m.utilisateur.ToutCeQuiAEteDit();
}

} // namespace
} // namespace verdane::test
