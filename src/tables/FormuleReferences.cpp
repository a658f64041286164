#include "tables/FormuleReferences.h"

#include "utils/Chaines.h"

#include <charconv>

namespace verdane::formule {

namespace {

// The characters that the formula language knows of the expression around a reference:
// + - * / ( ) ² ^ & | : and the blank; then those of the calculator that can't belong to a
// number either, so that LG1<LG2 or MAX(LG1;LG2) read as two references.
constexpr std::string_view kTerminateurs = "+-*/()\xB2^&|: \t<>=;,%";

} // namespace

std::size_t FinNumero(std::string_view texte, std::size_t debut) {
    const std::size_t fin = texte.find_first_of(kTerminateurs, debut);
    return fin == std::string_view::npos ? texte.size() : fin;
}

std::optional<int> NumeroLigne(std::string_view texte) {
    const auto n = EntierStrict(texte);
    if (!n || *n < 1 || *n > kDerniereLigne) return std::nullopt;
    return static_cast<int>(*n);
}

Texte TexteNombre(float valeur, std::string_view decimale) {
    char tampon[32];
    auto r = std::to_chars(tampon, tampon + sizeof tampon, valeur);
    Texte texte(tampon, r.ptr);
    if (decimale == ",") texte = RemplacerExact(texte, ".", ",");
    return texte;
}

} // namespace verdane::formule
