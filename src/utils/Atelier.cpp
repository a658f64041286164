#include "utils/Atelier.h"

namespace verdane {

Atelier::~Atelier() {
    {
        std::lock_guard<std::mutex> garde(verrou_);
        fin_ = true;
    }
    signal_.notify_one();
    if (fil_.joinable()) fil_.join();
}

std::future<std::string> Atelier::Confier(std::function<std::string()> tache) {
    std::packaged_task<std::string()> t(std::move(tache));
    auto resultat = t.get_future();
    {
        std::lock_guard<std::mutex> garde(verrou_);
        taches_.push_back(std::move(t));
        if (!fil_.joinable()) fil_ = std::thread([this] { Travailler(); });
    }
    signal_.notify_one();
    return resultat;
}

void Atelier::Travailler() {
    for (;;) {
        std::packaged_task<std::string()> t;
        {
            std::unique_lock<std::mutex> garde(verrou_);
            signal_.wait(garde, [this] { return fin_ || !taches_.empty(); });
            if (taches_.empty()) return;
            t = std::move(taches_.front());
            taches_.pop_front();
        }
        t();
    }
}

} // namespace verdane
