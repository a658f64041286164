#pragma once
// A model read into memory in pieces of about a thousand characters. The model is held once:
// its line ends are dropped in place and the pieces are views of what remains.

#include "utils/Texte.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace verdane {

struct ModeleEnMorceaux {
    // The text of the model, line ends dropped; the pieces below are views of it, end to end.
    std::unique_ptr<Texte> texte = std::make_unique<Texte>();
    std::vector<std::string_view> Morceaux;
    // Marks "#mrl(" counted line by line, case not significant: the base of the gauge.
    int NbCodes = 0;
    // Where every "#mrl(" stands in `texte`, any case, those split by a line end too, when
    // `marquesCompletes`; so the driver looks for none. A model made of little else keeps
    // only a bounded list and is searched instead.
    std::vector<std::uint32_t> marques;
    bool marquesCompletes = true;

    // The first mark of `texte` at or behind `position`, or npos; with a complete list only.
    std::size_t MarqueApres(std::size_t position) const;
};

// Cuts the content of a model into pieces: lines joined with their line ends dropped, a new
// piece begun when the current one holds more than 1000 characters, a line never split. A
// line end that delimited a control word ("\b" at the end of a line, "old" or a code at the
// start of the next) is kept as one blank, which delimits it the same way.
ModeleEnMorceaux DecouperModele(Texte contenu);

} // namespace verdane
