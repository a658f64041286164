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
// code line isn't "#mrl(...)#" ends the reading, and what was read before stays. Names,
// folders, prefix and head are read at once; each table keeps its entry as read (its source),
// and its lines are read with it when `detail`, else later by LireLignesEnAttente.
std::vector<TableauModele> LireTexteTableaux(std::string_view contenu, bool detail);
// Reads the lines of a table still waiting for them; nothing otherwise.
void LireLignesEnAttente(TableauModele& tableau);
// How many entries (lines beginning with "[") a library's text holds.
std::size_t CompterEntrees(std::string_view contenu);
// The library's text. A table whose model is still what its entry held is written as that
// entry, byte for byte; any other is written from its model, every line of it, those still
// lacking their definition too.
Texte TexteTableaux(const std::vector<TableauModele>& tableaux, const Options& options);

// Loads the library file into the loaded tables, their lines waiting (or read when `detail`).
// A missing or empty file gives no table and no message. Returns how many entries the file
// holds, which is more than the tables loaded when its reading stopped at a broken entry.
std::size_t ChargerTableaux(Contexte& ctx, std::string_view chemin, bool detail);
// Writes all loaded tables in their order in place of the file. False if it could not be
// written (the file then stays as it was).
bool EcrireTableaux(Contexte& ctx, std::string_view chemin);

} // namespace verdane
