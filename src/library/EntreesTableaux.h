#pragma once
// The entries of a table library `tableaux.txt` as text: each a line "[name][folder][sub]", a
// line "#mrl(code)#" and an empty line. The library operations copy and remove entries whole,
// byte for byte, without reading the tables they hold, so nothing of them changes on the way.

#include "utils/Texte.h"

#include <string_view>
#include <vector>

namespace verdane {

inline constexpr const char* kFichierTableaux = "tableaux.txt";

struct EntreeTableau {
    Texte nom;             // the first bracket of the head line
    Texte dossier;         // its second bracket
    std::size_t debut = 0; // the head line's first byte in the library
    std::size_t fin = 0;   // behind the entry's last line end (the empty line included)
    std::size_t tailleCode = 0;
};

struct LectureTableaux {
    std::vector<EntreeTableau> entrees; // the readable entries, in file order
    // Head lines whose name has no closing bracket or that aren't followed by a mark: they are
    // left where they stand and named here.
    std::vector<Texte> illisibles;
};

LectureTableaux LireEntreesTableaux(std::string_view contenu);

// The library `contenu` with the entry `entree` (taken from another library's `source`)
// added at its end, one line end put before it if the library doesn't end with one.
Texte AjouterEntree(std::string_view contenu, std::string_view source, const EntreeTableau& entree);

} // namespace verdane
