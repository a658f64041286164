#pragma once
// The series records of a dossier as a value reads them: the path resolved through the files
// of the run, then one open, one positioned read of the 90 bytes and one close per record. A
// missing, empty or short file is known from that read.

#include "data/EnrDon.h"
#include "utils/CacheFichiers.h"

#include <optional>
#include <string_view>

namespace verdane {

// Record `numero` (from 1) of a .don file; nothing for a missing file, a record number below 1,
// or a record past the end of the file or cut short by it.
std::optional<EnrDon> LireEnregistrementDon(CacheFichiers& fichiers, std::string_view fichier,
                                            long long numero);

// One .don file for the steps of one value.
class FichierDon {
public:
    FichierDon(CacheFichiers& fichiers, std::string_view chemin)
        : fichiers_(fichiers), chemin_(chemin) {}
    // True when the file is there and not empty.
    bool Present();
    std::optional<EnrDon> Lire(long long numero) {
        return LireEnregistrementDon(fichiers_, chemin_, numero);
    }

private:
    CacheFichiers& fichiers_;
    std::string_view chemin_;
};

} // namespace verdane
