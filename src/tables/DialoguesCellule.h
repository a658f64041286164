#pragma once
// What the cell, size, width, header and defaults dialogs of the table editor decide: a frame
// read and written, applied to one cell or to the whole line, the row height shown as "AUTO",
// the width questions, the page start list, and the defaults' frames by kind of line.

#include "shell/etat/Contexte.h"
#include "tables/TableauModele.h"

#include <array>
#include <optional>

namespace verdane {

// A frame "top;bottom;left;right;background": borders 0 none, 1 single, 2 double, background
// a palette index 1 to 16.
struct Cadre {
    std::array<int, 4> bords{1, 1, 1, 1};
    int fond = 8;
    bool operator==(const Cadre&) const = default;
};
// An empty or short frame reads as "1;1;1;1;8" field by field; values out of range fall back
// to the same.
Cadre LireCadre(const Texte& format);
Texte EcrireCadre(const Cadre& cadre);

// Where the cell dialog writes: `cellule` 1..9 a label cell, 0 the value cells; `toutLaLigne`
// ("S") every cell of the line, else ("1") the one cell. False, told, when there is no table
// or the line is a spacing line (then nothing is written).
bool AppliquerCadre(Contexte& ctx, TableauModele* tableau, int numeroLigne, int cellule,
                    const Cadre& cadre, bool toutLaLigne);
// Whether the line's cells can take a custom format: not the fixed tables of investments and
// loans. Otherwise told.
bool MiseEnFormePermise(Contexte& ctx, const LigneModele& ligne);

// Row height as the size dialog shows it: "AUTO" for 10 or less.
Texte TexteHauteur(int hauteur);
// The height of a chosen text: "AUTO" gives 0; nothing for a text that is not a number.
std::optional<std::int16_t> HauteurDeTexte(const Texte& texte);
// The heights (from 100 by 100) and gaps (from 0 by 20) offered.
std::vector<Texte> HauteursProposees();
std::vector<Texte> RetraitsProposes();
// False, told, on a spacing line: its size is not a row's.
bool TailleModifiable(Contexte& ctx, const LigneModele& ligne);

// The width dialog's question: label column `colonne` (1..9) of `nbColonnes`, or the value
// columns when `colonne` is 0.
Texte QuestionLargeur(int colonne, int nbColonnes);
Texte AideLargeurValeurs();

// The page start list: "aucune" (-1) then 1 to 99.
std::vector<Texte> PagesDebutProposees();
std::int16_t PageDebutDeChoix(int choix);
int ChoixDePageDebut(std::int16_t pageDebut);

// The defaults dialog: the kinds of line that own a pair of frames, in the pairs' order.
const std::vector<Texte>& TextesGenresDefauts();
// The pair of kind `genre` (0..5) as shown: an unset frame is "1;1;1;1;8".
std::array<Texte, 2> PaireDefaut(const Options& options, int genre);
// Validation: the dialog's size, alignment ("gauche", "centré", "droite") and pairs written
// into the options, then saved. False when the file could not be written (told).
bool ValiderParametres(Contexte& ctx, int taille, const Texte& alignement,
                       const std::array<Texte, 12>& formats);
const std::vector<Texte>& TextesAlignements();
Texte AlignementDeTexte(const Texte& choix);
Texte TexteAlignement(const Texte& code);

} // namespace verdane
