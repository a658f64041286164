#pragma once
// What the data insertion dialog offers to choose from: the trees of series (the dossier's
// catalogues, and the items of a crop, a perennial crop or a free animal activity), and the
// general fields by tab.

#include "data/Catalogue.h"
#include "data/Champs.h"
#include "shell/etat/Etat.h"

#include <optional>
#include <vector>

namespace verdane {

// The tree the dialog is on, by its tag.
enum class FamilleInsertion { Classic, Culture, CultPer, AliBani };

// "CLASSIC", "CULTURE", "CULTPER", "ALIBANI"; nothing for another tag (case not significant).
std::optional<FamilleInsertion> FamilleDuTag(const Texte& tag);
Texte TagFamille(FamilleInsertion famille);

// The two leaves of a per-crop tree that stand for facts of the crop or activity rather than a
// series: its unit and its label. A leaf key cut at its first ":" gives the "@" of the family.
inline constexpr const char* kCleUniteFamille = "@:unite";
inline constexpr const char* kCleLibelleFamille = "@:libelle";

// The tree of `famille`. Classic: one node per catalogue of the dossier's configuration folder
// (`Datacfg`), in the order of their names, then the extra results; a leaf's key is
// "<file.DON>+<code>". The other families: a node named for the family with its unit and label
// leaves, then the folders and "@" items of its catalogue.
ArbreCatalogue ChargerArbreInsertion(const Etat& etat, FamilleInsertion famille);

// True when the tree holds no leaf: the dialog then says that there is nothing to choose.
bool ArbreSansFeuille(const ArbreCatalogue& arbre);

// The label of a leaf for the unit or label entries of a family (" Unité de la culture"...).
Texte TexteUniteFamille(FamilleInsertion famille);
Texte TexteLibelleFamille(FamilleInsertion famille);

// A tab of general fields.
struct OngletChamps {
    Texte titre;
    std::vector<ChampDonnee> champs;
};
// The tabs of general fields, in the order of the dialog: exploitation, associates, study,
// dossier, exercises, bodies of the parameter file.
std::vector<OngletChamps> ChargerOngletsChamps();

// A body of the parameter file as the dialog lists it: its number in the codes and its name.
struct OrganismeListe {
    int numero = 0;
    Texte nom;
};
// The bodies with a name, in their order (twenty at most).
std::vector<OrganismeListe> OrganismesNommes(const Etat& etat);

} // namespace verdane
