#pragma once
// An office process that this program started: in a process group of its own (the office's
// launcher starts the office proper as its child), with a profile folder of its own, ended
// and cleaned up on demand or at destruction.

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
    // Waits up to `delaiMs` for the process to end by itself, then ends its group (TERM, then
    // KILL), reaps it and removes its profile.
    void Arreter(int delaiMs);
    pid_t Pid() const { return pid_; }
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

    pid_t pid_ = 0;
    pid_t gardien_ = 0;
    int tubeGardien_ = -1;
    std::string profil_;
    std::string tube_;
    std::set<std::string> avant_; // instance sockets that were there before the start
};

// The executable of the office: `prefere` when it is a program of this system, else the
// office's folder known at build time, else "soffice" and "libreoffice" in PATH. Empty when
// none is found.
std::string TrouverExecutableOffice(const std::string& prefere);

} // namespace verdane
