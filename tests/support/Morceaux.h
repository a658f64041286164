#pragma once
// Checks on the pieces of a produced text (RTF, a journal joined...): each piece that breaks the
// rule is named in the failure, so a list of pieces is one check per piece.

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace verdane::test {

// Every piece stands in `texte`.
inline ::testing::AssertionResult Contient(std::string_view texte,
                                           std::initializer_list<std::string_view> morceaux) {
    std::string manquants;
    for (auto m : morceaux)
        if (texte.find(m) == std::string_view::npos) manquants += "\n  [" + std::string(m) + "]";
    if (manquants.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "missing:" << manquants;
}

// No piece stands in `texte`.
inline ::testing::AssertionResult Exclut(std::string_view texte,
                                         std::initializer_list<std::string_view> morceaux) {
    std::string presents;
    for (auto m : morceaux)
        if (texte.find(m) != std::string_view::npos) presents += "\n  [" + std::string(m) + "]";
    if (presents.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "present:" << presents;
}

// The pieces stand in `texte` in this order, each after the one before.
inline ::testing::AssertionResult DansLOrdre(std::string_view texte,
                                             std::initializer_list<std::string_view> morceaux) {
    std::size_t depuis = 0;
    for (auto m : morceaux) {
        const auto p = texte.find(m, depuis);
        if (p == std::string_view::npos)
            return ::testing::AssertionFailure() << "not found in order: [" << m << "]";
        depuis = p + m.size();
    }
    return ::testing::AssertionSuccess();
}

// Occurrences of `motif` in `texte`, overlapping ones included.
inline int Compter(std::string_view texte, std::string_view motif) {
    int n = 0;
    for (auto p = texte.find(motif); p != std::string_view::npos; p = texte.find(motif, p + 1)) ++n;
    return n;
}

} // namespace verdane::test
