#pragma once
// A table code of a document (`tab...`, as the mark #mrl(tab...)# holds it) turned into the RTF
// rows that replace the mark.

#include "utils/Texte.h"

namespace verdane {

class Contexte;

// The RTF of the table: blanks of the code deleted ("_" stands for them), RTF escapes of
// accented letters turned into letters, the code read into slot 1 (the only slot left), the
// dossiers of a multi-dossier table selected, then each line rendered in order. Dropped lines
// leave nothing. A repetition prefix ("culture"...) in front of "tab" is read too; without
// one, the kind, header form and page start that slot 1 holds stay as they are, so that a
// repeated table may set them (LirePrefixeTableau) before handing the rest of its code here.
Texte GenererTableau(Contexte& ctx, const Texte& code);

} // namespace verdane
