#pragma once
// A gph( code of a document model turned into a chart picture in the result: the code is read
// into graphes(1), drawn on the hidden chart, and the chart's picture is embedded in the RTF.

#include "shell/etat/Contexte.h"

#include <string>

namespace verdane {

// Name of the work file of the last chart drawn for a document, in the graph model folder. It
// holds PNG bytes whatever its extension says.
inline constexpr const char* kFichierImageGraph = "graphSvg.bmp";
// Width given to a chart in a document: 16 cm.
inline constexpr int kLargeurImageGraphTwips = 9072;

// Path of the work file; empty when the graph model folder isn't known.
Texte CheminImageGraph(const Etat& etat);

// The hidden chart that documents are drawn on: graphInsertion, made by the platform's maker
// when nobody put one. Null when there is none (told to the user once a run).
SurfaceGraphique* SurfaceInsertion(Contexte& ctx);

// Reads `code` (the text between "gph(" and ")") into graphes(1), draws it on the hidden chart
// and returns the PNG bytes of the picture; empty when no chart could be drawn.
std::string DessinerImageGraph(Contexte& ctx, const Texte& code);

// The same, leaving the picture in the work file: returns its path, empty when no picture
// was made or the file could not be written.
Texte ConstruireImageGraph(Contexte& ctx, const Texte& code);

// What the interpreter puts in the document for a gph( code: a self-contained "{\pict...}"
// group, 16 cm wide; empty when there is no chart. The work file is written on the way.
Texte ImageGraphRtf(Contexte& ctx, const Texte& interieur);

} // namespace verdane
