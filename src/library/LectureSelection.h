#pragma once
// A code selected in the document, read back and explained; the chart it draws shown, or its
// table or graph model taken back into its editor.

#include "engine/InterpreterCode.h"

#include <optional>

namespace verdane {

// Beyond this a selection can't be one code, and isn't looked at.
inline constexpr std::size_t kTailleSelectionMax = 4u << 20;

enum class GenreSelection { Vide, TropLongue, SansCode, Code };

struct SelectionLue {
    GenreSelection genre = GenreSelection::Vide;
    Texte marque; // for a code: "#mrl(" + inside + ")#"
};

// The first whole mark of `selection`: "#mrl(...)#" (the open case not significant, as the
// scanner reads it), or a cell's "%mrl(...)%", given back as "#mrl(...)#".
SelectionLue LireCodeSelection(const Texte& selection);

// Reads the selection of the linked word processor and explains its code in the message form
// (the interpreter's explanation mode), with its value for the current dossier. The code is
// kept for the help entries. Nothing, the reason told, when there is no code to explain.
std::optional<Explication> ExpliquerSelection(Contexte& ctx);

// The inside of the kept code ("gph(...)" or "tab...") when it is a graph / a table code;
// empty, the reason told, when it isn't.
Texte CodeGraphSelectionne(Contexte& ctx);
Texte CodeTableauSelectionne(Contexte& ctx);

// Draws the chart of the kept graph code with the current dossier's values into the work file
// `graphSvg.bmp`; its path, or empty (told) when there is no chart.
Texte ApercuGraphSelection(Contexte& ctx);
// The title of the preview window.
Texte TitreApercuGraph(const Etat& etat);

// Opens the kept graph code in the graph editor ("FrmGraphik", title "Récupéré: ...") or the
// kept table code in the table editor ("FrmInserTab"), when those windows exist; else says
// that they don't. True when the editor was opened.
bool RecupererModeleGraph(Contexte& ctx);
bool RecupererModeleTableau(Contexte& ctx);

} // namespace verdane
