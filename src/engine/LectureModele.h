#pragma once
// A model read into memory in pieces of about a thousand characters.

#include "utils/Texte.h"

#include <string_view>
#include <vector>

namespace verdane {

struct ModeleEnMorceaux {
    std::vector<Texte> Morceaux;
    // Marks "#mrl(" counted line by line, case not significant: the base of the gauge.
    int NbCodes = 0;
};

// Cuts the content of a model into pieces: lines joined with their line ends dropped, a new
// piece begun when the current one holds more than 1000 characters, a line never split. A
// line end that delimited a control word ("\b" at the end of a line, "old" or a code at the
// start of the next) is kept as one blank, which delimits it the same way.
ModeleEnMorceaux DecouperModele(std::string_view contenu);

} // namespace verdane
