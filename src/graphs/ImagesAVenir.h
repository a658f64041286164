#pragma once
// The charts of a document finished on a second thread while the text goes on. The chart is
// drawn in place, in the order of the document; its encoding and its RTF are made by the
// second thread, and a mark holds its place in the value of the code until the creation
// driver writes that value: the picture then takes the mark's place in the result, which
// comes out byte for byte as when every chart is finished in place.

#include "graphs/EtatGraphes.h"
#include "utils/Atelier.h"
#include "utils/EcritureOrdonnee.h"
#include "utils/Texte.h"

#include <functional>
#include <future>
#include <string_view>
#include <utility>
#include <vector>

namespace verdane {

class ImagesAVenir {
public:
    // Queues `tache` (the RTF of a picture) and returns the mark that stands for it.
    Texte Confier(std::function<std::string()> tache);
    bool Vide() const { return enAttente_.empty(); }
    // Writes `texte`, the value of a mark of the model, to `sortie`: each mark handed out
    // since the last call gives way to its picture, in the order handed out. A mark the text
    // no longer holds is dropped with its picture.
    void Ecrire(std::string_view texte, EcritureOrdonnee& sortie);
    // Drops the pictures still pending (a document left unfinished).
    void Oublier() { enAttente_.clear(); }

private:
    Atelier atelier_;
    std::vector<std::pair<Texte, std::future<std::string>>> enAttente_;
    unsigned long compteur_ = 0;
};

// Lets a chart's picture be finished later (`permis`) or not, for the life of this object.
class ImagesDifferees {
public:
    ImagesDifferees(EtatGraphes& g, bool permis) : g_(g), avant_(g.differerImages) {
        g.differerImages = permis;
    }
    ~ImagesDifferees() { g_.differerImages = avant_; }
    ImagesDifferees(const ImagesDifferees&) = delete;
    ImagesDifferees& operator=(const ImagesDifferees&) = delete;

private:
    EtatGraphes& g_;
    bool avant_;
};

} // namespace verdane
