#pragma once
// An office process that this program started: in a process group of its own (the office's
// launcher starts the office proper as its child), with a private profile folder that also
// holds its temporary files, ended and cleaned up on demand or at destruction. What a run
// killed outright leaves in the temporary folder is cleaned by the next start.

#include <set>
#include <string>
#include <sys/types.h>
#include <vector>

namespace verdane {

class ProcessusOffice {
public:
    ProcessusOffice() = default;
    ~ProcessusOffice() { Arreter(0); }
    ProcessusOffice(const ProcessusOffice&) = delete;
    ProcessusOffice& operator=(const ProcessusOffice&) = delete;

    // Starts `executable` listening on the pipe `tube`. False with the reason in `erreur`.
    bool Demarrer(const std::string& executable, const std::string& tube, bool sansEcran,
                  std::string& erreur);
    // True while the process runs.
    bool Vivant();
    // How the last process ended ("tué par le signal 11", "sorti avec le code 1"); empty while
    // it runs or when it was ended here.
    const std::string& Fin() const { return fin_; }
    // Waits up to `delaiMs` for the process to end by itself, then ends its group (TERM, then
    // KILL), reaps it and removes its profile.
    void Arreter(int delaiMs);
    pid_t Pid() const { return pid_; }
    // The profile folder of the running office; empty when none.
    const std::string& Profil() const { return profil_; }
    // Lets the process run on by itself: it is no longer this object's to end.
    void Detacher() {
        Liberer();
        pid_ = 0;
        profil_.clear();
        tube_.clear();
        avant_.clear();
    }

private:
    void Garder();
    void Liberer();
    void NoterFin(int statut);

    pid_t pid_ = 0;
    pid_t gardien_ = 0;
    int tubeGardien_ = -1;
    std::string profil_;
    std::string tube_;
    std::string fin_;
    std::set<std::string> avant_; // instance sockets that were there before the start
};

// The executable of the office: `prefere` when it is a program of this system, else "soffice"
// and "libreoffice" in PATH, else the office's folder known at build time. Empty when none is
// found.
std::string TrouverExecutableOffice(const std::string& prefere);

// The beginning of the paths of the private profiles of this program's offices.
std::string PrefixeProfils();

// Removes what offices of runs that are gone left behind: their profiles (ending any office
// still running in one), the sockets of their pipes.
void NettoyerRestes();

} // namespace verdane
