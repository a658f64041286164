#pragma once
// One line of the table in slot 1 as RTF: a row of cells, a spacing paragraph, a page break,
// the rows of a premium block or of a domain block.

#include "tables/TableauModele.h"
#include "utils/Texte.h"

namespace verdane {

class Contexte;

// "\plain \trowd", the gap and height when above 10 twips, then "\trqc" (centred table) or
// "\trleft0".
Texte PrefixeLigne(const TableauModele& tableau, const LigneModele& ligne);

// The RTF of line ctx.etat.tableaux.ligneCourante of the table in slot 1; empty when the line
// is dropped (or doesn't exist).
Texte LigneTableauRTF(Contexte& ctx);

} // namespace verdane
