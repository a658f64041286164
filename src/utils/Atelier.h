#pragma once
// A second thread that does work handed to it, one task after the other in the order given,
// while the caller goes on. Tasks touch nothing but what they hold: they must not reach the
// run's state.

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <string>
#include <thread>

namespace verdane {

class Atelier {
public:
    Atelier() = default;
    // Finishes the tasks handed over, then ends the thread.
    ~Atelier();
    Atelier(const Atelier&) = delete;
    Atelier& operator=(const Atelier&) = delete;

    // Queues `tache` (the thread starts with the first one); its result comes through the
    // future. A task that throws hands its exception to the future.
    std::future<std::string> Confier(std::function<std::string()> tache);

private:
    void Travailler();

    std::mutex verrou_;
    std::condition_variable signal_;
    std::deque<std::packaged_task<std::string()>> taches_;
    bool fin_ = false;
    std::thread fil_;
};

} // namespace verdane
