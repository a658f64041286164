// verdane-lot: its options, its statuses, its report; and over a damaged installation (folders
// where files are expected, a result that can't be one) each run ends with its status and a
// message, never with an abort.
#include "graphs/FichierGraph.h"
#include "shell/Lot.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace verdane {
namespace {

LectureOptionsLot Lire(std::vector<Texte> args) {
    return LireOptionsLot(args);
}

class Lot : public ::testing::Test, protected test::InstallationTemporaire {
protected:
    Lot() : enregistre(u), ctx(enregistre) {}

    BilanLot Executer(OptionsLot o) { return ExecuterLot(ctx, o, env); }
    OptionsLot Options(const Texte& resultat, const Texte& modele = "") {
        OptionsLot o;
        o.dossier = Dossier("DUPONT");
        o.modele = modele.empty() ? d / "a b/m.vdm" : modele;
        o.resultat = resultat;
        return o;
    }
    void Repertoire(const std::string& nom) {
        std::filesystem::create_directories(d.Systeme() / nom);
    }

    test::FauxUtilisateur u;
    UtilisateurEnregistre enregistre;
    Contexte ctx;
};

} // namespace

TEST(OptionsLot, LectureEtErreursDUsage) {
    const auto bon =
        Lire({"--dossier", "D", "--modele", "M", "--resultat", "R", "--remplacer", "--compare",
              "C1", "--compare", "C2", "--reponse", "NON", "--rapport", "r.json"});
    ASSERT_TRUE(bon.options);
    EXPECT_EQ(bon.options->compares, (std::vector<Texte>{"C1", "C2"}));
    EXPECT_EQ(bon.options->reponse, Reponse::Non);
    EXPECT_TRUE(bon.options->remplacer);
    EXPECT_EQ(bon.options->rapport, "r.json");

    EXPECT_TRUE(Lire({"--help"}).options->aide);
    EXPECT_EQ(Lire({"--modele", "M", "--resultat", "R"}).erreur, "il manque --dossier");
    EXPECT_EQ(Lire({"--dossier"}).erreur, "--dossier demande un répertoire");
    EXPECT_EQ(Lire({"--dossier", "D", "--modele", "M", "--resultat", "R", "--reponse", "peut-être"})
                  .erreur,
              "--reponse demande oui ou non, pas peut-être");
    EXPECT_EQ(Lire({"-x"}).erreur, "option inconnue : -x");
    std::vector<Texte> dix = {"--dossier", "D", "--modele", "M", "--resultat", "R"};
    for (int i = 0; i < 10; ++i) dix.insert(dix.end(), {"--compare", "C"});
    EXPECT_FALSE(Lire(dix).options);
}

TEST_F(Lot, CreeLeDocumentDuDossierNommeSansEcrireLesOptions) {
    const auto bilan = Executer(Options(d / "r.rtf"));
    EXPECT_EQ(bilan.statut, kSortieFaite);
    EXPECT_EQ(bilan.codesTrouves, 1);
    EXPECT_EQ(bilan.codesTraites, 1);
    EXPECT_EQ(ctx.etat.NomDossier[0], "DUPONT");
    EXPECT_TRUE(d.Lire("r.rtf").starts_with("{\\rtf1 Bonjour "));
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "Marlo/Verdane"));
}

TEST_F(Lot, LesDonneesManquantesSontDesErreursDUsage) {
    OptionsLot o = Options(d / "r.rtf");
    o.dossier = Dossier("PERSONNE");
    EXPECT_EQ(Executer(o).statut, kSortieUsage);
    EXPECT_TRUE(u.ADit("Dossier Marlo introuvable : le dossier " + Dossier("PERSONNE")));

    o = Options(d / "r.rtf");
    o.compares = {Dossier("DUPONT"), Dossier("AUTRE")};
    EXPECT_EQ(Executer(o).statut, kSortieUsage);

    o = Options(d / "r.rtf");
    o.modele = d / "absent.vdm";
    EXPECT_EQ(Executer(o).statut, kSortieUsage);
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "r.rtf"));
}

TEST_F(Lot, UnResultatExistantNEstRemplaceQueSurDemande) {
    d.Ecrire("r.rtf", "ancien");
    OptionsLot o = Options(d / "r.rtf");
    EXPECT_EQ(Executer(o).statut, kSortieUsage);
    EXPECT_EQ(d.Lire("r.rtf"), "ancien");
    o.remplacer = true;
    EXPECT_EQ(Executer(o).statut, kSortieFaite);
    EXPECT_NE(d.Lire("r.rtf"), "ancien");
}

TEST_F(Lot, UneConversionManqueeDonne1EtGardeLeRtf) {
    // No word processor in this run: a ".doc" can't be made.
    const auto bilan = Executer(Options(d / "r.doc"));
    EXPECT_EQ(bilan.statut, kSortieEchec);
    EXPECT_EQ(bilan.copieRtf, d / "r.rtf");
    EXPECT_FALSE(bilan.raison.empty());
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "r.doc"));
    EXPECT_TRUE(d.Lire("r.rtf").starts_with("{\\rtf1 Bonjour "));
    const std::string json = RapportJson(Options(d / "r.doc"), bilan, enregistre.Evenements());
    EXPECT_NE(json.find("\"statut\":1,\"documentCree\":false,\"raison\":\"Aucun traitement"),
              std::string::npos)
        << json;
    EXPECT_NE(json.find("\"copieRtf\":\"" + Cp1252VersUtf8(d / "r.rtf") + "\""), std::string::npos);
}

TEST_F(Lot, LesDossiersComparesPrennentLesPlaces1Et2) {
    OptionsLot o = Options(d / "r.rtf");
    o.compares = {AjouterDossier("MARTIN"), AjouterDossier("DURAND")};
    EXPECT_EQ(Executer(o).statut, kSortieFaite);
    EXPECT_EQ(ctx.etat.NomDossier[1], "MARTIN");
    EXPECT_EQ(ctx.etat.NomDossier[2], "DURAND");
    EXPECT_EQ(ctx.etat.nbDossiersImposes, 2);
}

TEST_F(Lot, LeRapportDitTout) {
    d.Ecrire("sans-fin.vdm", "#mrl(jamais fermee");
    OptionsLot o = Options(d / "r.rtf");
    o.modele = d / "sans-fin.vdm";
    const auto bilan = Executer(o);
    enregistre.Question("Vraiment ?", "Titre", Boutons::OuiNon, Reponse::Non, Icone::Question);
    const std::string json = RapportJson(o, bilan, enregistre.Evenements());
    EXPECT_NE(json.find("\"statut\":0"), std::string::npos);
    EXPECT_NE(json.find("\"codesTrouves\":1,\"codesTraites\":0"), std::string::npos);
    // Texts come out in UTF-8, escaped as JSON wants.
    EXPECT_NE(json.find("{\"rang\":1,\"titre\":\"Le mod\xC3\xA8le de document comporte une "
                        "erreur !\""),
              std::string::npos);
    EXPECT_NE(json.find("\\r\\nModifier le mod\xC3\xA8le"), std::string::npos);
    EXPECT_NE(json.find("\"questions\":[{\"rang\":2,\"titre\":\"Titre\",\"texte\":\"Vraiment "
                        "?\",\"reponse\":\"non\"}]"),
              std::string::npos);
}

TEST_F(Lot, DesRepertoiresALaPlaceDesFichiers) {
    Repertoire("Marlo/Verdane/Editeur.svg");
    Repertoire("Marlo/ModelGraph/graph.txt");
    EXPECT_EQ(Executer(Options(d / "r.rtf")).statut, kSortieFaite);
    EXPECT_TRUE(d.Lire("r.rtf").starts_with("{\\rtf1 Bonjour "));
    // The graph library read where a folder stands: said, and nothing loaded.
    LireFichierGraph(ctx);
    EXPECT_EQ(ctx.etat.graphes.nbGraphes, 0);
    EXPECT_TRUE(u.ADit("n'a pas pu être lu"));

    // A model that is a folder.
    Repertoire("m.vdm");
    EXPECT_EQ(Executer(Options(d / "r2.rtf", d / "m.vdm")).statut, kSortieUsage);
    EXPECT_TRUE(u.ADit("Modèle de document introuvable"));
    EXPECT_FALSE(std::filesystem::exists(d.Systeme() / "r2.rtf"));
}

TEST_F(Lot, UnResultatImpossibleAEcrireDonne1) {
    Repertoire("r.rtf");
    ctx.etat.NbCodes = 0;
    EXPECT_EQ(Executer(Options(d / "r.rtf")).statut, kSortieEchec);
    EXPECT_TRUE(u.ADit("Le document résultat est un répertoire"));
    EXPECT_EQ(ctx.etat.NbCodes, 0); // said before the model was read
    EXPECT_EQ(Executer(Options(d.Chemin())).statut, kSortieEchec);
}

} // namespace verdane
