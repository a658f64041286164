// verdane-lot over a damaged installation: folders where files are expected, a result that
// can't be one. Each run ends with its status and a message, never with an abort.
#include "graphs/FichierGraph.h"
#include "shell/Lot.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane {
namespace {

class RobustesseLot : public ::testing::Test, protected test::InstallationTemporaire {
protected:
    RobustesseLot() : enregistre(u), ctx(enregistre) {}

    int Executer(const Texte& modele, const Texte& resultat) {
        OptionsLot o;
        o.dossier = Dossier("DUPONT");
        o.modele = modele;
        o.resultat = resultat;
        return ExecuterLot(ctx, o, env).statut;
    }
    void Repertoire(const std::string& nom) {
        std::filesystem::create_directories(d.Systeme() / nom);
    }

    test::FauxUtilisateur u;
    UtilisateurEnregistre enregistre;
    Contexte ctx;
};

} // namespace

TEST_F(RobustesseLot, DesRepertoiresALaPlaceDesFichiersDuProgramme) {
    Repertoire("Marlo/Verdane/Editeur.svg");
    Repertoire("Marlo/ModelGraph/graph.txt");
    EXPECT_EQ(Executer(d / "a b/m.vdm", d / "r.rtf"), kSortieFaite);
    EXPECT_TRUE(d.Lire("r.rtf").starts_with("{\\rtf1 Bonjour "));
    // The graph library read where a folder stands: said, and nothing loaded.
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 0);
    EXPECT_TRUE(u.ADit("n'a pas pu être lu"));
}

TEST_F(RobustesseLot, UnModeleQuiEstUnRepertoire) {
    Repertoire("m.vdm");
    EXPECT_EQ(Executer(d / "m.vdm", d / "r.rtf"), kSortieUsage);
    EXPECT_TRUE(u.ADit("Modèle de document introuvable"));
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "r.rtf"));
}

TEST_F(RobustesseLot, UnResultatQuiEstUnRepertoire) {
    Repertoire("r.rtf");
    EXPECT_EQ(Executer(d / "a b/m.vdm", d / "r.rtf"), kSortieEchec);
    EXPECT_TRUE(u.ADit("Le document résultat est un répertoire"));
    EXPECT_EQ(ctx.etat.NbCodes, 0); // said before the model was read
    EXPECT_EQ(Executer(d / "a b/m.vdm", d.Chemin()), kSortieEchec);
}

} // namespace verdane
