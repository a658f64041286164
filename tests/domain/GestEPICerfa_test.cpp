#include "domain/GestEPICerfa.h"

#include "DossierDomaine.h"
#include "domain/TabsImmoEmpr.h"

namespace verdane::test {
namespace {

class GestEPICerfaTest : public DossierDomaine {
protected:
    std::string Rendre(const std::string& code) {
        return TableauImemp(ctx, code, "\\plain \\trowd\\trgaph120\\trrh280\\trleft0");
    }
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

TEST(PagesPDE, ListeEtModeles) {
    EXPECT_EQ(PagesPDE().size(), 16u);
    EXPECT_STREQ(PagesPDE()[9], "9: Tableau des emprunts en cours et prévus - J.A.");
    EXPECT_EQ(ModelePDE(0, false), "PDE\\PDECerfa.vdm");
    EXPECT_EQ(ModelePDE(0, true), "PDE\\PDECerfasoc.vdm");
    EXPECT_EQ(ModelePDE(15, false), "PDE\\PDE15.vdm");
    EXPECT_EQ(ModelePDE(16, false), "");
    EXPECT_EQ(NomResultatPDE(0), "PDECerfa");
    EXPECT_EQ(NomResultatPDE(8), "8: Plan de financement de l'exploitation");
    EXPECT_EQ(GroupesBourrage(10), 5);
    EXPECT_EQ(GroupesBourrage(26), 0);
    EXPECT_EQ(GroupesBourrage(27), 0);
    EXPECT_EQ(GroupesBourrage(400), 0);
    EXPECT_EQ(GroupesBourrage(0), 9);
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
    EXPECT_NE(vide.find(" Total prêts MTS-JA}\\cell"), std::string::npos);
    EXPECT_NE(vide.find(" Volume total des investissements}\\cell"), std::string::npos);

    Plans({Plan("Stabulation [BAT1] neuve"), Plan("Cheptel", 100, 30000)});
    Immos({Immo("Bâtiment", 120000, 1, 1), Immo("Fumière", 20000, 1, 1)});
    EnrEmprunt ja = Emprunt("MTS-JA", 100000, 1, 1);
    ja.bonifie = -1;
    Emprunts({ja, Emprunt("Prêt CA", 30000, 1, 1)});
    EnrImmo aide = Immo("PCAE", 8000, 1, 1);
    Subs({aide});
    Don("IMMORES.DON", {{45, {0, 130000, 1000, 0, 0, 0, 0, 7}}, {122, {0, 100000}}});
    const std::string rtf = Rendre("imemp:finap:0");
    EXPECT_NE(rtf.find(" Exercice}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" Montant autofinancement}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" BAT1}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 2}\\cell"), std::string::npos); // 2025 is exercice 2 from 2024
    EXPECT_NE(rtf.find(" totaux Stabulation}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 140 000}\\cell"), std::string::npos);
    // 140000 - 100000 - 30000 - 8000
    EXPECT_NE(rtf.find(" 2 000}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 40 trimestre}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 8000}\\cell"), std::string::npos); // the aid as plain text
    EXPECT_NE(rtf.find(" Cheptel}\\cell"), std::string::npos);
    // Lines: 2 + total + 2 loans + 1 aid + 1 for the plan at 100 %: 7, so 6 groups.
    EXPECT_EQ(RangeesVides(rtf, rtf.find("\\par\\plain \\par\\plain ")), 18);
    // Summary: other loans 130000 - 100000 in year 1, 1000 in year 2; total 131007.
    EXPECT_NE(rtf.find(" Total autres prêts}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 30 000}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find(" 31 000}\\cell"), std::string::npos);
    EXPECT_NE(rtf.find("au-delà de l'exercice 5 (2)"), std::string::npos);
}

TEST_F(GestEPICerfaTest, ListesDeFinancement) {
    Plans({Plan("Matériel")});
    Immos({Immo("Tracteur", 60000, 1, 1)});
    Emprunts({Emprunt("Prêt matériel", 60000, 1, 1)});
    const std::string n = Rendre("imemp:finan:0");
    EXPECT_NE(n.find(" INVESTISSEMENTS}\\cell"), std::string::npos);
    EXPECT_NE(n.find(" exercice 5}\\cell"), std::string::npos);
    EXPECT_NE(n.find("\\cellx12400"), std::string::npos);
    EXPECT_NE(n.find(" Emprunt}\\cell"), std::string::npos);
    EXPECT_NE(n.find(" TOTAL PRETS MTS-JA}\\cell"), std::string::npos);
    EXPECT_NE(n.find(" X}\\cell"), std::string::npos);
    const std::string a = Rendre("imemp:finaa:0");
    EXPECT_NE(a.find(" 2028}\\cell"), std::string::npos);
    EXPECT_NE(a.find(" TOTAL PRETS}\\cell"), std::string::npos);
    EXPECT_LT(Compter(a, "\\trowd"), Compter(n, "\\trowd")); // no padding
}

TEST_F(GestEPICerfaTest, Echeanciers) {
    ctx.etat.nbAnEtude = 40; // past the yearly arrays
    EnrEmprunt ancien = Emprunt("Foncier", 50000, 0);
    ancien.capitalRestant[0] = 40000;
    ancien.capitalRestant[1] = 36000;
    ancien.annuite[1] = 5000;
    ancien.interets[1] = 1000;
    EnrEmprunt ja = Emprunt("Prêt JA", 80000, 2);
    EnrEmprunt bonifie = Emprunt("MTS bonifié", 20000, 1);
    bonifie.bonifie = -1;
    Emprunts({ancien, ja, bonifie});
    const std::string e2 = Rendre("imemp:empr2:0");
    EXPECT_NE(e2.find(" Foncier}\\cell"), std::string::npos);
    EXPECT_NE(e2.find(" MTS bonifié}\\cell"), std::string::npos);
    EXPECT_EQ(e2.find("Prêt JA"), std::string::npos);
    EXPECT_NE(e2.find(" 2024  }\\cell"), std::string::npos);
    const auto foncier = e2.find(" Foncier}");
    const auto fin = e2.find("\\row", foncier);
    for (const char* v : {" 40 000}", " 5 000}", " 1 000}", " 36 000}"})
        EXPECT_LT(e2.find(v, foncier), fin) << v;
    EXPECT_NE(e2.find(" exercice 2024}\\cell"), std::string::npos);
    EXPECT_NE(e2.find(" TOTAL GENERAL}\\cell"), std::string::npos);
    EXPECT_EQ(Compter(e2, " TOTAL GENERAL}"), 13); // years 1 to 13
    const std::string e3 = Rendre("imemp:empr3:0");
    EXPECT_EQ(e3.find("Foncier"), std::string::npos);
    EXPECT_NE(e3.find("Prêt JA"), std::string::npos);
    EXPECT_NE(e3.find("MTS bonifié"), std::string::npos);
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
    EXPECT_NE(rtf.find(" Bien 5}\\cell"), std::string::npos);
    EXPECT_EQ(rtf.find("Bien 6"), std::string::npos);
    EXPECT_EQ(rtf.find("Ancien"), std::string::npos);
    const auto autres = rtf.find(" Autres immobilisations}");
    EXPECT_LT(autres, rtf.find(" 13 000}\\cell", autres));
    EXPECT_LT(rtf.find(" 13 000}\\cell", autres), rtf.find("\\row", autres));
    EXPECT_NE(rtf.find(" Parts sociales emprunts}\\cell"), std::string::npos);
    EXPECT_EQ(Compter(rtf, "\\row"), 7);
    ctx.etat.tableaux.TableauxCourants.clear();
    EXPECT_EQ(Rendre("imemp:inve1"), "");
}

} // namespace
} // namespace verdane::test
