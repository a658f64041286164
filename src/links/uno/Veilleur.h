#pragma once
// A watch over the operations asked of the office: one that lasts longer than allowed (an
// office that hangs, or is stopped) has the office's process group killed, so that the call
// returns with an error instead of waiting forever.

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <sys/types.h>
#include <thread>

namespace verdane {

class Veilleur {
public:
    explicit Veilleur(int delaiMs) : delai_(delaiMs) {}
    ~Veilleur();
    Veilleur(const Veilleur&) = delete;
    Veilleur& operator=(const Veilleur&) = delete;

    // The process group to end; 0 for none (an office this program didn't start).
    void Surveiller(pid_t groupe);
    // True when the current or last operation was cut short.
    bool Expire() const { return expire_; }
    int DelaiMs() const { return delai_; }
    void PoserDelai(int delaiMs) { delai_ = delaiMs; }

    // Marks the time of one operation.
    class Operation {
    public:
        explicit Operation(Veilleur& v);
        ~Operation();
        Operation(const Operation&) = delete;
        Operation& operator=(const Operation&) = delete;

    private:
        Veilleur& veilleur_;
    };

private:
    void Veiller();

    std::atomic<int> delai_;
    std::atomic<pid_t> groupe_{0};
    std::atomic<long long> debut_{0}; // steady clock in ms; 0: no operation
    std::atomic<bool> expire_{false};
    std::mutex mutex_;
    std::condition_variable reveil_;
    bool fin_ = false;
    std::thread fil_;
};

} // namespace verdane
