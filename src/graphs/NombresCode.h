#pragma once
// Numbers in the text form of a graph: plain decimal integers, and reals written as the
// shortest text that reads back to the same single-precision number, with the decimal mark of
// the user's locale. The reader takes "," and "." alike, so that a code written on a machine
// with the other mark still reads right.

#include "utils/Texte.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace verdane {

// "0,5", "1234", "1E+10"; a value that isn't finite is written "0".
Texte TexteReel(float valeur, std::string_view decimale);

// A number of the code: blanks around, a sign, digits with one decimal mark, an exponent.
// Nothing for any other text (empty, letters, "NaN", "inf", thousands marks).
std::optional<double> LireNombreCode(std::string_view texte);
// A 16-bit integer field: the number rounded half to even; nothing out of range.
std::optional<std::int16_t> LireEntierCode(std::string_view texte);
// A real field: nothing beyond the range of a single-precision number.
std::optional<float> LireReelCode(std::string_view texte);

} // namespace verdane
