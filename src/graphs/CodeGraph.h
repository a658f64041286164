#pragma once
// The text form of a graph model, as it travels inside a document model in a gph( code: 45
// header fields each closed by ";", then the series, each between "[" and "]".

#include "graphs/ModeleGraph.h"
#include "shell/etat/Contexte.h"

#include <string_view>

namespace verdane {

// The text of `g` (without "gph(" and ")"). Text fields are trimmed as they are taken and
// stored back so. Reals take the decimal mark `decimale`.
Texte TexteCodeGraph(ModeleGraph& g, std::string_view decimale);

// "gph(" + the text of graphes(grapheCourant) + ")": the code to insert in the document.
// Empty when no graph is selected.
Texte EcrireCodeGraph(Contexte& ctx);

// Fills graphes(index) from `code`, the text without "gph(" and ")". Only what the text holds
// changes: reserved fields and series beyond nbSeries keep what they had. A missing "[",
// a value that isn't a number of its field, a series count outside 0 to 10 or a header cut
// short are told in the message form; reading goes on where it can. An index outside 1 to 50
// does nothing.
void LireCodeGraph(Contexte& ctx, int index, std::string_view code);

} // namespace verdane
