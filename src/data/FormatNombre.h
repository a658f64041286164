#pragma once
// The one routine that turns a number into text, and its reverse.

#include "utils/Texte.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace verdane {

// Thousands and decimal marks of the user's locale. French conventions when none is set:
// a decimal comma and a non-breaking space (byte 0xA0) between thousands.
struct MarquesNombre {
    Texte decimale = ",";
    Texte milliers = "\xA0";
};

// `decimales` 0 to 6: rounded to that many places, ties to even; any other value (7, "AUTO"):
// nothing is rounded first, the pattern is chosen from the number's shortest text and rounds
// it half away from zero (0.125 shows "0,13"). A value of exactly 0 with `videSiZero` gives
// one blank.
Texte FormatNombre(float valeur, std::int16_t decimales, bool videSiZero,
                   const MarquesNombre& marques = MarquesNombre{});

// Reads back what FormatNombre wrote (thousands marks included); nothing if it isn't a number.
std::optional<double> LireNombre(std::string_view texte,
                                 const MarquesNombre& marques = MarquesNombre{});

// The marks of a locale name such as "fr_FR.UTF-8" or "en_US": by its language; "C", "POSIX",
// an empty or an unknown name give the French marks.
MarquesNombre MarquesDeLocale(std::string_view nomLocale);
// The marks of the user's locale, from LC_ALL, LC_NUMERIC or LANG, the first one set.
MarquesNombre MarquesDuSysteme();

} // namespace verdane
