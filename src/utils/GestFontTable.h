#pragma once
// The program's own fonts and colours, added to the head of every result so that table cells
// can name them whatever the model's header holds.

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace verdane {

inline constexpr int kPremierePolice = 5000;
inline constexpr int kDernierePolice = 5156;
inline constexpr int kPoliceDefaut = 5006; // Arial

struct Couleur {
    int rouge;
    int vert;
    int bleu;
};

// The palette: index 1 to 16 as stored in a cell format (entry 0 unused).
const std::array<Couleur, 17>& Palette();
// The 157 font names, numbers 5000 to 5156.
const std::array<const char*, 157>& PolicesConnues();

// The name of font 5000 to 5156; "Arial" outside that range.
Texte NomPolice(int numero);
// The number of a font by its exact name, as text; "5006" when the name isn't in the list.
Texte NumeroPolice(std::string_view nom);

// Inserts the fonts right behind the first "{\fonttbl" from `debut`, before the model's own;
// nothing if absent. True if the table was there.
bool AjouterPolices(Texte& texte, std::size_t debut = 0);
// Inserts the sixteen colours at the end of the colour table "{\colortbl;...;}" and returns
// the count of ";\" from the table's start to the end of the text (the colour shift); nothing
// inserted when there is no such table from `debut` on.
std::optional<std::int16_t> AjouterCouleurs(Texte& texte, std::size_t debut = 0);

} // namespace verdane
