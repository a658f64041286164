#include "library/ComposeurCode.h"

#include "data/EnrDon.h"
#include "engine/FauxUtilisateurMoteur.h"
#include "support/DossierTemporaire.h"

#include <gtest/gtest.h>

namespace verdane::test {
namespace {

constexpr auto kClassic = FamilleInsertion::Classic;
constexpr auto kCulture = FamilleInsertion::Culture;
constexpr auto kValeur = GenreValeur::Valeur;

// A choice of the dialog: `index` is the entry of the value list and of the extreme list.
ChoixDonnee Choix(FamilleInsertion famille, const Texte& cle, GenreValeur genre, int index = 4,
                  int decimales = 0) {
    return {.famille = famille,
            .cle = cle,
            .genre = genre,
            .indexValeur = index,
            .indexAnMinMax = index,
            .decimales = decimales};
}

TEST(ComposeurCode, CodesDesSeriesEtDesArticles) {
    const Texte vl = "VLVB.DON+VLVB-12:0";
    const std::pair<ChoixDonnee, const char*> cas[] = {
        // The key is cut at its ":"; the word goes behind its "-"; values end with the decimals.
        {Choix(kClassic, vl, kValeur, 4 + 3, 2), "VLVB.DON+VLVB-3a12:2"},
        {Choix(kClassic, vl, kValeur, 4 + 10, 1), "VLVB.DON+VLVB-10a12:1"},
        {Choix(kClassic, vl, kValeur, 4, 0), "VLVB.DON+VLVB-0a12:0"},
        {Choix(kClassic, vl, kValeur, 0, 7), "VLVB.DON+VLVB-som12:7"},
        {Choix(kClassic, vl, GenreValeur::AnneeVal, 1, 0), "VLVB.DON+VLVB-maxa12:0"},
        // Label and unit take no decimals.
        {Choix(kClassic, vl, GenreValeur::Intitule, 0, 3), "VLVB.DON+VLVB-i12"},
        // With two "-" the word goes behind the second.
        {Choix(kClassic, "CH.DON+CH-A-5", kValeur, 0, 1), "CH.DON+CH-A-som5:1"},
        // No leaf chosen: no code.
        {Choix(kClassic, ":2", kValeur), ""},
        // The family's letter and a "-" come in behind the "@"; the word behind that "-".
        {Choix(kCulture, "@14", kValeur, 4 + 3), "@-3a14:0"},
        {Choix(FamilleInsertion::CultPer, "@5/1", kValeur, 0, 2), "@p-som5/1:2"},
        {Choix(FamilleInsertion::AliBani, "@156", GenreValeur::Intitule, 0), "@a-i156"},
        // A composite item with a "-" of its own: the word goes behind the second "-".
        {Choix(kCulture, "@6-5", kValeur, 5), "@-6-1a5:0"},
    };
    for (const auto& [choix, code] : cas) EXPECT_EQ(ComposeurCode::CodeDonnee(choix), code) << code;

    // The unit and label entries of each family.
    const struct {
        FamilleInsertion famille;
        const char* unite;
        const char* libelle;
    } familles[] = {{kCulture, "@-c", "@-n"},
                    {FamilleInsertion::CultPer, "@p-pc", "@p-p"},
                    {FamilleInsertion::AliBani, "@a-ac", "@a-a"}};
    for (const auto& f : familles) {
        ChoixDonnee c = Choix(f.famille, kCleUniteFamille, GenreValeur::InfoGene, 0, 4);
        EXPECT_EQ(ComposeurCode::CodeDonnee(c), f.unite);
        c.cle = kCleLibelleFamille;
        c.entreeUnite = false;
        EXPECT_EQ(ComposeurCode::CodeDonnee(c), f.libelle);
    }
}

TEST(ComposeurCode, TexteEnClairEtChamps) {
    const struct {
        const char* serie;
        ChoixDonnee choix;
        const char* texte;
    } cas[] = {{" Lait vendu ", Choix(kClassic, "k", kValeur, 4), "Lait vendu pour l'année début"},
               {"Lait", Choix(kClassic, "k", kValeur, 5), "Lait pour la 1ère année"},
               {"Lait", Choix(kClassic, "k", kValeur, 1), "Lait : moyenne de la série"},
               {"Lait", Choix(kClassic, "k", GenreValeur::AnneeVal, 1),
                "Lait : année de la valeur maximale"}};
    for (const auto& c : cas) EXPECT_EQ(ComposeurCode::EnClair(c.serie, c.choix), c.texte);
    // Every entry of the value list has its words.
    const auto valeurs = ComposeurCode::ListeValeurs();
    EXPECT_EQ(valeurs.size(), 4u + 14u);
    for (int i = 0; i < static_cast<int>(valeurs.size()); ++i)
        EXPECT_GT(ComposeurCode::EnClair("L", Choix(kClassic, "k", kValeur, i)).size(), 3u);

    EXPECT_EQ(ComposeurCode::CodeChamp({"Nom du dossier", "nomDossier"}, 4), "nomDossier");
    EXPECT_EQ(ComposeurCode::CodeChamp({"x", "an4Fin", SuffixeChamp::Annee}, 3), "an4Fin3");
    EXPECT_EQ(ComposeurCode::CodeChamp({"x", "OrgaTel", SuffixeChamp::Organisme}, 12), "OrgaTel12");
}

TEST(ComposeurCode, FormulesHorsTableau) {
    MoteurDeTest m;
    EXPECT_EQ(ComposeurCode::CodeFormule(m.ctx, 2, " LG(VLVB-3) * 2 ", 1),
              "formule:2a:LG(VLVB-3) * 2:1");
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
TEST(ComposeurCode, CodesRelusSurUnDossier) {
    DossierTemporaire d;
    MoteurDeTest m;
    Etat& e = m.ctx.etat;
    e.RepDossier[0] = d.Chemin();
    e.NomDossier[0] = "D";
    e.nbAnEtude = 5;
    e.anneeDebut = 2024;
    EnrDon serie;
    serie.code = "VLVB-12:0";
    serie.libelle = "Lait vendu|litres";
    serie.valeur = {1, 10, 40, 30, 20, 5, 0, 0, 0, 0, 0, 0, 0, 99};
    const std::string octets = std::string(11 * EnrDon::kTaille, ' ') + EcrireEnrDon(serie);
    d.Ecrire("D/VLVB.don", octets);
    d.Ecrire("D/Cult1.don", octets);
    e.domaine.numCulture = 1;
    e.domaine.uniteCulture = "ha";

    const Texte vl = "VLVB.DON+VLVB-12:0";
    const std::pair<ChoixDonnee, const char*> cas[] = {
        {Choix(kClassic, vl, kValeur, 4 + 2), "40"},
        {Choix(kClassic, vl, kValeur, 4 + 13), "99"},
        {Choix(kClassic, vl, kValeur, 0), "105"},
        {Choix(kClassic, vl, kValeur, 3), "40"},
        {Choix(kClassic, vl, GenreValeur::AnneeVal, 0), "2028"},
        {Choix(kClassic, vl, GenreValeur::AnneeVal, 1), "2025"},
        {Choix(kClassic, vl, GenreValeur::Intitule), "lait vendu"},
        {Choix(kClassic, vl, GenreValeur::Unite), "litres"},
        // The items of the crop in hand.
        {Choix(kCulture, "@12", kValeur, 4 + 3), "30"},
        {Choix(kCulture, "@12", kValeur, 2), "5"},
        {Choix(kCulture, "@12", GenreValeur::Intitule), "lait vendu"},
        {Choix(kCulture, kCleUniteFamille, GenreValeur::InfoGene), "ha"},
    };
    for (const auto& [choix, valeur] : cas)
        EXPECT_EQ(m.Valeur(ComposeurCode::CodeDonnee(choix)), valeur) << valeur;
    EXPECT_TRUE(m.utilisateur.messages.empty()) << m.utilisateur.ToutCeQuiAEteDit();
}

} // namespace
} // namespace verdane::test
