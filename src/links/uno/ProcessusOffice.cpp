#include "links/uno/ProcessusOffice.h"

#include "utils/Texte.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <spawn.h>
#include <sstream>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace fs = std::filesystem;

namespace verdane {

namespace {

bool Executable(const fs::path& p) {
    std::error_code ec;
    return fs::is_regular_file(p, ec) && ::access(p.c_str(), X_OK) == 0;
}

bool ProcessusExiste(pid_t pid) {
    return pid > 0 && (::kill(pid, 0) == 0 || errno == EPERM);
}

// A private profile named after this process: "verdane-office-<pid>-XXXXXX".
std::string NouveauProfil() {
    std::string modele = PrefixeProfils() + std::to_string(::getpid()) + "-XXXXXX";
    if (!::mkdtemp(modele.data())) return {};
    std::error_code ec;
    fs::create_directory(fs::path(modele) / "tmp", ec);
    return modele;
}

// The number that follows `prefixe` in `nom`, up to the next "_" or "-"; 0 when there is none.
pid_t NumeroApres(const std::string& nom, const std::string& prefixe) {
    if (nom.rfind(prefixe, 0) != 0) return 0;
    pid_t n = 0;
    std::size_t i = prefixe.size();
    for (; i < nom.size() && nom[i] >= '0' && nom[i] <= '9'; ++i) n = n * 10 + (nom[i] - '0');
    return i < nom.size() && (nom[i] == '-' || nom[i] == '_') ? n : 0;
}

std::string LireTout(const fs::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

// The environment of the office: this one, with its temporary files in its profile.
std::vector<std::string> EnvironnementOffice(const std::string& profil) {
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e)
        if (std::string_view(*e).rfind("TMPDIR=", 0) != 0) env.emplace_back(*e);
    env.push_back("TMPDIR=" + (fs::path(profil) / "tmp").string());
    return env;
}

std::string PrefixeSockets() {
    return "OSL_PIPE_" + std::to_string(::getuid()) + "_";
}

// The sockets by which the offices of this user find their running instance.
std::set<std::string> SocketsInstance() {
    std::set<std::string> sockets;
    const std::string prefixe = PrefixeSockets() + "SingleOfficeIPC_";
    std::error_code ec;
    for (fs::directory_iterator it("/tmp", ec), fin; !ec && it != fin; it.increment(ec))
        if (it->path().filename().string().rfind(prefixe, 0) == 0)
            sockets.insert(it->path().string());
    return sockets;
}

// True when no process listens on the socket any more.
bool Abandonne(const std::string& chemin) {
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    if (chemin.size() >= sizeof(adresse.sun_path)) return false;
    std::memcpy(adresse.sun_path, chemin.c_str(), chemin.size() + 1);
    const int s = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (s < 0) return false;
    const int r = ::connect(s, reinterpret_cast<const sockaddr*>(&adresse), sizeof(adresse));
    const int erreur = errno;
    ::close(s);
    return r != 0 && erreur == ECONNREFUSED;
}

} // namespace

std::string TrouverExecutableOffice(const std::string& prefere) {
    if (!prefere.empty() && Executable(prefere)) return prefere;
    if (const char* path = std::getenv("PATH")) {
        std::istringstream dossiers(path);
        std::string d;
        while (std::getline(dossiers, d, ':'))
            for (const char* nom : {"soffice", "libreoffice"})
                if (!d.empty() && Executable(fs::path(d) / nom))
                    return (fs::path(d) / nom).string();
    }
#ifdef VERDANE_LO_PROGRAMME
    if (Executable(fs::path(VERDANE_LO_PROGRAMME) / "soffice"))
        return (fs::path(VERDANE_LO_PROGRAMME) / "soffice").string();
#endif
    return {};
}

std::string PrefixeProfils() {
    std::error_code ec;
    fs::path base = fs::temp_directory_path(ec);
    if (ec) base = "/tmp";
    return (base / "verdane-office-").string();
}

void NettoyerRestes() {
    std::error_code ec;
    const fs::path prefixe(PrefixeProfils());
    const std::string debut = prefixe.filename().string();
    for (fs::directory_iterator it(prefixe.parent_path(), ec), fin; !ec && it != fin;
         it.increment(ec)) {
        const pid_t proprietaire = NumeroApres(it->path().filename().string(), debut);
        if (proprietaire <= 0 || proprietaire == ::getpid() || ProcessusExiste(proprietaire))
            continue;
        // An office still running in the profile (its guardian was killed too): its command
        // line names the profile, which tells it from a process that took its number since.
        const std::string profil = it->path().string();
        const pid_t groupe = static_cast<pid_t>(std::atol(LireTout(it->path() / "groupe").c_str()));
        if (groupe > 0 && LireTout("/proc/" + std::to_string(groupe) + "/cmdline").find(profil) !=
                              std::string::npos)
            ::kill(-groupe, SIGKILL);
        std::error_code ecProfil;
        fs::remove_all(it->path(), ecProfil);
    }
    const std::string nos = PrefixeSockets() + "verdane_" + std::to_string(::getuid()) + "_";
    const std::string instance = PrefixeSockets() + "SingleOfficeIPC_";
    const auto maintenant = fs::file_time_type::clock::now();
    for (fs::directory_iterator it("/tmp", ec), fin; !ec && it != fin; it.increment(ec)) {
        const std::string nom = it->path().filename().string();
        std::error_code ecSocket;
        const pid_t proprietaire = NumeroApres(nom, nos);
        if (proprietaire > 0 && proprietaire != ::getpid() && !ProcessusExiste(proprietaire)) {
            fs::remove(it->path(), ecSocket);
        } else if (nom.rfind(instance, 0) == 0) {
            // A minute old and nobody listening: not one an office is setting up right now.
            const auto age = maintenant - fs::last_write_time(it->path(), ecSocket);
            if (!ecSocket && age > std::chrono::minutes(1) && Abandonne(it->path().string()))
                fs::remove(it->path(), ecSocket);
        }
    }
}

bool ProcessusOffice::Demarrer(const std::string& executable, const std::string& tube,
                               bool sansEcran, std::string& erreur) {
    Arreter(0);
    NettoyerRestes();
    fin_.clear();
    tube_ = tube;
    avant_ = SocketsInstance();
    profil_ = NouveauProfil();
    if (profil_.empty()) {
        erreur = "Impossible de créer le profil de LibreOffice dans le dossier temporaire.";
        return false;
    }
    std::vector<std::string> args{executable,
                                  "-env:UserInstallation=file://" + profil_,
                                  "--accept=pipe,name=" + tube + ";urp;StarOffice.ComponentContext",
                                  "--norestore",
                                  "--nologo",
                                  "--nodefault",
                                  "--nolockcheck"};
    if (sansEcran) {
        args.emplace_back("--headless");
        args.emplace_back("--invisible");
    }
    std::vector<char*> argv;
    for (auto& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    std::vector<std::string> env = EnvironnementOffice(profil_);
    std::vector<char*> envp;
    for (auto& v : env) envp.push_back(v.data());
    envp.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_t attributs;
    posix_spawnattr_init(&attributs);
    posix_spawnattr_setflags(&attributs, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&attributs, 0);
    const int r =
        ::posix_spawn(&pid_, executable.c_str(), &actions, &attributs, argv.data(), envp.data());
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributs);
    if (r != 0) {
        pid_ = 0;
        erreur = "Impossible de lancer " + Utf8VersCp1252(executable) + " : " + std::strerror(r);
        std::error_code ec;
        fs::remove_all(profil_, ec);
        profil_.clear();
        return false;
    }
    // The group to end, should this run be killed before it ends its office.
    std::ofstream(fs::path(profil_) / "groupe") << pid_;
    Garder();
    return true;
}

// A guardian process ends the office's group if this program dies without ending it (a crash,
// a kill): it waits on a pipe whose writing end only this program holds. A byte read means the
// office was ended here and nothing is left to do; the end of the pipe means this program is
// gone: the guardian ends the group and removes the profile and the pipe's socket. It ignores
// the signals that a terminal or a time limit sends to the whole group of this program. Between
// fork and exec it calls only async-signal-safe functions.
void ProcessusOffice::Garder() {
    std::vector<std::string> nettoyage{"/bin/rm", "-rf", "--", profil_,
                                       "/tmp/" + PrefixeSockets() + tube_};
    std::vector<char*> argv;
    for (auto& a : nettoyage) argv.push_back(a.data());
    argv.push_back(nullptr);
    int tube[2];
    if (::pipe2(tube, O_CLOEXEC) != 0) return;
    const pid_t groupe = pid_;
    const pid_t gardien = ::fork();
    if (gardien == 0) {
        ::close(tube[1]);
        struct sigaction ignorer {};
        ignorer.sa_handler = SIG_IGN;
        for (int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE})
            ::sigaction(signal, &ignorer, nullptr);
        char octet = 0;
        ssize_t lu;
        do {
            lu = ::read(tube[0], &octet, 1);
        } while (lu < 0 && errno == EINTR);
        if (lu == 0) {
            ::kill(-groupe, SIGTERM);
            const timespec attente{3, 0};
            ::nanosleep(&attente, nullptr);
            ::kill(-groupe, SIGKILL);
            ::execv(argv[0], argv.data());
        }
        ::_exit(0);
    }
    ::close(tube[0]);
    if (gardien < 0) {
        ::close(tube[1]);
        return;
    }
    gardien_ = gardien;
    tubeGardien_ = tube[1];
}

void ProcessusOffice::Liberer() {
    if (gardien_ <= 0) return;
    const char octet = 1;
    [[maybe_unused]] const ssize_t ecrit = ::write(tubeGardien_, &octet, 1);
    ::close(tubeGardien_);
    int statut = 0;
    ::waitpid(gardien_, &statut, 0);
    gardien_ = 0;
    tubeGardien_ = -1;
}

bool ProcessusOffice::Vivant() {
    if (pid_ <= 0) return false;
    int statut = 0;
    const pid_t r = ::waitpid(pid_, &statut, WNOHANG);
    if (r == 0) return true;
    if (r == pid_ || (r < 0 && errno == ECHILD)) {
        if (r == pid_) NoterFin(statut);
        // The launcher is gone; what it started must not outlive it.
        ::kill(-pid_, SIGKILL);
        pid_ = -pid_; // the group stays known for Arreter
    }
    return false;
}

void ProcessusOffice::NoterFin(int statut) {
    if (WIFSIGNALED(statut))
        fin_ = "tué par le signal " + std::to_string(WTERMSIG(statut));
    else if (WIFEXITED(statut))
        fin_ = "sorti avec le code " + std::to_string(WEXITSTATUS(statut));
}

void ProcessusOffice::Arreter(int delaiMs) {
    using namespace std::chrono;
    if (pid_ > 0) {
        const auto fin = steady_clock::now() + milliseconds(delaiMs);
        while (Vivant() && steady_clock::now() < fin) std::this_thread::sleep_for(milliseconds(50));
        if (pid_ > 0) {
            ::kill(-pid_, SIGTERM);
            const auto finTerm = steady_clock::now() + seconds(3);
            while (Vivant() && steady_clock::now() < finTerm)
                std::this_thread::sleep_for(milliseconds(50));
        }
        if (pid_ > 0) {
            ::kill(-pid_, SIGKILL);
            int statut = 0;
            ::waitpid(pid_, &statut, 0);
            pid_ = -pid_;
        }
    }
    Liberer();
    if (pid_ < 0) {
        // Whatever the launcher left in its group, until the group is gone.
        const auto fin = steady_clock::now() + seconds(5);
        while (::kill(pid_, SIGKILL) == 0 && steady_clock::now() < fin)
            std::this_thread::sleep_for(milliseconds(20));
        pid_ = 0;
    }
    if (!profil_.empty()) {
        std::error_code ec;
        fs::remove_all(profil_, ec);
        profil_.clear();
    }
    if (!tube_.empty()) {
        // An office killed outright leaves the sockets of its pipes behind: the one it was
        // started with, and the one it made for its profile, if nobody listens there now.
        std::error_code ec;
        const fs::path notre = fs::path("/tmp") / (PrefixeSockets() + tube_);
        if (fs::is_socket(notre, ec)) fs::remove(notre, ec);
        for (const auto& socket : SocketsInstance())
            if (!avant_.count(socket) && Abandonne(socket)) fs::remove(socket, ec);
        tube_.clear();
        avant_.clear();
    }
}

} // namespace verdane
