#pragma once
// The calculator of formulas: a numeric expression as a spreadsheet cell reads it, once the
// references of a formula have become numbers.
//
// Grammar, from the loosest to the tightest binding:
//   comparisons   = <> < > <= >=          left to right, 1 when true and 0 when false
//   concatenation &                       the texts of both numbers joined, read back as a number
//   addition      + -
//   product       * /
//   power         ^                       left to right: 2^3^2 is 64
//   postfix       % (hundredth)  ² (square)
//   signs         - +                     bind tightest: -2^2 is 4, 2^-1 is 0.5
//   operands      numbers, (expression), NAME(arguments)
//
// Numbers: digits with "." or "," as decimal mark and an optional exponent (1.5, 1,5, 2E-3,
// .5). A "," is a decimal mark only between the digits of a number that has none yet, so
// MIN(1,5;2) is 1.5 and MIN(1, 5) or MIN(1.5,2) take two arguments. Arguments are separated
// by ";" or by such a ",". Blanks are ignored; one "=" may stand in front, as a cell formula
// is typed.
//
// Function names are read without regard to case; angles are in radians. The names of a
// French spreadsheet are known as well (SOMME, MOYENNE, SI, ET, OU, NON, ARRONDI, ENT, ...).
//
// A text that can't be read (syntax, unknown function, wrong number of arguments, nesting
// deeper than kProfondeurMaxCalcul) gives no value, and so does a calculation that fails
// (division by zero, square root of a negative number, overflow). IF only takes the failure
// of the branch it chooses. Nothing is thrown.

#include <optional>
#include <string_view>

namespace verdane {

// Depth of nested parentheses and function calls that the calculator reads.
inline constexpr int kProfondeurMaxCalcul = 200;

// The value of the expression, or nothing.
std::optional<double> Calculer(std::string_view expression) noexcept;

// True when the expression reads, whatever its values give (a division by zero is readable).
bool CalculLisible(std::string_view expression) noexcept;

} // namespace verdane
