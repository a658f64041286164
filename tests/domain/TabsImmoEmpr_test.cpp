#include "domain/TabsImmoEmpr.h"

#include "DossierDomaine.h"
#include "domain/CadreDomaine.h"
#include "tables/LectureCode.h"

#include <regex>

namespace verdane::test {
namespace {

class TabsImmoEmprTest : public DossierDomaine {
protected:
    TabsImmoEmprTest() { ctx.etat.decalageCouleurs = 3; }
    // The \cellx edges of the first row that follows `depuis`.
    static std::vector<int> Bords(const std::string& rtf, std::size_t depuis = 0) {
        std::vector<int> b;
        const auto fin = rtf.find("\\row", depuis);
        const std::regex re("\\\\cellx(\\d+)");
        const std::string ligne = rtf.substr(depuis, fin - depuis);
        for (std::sregex_iterator it(ligne.begin(), ligne.end(), re), e; it != e; ++it)
            b.push_back(std::stoi((*it)[1]));
        return b;
    }
};

TEST(CadreDomaine, DureesEtLibellesDeListe) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::tuple<float, bool, float, const char*> durees[] = {
        {18, false, 0, "1 an 6 mois"}, {24, false, 0, "2 ans"},
        {6, false, 0, " 6 mois"},      {0, false, 0, ""},
        {40, true, 3, "40 trimestre"}, {1, true, 12, "1 ans"},
        {7, true, 5, "7 mois"},        {0, true, 3, ""},
        {nan, false, 0, ""},           {1e30f, true, 2, ""}};
    for (const auto& [duree, emprunt, periode, texte] : durees)
        EXPECT_EQ(TexteDuree(duree, emprunt, periode), texte) << duree << " " << periode;

    const std::tuple<const char*, int, const char*> libelles[] = {
        {"  STABULATION  ", 21, "stabulation "},
        {"abcdefghijklmnopqrstuv", 21, "abcdefghijklmnopqrstuv "},
        {"abcdefghijklmnopqrstuvw", 21, "abcdefghijklmnopqrstu."},
        {"abcdefghijklmnopqrst uvw", 21, "abcdefghijklmnopqrst "},
        {"abcdefghijklmnopqrstuvw", 22, "abcdefghijklmnopqrstuv."},
        {"ÉTABLE À VEAUX ÇÀ ET LÀ ÊÔ", 21, "étable à veaux çà et "}};
    for (const auto& [libelle, largeur, texte] : libelles)
        EXPECT_EQ(LibelleListe(libelle, largeur), texte) << libelle;
    EXPECT_EQ(DateCourte("15/03/2024"), "15/03/24");
    EXPECT_EQ(DateCourte(" **/**/**** "), "**/**/****");
}

TEST_F(TabsImmoEmprTest, ListeVideTitresEtRegle) {
    const std::string rtf = Rendre("imemp:immo2");
    EXPECT_TRUE(
        DansLOrdre(rtf, {"\\ql\\fs20\\cf4\\b\\i\\ul Immobilisations anciennes\\par \\plain ",
                         "\\ql\\fs20\\cf4\\b\\i\\ul Immobilisations nouvelles\\par \\plain "}));
    EXPECT_EQ(Bords(rtf),
              (std::vector<int>{1500, 2400, 3300, 4000, 4700, 5500, 6100, 6900, 7800, 8700, 9500}));
    EXPECT_TRUE(
        Contient(rtf, {"\\trgaph5\\trrh280", "Date réalisat.", "\\trowd\\trgaph5\\trrh50\\trqc"}));
    EXPECT_TRUE(Exclut(rtf, {"\\trgaph120"}));
    for (const char* code : {"imemp", "imemp:xxxxx", "imemp:"}) EXPECT_EQ(Rendre(code), "") << code;
}

TEST_F(TabsImmoEmprTest, ImmobilisationsParGroupe) {
    EnrImmo vieille = Immo("Hangar", 30000, 0);
    vieille.type = 0;
    vieille.duree = 0;
    vieille.amortissement = 1;
    vieille.lsm = -250;
    EnrImmo neuve = Immo("Salle de traite 2x8 avec décrochage", 98765.4f, 1);
    neuve.type = 6;
    neuve.duree = 15;
    neuve.amortissement = 9;
    neuve.plusValue1 = 100;
    neuve.plusValue2 = 50;
    Immos({vieille, neuve, Immo("Bizarre", 1, 7)});
    ctx.etat.tableaux.TableauxCourants.assign(1, TableauModele{});
    ctx.etat.tableaux.TableauxCourants[0].rouge = 1;

    const std::string nouvelles = Rendre("imemp:immo0:0");
    EXPECT_TRUE(
        Contient(nouvelles, {"Immobilisations nouvelles\\par \\plain \\par \\plain ",
                             " salle de traite 2x8 a.}\\cell", " 98 765}\\cell", " D}\\cell",
                             " 15}\\cell", " 150}\\cell", " 15/03/25}\\cell"}));
    EXPECT_TRUE(Exclut(nouvelles, {"hangar", "bizarre"}));
    // LSM negative, red with the table's flag: colour 6 + 3.
    EXPECT_TRUE(Contient(Rendre("imemp:immo1:0"),
                         {" hangar }\\cell", " F}\\cell", " Dég.}\\cell", "\\cf9 -250}\\cell"}));
    EXPECT_TRUE(DansLOrdre(Rendre("imemp:immos"), {"hangar", "salle"}));
}

TEST_F(TabsImmoEmprTest, SubventionsEtEmprunts) {
    EnrImmo s = Immo("DJA", 22000, 1);
    s.type = 1;
    s.dateRevente = "01/01/2030";
    Subs({s});
    EXPECT_TRUE(Contient(Rendre("imemp:subv0:0"),
                         {" dja }\\cell", " Lin.}\\cell", " 01/01/2030}\\cell", " }\\cell\\row"}));

    EnrEmprunt e = Emprunt("Prêt bâtiment JA bonifié longue durée", 150000, 0);
    e.type = 1;
    e.echeance1 = 2500;
    e.dateFin = "01/10/2039";
    Emprunts({e});
    EXPECT_TRUE(Contient(Rendre("imemp:empt1:0"),
                         {" prêt bâtiment ja bonif.}\\cell", " 150 000  }\\cell", " 2,5 %}\\cell",
                          " 2 500    }\\cell", " 01/10/39}\\cell", " M}\\cell"}));
}

TEST_F(TabsImmoEmprTest, InvestissementsSansSubventionNiDiffere) {
    Plans({Plan("Stabulation")});
    Immos({Immo("Bâtiment", 100000.5f, 1, 1)});
    Emprunts({Emprunt("Prêt", 80000, 1, 1)});
    u.reponses = {Reponse::Non, Reponse::Non};
    const std::string sans = Rendre("imemp:inves:0");
    ASSERT_EQ(u.questions.size(), 2u);
    EXPECT_EQ(u.questions[0].titre, "Tableau des investissements-financements");
    EXPECT_EQ(
        u.questions[0].texte,
        "\r\nLa colonne des subventions est vide. \r\nSouhaitez-vous l'afficher quand même ?");
    EXPECT_EQ(u.questions[1].parDefaut, Reponse::Oui);
    const auto troisieme = sans.find("\\trowd", sans.find("Emprunts"));
    EXPECT_EQ(Bords(sans, troisieme), (std::vector<int>{2900, 4050, 5500, 6400, 7400}));
    EXPECT_EQ(Bords(sans, sans.find("\\trowd")), (std::vector<int>{4050, 7400}));
    // Self-financing 100000 - 80000 at 0 decimals.
    EXPECT_TRUE(Contient(sans, {" 100 000}\\cell", " 2,5 %}\\cell", " 40 trimestre}\\cell",
                                "\\cellx5800", " 20 000}\\cell"}));

    // No terminal: the default answers keep both columns.
    u.questions.clear();
    const std::string avec = Rendre("imemp:inves");
    EXPECT_EQ(u.questions.size(), 2u);
    const auto t3 = avec.find("\\trowd", avec.find("Emprunts"));
    EXPECT_EQ(Bords(avec, t3), (std::vector<int>{2900, 4050, 5200, 6300, 7200, 8200, 9200}));
    EXPECT_TRUE(Contient(avec, {"Différé", " 100 000,5}\\cell"}));
    // "Autofinancement" up to E = 6600 + 1000, its value 1600 further.
    EXPECT_EQ(Bords(avec, avec.rfind("\\trowd")), (std::vector<int>{3600, 7600, 9200}));
}

TEST_F(TabsImmoEmprTest, InvestissementsPlanACentPourCent) {
    Plans({Plan("Reprise du cheptel", 100, 45000)});
    Subs({Immo("Aide", 5000, 1, 1)});
    EnrEmprunt e = Emprunt("Prêt", 40000, 1, 1);
    e.differe = 12;
    Emprunts({e});
    const std::string rtf = Rendre("imemp:inves:0");
    EXPECT_TRUE(u.questions.empty());
    EXPECT_EQ(Compter(rtf, " Reprise du cheptel}\\cell"), 1);
    EXPECT_EQ(Compter(rtf, " 45 000}\\cell"), 2); // the line and the total
    // 45000 - 5000 - 40000 = 0: the number text blanks it.
    EXPECT_TRUE(Contient(rtf, {" TOTAL}\\cell", " 12}\\cell", "Autofinancement}\\cell"}));
}

} // namespace
} // namespace verdane::test
