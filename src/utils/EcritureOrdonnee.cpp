#include "utils/EcritureOrdonnee.h"

#include <chrono>
#include <exception>

namespace verdane {

void EcritureOrdonnee::Ecrire(std::string_view texte) {
    if (file_.empty()) {
        destination_(texte);
        return;
    }
    file_.back().texte.append(texte);
    Avancer(false);
}

void EcritureOrdonnee::Attendre(std::future<std::string> morceau) {
    file_.push_back({{}, std::move(morceau)});
}

void EcritureOrdonnee::Terminer() {
    Avancer(true);
}

void EcritureOrdonnee::Avancer(bool attendre) {
    while (!file_.empty()) {
        Element& e = file_.front();
        if (!attendre && e.morceau.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
            return;
        try {
            destination_(e.morceau.get());
        } catch (const std::exception&) {
            // A piece that failed is left out; the text around it stays.
        }
        destination_(e.texte);
        file_.pop_front();
    }
}

} // namespace verdane
