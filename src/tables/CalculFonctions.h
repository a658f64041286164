#pragma once
// The functions that the calculator knows. Values are doubles; a failed calculation is a NaN,
// which every function but IF passes on.

#include <span>
#include <string_view>

namespace verdane::calcul {

struct Fonction {
    std::string_view nom; // upper case
    int minimum;          // arguments
    int maximum;          // -1: no upper bound
    // The result from arguments none of which is NaN; NaN or an infinity when it fails.
    // Null for IF, which the reader handles itself since it chooses among its arguments.
    double (*calcul)(std::span<const double> arguments);
};

// The function of that name, compared without regard to case; null when unknown.
const Fonction* TrouverFonction(std::string_view nom);

// True for the names of IF (its failure is that of the branch it takes).
bool EstCondition(const Fonction& fonction);

// Two numbers equal as a spreadsheet compares them: to about fifteen significant digits.
bool Egaux(double a, double b);

} // namespace verdane::calcul
