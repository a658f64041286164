// The sample installation: the model of tables over the dossiers DUPONT and MARTIN, and the
// library of tables. When LibreOffice is on the machine, the generated document is converted
// to text to see that the tables open as tables with their values.

#include "data/ChargerDossier.h"
#include "engine/CreationDoc.h"
#include "shell/etat/Contexte.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "support/Morceaux.h"
#include "tables/BibliothequeTableaux.h"
#include "utils/Chaines.h"
#include "utils/GestFontTable.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace verdane {
namespace {

const std::string kMarlo = std::string(VERDANE_SOURCE_DIR) + "/samples/marlo/";

class EchantillonsTest : public ::testing::Test {
protected:
    EchantillonsTest() : ctx(u) {
        ctx.etat.marques = MarquesNombre{",", " "};
        for (std::size_t slot : {0u, 1u, 2u}) ctx.etat.RepDossier[slot] = kMarlo + "Dossiers/";
        ctx.etat.NomDossier[0] = "DUPONT";
        ctx.etat.NomDossier[1] = "DUPONT";
        ctx.etat.NomDossier[2] = "MARTIN";
        ChargerDossier(ctx);
    }

    // The sample model made into a document by the creation driver.
    Texte Document() {
        const Texte resultat = sortie / "tableaux.rtf";
        CreerDocument(ctx, kMarlo + "Verdane/ModlDocs/tableaux.vdm", resultat, false, true, false);
        return LireFichier(resultat).value_or("");
    }

    test::DossierTemporaire sortie;
    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(EchantillonsTest, ModeleDeTableaux) {
    ASSERT_TRUE(FichierExiste(kMarlo + "Verdane/ModlDocs/tableaux.vdm"));
    const Texte doc = Document();
    EXPECT_TRUE(u.messages.empty()) << u.ToutCeQuiAEteDit();
    // No dossier asked: the console would compare the slots of the options file.
    EXPECT_EQ(ctx.etat.tableaux.nbDossiersChoisis, 0);
    // Lait x prix / 1000 in year 1 (315000 x 360 / 1000); multi-dossier: cows of year 1 in
    // DUPONT and MARTIN, milk per cow; a study of 5 years starting 1 October 2024: the titles of
    // form 1 and 4; the premium block keeps the two lines with values; the formula code has its
    // value.
    EXPECT_TRUE(test::Contient(doc, {" 113 400}\\cell", " 45}\\cell", " 72}\\cell", " 7 000}\\cell",
                                     " 8 194}\\cell", " 2024/25}\\cell", " 2023-2024}\\cell",
                                     "Installation}\\cell",
                                     "aide aux prot\xE9"
                                     "agineux",
                                     "en euros 136 900"}));
    EXPECT_TRUE(test::Exclut(doc, {"bl\xE9 dur"}));

    if (std::system("command -v soffice >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "LibreOffice absent: no conversion";
    test::DossierTemporaire d;
    d.Ecrire("tableaux.rtf", doc);
    const std::string commande = "cd '" + d.Systeme().string() + "' && HOME='" +
                                 d.Systeme().string() +
                                 "' timeout 120 soffice --headless --convert-to txt:Text "
                                 "tableaux.rtf >/dev/null 2>&1";
    if (std::system(commande.c_str()) != 0 || !FichierExiste(d / "tableaux.txt"))
        GTEST_SKIP() << "LibreOffice could not convert";
    const std::string texte = d.Lire("tableaux.txt");
    // Each cell is its own paragraph in the text export of a table.
    EXPECT_TRUE(
        test::Contient(texte, {"\nCampagne\n", "\nProduit lait\n", "\n113 400\n", "\nDUPONT\n",
                               "\nMARTIN\n", "\n45\n", "\n72\n", "\n2024/25\n",
                               "\nCroisi\xC3\xA8re\n", "\nLait par vache an 1\n", "\n7 000\n"}))
        << texte;
    EXPECT_TRUE(test::Exclut(texte, {"\\cell"}));
}

TEST(BibliothequeEchantillonTest, LueEtReecriteALIdentique) {
    UtilisateurMuet u;
    Contexte ctx(u);
    const Texte chemin = kMarlo + "Verdane/ModlDocs/tableaux.txt";
    ChargerTableaux(ctx, chemin, true);
    auto& tableaux = ctx.etat.tableaux.TableauxCourants;
    // Written from the models, not from the entries as read.
    for (TableauModele& t : tableaux) t.source = {};
    ASSERT_EQ(tableaux.size(), 6u);
    EXPECT_EQ(tableaux[2].dossier, "Synth\xE8se");
    EXPECT_EQ(tableaux[4].multiDossier, 1);
    EXPECT_EQ(tableaux[4].lignes[3].annee, 5);
    test::DossierTemporaire d;
    ASSERT_TRUE(EcrireTableaux(ctx, d / "copie.txt"));
    EXPECT_EQ(d.Lire("copie.txt"), LireFichier(chemin).value_or("?"));
}

} // namespace
} // namespace verdane
