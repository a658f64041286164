#pragma once
// The fourteen fields of a cell format, read from and written to the two strings a model keeps:
// font; size; colour; bold; italic; underlined; struck; shadow; alignment (the text format),
// then top; bottom; left; right border; background (the frame).

#include "shell/etat/Etat.h"
#include "utils/Texte.h"

#include <string_view>

namespace verdane {

inline constexpr int kPoliceDefaut = 5006;
inline constexpr int kPremierePolice = 5000;
inline constexpr int kFondBlanc = 8;

enum Bordure { kSansBordure = 0, kBordureSimple = 1, kBordureDouble = 2 };

struct StyleCellule {
    int police = kPoliceDefaut; // 5000 to 5156; below 5000 reads 5006
    int taille = 10;            // points, decimals cut; 0 prints at 8 points
    int couleur = 1;            // colour index 1 to 16
    bool gras = false;
    bool italique = false;
    bool souligne = false;
    bool barre = false;
    bool ombre = false;
    Texte alignement = "c"; // "l", "c" or "r"
    int haut = kBordureSimple;
    int bas = kBordureSimple;
    int gauche = kBordureSimple;
    int droite = kBordureSimple;
    int fond = kFondBlanc; // colour index

    bool operator==(const StyleCellule&) const = default;
};

// The style the formats give once written: an empty format, or missing fields, take the
// defaults of the writer (the configured text format, the frame "0;0;0;0;8").
StyleCellule LireStyleCellule(const Texte& formatTexte, const Texte& formatCadre,
                              const Options& options);
Texte FormatTexteDe(const StyleCellule& style);
Texte FormatCadreDe(const StyleCellule& style);

} // namespace verdane
