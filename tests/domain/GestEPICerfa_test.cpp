#include "domain/GestEPICerfa.h"

#include "DossierDomaine.h"

namespace verdane::test {
namespace {

class GestEPICerfaTest : public DossierDomaine {
protected:
    // Rows whose cells are all empty: the padding.
    static int RangeesVides(const std::string& rtf, std::size_t jusqua) {
        int n = 0;
        for (auto p = rtf.find("\\trowd"); p < jusqua; p = rtf.find("\\trowd", p + 1)) {
            const std::string ligne = rtf.substr(p, rtf.find("\\row", p) - p);
            if (ligne.find("\\cellx15000") != std::string::npos && Compter(ligne, " }\\cell") == 14)
                ++n;
        }
        return n;
    }
};

TEST(PagesPDE, ModelesEtBourrage) {
    EXPECT_EQ((std::vector<Texte>{ModelePDE(0, false), ModelePDE(0, true), ModelePDE(15, false),
                                  ModelePDE(16, false), NomResultatPDE(0)}),
              (std::vector<Texte>{"PDE\\PDECerfa.vdm", "PDE\\PDECerfasoc.vdm", "PDE\\PDE15.vdm", "",
                                  "PDECerfa"}));
    std::vector<int> groupes;
    for (int lignes : {10, 26, 27, 400, 0}) groupes.push_back(GroupesBourrage(lignes));
    EXPECT_EQ(groupes, (std::vector<int>{5, 0, 0, 0, 9}));
}

TEST_F(GestEPICerfaTest, SocieteOuQuestion) {
    ctx.etat.enrDossier.typeExploitation = 1;
    EXPECT_TRUE(SuffixeSocietePDE(ctx));
    EXPECT_TRUE(u.questions.empty());
    ctx.etat.enrDossier.typeExploitation = 2;
    u.reponses = {Reponse::Non};
    EXPECT_FALSE(SuffixeSocietePDE(ctx));
    ASSERT_EQ(u.questions.size(), 1u);
    EXPECT_EQ(u.questions[0].texte, "S'agissant d'une exploitation individuelle, souhaitez-vous "
                                    "quand même afficher les tableaux vides des Fiches Société "
                                    "en pages 14 et 15 ?");
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(SuffixeSocietePDE(ctx));
}

TEST_F(GestEPICerfaTest, PlansDeFinancementEtBourrage) {
    // No file: no plan, and none written; the header, padding and summary remain.
    std::string vide = Rendre("imemp:finap:0");
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "Ferme/PlanF.fin"));
    EXPECT_EQ(RangeesVides(vide, vide.find("\\par\\plain \\par\\plain ")), 27);
    EXPECT_TRUE(
        Contient(vide, {" Total prêts MTS-JA}\\cell", " Volume total des investissements}\\cell"}));

    Plans({Plan("Stabulation [BAT1] neuve"), Plan("Cheptel", 100, 30000)});
    Immos({Immo("Bâtiment", 120000, 1, 1), Immo("Fumière", 20000, 1, 1)});
    EnrEmprunt ja = Emprunt("MTS-JA", 100000, 1, 1);
    ja.bonifie = -1;
    Emprunts({ja, Emprunt("Prêt CA", 30000, 1, 1)});
    Subs({Immo("PCAE", 8000, 1, 1)});
    Don("IMMORES.DON", {{45, {0, 130000, 1000, 0, 0, 0, 0, 7}}, {122, {0, 100000}}});
    const std::string rtf = Rendre("imemp:finap:0");
    // 2025 is exercice 2 from 2024; self-financing 140000 - 100000 - 30000 - 8000; the aid as
    // plain text.
    EXPECT_TRUE(Contient(rtf, {" Exercice}\\cell", " Montant autofinancement}\\cell",
                               " BAT1}\\cell", " 2}\\cell", " totaux Stabulation}\\cell",
                               " 140 000}\\cell", " 2 000}\\cell", " 40 trimestre}\\cell",
                               " 8000}\\cell", " Cheptel}\\cell"}));
    // Lines: 2 + total + 2 loans + 1 aid + 1 for the plan at 100 %: 7, so 6 groups.
    EXPECT_EQ(RangeesVides(rtf, rtf.find("\\par\\plain \\par\\plain ")), 18);
    // Summary: other loans 130000 - 100000 in year 1, 1000 in year 2; total 131007.
    EXPECT_TRUE(Contient(rtf, {" Total autres prêts}\\cell", " 30 000}\\cell", " 31 000}\\cell",
                               "au-delà de l'exercice 5 (2)"}));
}

TEST_F(GestEPICerfaTest, ListesDeFinancement) {
    Plans({Plan("Matériel")});
    Immos({Immo("Tracteur", 60000, 1, 1)});
    Emprunts({Emprunt("Prêt matériel", 60000, 1, 1)});
    const std::string n = Rendre("imemp:finan:0");
    EXPECT_TRUE(Contient(n, {" INVESTISSEMENTS}\\cell", " exercice 5}\\cell", "\\cellx12400",
                             " Emprunt}\\cell", " TOTAL PRETS MTS-JA}\\cell", " X}\\cell"}));
    const std::string a = Rendre("imemp:finaa:0");
    EXPECT_TRUE(Contient(a, {" 2028}\\cell", " TOTAL PRETS}\\cell"}));
    EXPECT_LT(Compter(a, "\\trowd"), Compter(n, "\\trowd")); // no padding
}

TEST_F(GestEPICerfaTest, Echeanciers) {
    ctx.etat.nbAnEtude = 40; // past the yearly arrays
    EnrEmprunt ancien = Emprunt("Foncier", 50000, 0);
    ancien.capitalRestant[0] = 40000;
    ancien.capitalRestant[1] = 36000;
    ancien.annuite[1] = 5000;
    ancien.interets[1] = 1000;
    EnrEmprunt bonifie = Emprunt("MTS bonifié", 20000, 1);
    bonifie.bonifie = -1;
    Emprunts({ancien, Emprunt("Prêt JA", 80000, 2), bonifie});
    const std::string e2 = Rendre("imemp:empr2:0");
    EXPECT_TRUE(Contient(e2, {" Foncier}\\cell", " MTS bonifié}\\cell", " 2024  }\\cell",
                              " exercice 2024}\\cell", " TOTAL GENERAL}\\cell"}));
    EXPECT_TRUE(Exclut(e2, {"Prêt JA"}));
    // The old loan's row: its capital at the start, annuity, interest and capital left.
    const auto foncier = e2.find(" Foncier}");
    EXPECT_TRUE(Contient(e2.substr(foncier, e2.find("\\row", foncier) - foncier),
                         {" 40 000}", " 5 000}", " 1 000}", " 36 000}"}));
    EXPECT_EQ(Compter(e2, " TOTAL GENERAL}"), 13); // years 1 to 13
    const std::string e3 = Rendre("imemp:empr3:0");
    EXPECT_TRUE(Contient(e3, {"Prêt JA", "MTS bonifié"}));
    EXPECT_TRUE(Exclut(e3, {"Foncier"}));
}

TEST_F(GestEPICerfaTest, InvestissementsDeLaPage) {
    std::vector<EnrImmo> immos;
    for (int i = 1; i <= 7; ++i)
        immos.push_back(Immo(("Bien " + std::to_string(i)).c_str(), 1000.0f * i, 1));
    immos.push_back(Immo("Ancien", 5, 0));
    Immos(immos);
    TableauModele t;
    t.largeurs[0] = 3000;
    LigneModele l;
    l.definition = "imemp:inve1";
    t.lignes = {l};
    ctx.etat.tableaux.TableauxCourants = {t};
    const std::string rtf = Rendre("imemp:inve1");
    EXPECT_TRUE(Contient(rtf, {" Bien 5}\\cell", " Parts sociales emprunts}\\cell"}));
    EXPECT_TRUE(Exclut(rtf, {"Bien 6", "Ancien"}));
    const auto autres = rtf.find(" Autres immobilisations}");
    EXPECT_LT(rtf.find(" 13 000}\\cell", autres), rtf.find("\\row", autres));
    EXPECT_EQ(Compter(rtf, "\\row"), 7);
    ctx.etat.tableaux.TableauxCourants.clear();
    EXPECT_EQ(Rendre("imemp:inve1"), "");
}

} // namespace
} // namespace verdane::test
