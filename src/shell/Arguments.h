#pragma once
// The command line as one string, as the system gives it: quotes group, a blank separates.

#include "utils/Texte.h"

#include <cstdint>
#include <string_view>

namespace verdane {

class LigneCommande {
public:
    explicit LigneCommande(Texte ligne) : ligne_(std::move(ligne)) {}
    // Builds the one string from separate arguments (as a Linux program gets them): an
    // argument holding a blank, or empty, is put between double quotes.
    static LigneCommande DepuisArguments(int argc, const char* const* argv);

    // How many arguments the line holds.
    std::int16_t NbArguments() const;
    // The n-th argument (from 1) without its quotes; empty if there are fewer.
    Texte Argument(std::int16_t n) const;
    const Texte& Texte_() const { return ligne_; }

private:
    // Walks the line; stops once argument `jusqua` is complete (0: to the end). Returns the
    // count of arguments seen, and the last one in `dernier`.
    std::int16_t Parcourir(std::int16_t jusqua, Texte* dernier) const;
    Texte ligne_;
};

} // namespace verdane
