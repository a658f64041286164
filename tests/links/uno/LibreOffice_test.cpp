// The link against a real LibreOffice: each test starts its own office and ends it.

#include "links/FinDocument.h"
#include "links/Liens.h"
#include "links/uno/LiensSysteme.h"
#include "links/uno/ProcessusOffice.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace verdane {
namespace {

namespace fs = std::filesystem;

class Utilisateur : public UtilisateurMuet {
public:
    void AfficherMessage(const Message& m) override {
        messages.push_back(m.texte + " / " + m.technique);
    }
    // Agrees to everything.
    Reponse Question(const Texte&, const Texte&, Boutons b, Reponse, Icone) override {
        return b == Boutons::OkAnnuler || b == Boutons::Ok ? Reponse::Ok : Reponse::Oui;
    }
    std::vector<std::string> messages;
};

std::string Commande(const std::string& ligne) {
    std::string sortie;
    if (FILE* f = ::popen(ligne.c_str(), "r")) {
        std::array<char, 512> tampon{};
        while (std::fgets(tampon.data(), tampon.size(), f)) sortie += tampon.data();
        ::pclose(f);
    }
    return sortie;
}

bool GroupeTermine(pid_t pid) {
    return pid > 0 && ::kill(-pid, 0) == -1 && errno == ESRCH;
}

class LibreOfficeTest : public ::testing::Test {
protected:
    void SetUp() override {
        // A blank and an accent in the folder: the path on disk is UTF-8.
        dossier = fs::temp_directory_path() /
                  Cp1252VersUtf8("verdane lo é " + std::to_string(::getpid()));
        fs::create_directories(dossier);
        ctx.etat.options.sautParagraphe = 0;
        ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
        liens = std::make_unique<LiensSysteme>(ctx, OptionsOffice{"", "", true, 60000});
    }
    void TearDown() override {
        const pid_t pid = liens->Bureau().PidOffice();
        liens.reset();
        if (pid) {
            EXPECT_TRUE(GroupeTermine(pid)) << "the office must not outlive its link";
        }
        fs::remove_all(dossier);
    }
    // "été" in the engine's text, as the path on disk holds it in UTF-8.
    Texte Chemin(const std::string& nom) { return CheminTexte(dossier / nom); }
    std::string Systeme(const std::string& nom) { return (dossier / nom).string(); }

    // The whole text of a document, opened hidden and closed again.
    Texte Relire(const Texte& chemin) {
        if (!liens->Office().OuvrirDocumentCache(chemin)) return "<illisible>";
        liens->Bureau().SelectionnerTout();
        Texte texte = liens->Office().LireSelection();
        liens->Office().FermerDocument(7);
        return texte;
    }

    Utilisateur u;
    Contexte ctx{u};
    std::unique_ptr<LiensSysteme> liens;
    fs::path dossier;
};

TEST_F(LibreOfficeTest, NouveauDocumentInsertionSelectionEtSauvegardes) {
    PiloteOpenOffice& office = liens->Office();
    ASSERT_TRUE(office.NouveauDocument()) << (u.messages.empty() ? "" : u.messages[0]);
    ASSERT_TRUE(office.InsererTexte("Exploitation Dupont, été 2026", "", 0));
    liens->Bureau().SelectionnerTout();
    EXPECT_EQ(office.LireSelection(), "Exploitation Dupont, été 2026");

    for (const char* nom : {"r.rtf", "r.doc", "r.odt", "r.pdf"})
        EXPECT_TRUE(SauverSous(ctx, false, Editeur::OpenOffice, Chemin(nom), false)) << nom;
    EXPECT_TRUE(office.FermerDocument(7));
    EXPECT_TRUE(u.messages.empty()) << u.messages[0];

    for (const char* nom : {"r.rtf", "r.doc", "r.odt"})
        EXPECT_EQ(Relire(Chemin(nom)), "Exploitation Dupont, été 2026") << nom;
    EXPECT_NE(Commande("file -b '" + Systeme("r.doc") + "'").find("Composite Document File"),
              std::string::npos);
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.doc") + "'"), "application/msword\n");
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.odt") + "'"),
              "application/vnd.oasis.opendocument.text\n");
    EXPECT_EQ(LireOctets(Chemin("r.pdf"), 0, 5).value_or(""), "%PDF-");
    EXPECT_EQ(liens->Bureau().Demarrages(), 1);
}

TEST_F(LibreOfficeTest, TexteInsereAuCurseurGardeApresSauvegarde) {
    std::ofstream(dossier / "lettre.rtf") << "{\\rtf1\\ansi Madame, Monsieur,\\par}";
    PiloteOpenOffice& office = liens->Office();
    ASSERT_TRUE(office.OuvrirDocument(Chemin("lettre.rtf")));
    ASSERT_TRUE(office.InsererTexte("#mrl(nomExplSoc)# ", "", 0));
    ASSERT_TRUE(office.SauverDocument(0, false));
    ASSERT_TRUE(office.FermerDocument(0)) << "saved: closed without a question";
    EXPECT_EQ(Relire(Chemin("lettre.rtf")), "#mrl(nomExplSoc)# Madame, Monsieur,");
    EXPECT_TRUE(u.messages.empty()) << u.messages[0];
}

TEST_F(LibreOfficeTest, ResultatsConvertisDansUnSeulOffice) {
    const char* rtf = "{\\rtf1\\ansi Valeur : 12 345 \\'e9t\\'e9\\par}";
    for (const char* nom : {"r.doc", "r.odt", "r.pdf", "r.docx"}) {
        std::ofstream(dossier / nom) << rtf;
        TerminerDocument(ctx, "", Chemin(nom), false, true);
    }
    std::ofstream(dossier / "r.rtf") << "copie";
    SupprimerCopieRtf(Chemin("r.doc"));
    EXPECT_FALSE(fs::exists(dossier / "r.rtf"));
    EXPECT_TRUE(u.messages.empty()) << u.messages[0];
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.doc") + "'"), "application/msword\n");
    EXPECT_EQ(Relire(Chemin("r.doc")), "Valeur : 12 345 été");
    EXPECT_EQ(Relire(Chemin("r.odt")), "Valeur : 12 345 été");
    EXPECT_EQ(Relire(Chemin("r.docx")), "Valeur : 12 345 été");
    EXPECT_EQ(LireOctets(Chemin("r.pdf"), 0, 5).value_or(""), "%PDF-");
    EXPECT_EQ(liens->Bureau().Demarrages(), 1) << "one start for the whole run";
}

TEST_F(LibreOfficeTest, MiseAJourDUnDocParSaCopieRtf) {
    std::ofstream(dossier / "r.doc")
        << "{\\rtf1\\ansi {\\v #debdata#}12{\\v #findata=#mrl(x)#}\\par}";
    TerminerDocument(ctx, "", Chemin("r.doc"), false, true);
    const auto copie = PreparerMiseAJour(ctx, Chemin("r.doc"));
    ASSERT_TRUE(copie.has_value());
    EXPECT_EQ(*copie, Chemin("r.rtf"));
    EXPECT_TRUE(CommencePar(LireFichier(*copie).value_or(""), "{\\rtf1"));
    // The engine rewrites the copy; the end steps make the document a ".doc" again.
    TerminerDocument(ctx, *copie, Chemin("r.doc"), true, true);
    EXPECT_FALSE(fs::exists(dossier / "r.rtf"));
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.doc") + "'"), "application/msword\n");
    EXPECT_TRUE(u.messages.empty()) << u.messages[0];
}

TEST_F(LibreOfficeTest, OfficeTueEntreDeuxOperationsRedemarre) {
    ASSERT_TRUE(liens->Office().NouveauDocument());
    const pid_t premier = liens->Bureau().PidOffice();
    ASSERT_GT(premier, 0);
    ::kill(-premier, SIGKILL);
    ASSERT_TRUE(liens->Office().NouveauDocument()) << (u.messages.empty() ? "" : u.messages[0]);
    EXPECT_EQ(liens->Bureau().Demarrages(), 2);
    EXPECT_TRUE(GroupeTermine(premier));
    ASSERT_TRUE(liens->Office().InsererTexte("encore là", "", 0));
}

TEST_F(LibreOfficeTest, OfficeTueAuMilieuDUnLot) {
    const char* rtf = "{\\rtf1\\ansi Lot\\par}";
    auto convertir = [&](int i) {
        const std::string nom = "lot" + std::to_string(i) + ".doc";
        std::ofstream(dossier / nom) << rtf;
        TerminerDocument(ctx, "", Chemin(nom), false, true);
        return Commande("file -b --mime-type '" + Systeme(nom) + "'");
    };
    ASSERT_EQ(convertir(0), "application/msword\n");
    const pid_t office = liens->Bureau().PidOffice();
    std::thread tueur([office] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        ::kill(-office, SIGKILL);
    });
    int restesRtf = 0;
    for (int i = 1; i <= 8; ++i)
        if (convertir(i) != "application/msword\n") ++restesRtf;
    tueur.join();
    // A document caught by the kill stays RTF, and says so; the next ones are converted.
    EXPECT_LE(restesRtf, static_cast<int>(u.messages.size()));
    EXPECT_EQ(convertir(9), "application/msword\n");
    EXPECT_EQ(liens->Bureau().Demarrages(), 2);
    EXPECT_TRUE(GroupeTermine(office));
}

TEST_F(LibreOfficeTest, OfficeFigeArreteEtRemplace) {
    liens.reset();
    liens = std::make_unique<LiensSysteme>(ctx, OptionsOffice{"", "", true, 60000, 3000});
    ASSERT_TRUE(liens->Office().NouveauDocument());
    const pid_t fige = liens->Bureau().PidOffice();
    ::kill(-fige, SIGSTOP);
    const auto debut = std::chrono::steady_clock::now();
    liens->Office().LireSelection();
    EXPECT_LT(std::chrono::steady_clock::now() - debut, std::chrono::seconds(60));
    EXPECT_EQ(liens->Bureau().Demarrages(), 2) << "the hung office replaced";
    EXPECT_TRUE(GroupeTermine(fige));
    ASSERT_TRUE(liens->Office().NouveauDocument());
}

TEST_F(LibreOfficeTest, ErreursDitesClairement) {
    EXPECT_FALSE(liens->Office().OuvrirDocument(Chemin("absent.rtf")));
    ASSERT_EQ(u.messages.size(), 1u);

    ASSERT_TRUE(liens->Office().NouveauDocument());
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::OpenOffice, "/etc/hostname/r.rtf", false));
    ASSERT_EQ(u.messages.size(), 2u);
    EXPECT_TRUE(CommencePar(u.messages[1], "Erreur du traitement de texte lors de la sauvegarde"));
    liens->Office().FermerDocument(7);

    // A program that isn't an office.
    BureauLibreOffice faux(OptionsOffice{"/bin/false", "", true, 20000});
    Texte erreur;
    EXPECT_FALSE(faux.Connecter(erreur));
    EXPECT_NE(erreur.find("s'est arrêté au démarrage"), Texte::npos) << erreur;
}

} // namespace
} // namespace verdane

namespace verdane {
namespace {

// A program killed outright doesn't leave its office behind.
TEST(Gardien, OfficeFiniQuandLeProgrammeMeurt) {
    int tube[2];
    ASSERT_EQ(::pipe(tube), 0);
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        ::close(tube[0]);
        BureauLibreOffice bureau(OptionsOffice{"", "", true, 60000});
        Texte erreur;
        const pid_t office = bureau.Connecter(erreur) ? bureau.PidOffice() : 0;
        [[maybe_unused]] auto n = ::write(tube[1], &office, sizeof office);
        ::pause();
        ::_exit(0);
    }
    ::close(tube[1]);
    pollfd attente{tube[0], POLLIN, 0};
    pid_t office = 0;
    if (::poll(&attente, 1, 90000) == 1) [[maybe_unused]]
        auto n = ::read(tube[0], &office, sizeof office);
    ::close(tube[0]);
    ::kill(enfant, SIGKILL);
    int statut = 0;
    ::waitpid(enfant, &statut, 0);
    ASSERT_GT(office, 0);
    for (int i = 0; i < 150 && !GroupeTermine(office); ++i) ::usleep(100000);
    EXPECT_TRUE(GroupeTermine(office));
}

TEST(UrlPourOffice, AccentsEnUtf8EtFinsDeCheminEchappees) {
    EXPECT_EQ(UrlPourOffice("file:///tmp/lettre%20été#1?.rtf"),
              "file:///tmp/lettre%20%C3%A9t%C3%A9%231%3F.rtf");
    EXPECT_EQ(UrlPourOffice("private:factory/swriter"), "private:factory/swriter");
}

TEST(TrouverExecutableOffice, PrefereLeProgrammeDonneSIlExiste) {
    EXPECT_EQ(TrouverExecutableOffice("/bin/sh"), "/bin/sh");
    const std::string systeme = TrouverExecutableOffice("/nulle/part/soffice");
    EXPECT_NE(systeme.find("soffice"), std::string::npos) << systeme;
}

} // namespace
} // namespace verdane
