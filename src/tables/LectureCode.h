#pragma once
// Reading a table code into a model. The reading is quiet by design: a malformed code never
// fails, it gives zeros, defaults or a shortened table.
//
// A code reads, left to right: an optional repetition prefix ("culture", "cultper" or
// "actlibr", the header form, the page start), "tab", the dossier mode ("a" or "d" and a digit),
// "p" and the number of label columns, "c" (centred), "r" (negatives in red), the year mode,
// ";larg" and a width per label column, ";larg" and the width of the value block, then the
// lines between "(" and ")", separated by "#", each a run of brackets:
// "[height;gap]", one "[text;format]" per label column, "[definition;format]".

#include "tables/TableauModele.h"
#include "utils/Texte.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace verdane {

class Contexte;

// Number of a code: blanks around, a sign, digits, an optional decimal part ("." or ",")
// rounded half to even. Anything else, or a value beyond 16 bits, reads 0.
std::int16_t NombreTableau(std::string_view texte);

// The text between the next "[" of `reste` and the following "]"; `reste` goes on behind the
// "]". Nothing when either sign is missing (the program's "erreur"), and `reste` is used up.
std::optional<std::string_view> PrendreCrochet(std::string_view& reste);

// Position of the n-th ";" (n from 1) of `texte`, npos if it holds fewer.
std::size_t PositionPointVirgule(std::string_view texte, int n);

// Takes the repetition prefix off `code` and sets `genre`, `typeEntete`, `pageDebut`
// (without prefix: 0, 1, -1).
void LirePrefixeTableau(Texte& code, TableauModele& tableau);
// Reads the head of a code that begins with "tab" (prefix already taken off): dossier mode,
// label columns, centring, red negatives, year mode, widths. Lines are left as they are.
void LireEnteteTableau(std::string_view code, TableauModele& tableau);
// Reads the lines of the same code, with the label columns and dossier mode that `tableau`
// holds (read by LireEnteteTableau). At most 511 lines; the lines held before are replaced.
void LireLignesTableau(std::string_view code, TableauModele& tableau);

// The whole reading of one code (prefix, head, lines) into a fresh model.
TableauModele LireCodeTableau(std::string_view code);

// The same, on slot `numero` (from 1) of the loaded tables; nothing if there is no such slot.
void LirePrefixeTableau(Contexte& ctx, Texte& code, int numero);
void LireEnteteTableau(Contexte& ctx, std::string_view code, int numero);
void LireLignesTableau(Contexte& ctx, std::string_view code, int numero);

} // namespace verdane
