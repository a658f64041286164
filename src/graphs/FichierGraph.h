#pragma once
// The graph library graph.txt: records of 1224 bytes from record 1, no header, no count,
// in the graph model folder. It is read whole and written whole.

#include "graphs/EtatGraphes.h"
#include "shell/etat/Contexte.h"

#include <string>
#include <string_view>

namespace verdane {

inline constexpr const char* kFichierGraphes = "graph.txt";
// What the clear-text view of a gph( code puts before the code it passes to
// AjouterCodeAuFichier, so that the recovered graph's title tells where it came from.
inline constexpr const char* kPrefixeRecupere = "Récupéré: ";

// Path of graph.txt; empty when the graph model folder isn't known.
Texte CheminFichierGraph(const Etat& etat);

// The records of a library's bytes into graphes(1...), nbGraphes set. A tail shorter than a
// record is dropped. Returns the number of whole records the bytes hold, up to 51: above 50
// some could not be taken.
int ChargerGraphes(EtatGraphes& eg, std::string_view octets);
// The bytes of records 1 to nbGraphes.
std::string OctetsGraphes(const EtatGraphes& eg);

// Titles made unique: a later twin of a record gets its trimmed title with 2, 3... behind it.
void NormaliserNoms(EtatGraphes& eg);

// Creates the folder if needed, and graph.txt if missing, then loads it. More than 50 records
// are told to the user and only the first 50 are kept.
void LireFichierGraph(Contexte& ctx);
// Normalises the titles and writes records 1 to nbGraphes in place of the file. False, after
// telling the user, when the file could not be written.
bool EcrireFichierGraph(Contexte& ctx);
// Reads graph.txt, parses `code` into a new last record and writes the file. `code` is the
// text of a gph( code, with or without "gph(" and ")". Returns the new record's index, or 0
// when the library is full or could not be written.
int AjouterCodeAuFichier(Contexte& ctx, std::string_view code);

} // namespace verdane
