// The PDE model set over the sample dossier: each page rendered with its domain tables, the
// whole document written to the build folder and, when LibreOffice is there, turned to PDF.

#include "data/ChargerDossier.h"
#include "domain/FichiersDomaine.h"
#include "domain/GestEPICerfa.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

namespace verdane {
namespace {

const std::string kMarlo = std::string(VERDANE_SOURCE_DIR) + "/samples/marlo/";

std::size_t Compter(const Texte& t, const Texte& mot) {
    std::size_t n = 0;
    for (auto p = t.find(mot); p != Texte::npos; p = t.find(mot, p + 1)) ++n;
    return n;
}

class EchantillonsPDETest : public ::testing::Test {
protected:
    EchantillonsPDETest() : ctx(u) {
        ctx.etat.marques = MarquesNombre{",", " "};
        ctx.etat.RepDossier[0] = kMarlo + "Dossiers/";
        ctx.etat.NomDossier[0] = "DUPONT";
        ChargerDossier(ctx);
    }

    // A model made into a document by the creation driver, its line ends taken out.
    Texte Rendre(const std::string& modele) {
        const Texte resultat = travail / "document.rtf";
        CreerDocument(ctx, kMarlo + "Verdane/ModlDocs/" + modele, resultat, false, true, false);
        return RemplacerExact(LireFichier(resultat).value_or(""), "\r\n", "");
    }

    test::DossierTemporaire travail;
    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(EchantillonsPDETest, DossierDExempleComplet) {
    LireFichiersInvest(ctx);
    const auto& d = ctx.etat.domaine;
    int anciennes = 0, bonifies = 0, aCent = 0;
    for (const auto& i : d.immobilisations) anciennes += i.nouvelle == 0;
    for (const auto& e : d.emprunts) bonifies += e.bonifie == -1;
    for (int p = 0; p < d.nbPlans; ++p)
        aCent += d.plans[static_cast<std::size_t>(p)].pourcentage >= 100;
    EXPECT_GT(anciennes, 0);
    EXPECT_LT(anciennes, static_cast<int>(d.immobilisations.size()));
    EXPECT_FALSE(d.subventions.empty());
    EXPECT_GE(bonifies, 1);
    EXPECT_EQ(d.nbPlans, 3);
    EXPECT_EQ(aCent, 1);
    std::set<int> genres;
    for (const auto& c : LireCultures(ctx.etat)) genres.insert(c.genre);
    EXPECT_EQ(genres, (std::set<int>{1, 2, 3, 4}));
    EXPECT_EQ(LireCulturesPerennes(ctx.etat).size(), 2u);
    const auto modules = LireModulesAnimaux(ctx.etat);
    ASSERT_EQ(modules.size(), 3u);
    EXPECT_FALSE(modules[1].actif);
}

TEST_F(EchantillonsPDETest, PagesDuPDE) {
    for (int i = 0; i <= 15; ++i)
        EXPECT_TRUE(FichierExiste(kMarlo + "Verdane/ModlDocs/" +
                                  RemplacerExact(ModelePDE(i, false), "\\", "/")))
            << i;
    const Texte p8 = Rendre("PDE/PDE8.vdm");
    EXPECT_NE(p8.find("Pr\xEAts bonifi\xE9s - MTS-JA"), Texte::npos);
    EXPECT_NE(p8.find(" BAT1}\\cell"), Texte::npos);
    EXPECT_NE(p8.find(" totaux B\xE2timent d'\xE9levage}\\cell"), Texte::npos);
    EXPECT_NE(p8.find(" Reprise du cheptel}\\cell"), Texte::npos);
    const Texte p9 = Rendre("PDE/PDE9.vdm");
    EXPECT_NE(p9.find(" Pr\xEAt cheptel JA}\\cell"), Texte::npos);
    EXPECT_NE(p9.find(" TOTAL GENERAL}\\cell"), Texte::npos);
    const Texte p2 = Rendre("PDE/PDE2.vdm");
    EXPECT_NE(p2.find(" Ovins viande}\\cell"), Texte::npos);
    EXPECT_NE(p2.find(" Poules pondeuses}\\cell"), Texte::npos);
    EXPECT_EQ(p2.find("Porcs plein air"), Texte::npos);
    EXPECT_NE(p2.find(" Bl\xE9 tendre}\\cell"), Texte::npos);
    const Texte p3 = Rendre("PDE/PDE3.vdm");
    EXPECT_NE(p3.find(" Cultures de vente}\\cell"), Texte::npos);
    EXPECT_NE(p3.find(" Vigne AOC Coteaux du Layon}\\cell"), Texte::npos);
    EXPECT_TRUE(u.messages.empty()) << u.ToutCeQuiAEteDit();

    const Texte tout = Rendre("PDE/PDECerfasoc.vdm");
    EXPECT_EQ(Compter(tout, "\\sect "), 14u);
    const std::filesystem::path sortie = std::filesystem::path(VERDANE_BIN_DIR) / "pde";
    std::filesystem::create_directories(sortie);
    std::ofstream(sortie / "PDECerfa.rtf", std::ios::binary) << tout;
    if (std::system("command -v soffice >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "LibreOffice absent: no conversion";
    const std::string commande = "cd '" + sortie.string() + "' && HOME='" + sortie.string() +
                                 "' timeout 180 soffice --headless --convert-to pdf "
                                 "PDECerfa.rtf >/dev/null 2>&1";
    if (std::system(commande.c_str()) != 0) GTEST_SKIP() << "LibreOffice could not convert";
    EXPECT_TRUE(std::filesystem::exists(sortie / "PDECerfa.pdf"));
}

TEST_F(EchantillonsPDETest, ModeleDesTablesDuDomaine) {
    const Texte doc = Rendre("domaine.vdm");
    EXPECT_NE(doc.find("Immobilisations anciennes"), Texte::npos);
    EXPECT_NE(doc.find(" stabulation libre log.}\\cell"), Texte::npos);
    EXPECT_NE(doc.find(" Cult. fourragères}\\cell"), Texte::npos);
    EXPECT_NE(doc.find("Culture fourragère dérobée"), Texte::npos);
    EXPECT_NE(doc.find("Caractéristiques :"), Texte::npos);
    EXPECT_NE(doc.find("\\b 4-8\\par"), Texte::npos);
    EXPECT_NE(doc.find("Autofinancement}\\cell"), Texte::npos);
    const std::filesystem::path sortie = std::filesystem::path(VERDANE_BIN_DIR) / "pde";
    std::filesystem::create_directories(sortie);
    std::ofstream(sortie / "domaine.rtf", std::ios::binary) << doc;
}

TEST_F(EchantillonsPDETest, SocieteSansListes) {
    // A copy of the company dossier, which has no list: the financing tables stand empty.
    test::DossierTemporaire copie;
    std::filesystem::copy(kMarlo + "Dossiers/GAEC", copie.Systeme() / "GAEC");
    ctx.etat.RepDossier[0] = copie.Chemin();
    ctx.etat.NomDossier[0] = "GAEC";
    ChargerDossier(ctx);
    EXPECT_TRUE(SuffixeSocietePDE(ctx));
    EXPECT_TRUE(u.questions.empty());
    const Texte p8 = Rendre("PDE/PDE8.vdm");
    EXPECT_FALSE(std::filesystem::exists(copie.Systeme() / "GAEC/PlanF.fin"));
    EXPECT_NE(p8.find(" Volume total des investissements}\\cell"), Texte::npos);
    EXPECT_EQ(p8.find("BAT1"), Texte::npos);
    EXPECT_NE(Rendre("PDE/PDE9.vdm").find(" TOTAL GENERAL}\\cell"), Texte::npos);
}

} // namespace
} // namespace verdane
