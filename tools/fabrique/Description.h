#pragma once
// A text description of a binary file: "[section]" headers and "key=value" lines, in UTF-8,
// "#" starting a comment line. Values come back in Windows-1252.

#include "utils/Texte.h"

#include <string_view>
#include <vector>

namespace verdane::fabrique {

struct Entree {
    Texte cle;
    Texte valeur;
};

struct Section {
    Texte nom; // empty for the lines before the first header
    std::vector<Entree> entrees;

    // The value of a key (the last one given), or `defaut`.
    Texte Valeur(std::string_view cle, std::string_view defaut = "") const;
    // Every value given for a key, in order.
    std::vector<Texte> Valeurs(std::string_view cle) const;
    long long Entier(std::string_view cle, long long defaut = 0) const;
};

std::vector<Section> LireDescription(std::string_view utf8);

// "a|b|c" cut at its bars.
std::vector<Texte> Couper(std::string_view texte, char separateur);

} // namespace verdane::fabrique
