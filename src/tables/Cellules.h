#pragma once
// The cells of an RTF table row. A row is its prefix ("\trowd..."), then `definitions` (one
// frame per cell: borders, shading, right edge "\cellx"), then `cellules` (one paragraph per
// cell, each "{...}\cell"), then "\row\pard\plain ". The walker of table models and the
// domain tables lay their rows with these routines.

#include "tables/StyleCellule.h"
#include "utils/Texte.h"

#include <cstdint>
#include <string_view>

namespace verdane {

class Contexte;

// Right edges never go beyond this (twips), whatever the widths of a model.
inline constexpr int kPositionMax = 32767;

// Appends the frame of one cell to `definitions` and opens its paragraph in `cellules`.
// Borders "1" single, "2" double, anything else none; `fond` and `couleur` are colour indexes
// 1 to 16 of the program's palette, printed shifted by ctx.etat.decalageCouleurs; `position`
// is the cell's right edge in twips; `taille` is in half-points; a font below 5000 becomes
// 5006, and is written back to `police`; style flags apply when they read "1". The caller
// then appends " ", the text and "}\cell".
void FormatCellule(const Contexte& ctx, Texte& definitions, Texte& cellules, std::string_view haut,
                   std::string_view bas, std::string_view gauche, std::string_view droite,
                   std::string_view fond, int position, Texte& police, std::string_view taille,
                   std::string_view couleur, std::string_view gras, std::string_view italique,
                   std::string_view souligne, std::string_view barre, std::string_view ombre,
                   std::string_view alignement);

// The same from a cell style of a model: its size in points is doubled, 0 printing at 8
// points.
void FormatCellule(const Contexte& ctx, Texte& definitions, Texte& cellules,
                   const StyleCellule& style, int position);

// Adds the cells of `celluleCode` ("text;" then the fourteen format fields) to a row of the
// table in slot 1, line ctx.etat.tableaux.ligneCourante. `position` is the running right edge.
// A label cell (`estLibelle`) is one cell of that text, its marks %mrl(...)% expanded. Else the
// text is the line's definition and gives one cell per value column: titles, series of the
// dossier, totals, domain values; `modeAnnees` is set to 0 for a multi-dossier table. When the
// line's zero rule drops it, `cellules` becomes "VALEURS NULLES". `annexe`, when not 0, is the
// record of IMMORES.DON that an `imemp` cell reads.
void AjouterCellules(Contexte& ctx, const Texte& celluleCode, Texte& definitions, Texte& cellules,
                     int& position, bool estLibelle, std::int16_t& modeAnnees, int annexe = 0);

// Records the value text of `colonne` for the current line (as a number, read back as it is
// displayed) and puts it in display form: empty text reads 0, a zero shows as " ", and a
// negative value turns the last colour of `cellules` to red when the table in slot 1 asks so.
void PoserValeur(Contexte& ctx, Texte& texte, Texte& cellules, int colonne);

// The text of a row dropped by its zero rule.
inline constexpr std::string_view kValeursNulles = "VALEURS NULLES";
// True when `cellules` is, in upper case, "VALEURS NULLES".
bool EstValeursNulles(std::string_view cellules);

} // namespace verdane
