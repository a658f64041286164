#pragma once
// An INI file: sections in brackets, "key=value" lines, names compared without regard to case.
// A line that holds a ";" in front of its "=" is a comment. The file is read at each operation
// and written at once (through a temporary file) by each change: nothing is kept between two.

#include "utils/Texte.h"

#include <string_view>
#include <utility>
#include <vector>

namespace verdane {

class ClsIni {
public:
    ClsIni() = default;
    explicit ClsIni(Texte fichier, Texte section = {})
        : Filename(std::move(fichier)), Section(std::move(section)) {}

    Texte Filename;
    Texte Section;

    // Is `Filename` there.
    bool CheckIniFile() const;
    // Does the file hold `Section`.
    bool CheckSection() const;
    // All section names, in file order, each once.
    std::vector<Texte> GetAllSectionsFromInifile() const;
    // All keys of `Section`, in file order.
    std::vector<Texte> GetAllKeysFromSection() const;
    // Removes every section (lines standing before the first one stay).
    bool DeleteAllSectionFromInifile();
    // Removes `Section` and its lines.
    bool DeleteSectionFromInifile();
    // Removes key `cle` of `Section`.
    bool DeleteKeyFromSection(std::string_view cle);
    // Writes `valeur` under `cle` in `Section`; the section and the file are made if missing.
    bool SaveKey(std::string_view cle, std::string_view valeur);
    // Every change is already on disk: kept for callers that ask for it.
    bool FlushInifile() const { return true; }
    // The value of `cle` in `Section`, or `valeurDefaut`.
    Texte GetKey(std::string_view cle, std::string_view valeurDefaut = {}) const;

    // The value of a key of a section of a file, or `valeurDefaut` when the file, the section
    // or the key is missing.
    static Texte Lire(std::string_view fichier, std::string_view section, std::string_view cle,
                      std::string_view valeurDefaut = {});
    // The same, in the content of a file already read.
    static Texte LireDans(std::string_view contenu, std::string_view section, std::string_view cle,
                          std::string_view valeurDefaut = {});
};

} // namespace verdane
