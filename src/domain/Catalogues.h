#pragma once
// The items of the crop, perennial crop and animal activity data offered by the data and
// table-line dialogs, as data: folders (label, key, items) and items (label, `@` code).

#include "utils/Texte.h"

#include <vector>

namespace verdane {

struct ElementCatalogue {
    Texte libelle;
    Texte cle; // a folder's key, or an item's code ("@14", "Assolement")
    std::vector<ElementCatalogue> enfants;
    bool dossier = false;
};

// The `@` items of an annual crop (no folders).
const std::vector<ElementCatalogue>& CatalogueCultures();
// The items of a perennial crop, in folders.
const std::vector<ElementCatalogue>& CataloguePerennes();
// The series of the generic "Assolement" folder (`cultu` lines).
const std::vector<ElementCatalogue>& CatalogueAssolement();
// The items of a free animal activity, in folders and sub-folders.
const std::vector<ElementCatalogue>& CatalogueAnimaux();

// One node of a dialog's tree: "rep" for a folder, "puce" for an item; `parent` is the key
// of the folder above, empty at the top.
struct NoeudElement {
    Texte parent;
    Texte cle;
    Texte libelle;
    Texte image;
};
// The tree of a catalogue in the order a tree control takes it (parents first). In mode 1
// (the table line dialog) item keys become "ALani:<n>" lines; in mode 0 they stay codes.
std::vector<NoeudElement> ArbreElements(const std::vector<ElementCatalogue>& catalogue,
                                        int mode = 0);

} // namespace verdane
