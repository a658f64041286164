#include "tables/CalculFonctions.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <limits>
#include <numbers>

namespace verdane::calcul {

namespace {

using Args = std::span<const double>;

constexpr double kEchec = std::numeric_limits<double>::quiet_NaN();

// Second argument as a number of places: cut to an integer, as spreadsheets do.
int Places(Args a) {
    if (a.size() < 2) return 0;
    double p = std::trunc(a[1]);
    return static_cast<int>(std::clamp(p, -400.0, 400.0));
}

// x scaled by 10^places, and back; exact powers for the negative side.
double Echelle(double x, int places) {
    if (places >= 0) return x * std::pow(10.0, places);
    return x / std::pow(10.0, -places);
}
double Retour(double x, int places) {
    if (places >= 0) return x / std::pow(10.0, places);
    return x * std::pow(10.0, -places);
}

// Rounding to places by a rule applied to the scaled value. The scaled value is nudged away
// from zero by a few units of its last place, so that 2.675 (held as 2.67499999...) rounds up
// as a user reads it.
template <typename Regle> double Arrondir(Args a, Regle regle) {
    const int places = Places(a);
    if (places > 15) return a[0];
    double y = Echelle(a[0], places);
    if (!std::isfinite(y)) return a[0];
    y += std::copysign(std::fabs(y) * 4 * DBL_EPSILON, y);
    return Retour(regle(y), places);
}

double Round(Args a) {
    return Arrondir(a, [](double y) { return std::round(y); });
}
double RoundUp(Args a) {
    return Arrondir(a, [](double y) { return y < 0 ? std::floor(y) : std::ceil(y); });
}
double Trunc(Args a) {
    const int places = Places(a);
    if (places > 15) return a[0];
    double y = Echelle(a[0], places);
    if (!std::isfinite(y)) return a[0];
    // The same nudge as rounding, so that TRUNC(0.29;2) is 0.29 and not 0.28.
    y += std::copysign(std::fabs(y) * 4 * DBL_EPSILON, y);
    return Retour(std::trunc(y), places);
}

double Mod(Args a) {
    if (a[1] == 0) return kEchec;
    double r = a[0] - a[1] * std::floor(a[0] / a[1]);
    // The result takes the sign of the divisor; guard the edge where floor lost precision.
    if (r != 0 && (r < 0) != (a[1] < 0)) r += a[1];
    return r;
}

double Log(Args a) {
    const double base = a.size() > 1 ? a[1] : 10.0;
    if (a[0] <= 0 || base <= 0 || base == 1) return kEchec;
    return std::log(a[0]) / std::log(base);
}
double Ln(Args a) {
    return a[0] > 0 ? std::log(a[0]) : kEchec;
}
double Log10(Args a) {
    return a[0] > 0 ? std::log10(a[0]) : kEchec;
}
double Sqrt(Args a) {
    return a[0] >= 0 ? std::sqrt(a[0]) : kEchec;
}

double Power(Args a) {
    if (a[0] == 0 && a[1] < 0) return kEchec;
    return std::pow(a[0], a[1]);
}

double Sum(Args a) {
    double s = 0;
    for (double x : a) s += x;
    return s;
}
double Product(Args a) {
    double p = 1;
    for (double x : a) p *= x;
    return p;
}
double Average(Args a) {
    return Sum(a) / static_cast<double>(a.size());
}
double Min(Args a) {
    return *std::min_element(a.begin(), a.end());
}
double Max(Args a) {
    return *std::max_element(a.begin(), a.end());
}

double And(Args a) {
    return std::all_of(a.begin(), a.end(), [](double x) { return x != 0; }) ? 1 : 0;
}
double Or(Args a) {
    return std::any_of(a.begin(), a.end(), [](double x) { return x != 0; }) ? 1 : 0;
}

double Sign(Args a) {
    return a[0] > 0 ? 1 : (a[0] < 0 ? -1 : 0);
}
double Atan2(Args a) {
    // The spreadsheet order: ATAN2(x; y).
    if (a[0] == 0 && a[1] == 0) return kEchec;
    return std::atan2(a[1], a[0]);
}
double Asin(Args a) {
    return std::fabs(a[0]) <= 1 ? std::asin(a[0]) : kEchec;
}
double Acos(Args a) {
    return std::fabs(a[0]) <= 1 ? std::acos(a[0]) : kEchec;
}

constexpr int kSansLimite = -1;

// English names first, then those of a French spreadsheet.
const std::array kFonctions = {
    Fonction{"ABS", 1, 1, [](Args a) { return std::fabs(a[0]); }},
    Fonction{"INT", 1, 1, [](Args a) { return std::floor(a[0]); }},
    Fonction{"TRUNC", 1, 2, Trunc},
    Fonction{"ROUND", 1, 2, Round},
    Fonction{"ROUNDUP", 1, 2, RoundUp},
    Fonction{"ROUNDDOWN", 1, 2, Trunc},
    Fonction{"MOD", 2, 2, Mod},
    Fonction{"SQRT", 1, 1, Sqrt},
    Fonction{"POWER", 2, 2, Power},
    Fonction{"EXP", 1, 1, [](Args a) { return std::exp(a[0]); }},
    Fonction{"LN", 1, 1, Ln},
    Fonction{"LOG", 1, 2, Log},
    Fonction{"LOG10", 1, 1, Log10},
    Fonction{"PI", 0, 0, [](Args) { return std::numbers::pi; }},
    Fonction{"SIN", 1, 1, [](Args a) { return std::sin(a[0]); }},
    Fonction{"COS", 1, 1, [](Args a) { return std::cos(a[0]); }},
    Fonction{"TAN", 1, 1, [](Args a) { return std::tan(a[0]); }},
    Fonction{"ASIN", 1, 1, Asin},
    Fonction{"ACOS", 1, 1, Acos},
    Fonction{"ATAN", 1, 1, [](Args a) { return std::atan(a[0]); }},
    Fonction{"ATAN2", 2, 2, Atan2},
    Fonction{"DEGREES", 1, 1, [](Args a) { return a[0] * 180 / std::numbers::pi; }},
    Fonction{"RADIANS", 1, 1, [](Args a) { return a[0] * std::numbers::pi / 180; }},
    Fonction{"SIGN", 1, 1, Sign},
    Fonction{"MIN", 1, kSansLimite, Min},
    Fonction{"MAX", 1, kSansLimite, Max},
    Fonction{"SUM", 1, kSansLimite, Sum},
    Fonction{"PRODUCT", 1, kSansLimite, Product},
    Fonction{"AVERAGE", 1, kSansLimite, Average},
    Fonction{"IF", 2, 3, nullptr},
    Fonction{"AND", 1, kSansLimite, And},
    Fonction{"OR", 1, kSansLimite, Or},
    Fonction{"NOT", 1, 1, [](Args a) { return a[0] == 0 ? 1.0 : 0.0; }},
    Fonction{"ENT", 1, 1, [](Args a) { return std::floor(a[0]); }},
    Fonction{"TRONQUE", 1, 2, Trunc},
    Fonction{"ARRONDI", 1, 2, Round},
    Fonction{"ARRONDI.SUP", 1, 2, RoundUp},
    Fonction{"ARRONDI.INF", 1, 2, Trunc},
    Fonction{"RACINE", 1, 1, Sqrt},
    Fonction{"PUISSANCE", 2, 2, Power},
    Fonction{"SIGNE", 1, 1, Sign},
    Fonction{"SOMME", 1, kSansLimite, Sum},
    Fonction{"PRODUIT", 1, kSansLimite, Product},
    Fonction{"MOYENNE", 1, kSansLimite, Average},
    Fonction{"SI", 2, 3, nullptr},
    Fonction{"ET", 1, kSansLimite, And},
    Fonction{"OU", 1, kSansLimite, Or},
    Fonction{"NON", 1, 1, [](Args a) { return a[0] == 0 ? 1.0 : 0.0; }},
};

} // namespace

const Fonction* TrouverFonction(std::string_view nom) {
    for (const Fonction& f : kFonctions)
        if (EgalSansCasse(f.nom, nom)) return &f;
    return nullptr;
}

bool EstCondition(const Fonction& fonction) {
    return fonction.calcul == nullptr;
}

bool Egaux(double a, double b) {
    if (a == b) return true;
    return std::fabs(a - b) <= 1e-14 * std::max(std::fabs(a), std::fabs(b));
}

} // namespace verdane::calcul
