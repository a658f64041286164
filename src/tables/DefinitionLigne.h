#pragma once
// What the definition of a line says: its kind, its own part, its decimals and its zero rule.
// "serie:PROD.DON+PROD-3:0:1" is a series line of code "PROD.DON+PROD-3", 0 decimals, rule
// "1".

#include "utils/Texte.h"

#include <string_view>

namespace verdane {

enum class GenreLigne {
    Entete, // "entete": column headers
    Serie,  // "serie": one data series
    TotalS, // "totalS": sum, difference, product or quotient of two lines
    TotalC, // "totalC": free formula
    Espace, // "espac...": spacing line
    Cultu,  // "cultu": a line per crop
    Cultp,  // "cultp": a line per perennial crop
    Imemp,  // "imemp": investments or loans
    Prime,  // "prime": premium lines
    Newpg,  // "newpg": page break
    Scult,  // "scult": value of the crop of a repeated table
    Scltp,  // "scltp": same for a perennial crop
    ALani,  // "ALani": same for a free animal activity
    Autre,  // unknown: its text prints in each value cell
};

// What a line does when all its values are zero.
inline constexpr std::string_view kZeroAfficher = "0"; // always kept (any other value too)
inline constexpr std::string_view kZeroMasquer = "1";  // dropped silently
inline constexpr std::string_view kZeroDemander = "2"; // kept or dropped on the user's answer
inline constexpr std::string_view kZeroJamais = "3";   // never printed, only feeds formulas

struct DefinitionLigne {
    GenreLigne genre = GenreLigne::Autre;
    Texte mot;         // the word before the first ":"
    Texte reste;       // behind it, without the zero rule
    Texte code;        // `reste` before its first ":": series code, formula, sub-code...
    int decimales = 7; // behind that ":"; 7 (automatic) without it
    Texte regleZero = Texte(kZeroDemander);
};

// The kind: "espac", "cultu", "cultp", "imemp", "prime", "newpg" are told by their first five
// letters, the others by the whole word before ":". Case matters.
GenreLigne GenreDeLigne(std::string_view definition);
// The zero rule is cut from the kinds that carry one (series, totals, crop, activity and
// fixed-table lines) when `reste` holds two ":".
DefinitionLigne AnalyserDefinition(std::string_view definition);

} // namespace verdane
