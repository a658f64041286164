#include "library/FormatsDocument.h"

#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

Texte ExtensionFormat(char lettre) {
    switch (Majuscule(lettre)) {
    case 'M':
        return ".doc";
    case 'L':
        return ".lwp";
    case 'S':
        return ".odt";
    case 'X':
        return ".docx";
    case 'P':
        return ".pdf";
    default:
        return ".rtf";
    }
}

std::vector<FormatOffert> FormatsOfferts(const Etat& etat) {
    std::vector<FormatOffert> formats = {{'R', "Rich Text Format (.rtf)", ".rtf", "rtf"}};
    switch (EditeurLie(etat)) {
    case Editeur::Word:
        formats.push_back({'M', "Microsoft Word (.doc)", ".doc", "doc"});
        break;
    case Editeur::WordPro:
        formats.push_back({'L', "Lotus Word Pro (.lwp)", ".lwp", "lwp"});
        break;
    case Editeur::OpenOffice:
        formats.push_back({'S', "OpenDocument Texte (.odt)", ".odt", "odt"});
        formats.push_back({'M', "Word 97-2003 par LibreOffice (.doc)", ".doc", "doc"});
        formats.push_back({'X', "Word 2007 et suivants par LibreOffice (.docx)", ".docx", "docx"});
        formats.push_back({'P', "PDF par LibreOffice (.pdf)", ".pdf", "pdf"});
        break;
    case Editeur::Aucun:
        break;
    }
    return formats;
}

Texte ExtensionMinuscule(const Texte& nomFichier) {
    const Texte nom = NomFichier(nomFichier);
    const auto point = nom.find_last_of('.');
    return point == Texte::npos ? Texte() : Minuscules(nom.substr(point + 1));
}

Texte TypeDocument(const Texte& nomFichier) {
    const Texte ext = ExtensionMinuscule(nomFichier);
    if (ext == "vdm") return "Modèle Verdane";
    if (ext == "rtf") return "Rich Text Format";
    if (ext == "doc") return "Microsoft Word";
    if (ext == "lwp") return "Lotus Word Pro";
    if (ext == "odt") return "OpenDocument Texte";
    if (ext == "docx") return "Microsoft Word 2007";
    return {};
}

std::vector<Texte> ExtensionsDocuments(const Etat& etat) {
    std::vector<Texte> extensions = {"rtf", "doc", "odt", "docx"};
    Texte chemin = Majuscules(AjouterBarre(etat.options.CheminEditeur));
    chemin.back() = '\\'; // the separator of this system stands for Windows' own
    if (FinitPar(chemin, "WORDPRO.EXE\\")) extensions.push_back("lwp");
    return extensions;
}

} // namespace verdane
