#include "links/uno/Veilleur.h"

#include <csignal>

namespace verdane {

namespace {
long long Maintenant() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
} // namespace

Veilleur::~Veilleur() {
    {
        std::lock_guard verrou(mutex_);
        fin_ = true;
    }
    reveil_.notify_all();
    if (fil_.joinable()) fil_.join();
}

void Veilleur::Surveiller(pid_t groupe) {
    groupe_ = groupe;
    if (groupe > 0 && !fil_.joinable()) fil_ = std::thread([this] { Veiller(); });
}

void Veilleur::Veiller() {
    std::unique_lock verrou(mutex_);
    while (!reveil_.wait_for(verrou, std::chrono::milliseconds(200), [this] { return fin_; })) {
        const long long debut = debut_;
        const pid_t groupe = groupe_;
        if (debut != 0 && groupe > 0 && Maintenant() - debut > delai_) {
            expire_ = true;
            debut_ = 0;
            ::kill(-groupe, SIGKILL);
        }
    }
}

Veilleur::Operation::Operation(Veilleur& v) : veilleur_(v) {
    veilleur_.expire_ = false;
    veilleur_.debut_ = Maintenant();
}

Veilleur::Operation::~Operation() {
    veilleur_.debut_ = 0;
}

} // namespace verdane
