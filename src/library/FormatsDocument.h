#pragma once
// The formats a document of the library can be written in: the letter that names each in the
// dialogs, its extension, its label, and those the linked word processor can write.

#include "shell/etat/Etat.h"
#include "utils/Texte.h"

#include <vector>

namespace verdane {

struct FormatOffert {
    char lettre;      // "R" RTF, "M" DOC, "L" LWP, "S" ODT, "X" DOCX, "P" PDF
    Texte libelle;    // as the format list shows it
    Texte extension;  // with its dot
    Texte conversion; // the format name of a conversion ("rtf", "doc"...)
};

// The extension of a format letter: "M" ".doc", "L" ".lwp", "S" ".odt", "X" ".docx", "P" ".pdf",
// any other ".rtf".
Texte ExtensionFormat(char lettre);

// The formats a result can be created in, or a document converted to, with the linked word
// processor: RTF always; "Microsoft Word (.doc)" with Word, "Lotus Word Pro (.lwp)" with Word
// Pro; with LibreOffice the formats it writes (ODT, DOC, DOCX, PDF) under its own labels.
std::vector<FormatOffert> FormatsOfferts(const Etat& etat);

// The text of the type column for a file name, by its extension; empty for a file that isn't
// one of the library's.
Texte TypeDocument(const Texte& nomFichier);

// The extensions of text documents that a list of documents shows. LWP only with Word Pro
// linked (CheminEditeur, with a separator behind and in upper case, ends in "WORDPRO.EXE\").
std::vector<Texte> ExtensionsDocuments(const Etat& etat);

// The extension of a file name, lower case and without its dot; empty if none.
Texte ExtensionMinuscule(const Texte& nomFichier);

} // namespace verdane
