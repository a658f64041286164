#pragma once
// The tree of series that the insertion, graph and table dialogs show: one node per catalogue
// of `Datacfg\`, folders of one or two levels, and a leaf per series.

#include "utils/Texte.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace verdane {

struct NoeudCatalogue {
    Texte cle;   // unique in the tree; a leaf's key is "<file.DON>+<code>"
    Texte texte; // shown to the user
    Texte image; // family of the series ("VL", "CULT", ... "redrep"), "puce" for a leaf
    std::vector<NoeudCatalogue> enfants; // in file order
};

struct ArbreCatalogue {
    NoeudCatalogue racine{"Racine", "Racine", "", {}};

    // The node of key `cle` anywhere in the tree, or null.
    NoeudCatalogue* Trouver(std::string_view cle);
    const NoeudCatalogue* Trouver(std::string_view cle) const;
};

// The 118-byte record of a .CFG catalogue.
struct EnrCatalogue {
    static constexpr std::size_t kTaille = 118;
    Texte code;             // 12: "<tag>-<record>", split at its "-" and "+"
    Texte libelle;          // 22: "[ sans nom ]" for an unused record
    Texte dossier1;         // 40: folder of the first level, blank for none
    Texte dossier2;         // 40: folder of the second level, blank for none
    std::int16_t queue = 0; // first 16 bits of the 4-byte tail; read in the head record
    std::int16_t queue2 = 0;
};

EnrCatalogue LireEnrCatalogue(std::string_view octets);
std::string EcrireEnrCatalogue(const EnrCatalogue& enr);

// Adds the catalogue `fichier` (a path to a .CFG file) under the root of `arbre`. A file with
// no record, a head whose tail is 0, and "RESSUP.CFG" add nothing; so does a catalogue that is
// already in the tree.
void ChargerCatalogue(std::string_view fichier, ArbreCatalogue& arbre);
// Adds the catalogue of the extra results ("RESSUP.CFG"), which ChargerCatalogue leaves out:
// whatever its head says, under the head's label or `libelleParDefaut` when that is blank.
void ChargerCatalogueSupplementaire(std::string_view fichier, ArbreCatalogue& arbre,
                                    const Texte& libelleParDefaut);

} // namespace verdane
