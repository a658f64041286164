#include "links/Faux.h"

namespace verdane::essai {

namespace {

// A zip's local header of a stored entry: signature, version, flags, method, time, date, crc,
// sizes, name length, extra length; then the name and the data.
std::string EntreeZip(const std::string& nom, const std::string& donnees) {
    auto u16 = [](std::size_t v) { return std::string{char(v & 0xFF), char((v >> 8) & 0xFF)}; };
    auto u32 = [&](std::size_t v) { return u16(v & 0xFFFF) + u16(v >> 16); };
    return std::string("PK\x03\x04", 4) + u16(20) + u16(0) + u16(0) + u16(0) + u16(0) + u32(0) +
           u32(donnees.size()) + u32(donnees.size()) + u16(nom.size()) + u16(0) + nom + donnees;
}

} // namespace

std::string OctetsDuFormat(FormatDocument format) {
    switch (format) {
    case FormatDocument::Rtf:
        return "{\\rtf1\\ansi }";
    case FormatDocument::Doc:
        return std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(504, '\0');
    case FormatDocument::Pdf:
        return "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";
    case FormatDocument::Odt:
        return EntreeZip("mimetype", "application/vnd.oasis.opendocument.text") +
               EntreeZip("content.xml", "<office:document-content/>");
    case FormatDocument::Docx:
        return EntreeZip("[Content_Types].xml", "<Types/>") +
               EntreeZip("word/document.xml", "<w:document/>");
    case FormatDocument::Lwp:
    case FormatDocument::Autre:
        break;
    }
    return "texte";
}

std::string Decrire(const Valeur& v) {
    if (std::holds_alternative<bool>(v)) return std::get<bool>(v) ? "Vrai" : "Faux";
    if (std::holds_alternative<long>(v)) return std::to_string(std::get<long>(v));
    if (std::holds_alternative<Texte>(v)) return "\"" + std::get<Texte>(v) + "\"";
    if (std::holds_alternative<RefObjet>(v)) return "<objet>";
    if (std::holds_alternative<double>(v)) return std::to_string(std::get<double>(v));
    return "Rien";
}

Valeur FauxObjet::Lire(const Texte& membre) {
    const std::string chemin = chemin_ + "." + membre;
    auto it = monde_.valeurs.find(chemin);
    if (it != monde_.valeurs.end()) return it->second;
    return std::make_shared<FauxObjet>(monde_, chemin);
}

void FauxObjet::Ecrire(const Texte& membre, const Valeur& valeur) {
    const std::string chemin = chemin_ + "." + membre;
    monde_.journal.push_back(chemin + " = " + Decrire(valeur));
    monde_.valeurs[chemin] = valeur;
}

Valeur FauxObjet::Appeler(const Texte& membre, const std::vector<Argument>& arguments) {
    std::string chemin = chemin_ + "." + membre;
    std::string appel = chemin + "(";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i) appel += ", ";
        if (!arguments[i].nom.empty()) appel += arguments[i].nom + ":=";
        appel += Decrire(arguments[i].valeur);
    }
    monde_.journal.push_back(appel + ")");
    if (monde_.apresAppel) monde_.apresAppel(chemin);
    auto it = monde_.valeurs.find(chemin + "()");
    if (it != monde_.valeurs.end()) return it->second;
    return std::make_shared<FauxObjet>(monde_, chemin + "()");
}

} // namespace verdane::essai
