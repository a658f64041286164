#pragma once
// Writing that loses nothing: a file is written beside its final place under a temporary name
// and renamed into place only once complete, so a failure or a kill never leaves a half-written
// result, and never destroys the file it replaces.

#include "utils/Texte.h"

#include <fstream>
#include <string_view>

namespace verdane {

class FichierSur {
public:
    // Opens a temporary file beside `chemin`. `Ouvert()` tells whether that worked.
    explicit FichierSur(std::string_view chemin);
    ~FichierSur(); // an uncommitted file is removed
    FichierSur(const FichierSur&) = delete;
    FichierSur& operator=(const FichierSur&) = delete;

    bool Ouvert() const { return ouvert_; }
    void Ecrire(std::string_view octets);
    // Flushes, closes and renames into place. False (and nothing replaced) on any failure.
    bool Valider();

private:
    std::string final_;
    std::string temporaire_;
    std::ofstream flux_;
    bool ouvert_ = false;
    bool valide_ = false;
};

// The whole of `contenu` written to `chemin` as above.
bool EcrireFichierSur(std::string_view chemin, std::string_view contenu);

} // namespace verdane
