#pragma once
// How a formula's references are read: the common ground of substitution, check and
// renumbering.

#include "utils/Texte.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace verdane::formule {

inline constexpr int kDerniereLigne = 511;

// The end of the line number that begins at `debut`, behind an `LG`: the first character that
// ends a number in an expression, or the end of the text.
std::size_t FinNumero(std::string_view texte, std::size_t debut);

// A line number written with digits only, 1 to kDerniereLigne; nothing otherwise.
std::optional<int> NumeroLigne(std::string_view texte);

// A number as the substitution writes it: its shortest exact text, with `decimale` as mark.
Texte TexteNombre(float valeur, std::string_view decimale);

} // namespace verdane::formule
