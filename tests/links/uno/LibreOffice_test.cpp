// The link against a real LibreOffice: each test starts its own office and ends it.

#include "library/ComposeurCode.h"
#include "library/InfoBulle.h"
#include "library/InsererCode.h"
#include "library/LectureSelection.h"
#include "links/FinDocument.h"
#include "links/FormatFichier.h"
#include "links/Liens.h"
#include "links/uno/LiensSysteme.h"
#include "links/uno/ProcessusOffice.h"
#include "links/uno/Verrous.h"
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
        recus.push_back(m);
    }
    // Agrees to everything.
    Reponse Question(const Texte&, const Texte&, Boutons b, Reponse, Icone) override {
        return b == Boutons::OkAnnuler || b == Boutons::Ok ? Reponse::Ok : Reponse::Oui;
    }
    std::vector<std::string> messages;
    std::vector<Message> recus;
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

// Limits that only an office that is really stuck reaches, however loaded the machine: the
// tests wait on what happens, not on a time.
constexpr int kDemarrage = 300000;
constexpr auto kAttente = std::chrono::seconds(120);

// Waits until `fait` holds, for at most kAttente.
template <typename Condition> bool Attendre(Condition fait) {
    const auto fin = std::chrono::steady_clock::now() + kAttente;
    while (!fait()) {
        if (std::chrono::steady_clock::now() > fin) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

// The lock files left in a folder.
std::vector<std::string> Verrous(const fs::path& dossier) {
    std::vector<std::string> verrous;
    for (const auto& f : fs::directory_iterator(dossier))
        if (f.path().filename().string().rfind(".~lock.", 0) == 0)
            verrous.push_back(f.path().filename().string());
    return verrous;
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
        liens = std::make_unique<LiensSysteme>(ctx, OptionsOffice{"", "", true, kDemarrage});
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

    Texte ToutLeTexte() {
        liens->Bureau().SelectionnerTout();
        return liens->Office().LireSelection();
    }
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

// One office for a whole run: editing and saves, the end steps of a batch, errors said clearly.
TEST_F(LibreOfficeTest, EditionConversionsEtErreursDansUnOffice) {
    PiloteOpenOffice& office = liens->Office();
    ASSERT_TRUE(office.NouveauDocument()) << (u.messages.empty() ? "" : u.messages[0]);
    ASSERT_TRUE(office.InsererTexte("Exploitation Dupont, été 2026", "", 0));
    liens->Bureau().SelectionnerTout();
    EXPECT_EQ(office.LireSelection(), "Exploitation Dupont, été 2026");
    for (const char* nom : {"r.rtf", "r.doc", "r.odt", "r.pdf"})
        EXPECT_TRUE(SauverSous(ctx, false, Editeur::OpenOffice, Chemin(nom), false)) << nom;
    EXPECT_TRUE(office.FermerDocument(7));
    for (const char* nom : {"r.rtf", "r.doc", "r.odt"})
        EXPECT_EQ(Relire(Chemin(nom)), "Exploitation Dupont, été 2026") << nom;
    EXPECT_NE(Commande("file -b '" + Systeme("r.doc") + "'").find("Composite Document File"),
              std::string::npos);
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.odt") + "'"),
              "application/vnd.oasis.opendocument.text\n");
    EXPECT_EQ(LireOctets(Chemin("r.pdf"), 0, 5).value_or(""), "%PDF-");

    // Text put at the cursor of an opened document, kept by its save.
    std::ofstream(dossier / "lettre.rtf") << "{\\rtf1\\ansi Madame, Monsieur,\\par}";
    ASSERT_TRUE(office.OuvrirDocument(Chemin("lettre.rtf")));
    ASSERT_TRUE(office.InsererTexte("#mrl(nomExplSoc)# ", "", 0));
    ASSERT_TRUE(office.SauverDocument(0, false));
    ASSERT_TRUE(office.FermerDocument(0)) << "saved: closed without a question";
    EXPECT_EQ(Relire(Chemin("lettre.rtf")), "#mrl(nomExplSoc)# Madame, Monsieur,");

    // The end steps of a batch: conversions of results twice to the same names (an annotation
    // in each, as every model with a tooltip gives one), a Word document updated through its RTF
    // copy, the lock of an office that is gone.
    const char* rtf =
        "{\\rtf1\\ansi Valeur : 12 345 \\'e9t\\'e9 {\\fs22 {\\*\\atrfstart 47317183}612 000}"
        "{\\cs15\\v\\fs20 {\\*\\atrfend 47317183}{\\*\\atnid MRL}{\\*\\atnauthor "
        "Titre }\\chatn {\\*\\annotation {\\*\\atnref 47317183}{Le texte}}} litres\\par}";
    for (int fois = 0; fois < 2; ++fois) {
        for (const char* nom : {"r.doc", "r.odt", "r.docx", "r.pdf"}) {
            std::ofstream(dossier / nom) << rtf;
            TerminerDocument(ctx, "", Chemin(nom), false, true);
            EXPECT_FALSE(ctx.etat.conversionManquee.Manquee())
                << nom << " " << ctx.etat.conversionManquee.raison;
            EXPECT_TRUE(FichierAuFormat(Chemin(nom), FormatDuChemin(Chemin(nom)))) << nom;
            EXPECT_EQ(Verrous(dossier), std::vector<std::string>{}) << nom << " " << fois;
        }
    }
    EXPECT_FALSE(fs::exists(dossier / "r.rtf"));
    std::ofstream(dossier / "r.rtf") << "copie";
    SupprimerCopieRtf(Chemin("r.doc"));
    EXPECT_FALSE(fs::exists(dossier / "r.rtf"));
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("r.doc") + "'"), "application/msword\n");
    for (const char* nom : {"r.doc", "r.odt", "r.docx"})
        EXPECT_EQ(Relire(Chemin(nom)).substr(0, 27), "Valeur : 12 345 été 612 000") << nom;
    EXPECT_EQ(Verrous(dossier), std::vector<std::string>{}) << "read back and closed";

    // The engine rewrites the copy; the end steps make the document a ".doc" again.
    std::ofstream(dossier / "m.doc")
        << "{\\rtf1\\ansi {\\v #debdata#}12{\\v #findata=#mrl(x)#}\\par}";
    TerminerDocument(ctx, "", Chemin("m.doc"), false, true);
    const auto copie = PreparerMiseAJour(ctx, Chemin("m.doc"));
    ASSERT_TRUE(copie.has_value());
    EXPECT_EQ(*copie, Chemin("m.rtf"));
    EXPECT_TRUE(CommencePar(LireFichier(*copie).value_or(""), "{\\rtf1"));
    TerminerDocument(ctx, *copie, Chemin("m.doc"), true, true);
    EXPECT_FALSE(fs::exists(dossier / "m.rtf"));
    EXPECT_EQ(Commande("file -b --mime-type '" + Systeme("m.doc") + "'"), "application/msword\n");

    // Left by an office of a run that was killed: its profile is gone.
    std::ofstream(dossier / "v.doc") << "{\\rtf1\\ansi Texte\\par}";
    std::ofstream(dossier / ".~lock.v.doc#")
        << ",verdane,poste,24.11.2026 01:00,file://" + PrefixeProfils() + "1-disparu;";
    TerminerDocument(ctx, "", Chemin("v.doc"), false, true);
    EXPECT_FALSE(ctx.etat.conversionManquee.Manquee()) << ctx.etat.conversionManquee.raison;
    EXPECT_TRUE(FichierAuFormat(Chemin("v.doc"), FormatDocument::Doc));
    EXPECT_EQ(Verrous(dossier), std::vector<std::string>{});
    EXPECT_TRUE(u.messages.empty()) << u.messages[0];
    EXPECT_EQ(liens->Bureau().Demarrages(), 1) << "one start for the whole run";

    // A document that isn't there, a save where no file can be: each said once.
    EXPECT_FALSE(liens->Office().OuvrirDocument(Chemin("absent.rtf")));
    ASSERT_EQ(u.messages.size(), 1u);

    ASSERT_TRUE(liens->Office().NouveauDocument());
    EXPECT_FALSE(SauverSous(ctx, false, Editeur::OpenOffice, "/etc/hostname/r.rtf", false));
    ASSERT_EQ(u.messages.size(), 2u);
    EXPECT_TRUE(CommencePar(u.messages[1], "Erreur du traitement de texte lors de la sauvegarde"));
    liens->Office().FermerDocument(7);

    // The office's temporary files are in its private profile, which goes with it.
    const std::string profil = liens->Bureau().ProfilOffice();
    ASSERT_EQ(profil.rfind(PrefixeProfils() + std::to_string(::getpid()) + "-", 0), 0u) << profil;
    std::ifstream environ("/proc/" + std::to_string(liens->Bureau().PidOffice()) + "/environ");
    std::string variable;
    bool vu = false;
    while (std::getline(environ, variable, '\0'))
        vu = vu || variable == "TMPDIR=" + (fs::path(profil) / "tmp").string();
    EXPECT_TRUE(vu);
    liens->Bureau().Terminer();
    EXPECT_FALSE(fs::exists(profil));

    // A program that isn't an office.
    BureauLibreOffice faux(OptionsOffice{"/bin/false", "", true, kDemarrage});
    Texte erreur;
    EXPECT_FALSE(faux.Connecter(erreur));
    EXPECT_NE(erreur.find("s'est arrêté au démarrage"), Texte::npos) << erreur;
}

// Codes composed by the insertion dialogs, in one office: a code and its tooltip put at the cursor,
// then a code of a new document explained, then the office killed under the link.
TEST_F(LibreOfficeTest, CodeInsereReluExpliqueEtOfficeFerme) {
    ctx.etat.enrDossier.nom = "TILLEULS";
    ASSERT_TRUE(liens->Office().NouveauDocument()) << (u.recus.empty() ? "" : u.recus[0].technique);
    ChoixDonnee choix;
    choix.cle = "VLVB.DON+VLVB-12:0";
    choix.indexValeur = 4 + 3;
    choix.decimales = 2;
    ctx.etat.insertion.codeEnAttente = ComposeurCode::CodeDonnee(choix);
    ASSERT_TRUE(InsererCode(ctx));
    // Behind it, a tooltip whose blanks travel as "_": the cursor stands behind the first.
    ASSERT_TRUE(InsererInfoBulle(ctx, {"Titre long", "Le texte", "mot", "", 10}));
    EXPECT_EQ(ToutLeTexte(),
              "#mrl(VLVB.DON+VLVB-3a12:2)##mrl(INFO:MRL:10:Titre_long:Le_texte:mot)#");
    ASSERT_TRUE(u.recus.empty()) << u.recus[0].texte;

    ASSERT_TRUE(liens->Office().NouveauDocument());
    ctx.etat.insertion.codeEnAttente = "nomDossier";
    ASSERT_TRUE(InsererCode(ctx));
    liens->Bureau().SelectionnerTout();
    const auto explication = ExpliquerSelection(ctx);
    ASSERT_TRUE(explication);
    EXPECT_EQ(explication->valeur, "TILLEULS");
    ASSERT_EQ(u.recus.size(), 1u);
    EXPECT_EQ(u.recus[0].titre, "Interprétation d'un code Verdane");
    EXPECT_NE(u.recus[0].texte.find("le nom du dossier"), Texte::npos);

    ASSERT_TRUE(liens->Office().NouveauDocument());
    ctx.etat.insertion.codeEnAttente = "saut2page";
    ASSERT_TRUE(InsererCode(ctx));
    const pid_t pid = liens->Bureau().PidOffice();
    ASSERT_GT(pid, 0);
    ::kill(-pid, SIGKILL);
    // The link starts another office, which has no document: said so, nothing breaks.
    EXPECT_FALSE(InsererCode(ctx));
    ASSERT_GT(u.recus.size(), 1u);
    EXPECT_EQ(u.recus.back().texte,
              "Aucun document n'est actuellement ouvert dans OpenOffice avec Verdane.");
    ASSERT_TRUE(liens->Office().NouveauDocument());
    EXPECT_TRUE(InsererCode(ctx));
    EXPECT_EQ(ToutLeTexte(), "#mrl(saut2page)#");
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

TEST_F(LibreOfficeTest, OfficeTueFigeOuMortRemplaceEtDitCommeTel) {
    ASSERT_TRUE(liens->Office().NouveauDocument());
    const pid_t premier = liens->Bureau().PidOffice();
    ASSERT_GT(premier, 0);
    ::kill(-premier, SIGKILL);
    ASSERT_TRUE(liens->Office().NouveauDocument()) << (u.messages.empty() ? "" : u.messages[0]);
    EXPECT_EQ(liens->Bureau().Demarrages(), 2);
    EXPECT_TRUE(GroupeTermine(premier));
    ASSERT_TRUE(liens->Office().InsererTexte("encore là", "", 0));

    const pid_t fige = liens->Bureau().PidOffice();
    // The office stopped: the next operation can't end, whatever the time allowed.
    ::kill(-fige, SIGSTOP);
    liens->Bureau().PoserDelaiOperation(1000);
    try {
        liens->Bureau().NombreCadres();
        ADD_FAILURE() << "a stopped office answered";
    } catch (const ErreurEditeur& e) {
        EXPECT_NE(std::string(e.what()).find("ne répondait plus"), std::string::npos) << e.what();
    }
    liens->Bureau().PoserDelaiOperation(kDemarrage);
    ASSERT_TRUE(liens->Office().NouveauDocument());
    EXPECT_EQ(liens->Bureau().Demarrages(), 3) << "the hung office replaced";
    EXPECT_TRUE(Attendre([&] { return GroupeTermine(fige); }));

    // Dead under a call, or before the save: said as such.
    std::ofstream(dossier / "r.rtf") << "{\\rtf1\\ansi Texte\\par}";
    ASSERT_TRUE(liens->Office().OuvrirDocumentCache(Chemin("r.rtf")));
    ASSERT_TRUE(liens->Bureau().PrendreDocumentCourant());
    const pid_t office = liens->Bureau().PidOffice();
    // Stopped, then killed: the save can't end before the office is gone.
    ::kill(-office, SIGSTOP);
    std::thread tueur([office] {
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        ::kill(-office, SIGKILL);
    });
    try {
        liens->Bureau().StockerSous(CheminVersURL(Chemin("r.doc")), "MS Word 97", false);
        ADD_FAILURE() << "saved by a dead office";
    } catch (const ErreurEditeur& e) {
        EXPECT_NE(std::string(e.what()).find("LibreOffice s'est arrêté brutalement"),
                  std::string::npos)
            << e.what();
    }
    tueur.join();
    EXPECT_NE(liens->Bureau().DocumentPerdu().find("le document en cours est perdu"),
              std::string::npos);

    std::ofstream(dossier / "r.doc") << "{\\rtf1\\ansi Texte\\par}";
    ASSERT_TRUE(liens->Office().OuvrirDocumentCache(Chemin("r.doc")));
    ::kill(-liens->Bureau().PidOffice(), SIGKILL);
    // The office is started again, empty: the save says why the document isn't there.
    EXPECT_FALSE(SauverSous(ctx, true, Editeur::OpenOffice, Chemin("r.doc"), false));
    EXPECT_NE(liens->Office().DerniereErreur().find("LibreOffice s'est arrêté brutalement"),
              std::string::npos)
        << liens->Office().DerniereErreur();
}

TEST_F(LibreOfficeTest, ProgrammeChoisiEtOfficeCacheHorsDuBureau) {
    // A batch run keeps its office out of sight even with a screen; the bar's is shown when
    // there is a screen to show it on.
    liens.reset();
    liens = std::make_unique<LiensSysteme>(ctx, OptionsOffice{"", "", false, kDemarrage});
    ctx.etat.editeurVisible = false;
    // The links are made before the options are read: the choice made since is the one used.
    const fs::path faux = dossier / "soffice";
    std::ofstream(faux) << "#!/bin/sh\nexit 3\n";
    fs::permissions(faux, fs::perms::owner_all);
    ctx.etat.options.CheminEditeur = CheminTexte(faux);
    EXPECT_FALSE(liens->Office().NouveauDocument());
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_NE(u.messages[0].find(CheminTexte(faux) + ") s'est arrêté au démarrage"),
              std::string::npos)
        << u.messages[0];
    // A choice that names another program: the office of the system.
    ctx.etat.options.CheminEditeur = "C:\\Programmes\\WINWORD.EXE";
    EXPECT_TRUE(liens->Office().NouveauDocument()) << u.messages.back();
    EXPECT_TRUE(liens->Bureau().SansEcran());
    const char* ecran = std::getenv("DISPLAY");
    if (!ecran || !*ecran) {
        liens->Bureau().Terminer();
        ctx.etat.editeurVisible = true;
        ASSERT_TRUE(liens->Office().NouveauDocument());
        EXPECT_TRUE(liens->Bureau().SansEcran()) << "no screen: headless all the same";
    }
}

} // namespace
} // namespace verdane

namespace verdane {
namespace {

// A program killed outright doesn't leave its office behind, nor its profile.
TEST(Gardien, OfficeFiniQuandLeProgrammeMeurt) {
    int tube[2];
    ASSERT_EQ(::pipe(tube), 0);
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        ::close(tube[0]);
        BureauLibreOffice bureau(OptionsOffice{"", "", true, kDemarrage});
        Texte erreur;
        const pid_t office = bureau.Connecter(erreur) ? bureau.PidOffice() : 0;
        const std::string profil = bureau.ProfilOffice();
        [[maybe_unused]] auto n = ::write(tube[1], &office, sizeof office);
        // Ended by a line end: the guardian holds this pipe open too.
        n = ::write(tube[1], (profil + "\n").c_str(), profil.size() + 1);
        ::close(tube[1]);
        ::pause();
        ::_exit(0);
    }
    ::close(tube[1]);
    pid_t office = 0;
    std::string profil;
    pollfd attente{tube[0], POLLIN, 0};
    if (::poll(&attente, 1, kDemarrage) == 1) {
        [[maybe_unused]] auto n = ::read(tube[0], &office, sizeof office);
        char c = 0;
        while (::read(tube[0], &c, 1) == 1 && c != '\n') profil += c;
    }
    ::close(tube[0]);
    // Killed as a terminal or a time limit does: the whole group of the program.
    ::kill(enfant, SIGTERM);
    ::kill(enfant, SIGKILL);
    int statut = 0;
    ::waitpid(enfant, &statut, 0);
    ASSERT_GT(office, 0);
    ASSERT_FALSE(profil.empty());
    EXPECT_TRUE(Attendre([&] { return GroupeTermine(office); }));
    EXPECT_TRUE(Attendre([&] { return !fs::exists(profil); })) << profil;
}

// What a run killed with its guardian left is cleaned by the next.
TEST(Restes, NettoyesParLeDemarrageSuivant) {
    const pid_t mort = ::fork();
    if (mort == 0) ::_exit(0);
    int statut = 0;
    ::waitpid(mort, &statut, 0);
    const std::string mortNom = std::to_string(mort);
    const fs::path profilMort = PrefixeProfils() + mortNom + "-abcdef";
    const fs::path profilVivant = PrefixeProfils() + "1-abcdef"; // init never goes
    fs::create_directories(profilMort / "tmp");
    fs::create_directories(profilVivant);
    const std::string uid = std::to_string(::getuid());
    const fs::path socketMort = "/tmp/OSL_PIPE_" + uid + "_verdane_" + uid + "_" + mortNom + "_1";
    std::ofstream(socketMort) << "";
    NettoyerRestes();
    EXPECT_FALSE(fs::exists(profilMort));
    EXPECT_FALSE(fs::exists(socketMort));
    EXPECT_TRUE(fs::exists(profilVivant));
    fs::remove_all(profilVivant);
}

TEST(Verrous, LeProfilQuiTientLeDocument) {
    EXPECT_EQ(FichierVerrou("/tmp/a b/r.doc"), "/tmp/a b/.~lock.r.doc#");
    EXPECT_EQ(ProfilDuVerrou(",Jean,poste,24.11.2026 01:00,file:///tmp/verdane-office-12-ab;"),
              "/tmp/verdane-office-12-ab");
    // Escaped separators in the fields before; an escaped path.
    EXPECT_EQ(ProfilDuVerrou(",Dupont\\, Jean,poste\\;1,date,file:///home/j/Mes%20profils/;"),
              "/home/j/Mes profils");
    EXPECT_EQ(ProfilDuVerrou(",Jean,poste,date;"), "");
    EXPECT_EQ(ProfilDuVerrou(",Jean,poste,date,https://ailleurs/;"), "");
}

TEST(Verrous, SeulsCeuxDeNosOfficesSontRetires) {
    const fs::path dossier =
        fs::temp_directory_path() / ("verdane-verrous-" + std::to_string(::getpid()));
    fs::create_directories(dossier);
    const std::string document = (dossier / "r.doc").string();
    const std::string verrou = FichierVerrou(document);
    const std::string prefixe = PrefixeProfils();
    const fs::path vivant = prefixe + "1-vivant";
    fs::create_directories(vivant);
    auto poser = [&](const std::string& profil) {
        std::ofstream(verrou) << ",Jean,poste,date,file://" + profil + ";";
    };
    poser("/home/jean/.config/libreoffice/4");
    EXPECT_FALSE(RetirerVerrou(document, "", prefixe)) << "the user's own office";
    poser(vivant.string());
    EXPECT_FALSE(RetirerVerrou(document, "", prefixe)) << "an office of another run, running";
    EXPECT_TRUE(RetirerVerrou(document, vivant.string(), prefixe)) << "this run's office";
    poser(prefixe + "1-parti/user");
    EXPECT_TRUE(RetirerVerrou(document, "", prefixe)) << "an office whose profile is gone";
    EXPECT_FALSE(fs::exists(verrou));
    EXPECT_FALSE(RetirerVerrou(document, "", prefixe)) << "no lock";
    fs::remove_all(vivant);
    fs::remove_all(dossier);
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
