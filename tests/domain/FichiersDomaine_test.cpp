#include "domain/FichiersDomaine.h"

#include "DossierDomaine.h"
#include "domain/PlansFinancement.h"
#include "utils/OutilsFichiers.h"

namespace verdane::test {
namespace {

using FichiersDomaineTest = DossierDomaine;

TEST_F(FichiersDomaineTest, FichiersAbsentsVidesOuTronques) {
    d.Ecrire("Ferme/Sub.sub", "");
    for (char f : {'i', 'e', 'x', 's'}) EXPECT_EQ(LireFichierInvest(ctx, f), 0) << f;
    // Two records and half of a third: the cut record isn't read.
    std::string deux = EcrireEnrImmo(Immo("a", 1, 0)) + EcrireEnrImmo(Immo("b", 2, 1));
    d.Ecrire("Ferme/Immo.imm", deux + EcrireEnrImmo(Immo("c", 3, 1)).substr(0, 1500));
    EXPECT_EQ(LireFichierInvest(ctx, 'i'), 2);
    EXPECT_EQ(ctx.etat.domaine.immobilisations[1].montant, 2.0f);
    d.Ecrire("Ferme/Emprunt.emp", std::string(1095, '\xff'));
    EXPECT_EQ(LireFichierInvest(ctx, 'e'), 0);
    // Plans count up to the last label; a file of a slot and a half, the rest empty slots.
    Plans({Plan("Bâtiment"), Plan(""), Plan("  "), Plan("Matériel [MAT1]")});
    EXPECT_EQ(LireFichierInvest(ctx, 'p'), 4);
    d.Ecrire("Ferme/PlanF.fin", EcrireEnrPlan(Plan("x")) + std::string(60, 'z'));
    EXPECT_EQ(LireFichierInvest(ctx, 'p'), 1);
    EXPECT_TRUE(LireCultures(ctx.etat).empty());
    EXPECT_TRUE(LireCulturesPerennes(ctx.etat).empty());
    EXPECT_TRUE(LireModulesAnimaux(ctx.etat).empty());
}

TEST_F(FichiersDomaineTest, PlanAbsentVingtPlansVidesSansRienEcrire) {
    ctx.etat.domaine.nbPlans = 3;
    ctx.etat.domaine.plans[1].libelle = "reste d'un autre dossier";
    EXPECT_EQ(LireFichierInvest(ctx, 'p'), 0);
    for (const auto& p : ctx.etat.domaine.plans) EXPECT_EQ(p.libelle, "");
    // The dossier is only read: its folder holds no new file.
    EXPECT_TRUE(std::filesystem::is_empty(d.Systeme() / "Ferme"));
    // A dossier whose folder isn't there gets no file.
    ctx.etat.NomDossier[0] = "Absent";
    EXPECT_EQ(LireFichierInvest(ctx, 'p'), 0);
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "Absent"));
    // No dossier chosen at all: nothing is read and nothing is made.
    ctx.etat.RepDossier[0] = "  ";
    EXPECT_EQ(FichierDossier(ctx.etat, "PlanF.fin"), "");
    EXPECT_EQ(LireFichierInvest(ctx, 'p'), 0);
    EXPECT_FALSE(std::filesystem::exists("PlanF.fin"));
}

TEST_F(FichiersDomaineTest, RattachementAuxPlans) {
    Plans({Plan("Stabulation"), Plan("Reprise", 100, 120000)});
    std::vector<EnrImmo> immos;
    for (int i = 0; i < 60; ++i) immos.push_back(Immo("Bât.", 1000, 1, 1));
    immos.push_back(Immo("Hors plan", 5, 1, 21));
    immos.push_back(Immo("Plan négatif", 5, 1, -1));
    Immos(immos);
    Emprunts({Emprunt("Prêt", 1000, 1, 2), Emprunt("Sans plan", 1, 1, 0)});
    LireFichiersInvest(ctx);
    const auto plans = RassemblerPlans(ctx.etat.domaine);
    ASSERT_EQ(plans.size(), 2u);
    EXPECT_EQ(plans[0].immobilisations.size(), 50u);
    EXPECT_EQ(plans[0].investissements.size(), 50u);
    // A plan at 100 %: its direct amount on one line, no immobilisation needed.
    EXPECT_EQ(plans[1].investissements, std::vector<float>{120000});
    EXPECT_EQ(plans[1].emprunts.size(), 1u);
}

TEST(LibellePlan, CodeEntreCrochets) {
    const std::tuple<const char*, const char*, const char*> cas[] = {
        {"Bâtiment [AB12] neuf", "Bâtiment", "AB12"},
        {"Séchoir [AB12 à finir", "Séchoir [AB12 à finir", ""},
        {"Éàùçôïë", "Éàùçôïë", ""},
        {"[X]", "", "X]"}};
    for (const auto& [texte, libelle, code] : cas) {
        const auto l = LireLibellePlan(texte);
        EXPECT_EQ(l.libelle + "|" + l.code, std::string(libelle) + "|" + code) << texte;
    }
}

TEST_F(FichiersDomaineTest, ListesDeCulturesFinissentAuGenreZero) {
    EnrCulture a, b, fin, apres;
    a.genre = 1;
    a.libelle = "Blé";
    b.genre = 3;
    apres.genre = 2;
    Cultures({a, b, fin, apres});
    EXPECT_EQ(LireCultures(ctx.etat).size(), 2u);
    // No kind 0 at all: every whole record, the cut one left out.
    std::string octets = EcrireEnrCulture(a) + EcrireEnrCulture(b) + EcrireEnrCulture(a);
    d.Ecrire("Ferme/cult.clt", octets.substr(0, octets.size() - 10));
    EXPECT_EQ(LireCultures(ctx.etat).size(), 2u);
    EnrCulturePerenne p, q;
    p.genre = 1;
    q.genre = -3;
    Perennes({p, p, q, p});
    d.Ecrire("Ferme/CLTP.CPD", d.Lire("Ferme/CltP.cpD"));
    EXPECT_EQ(LireCulturesPerennes(ctx.etat).size(), 2u);
}

TEST_F(FichiersDomaineTest, FichiersDonEtModules) {
    EXPECT_EQ((std::vector<Texte>{NomFichier(FichierDonCulture(ctx.etat, 3, false)),
                                  NomFichier(FichierDonCulture(ctx.etat, 12, true, true)),
                                  NomFichier(FichierDonModule(ctx.etat, 5)),
                                  NomFichier(FichierDonModule(ctx.etat, 12))}),
              (std::vector<Texte>{"Cult3.don", "CltP12t.don", "AL05AL.don", "AL12AL.don"}));
    Don("Cult3.don", {{2, {1, 2, 3}}});
    const Texte f = FichierDonCulture(ctx.etat, 3, false);
    std::vector<float> valeurs; // -1 where no value is read
    for (int annee : {2, 14, -1}) valeurs.push_back(ValeurDon(ctx.etat, f, 2, annee).value_or(-1));
    EXPECT_EQ(valeurs, (std::vector<float>{3, 0, 0}));
    EXPECT_FALSE(ValeurDon(ctx.etat, f, 3, 1));
    d.Ecrire("Ferme/ModAniLib.ini",
             "[GLOBAL]\r\nNumLastMod=100000\r\n[MOD2]\r\nACTIF=1\r\nNom=Porcs\r\n");
    const auto modules = LireModulesAnimaux(ctx.etat);
    ASSERT_EQ(modules.size(), 99u);
    EXPECT_TRUE(modules[1].actif);
    EXPECT_EQ(modules[1].nom, "Porcs");
    EXPECT_FALSE(modules[0].actif);
}

} // namespace
} // namespace verdane::test
