#include "links/FormatFichier.h"

#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

constexpr std::string_view kOle("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
constexpr std::string_view kZip("PK\x03\x04", 4);
// A zip's first local header is 30 bytes, then the entry's name, then (stored) its data.
constexpr std::size_t kNomPremiereEntree = 30;
constexpr std::string_view kMimeOdt = "mimetypeapplication/vnd.oasis.opendocument.text";

bool EstOdt(std::string_view octets) {
    // The mime type of a text document, not of its template ("...-template").
    return octets.substr(kNomPremiereEntree, kMimeOdt.size()) == kMimeOdt &&
           octets.substr(kNomPremiereEntree + kMimeOdt.size(), 1) != "-";
}

} // namespace

FormatDocument FormatDesOctets(std::string_view octets) {
    if (octets.starts_with("{\\rtf")) return FormatDocument::Rtf;
    if (octets.starts_with(kOle)) return FormatDocument::Doc;
    if (octets.starts_with("%PDF-")) return FormatDocument::Pdf;
    if (octets.starts_with(kZip)) {
        if (EstOdt(octets)) return FormatDocument::Odt;
        // The names of a zip's entries stand in its local headers and in its directory.
        if (octets.find("word/document.xml") != std::string_view::npos) return FormatDocument::Docx;
    }
    return FormatDocument::Autre;
}

bool FichierAuFormat(const Texte& chemin, FormatDocument format) {
    if (!FichierExiste(chemin)) return false;
    if (format == FormatDocument::Lwp || format == FormatDocument::Autre) return true;
    // Only a Word 2007 document needs more than its head to be told apart.
    const auto octets =
        format == FormatDocument::Docx ? LireFichier(chemin) : LireOctets(chemin, 0, 128);
    return octets && FormatDesOctets(*octets) == format;
}

Texte NomFormat(FormatDocument format) {
    switch (format) {
    case FormatDocument::Rtf:
        return "RTF";
    case FormatDocument::Doc:
        return "DOC";
    case FormatDocument::Lwp:
        return "LWP";
    case FormatDocument::Odt:
        return "ODT";
    case FormatDocument::Docx:
        return "DOCX";
    case FormatDocument::Pdf:
        return "PDF";
    case FormatDocument::Autre:
        break;
    }
    return "?";
}

} // namespace verdane
