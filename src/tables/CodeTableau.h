#pragma once
// Writing a table model as its code, the text that a document mark or the library carries.

#include "shell/etat/Etat.h"
#include "tables/TableauModele.h"
#include "utils/Texte.h"

#include <string_view>

namespace verdane {

class Contexte;

// Text format of a cell that has none: font 5006, the configured size (10 when unset), colour
// 1, no style, the configured alignment.
Texte FormatTexteDefaut(const Options& options);

// A format as written: empty after trimming, `defaut`; short of fields, completed with the
// fields of `defaut` that follow, so that the text part keeps its nine fields.
Texte FormatComplet(const Texte& format, std::string_view defaut);

// The code of a model. Writing stops at the first line whose definition is empty: its number
// goes to `ligneIncomplete` (0 when every line is defined) and the code ends behind the lines
// before it; with `toutesLesLignes` (the library's own copy) every line is written all the same.
Texte CodeModele(const TableauModele& tableau, const Options& options, int& ligneIncomplete,
                 bool toutesLesLignes = false);

// The code of table `numero` (from 1) of the loaded tables. At a line without definition, the
// silent mode gives an empty code; the other tells the user and gives the code of the lines
// before it. No such table: empty.
Texte CodeTableau(Contexte& ctx, int numero, bool silencieux);

} // namespace verdane
