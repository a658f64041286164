// Mutated table codes: the reader must take anything, and what it makes must write and read
// back to the same number of lines.

#include "EssaisTableaux.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"

#include <gtest/gtest.h>

#include <random>

namespace verdane {
namespace {

using namespace essais_tableaux;

// A "x@" at the start of a text loses its two characters at each reading.
bool AnneeEnTete(const TableauModele& t) {
    for (const LigneModele& l : t.lignes) {
        if (l.definition.size() > 1 && l.definition[1] == '@') return true;
        for (const CelluleModele& c : l.cellules)
            if (c.texte.size() > 1 && c.texte[1] == '@') return true;
    }
    return false;
}

Texte Muter(Texte code, std::mt19937& alea) {
    static constexpr std::string_view kSignes = "[];#()@_:;0123456789-largtbcpdrseiu\xe9 ";
    const int mutations = 1 + static_cast<int>(alea() % 6);
    for (int m = 0; m < mutations; ++m) {
        const std::size_t taille = code.size();
        const std::size_t position = taille == 0 ? 0 : alea() % taille;
        switch (alea() % 6) {
        case 0: // a character removed
            if (taille > 0) code.erase(position, 1);
            break;
        case 1: // a sign of the code inserted
            code.insert(position, 1, kSignes[alea() % kSignes.size()]);
            break;
        case 2: // any byte in place of one
            if (taille > 0) code[position] = static_cast<char>(alea() % 256);
            break;
        case 3: // a run copied elsewhere
            code.insert(alea() % (taille + 1), code.substr(position, alea() % 40));
            break;
        case 4: // cut
            code.resize(position);
            break;
        default: // a huge number
            code.insert(position, "99999999999999999999");
            break;
        }
    }
    return code;
}

TEST(FuzzCodeTableau, CodesMutesSansDefaillance) {
    std::vector<Texte> graines;
    {
        int incomplete = 0;
        TableauModele t = ModeleComplet();
        graines.push_back(CodeModele(t, Options{}, incomplete));
        t.multiDossier = 1;
        for (LigneModele& l : t.lignes) l.annee = 4;
        graines.push_back(CodeModele(t, Options{}, incomplete));
        t.multiDossier = 0;
        t.genre = kTableauCulture;
        t.pageDebut = 42;
        graines.push_back(CodeModele(t, Options{}, incomplete));
    }
    std::mt19937 alea(20061);
    const Options options;
    for (int essai = 0; essai < 4000; ++essai) {
        const Texte code = Muter(graines[essai % graines.size()], alea);
        const TableauModele lu = LireCodeTableau(code);
        ASSERT_LE(lu.nbLignes(), kMaxLignesTableau) << code;
        ASSERT_GE(lu.nbColonnes, 0) << code;
        ASSERT_LE(lu.nbColonnes, kMaxColonnesLibelle) << code;

        int incomplete = 0;
        const Texte ecrit = CodeModele(lu, options, incomplete);
        const TableauModele relu = LireCodeTableau(ecrit);
        const int attendues = incomplete == 0 ? lu.nbLignes() : incomplete - 1;
        ASSERT_EQ(relu.nbLignes(), attendues) << code << "\n" << ecrit;
        if (!AnneeEnTete(lu)) {
            int encore = 0;
            ASSERT_EQ(CodeModele(relu, options, encore), ecrit) << code;
        }
    }
}

TEST(FuzzCodeTableau, OctetsAuHasard) {
    std::mt19937 alea(7);
    for (int essai = 0; essai < 2000; ++essai) {
        Texte code = essai % 2 ? "tab" : "culture";
        const std::size_t taille = alea() % 200;
        for (std::size_t i = 0; i < taille; ++i) code += static_cast<char>(alea() % 256);
        const TableauModele lu = LireCodeTableau(code);
        ASSERT_LE(lu.nbLignes(), kMaxLignesTableau);
    }
}

} // namespace
} // namespace verdane
