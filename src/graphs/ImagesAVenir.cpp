#include "graphs/ImagesAVenir.h"

namespace verdane {

Texte ImagesAVenir::Confier(std::function<std::string()> tache) {
    // Bytes no model holds in a code's value: NUL around the picture's number.
    Texte marque("\0VdImg", 6);
    marque += std::to_string(++compteur_);
    marque += '\0';
    enAttente_.emplace_back(marque, atelier_.Confier(std::move(tache)));
    return marque;
}

void ImagesAVenir::Ecrire(std::string_view texte, EcritureOrdonnee& sortie) {
    std::size_t depuis = 0;
    for (auto& [marque, image] : enAttente_) {
        const auto n = texte.find(marque, depuis);
        if (n == std::string_view::npos) continue;
        sortie.Ecrire(texte.substr(depuis, n - depuis));
        sortie.Attendre(std::move(image));
        depuis = n + marque.size();
    }
    sortie.Ecrire(texte.substr(depuis));
    enAttente_.clear();
}

} // namespace verdane
