#pragma once
// The text formats of a line as the line dialog edits them: one cell at a time (a label cell,
// or the value cells), its font, size, colour, styles and alignment made into `formatTexte`.
// A label cell moved to that has no text format, or no frame, takes one the preview can show.

#include "shell/etat/Etat.h"
#include "tables/StyleCellule.h"
#include "tables/TableauModele.h"

namespace verdane {

inline constexpr const char* kFormatTexteSaisie = "1;8;1;0;0;0;0;0;c";

// The alignments offered, "gauche", "centré", "droite", and their letters "l", "c", "r".
const std::vector<Texte>& TextesAlignementsTexte();
int ChoixAlignement(const Texte& lettre);
Texte LettreAlignement(int choix);

class FormatsLigne {
public:
    // The label cells 1 to `nbColonnes` of `ligne`, and its value cells (cell 0).
    FormatsLigne(LigneModele ligne, int nbColonnes, const Options& options);

    // Moves to cell `cellule` (0 the value cells, 1..nbColonnes a label cell).
    void Choisir(int cellule);
    int Cellule() const { return cellule_; }
    // The format of the current cell, as the controls show it.
    StyleCellule Style() const;
    // The controls changed: the current cell's text format, its frame untouched.
    void Modifier(const StyleCellule& style);

    const LigneModele& Ligne() const { return ligne_; }

private:
    Texte& FormatTexte();
    Texte& FormatCadre();

    LigneModele ligne_;
    int nbColonnes_;
    const Options* options_;
    int cellule_ = 0;
};

} // namespace verdane
