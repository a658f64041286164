// The PDE model set over the sample dossiers: every page has its model, the pages render with
// their domain tables, and the whole set makes one document of all its sections.

#include "data/ChargerDossier.h"
#include "domain/GestEPICerfa.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "support/Morceaux.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane {
namespace {

const std::string kMarlo = std::string(VERDANE_SOURCE_DIR) + "/samples/marlo/";

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

TEST_F(EchantillonsPDETest, PagesDuPDE) {
    for (int i = 0; i <= 15; ++i)
        EXPECT_TRUE(FichierExiste(kMarlo + "Verdane/ModlDocs/" +
                                  RemplacerExact(ModelePDE(i, false), "\\", "/")))
            << i;
    EXPECT_TRUE(
        test::Contient(Rendre("PDE/PDE8.vdm"),
                       {"Pr\xEAts bonifi\xE9s - MTS-JA", " BAT1}\\cell",
                        " totaux B\xE2timent d'\xE9levage}\\cell", " Reprise du cheptel}\\cell"}));
    // The sample's inactive animal module stays out.
    const Texte p2 = Rendre("PDE/PDE2.vdm");
    EXPECT_TRUE(test::Contient(
        p2, {" Ovins viande}\\cell", " Poules pondeuses}\\cell", " Bl\xE9 tendre}\\cell"}));
    EXPECT_TRUE(test::Exclut(p2, {"Porcs plein air"}));
    EXPECT_TRUE(u.messages.empty()) << u.ToutCeQuiAEteDit();

    EXPECT_EQ(test::Compter(Rendre("PDE/PDECerfasoc.vdm"), "\\sect "), 14);
}

TEST_F(EchantillonsPDETest, ModeleDesTablesDuDomaine) {
    const Texte doc = Rendre("domaine.vdm");
    EXPECT_TRUE(
        test::Contient(doc, {"Immobilisations anciennes", " stabulation libre log.}\\cell",
                             " Cult. fourragères}\\cell", "Culture fourragère dérobée",
                             "Caractéristiques :", "\\b 4-8\\par", "Autofinancement}\\cell"}));
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
    EXPECT_TRUE(test::Contient(p8, {" Volume total des investissements}\\cell"}));
    EXPECT_TRUE(test::Exclut(p8, {"BAT1"}));
    EXPECT_NE(Rendre("PDE/PDE9.vdm").find(" TOTAL GENERAL}\\cell"), Texte::npos);
}

} // namespace
} // namespace verdane
