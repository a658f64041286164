#pragma once
// Text written in order to its destination while some pieces of it are still being made on
// another thread: what follows such a piece waits in memory until the piece is there. Nothing
// waits when no piece is pending.

#include <deque>
#include <functional>
#include <future>
#include <string>
#include <string_view>

namespace verdane {

class EcritureOrdonnee {
public:
    explicit EcritureOrdonnee(std::function<void(std::string_view)> destination)
        : destination_(std::move(destination)) {}

    void Ecrire(std::string_view texte);
    // A piece to come, at this place of the text.
    void Attendre(std::future<std::string> morceau);
    // Waits for every pending piece and writes all that is held.
    void Terminer();

private:
    struct Element {
        std::string texte;
        std::future<std::string> morceau; // valid: a piece to come, written before `texte`
    };
    // Writes what is ready at the head of the queue; with `attendre`, everything.
    void Avancer(bool attendre);

    std::function<void(std::string_view)> destination_;
    std::deque<Element> file_;
};

} // namespace verdane
