#pragma once
// Formulas of tables and of the "formule:" code: references to the lines of the table (`LG`n)
// and to the series of the dossier (`LG(`file`-`record`)`, with `!A-1` or `!A`y for another
// year) become numbers, then the calculator gives the value.

#include "shell/etat/Contexte.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace verdane {

// Column arguments of SubstituerFormule below 0.
inline constexpr int kColonneLibelles = -1;    // references become labels ("Formule en clair")
inline constexpr int kColonneHorsTableau = -2; // check of a formula outside a table

// What a formula needs to know of the table it stands in.
struct TableauFormule {
    // Year mode of the table: 1 means that its first value column is the start year.
    std::int16_t modeAnnees = 0;
    // The label of line n for the clear display: the first non-empty text of its label
    // cells 1, 2, 3. Not set: empty labels.
    std::function<Texte(int ligne)> libelleLigne;
    // Readers of the dossier's series, `<tag>-<record>` at a year index and its label. Not
    // set: ValeurSerie and LibelleSerie of the data reader.
    std::function<float(const Texte& code, int annee)> valeurSerie;
    std::function<Texte(const Texte& code)> libelleSerie;
};

// `formule`[":"decimals] computed for `colonne` (the year, 0 being the start year), as the
// text that FormatNombre gives; decimals 7 when absent. A formula that the calculator can't
// read counts as 0.
Texte EvaluerFormule(Contexte& ctx, const Texte& formule, int colonne,
                     const TableauFormule& tableau = {});

// The formula with its references replaced: by numbers for a column of 0 or more (values of
// line n from ctx.etat.tableaux.valeursLignes, series through ValeurSerie), by labels for
// kColonneLibelles, and for kColonneHorsTableau series by labels while `LG`n is refused.
// "_" stands for a blank. Faults are told to the user; the text is then returned as it
// stood, or empty for an `LG` with nothing behind it.
Texte SubstituerFormule(Contexte& ctx, const Texte& formule, int colonne,
                        const TableauFormule& tableau = {});

// The editor's check of a free formula; `ligneProposee(n)` tells whether line n is among the
// lines that the dialog offers (those above the line being edited). True when it is right;
// otherwise the fault has been told.
bool VerifierFormule(Contexte& ctx, const Texte& formule,
                     const std::function<bool(int ligne)>& ligneProposee);

enum class SensRenumerotation { Plus, Moins }; // a line inserted after, or deleted at, p

// Adjusts the line numbers of the total `definition` (of line `ligneFormule`) after a line
// was inserted after, or deleted at, `ligneChangee`. `ligneDefinie(n)` tells whether line n,
// numbered as after the change, has a definition. A formula that can't follow is emptied.
// Only definitions beginning with "total" are touched. True when `definition` changed.
bool RenumeroterFormule(Contexte& ctx, Texte& definition, int ligneChangee, int ligneFormule,
                        SensRenumerotation sens,
                        const std::function<bool(int ligne)>& ligneDefinie);

// The line numbers that a formula refers to by `LG`n, in order (a number that can't be read
// is left out): for the editor, to tell which totals a move of lines touches.
std::vector<int> LignesReferencees(const Texte& formule);

} // namespace verdane
