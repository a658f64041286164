#include "library/GestModeles.h"

#include "library/EssaisBibliotheque.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace verdane {
namespace {

namespace fs = std::filesystem;

// Names on disk are UTF-8; the program's names are Windows-1252 (the test's literals too).
class Bibliotheque : public ::testing::Test {
protected:
    Bibliotheque() : ctx(u) {
        d.Ecrire("src/.garde", "");
        d.Ecrire("dst/.garde", "");
    }

    std::vector<LigneListe> Lignes(const Texte& tag, const Texte& dossier = "src") {
        return ListerFichiers(ctx.etat, d / dossier, tag).lignes;
    }
    int Transferer(const Texte& tag, const std::vector<LigneListe>& choix) {
        u.reponses.push_front(Reponse::Oui); // the question before the transfer
        return TransfererSelection(ctx, d / "src", d / "dst", tag, choix);
    }

    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(Bibliotheque, CopieDesFichiersSansRienEcraser) {
    d.Ecrire(Cp1252VersUtf8("src/Lettre été.vdm"), "{\\rtf1 a}");
    d.Ecrire("src/Bilan.vdm", "{\\rtf1 b}");
    d.Ecrire("dst/Bilan.vdm", "{\\rtf1 ancien}");
    EXPECT_EQ(Transferer("MDL", Lignes("MDL")), 1);
    EXPECT_EQ(d.Lire(Cp1252VersUtf8("dst/Lettre été.vdm")), "{\\rtf1 a}");
    EXPECT_EQ(d.Lire("dst/Bilan.vdm"), "{\\rtf1 ancien}");
    EXPECT_TRUE(u.ADit("Bilan.vdm existe déjà ! Le modèle n'a pas été copié."));

    // A file gone since the listing is told, and the next goes on.
    auto lignes = Lignes("MDL");
    fs::remove(d.Systeme() / "src/Bilan.vdm");
    d.Ecrire("src/Autre.vdm", "x");
    lignes.push_back({"Autre.vdm", "", "", "", "", 0});
    EXPECT_EQ(Transferer("DOC", lignes), 1);
    EXPECT_TRUE(u.ADit("Bilan.vdm introuvable !"));
    EXPECT_TRUE(u.ADit("Lettre été.vdm existe déjà ! Le document n'a pas été copié."));
}

TEST_F(Bibliotheque, RefusAvantTouteCopie) {
    d.Ecrire("src/a.rtf", "a");
    const auto lignes = Lignes("DOC");
    // The user says no.
    EXPECT_EQ(TransfererSelection(ctx, d / "src", d / "dst", "DOC", lignes), 0);
    EXPECT_EQ(u.questions.at(0).texte, "Voulez-vous transférer les modèles sélectionnés ?");
    EXPECT_EQ(u.questions.at(0).titre, "Confirmation de suppression");
    // A destination that doesn't exist.
    u.reponses.push_back(Reponse::Oui);
    EXPECT_EQ(TransfererSelection(ctx, d / "src", d / "nulle part", "DOC", lignes), 0);
    EXPECT_TRUE(u.ADit("Le répertoire de destination n'existe pas !"));
    // A library copied onto itself, under another spelling of the same folder.
    d.Ecrire("src/graph.txt", test::EnregistrementGraphe("G", 1));
    u.reponses.push_back(Reponse::Oui);
    EXPECT_EQ(TransfererSelection(ctx, d / "src", d / "dst/../src/", "GPH", Lignes("GPH")), 0);
    EXPECT_EQ(d.Lire("src/graph.txt").size(), 1224u);
    EXPECT_FALSE(fs::exists(d.Systeme() / "dst/a.rtf"));
}

TEST_F(Bibliotheque, GraphesAjoutesDerriereLeDernierSaufDansUneBibliothequeAbimee) {
    const std::string g1 = test::EnregistrementGraphe("Produits", 2, 'a');
    const std::string g2 = test::EnregistrementGraphe("Charges", 4, 'b');
    const std::string g3 = test::EnregistrementGraphe("Marges", 1, 'c');
    d.Ecrire("src/graph.txt", g1 + g2);
    d.Ecrire("dst/graph.txt", g3);
    EXPECT_TRUE(CopierGraphe(ctx, d / "src", d / "dst", "Charges"));
    EXPECT_EQ(d.Lire("dst/graph.txt"), g3 + g2);
    EXPECT_TRUE(u.questions.empty());

    // The same name again: asked; both confirmed copies keep their equal names.
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(CopierGraphe(ctx, d / "src", d / "dst", "Charges"));
    EXPECT_EQ(u.questions.at(0).texte,
              "Il existe déjà un graphique nommé Charges. Ajouter quand même ?");
    EXPECT_EQ(d.Lire("dst/graph.txt"), g3 + g2 + g2);
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "dst", "Charges")); // default: no
    EXPECT_EQ(d.Lire("dst/graph.txt").size(), 3 * 1224u);

    // A missing destination library is made; an unknown name is told.
    fs::remove(d.Systeme() / "dst/graph.txt");
    EXPECT_EQ(Transferer("GPH", Lignes("GPH")), 2);
    EXPECT_EQ(d.Lire("dst/graph.txt"), g1 + g2);
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "dst", "Inconnu"));
    EXPECT_TRUE(u.ADit("\"Inconnu\" est introuvable"));

    // A damaged or full destination is left as it is.
    const std::string g = test::EnregistrementGraphe("G", 1);
    d.Ecrire("src/graph.txt", g);
    d.Ecrire("dst/graph.txt", g + "queue");
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "dst", "G"));
    EXPECT_TRUE(u.ADit("n'a pas une longueur multiple de 1224"));
    EXPECT_EQ(d.Lire("dst/graph.txt"), g + "queue");

    std::string plein;
    for (int i = 0; i < 50; ++i) plein += test::EnregistrementGraphe("P" + std::to_string(i), 1);
    d.Ecrire("dst/graph.txt", plein);
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "dst", "G"));
    EXPECT_TRUE(u.ADit("compte déjà 50 graphiques"));
    EXPECT_EQ(d.Lire("dst/graph.txt"), plein);
}

TEST_F(Bibliotheque, TableauxCopiesOctetPourOctet) {
    const std::string t1 = test::EntreeTableau("Produits", "Ventes", "tabp1c1;larg2000(x)");
    const std::string t2 = test::EntreeTableau("Charges", "", "tabp1c1;larg2000(y)");
    d.Ecrire("src/tableaux.txt", t1 + "[Cassé][D][]\r\npas une marque\r\n\r\n" + t2);
    d.Ecrire("dst/tableaux.txt", "[Ancien][D][]\r\n#mrl(z)#"); // no final line end
    EXPECT_TRUE(CopierTableau(ctx, d / "src", d / "dst", "Charges"));
    EXPECT_EQ(d.Lire("dst/tableaux.txt"), "[Ancien][D][]\r\n#mrl(z)#\r\n" + t2);

    EXPECT_FALSE(CopierTableau(ctx, d / "src", d / "dst", "Absent"));
    EXPECT_TRUE(u.ADit("Le modèle de tableau \"Absent\" est introuvable. Non transféré."));
    EXPECT_FALSE(CopierTableau(ctx, d / "src", d / "dst", "Cassé"));
    EXPECT_TRUE(u.ADit("Problème d'intitulé : transfert du modèle Cassé annulé."));

    // The broken entry isn't listed; the list says so.
    const auto liste = ListerFichiers(ctx.etat, d / "src", "TAB");
    ASSERT_EQ(liste.lignes.size(), 2u);
    EXPECT_EQ(liste.lignes[1].nom, "Charges");
    EXPECT_EQ(liste.lignes[1].type, "Tableau : Divers");
    EXPECT_NE(liste.probleme.find("1 entrée(s) illisible(s)"), Texte::npos);
}

TEST_F(Bibliotheque, SuppressionsReecriventLaBibliothequeSansLesElements) {
    const std::string a = test::EnregistrementGraphe("A", 1);
    const std::string b = test::EnregistrementGraphe("B", 2);
    d.Ecrire("src/graph.txt", a + b + a);
    auto lignes = Lignes("GPH");
    u.reponses = {Reponse::Non, Reponse::Oui, Reponse::Oui};
    EXPECT_EQ(SupprimerSelection(ctx, d / "src", "GPH", lignes), 2);
    EXPECT_EQ(u.questions.at(0).texte, "Voulez-vous supprimer le modèle A ?");
    EXPECT_EQ(d.Lire("src/graph.txt"), a);

    const std::string t1 = test::EntreeTableau("T1", "D", "1");
    const std::string t2 = test::EntreeTableau("T2", "D", "2");
    d.Ecrire("src/tableaux.txt", "\r\n" + t1 + t2);
    u.reponses = {Reponse::Oui};
    EXPECT_EQ(SupprimerSelection(ctx, d / "src", "TAB", {Lignes("TAB").at(0)}), 1);
    EXPECT_EQ(d.Lire("src/tableaux.txt"), "\r\n" + t2);
    EXPECT_TRUE(u.ADit("Le modèle de tableau \"T1\" a été supprimé."));

    // A row listed before the library changed doesn't take another entry with it.
    lignes = Lignes("TAB");
    d.Ecrire("src/tableaux.txt", t1);
    EXPECT_EQ(SupprimerElements(ctx, d / "src", "TAB", lignes), 0);
    EXPECT_EQ(d.Lire("src/tableaux.txt"), t1);

    // All: the library files go; all the documents, and not the models.
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(SupprimerTout(ctx, d / "src", "TAB"));
    EXPECT_EQ(u.questions.back().texte, "Voulez-vous supprimer tous les modèles ?");
    EXPECT_EQ(u.questions.back().titre, "Suppression totale");
    EXPECT_FALSE(fs::exists(d.Systeme() / "src/tableaux.txt"));
    d.Ecrire("src/a.rtf", "a");
    d.Ecrire("src/m.vdm", "m");
    u.reponses = {Reponse::Oui};
    EXPECT_TRUE(SupprimerTout(ctx, d / "src", "DOC"));
    EXPECT_TRUE(Lignes("DOC").empty());
    EXPECT_EQ(Lignes("MDL").size(), 1u);
}

TEST_F(Bibliotheque, RenommerGardeLExtension) {
    const Texte ancien = d.Ecrire("src/Bilan 2024.rtf", "x");
    EXPECT_FALSE(RenommerDocument(ctx, ancien, "   "));
    EXPECT_TRUE(u.ADit("Vous devez d'abord indiquer un nouveau nom."));
    EXPECT_TRUE(RenommerDocument(ctx, ancien, "Bilan révisé"));
    EXPECT_EQ(d.Lire(Cp1252VersUtf8("src/Bilan révisé.rtf")), "x");
    d.Ecrire("src/Autre.rtf", "y");
    EXPECT_FALSE(RenommerDocument(ctx, d / "src/Autre.rtf", "Bilan révisé.RTF"));
    EXPECT_EQ(d.Lire("src/Autre.rtf"), "y");
    EXPECT_FALSE(RenommerDocument(ctx, d / "src/Autre.rtf", "../ailleurs"));
}

// Nothing is left behind when a library can't be written: no temporary, no half.
TEST_F(Bibliotheque, UneBibliothequeQuiEstUnRepertoireLaisseToutEnPlace) {
    d.Ecrire("src/graph.txt", test::EnregistrementGraphe("G", 1));
    fs::create_directories(d.Systeme() / "dst/graph.txt/dedans");
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "dst", "G"));
    EXPECT_TRUE(fs::is_directory(d.Systeme() / "dst/graph.txt"));
    EXPECT_EQ(std::distance(fs::directory_iterator(d.Systeme() / "dst"), fs::directory_iterator()),
              2);
}

TEST_F(Bibliotheque, DestinationProtegeeEnEcritureLaisseToutEnPlace) {
    if (geteuid() == 0) GTEST_SKIP() << "root writes through permissions";
    const std::string g = test::EnregistrementGraphe("G", 1);
    d.Ecrire("src/graph.txt", g);
    d.Ecrire("src/m.vdm", "m");
    d.Ecrire("ro/graph.txt", g);
    fs::permissions(d.Systeme() / "ro", fs::perms::owner_read | fs::perms::owner_exec);
    u.reponses = {Reponse::Oui, Reponse::Oui}; // the same name, then the transfer
    EXPECT_FALSE(CopierGraphe(ctx, d / "src", d / "ro", "G"));
    EXPECT_EQ(TransfererSelection(ctx, d / "src", d / "ro", "MDL", Lignes("MDL")), 0);
    fs::permissions(d.Systeme() / "ro", fs::perms::owner_all);
    EXPECT_TRUE(u.ADit("n'a pas pu être écrit"));
    EXPECT_EQ(d.Lire("ro/graph.txt"), g);
    EXPECT_EQ(std::distance(fs::directory_iterator(d.Systeme() / "ro"), fs::directory_iterator()),
              1); // no temporary left
}

} // namespace
} // namespace verdane
