#pragma once
// What a document file really is, told by its first bytes rather than by its name: a
// conversion is only done when the file holds the format its name asks for.

#include "links/PiloteEditeur.h"

#include <string_view>

namespace verdane {

// The format of a document's bytes: Rtf, Doc (an OLE compound file), Odt (a zip whose first
// entry names the text mime type), Docx (a zip with a Word main part), Pdf; Autre otherwise.
FormatDocument FormatDesOctets(std::string_view octets);

// True when the file at `chemin` holds `format`. A format this program can't recognise (Lwp,
// Autre) is taken as held by any file that exists.
bool FichierAuFormat(const Texte& chemin, FormatDocument format);

// The name of a format as the user reads it: "RTF", "DOC", "ODT", "DOCX", "PDF", "LWP".
Texte NomFormat(FormatDocument format);

} // namespace verdane
