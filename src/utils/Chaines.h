#pragma once
// Text helpers over Windows-1252 strings, with the rules of the program's own string routines:
// comparisons "without regard to case" fold accented letters too (é and É are the same).

#include "utils/Texte.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace verdane {

char Majuscule(char c);
char Minuscule(char c);
Texte Majuscules(std::string_view texte);
Texte Minuscules(std::string_view texte);
bool EgalSansCasse(std::string_view a, std::string_view b);
bool CommencePar(std::string_view texte, std::string_view debut);
bool CommenceParSansCasse(std::string_view texte, std::string_view debut);
bool FinitPar(std::string_view texte, std::string_view fin);
bool FinitParSansCasse(std::string_view texte, std::string_view fin);

// Position (from 0) of `cherche` in `texte` from `depart`, case not significant; npos if absent.
std::size_t TrouverSansCasse(std::string_view texte, std::string_view cherche,
                             std::size_t depart = 0);

// Blanks (spaces only, as the fixed strings of the dossier files are padded) taken off.
Texte Rogner(std::string_view texte);
// Spaces, tabs and line ends taken off.
Texte RognerTout(std::string_view texte);

// The program's own replace: case not significant, the search goes on behind the inserted
// text, so a replacement that holds what it replaces doesn't loop.
Texte Remplacer(std::string_view texte, std::string_view cherche, std::string_view par);
// Plain replace of every occurrence, case significant.
Texte RemplacerExact(std::string_view texte, std::string_view cherche, std::string_view par);

// Integer read from the start of a text as the program's Val does: leading blanks, a sign,
// digits; stops at the first other character. Empty or no digits gives 0.
long long ValEntier(std::string_view texte);
// Integer of a text made of digits only (after trimming), or nothing.
std::optional<long long> EntierStrict(std::string_view texte);

} // namespace verdane
