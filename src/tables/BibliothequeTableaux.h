#pragma once
// The library of table models, `tableaux.txt` (and the PDE one, same format): for each table a
// line "[name][folder][sub-folder]", a line "#mrl(code)#" and an empty line, lines ending in
// CR LF. Tables are numbered from 1 in file order.

#include "shell/etat/Etat.h"
#include "tables/TableauModele.h"
#include "utils/Texte.h"

#include <string_view>
#include <vector>

namespace verdane {

class Contexte;

// The tables of a library's text. Lines that don't begin with "[" are skipped; an entry whose
// code line isn't "#mrl(...)#" ends the reading, and what was read before stays. Without
// `detail` only names, folders, prefix and head are read, no lines.
std::vector<TableauModele> LireTexteTableaux(std::string_view contenu, bool detail);
// The library's text; a table with a line lacking its definition gets an empty mark.
Texte TexteTableaux(const std::vector<TableauModele>& tableaux, const Options& options);

// Loads the library file into the loaded tables. A missing or empty file gives no table and
// no message.
void ChargerTableaux(Contexte& ctx, std::string_view chemin, bool detail);
// Writes all loaded tables in their order in place of the file. False if it could not be
// written (the file then stays as it was).
bool EcrireTableaux(Contexte& ctx, std::string_view chemin);

} // namespace verdane
