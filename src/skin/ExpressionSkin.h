#pragma once
// Layout expressions of a skin: a position or a size that may follow the window's size, such as
// "me.width-12" or "me.height/2". One name (or both, added), then at most one operator among
// "+", "-", "*", "/" and a whole number; no precedence, no brackets. A text without either name
// is a plain number.

#include "utils/Texte.h"

#include <optional>
#include <string_view>

namespace verdane::skin {

// Values are kept within this bound either side, so that no size can overflow a drawing.
inline constexpr int kBorneValeur = 1'000'000;

struct ExpressionSkin {
    Texte texte;          // as written, blanks removed, lower case
    bool hauteur = false; // "me.height" in the text
    bool largeur = false; // "me.width" in the text
    char operateur = 0;   // 0 when none
    long long nombre = 0; // the plain number, or the operand of the operator
    bool valide = false;  // false: the text means nothing, the value is 0

    // True when the value doesn't depend on the window.
    bool Constante() const { return !hauteur && !largeur; }
    // The value for a window of this size, in pixels.
    int Valeur(int largeurFenetre, int hauteurFenetre) const;
};

// Reads an expression; when it means nothing, says why in `erreur` (when given).
ExpressionSkin AnalyserExpression(std::string_view texte, Texte* erreur = nullptr);

// The value of an expression for a window of this size; 0 when it means nothing.
int ValeurExpression(std::string_view texte, int largeurFenetre, int hauteurFenetre);

// A number of a skin file: decimal (sign, digits, an optional fraction rounded half to even) or
// hexadecimal written "&h1f" ("&" behind allowed) or "0x1f". Nothing when it isn't one.
std::optional<long long> NombreSkin(std::string_view texte);

} // namespace verdane::skin
