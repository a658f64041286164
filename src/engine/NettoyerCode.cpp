#include "engine/NettoyerCode.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <span>

namespace verdane {

namespace {

// Control words that LibreOffice and recent Word put around a run of text, and the font size
// of any word processor. The removals below would cut them in pieces ("\cf1" would leave "f1",
// "\fs22" a lone backslash), so they go whole first, with their number and the blank that ends
// them.
constexpr std::string_view kMotsDeMiseEnForme[] = {
    "rtlch",   "ltrch",   "loch",    "hich",     "dbch",     "fcs",     "af",
    "afs",     "ab",      "ai",      "insrsid",  "charrsid", "cf",      "f",
    "kerning", "langfe",  "langnp",  "langfenp", "alang",    "noproof", "highlight",
    "cb",      "chcbpat", "expndtw", "expnd",    "cgrid",    "chshdng", "fs"};

bool EstMotDeMiseEnForme(std::string_view mot) {
    for (auto m : kMotsDeMiseEnForme)
        if (m == mot) return true;
    return false;
}

void RetirerMotsDeMiseEnForme(Texte& code) {
    Texte sortie;
    sortie.reserve(code.size());
    std::size_t i = 0;
    while (i < code.size()) {
        if (code[i] != '\\') {
            sortie += code[i++];
            continue;
        }
        std::size_t j = i + 1;
        while (j < code.size() && code[j] >= 'a' && code[j] <= 'z') ++j;
        if (j == i + 1 || !EstMotDeMiseEnForme(std::string_view(code).substr(i + 1, j - i - 1))) {
            sortie += code[i++];
            continue;
        }
        if (j < code.size() && code[j] == '-') ++j;
        while (j < code.size() && std::isdigit(static_cast<unsigned char>(code[j]))) ++j;
        if (j < code.size() && code[j] == ' ') ++j;
        i = j;
    }
    code = std::move(sortie);
}

// In this order: a longer word before its prefix.
constexpr std::string_view kRetraits[] = {"\\sect",
                                          "\\page",
                                          "\\fs16",
                                          "fs20",
                                          "fs22",
                                          "\\fs24",
                                          "\\fs28",
                                          "\\fs32",
                                          "\\fs36",
                                          "\\fs40",
                                          "\\caps",
                                          "\\plain",
                                          "\\par",
                                          "\\cs",
                                          "\\c",
                                          "\\i",
                                          "\\~",
                                          "\\lang2057 ",
                                          "\x08",
                                          "\t",
                                          "\n",
                                          "\r",
                                          "\\lang",
                                          "\\fs",
                                          "\\b",
                                          "\\ul",
                                          "\\*\\",
                                          "\\*",
                                          "{",
                                          "}",
                                          " ",
                                          "d\\s5\\lotusoutlinelevel0",
                                          "\\lotusoutlinelevel0"};

// Bookmark words of Word: each goes with the digits behind it. A word before any word that
// ends it ("bkmkend" before "kmkend").
constexpr std::string_view kSignets[] = {"kmkstartDDE_LINK", "bkmkendDDE_LINK", "kmkendDDE_LINK"};
constexpr std::string_view kLiensOle[] = {"endOLE_LINK"};

// Removing words until none is left, each time the first one with the digits behind it, and
// then the first `repli` with `saut` bytes behind it, the words first again whenever one
// appears: all of it in one pass. The text is copied byte by byte; the copy never holds a word,
// so one can only appear at its end, where it is taken off at once, and the digits behind it
// are not copied. A `repli` at the end of the copy is the first one of the text; it goes unless
// a word straddles the end of the copy, which the repeated removals would take first.
class Reduction {
public:
    Reduction(std::span<const std::string_view> mots, std::string_view repli, std::size_t saut)
        : mots_(mots), repli_(repli), saut_(saut) {}

    Texte operator()(std::string_view entree) const {
        Texte sortie;
        sortie.reserve(entree.size());
        std::size_t i = 0;
        while (i < entree.size()) {
            sortie += entree[i++];
            if (const auto mot = MotEnFin(sortie); mot > 0) {
                sortie.resize(sortie.size() - mot);
                while (i < entree.size() && EstChiffre(entree[i])) ++i;
            } else if (!repli_.empty() && FinitPar(sortie, repli_) &&
                       !MotACheval(sortie, entree.substr(i))) {
                sortie.resize(sortie.size() - repli_.size());
                i += std::min(saut_, entree.size() - i);
            }
        }
        return sortie;
    }

private:
    static bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

    std::size_t MotEnFin(std::string_view texte) const {
        for (auto mot : mots_)
            if (texte.back() == mot.back() && FinitPar(texte, mot)) return mot.size();
        return 0;
    }

    bool MotACheval(std::string_view avant, std::string_view apres) const {
        for (auto mot : mots_)
            for (std::size_t j = 1; j < mot.size(); ++j)
                if (FinitPar(avant, mot.substr(0, j)) && CommencePar(apres, mot.substr(j)))
                    return true;
        return false;
    }

    std::span<const std::string_view> mots_;
    std::string_view repli_;
    std::size_t saut_;
};

// The words go first, all of them; then the fallbacks, with the words that their removals
// bring together.
void Reduire(Texte& code, std::span<const std::string_view> mots, std::string_view repli,
             std::size_t saut) {
    code = Reduction(mots, repli, saut)(Reduction(mots, {}, 0)(code));
}

// The bytes a code holds, found in one pass. Removals take bytes away and never bring any, so
// a word with a byte the code lacks can't be in it, before or after any removal.
class OctetsPresents {
public:
    explicit OctetsPresents(std::string_view code) {
        for (unsigned char c : code) bits_[c / 64] |= std::uint64_t{1} << (c % 64);
    }
    bool Tous(std::string_view mot) const {
        for (unsigned char c : mot)
            if (!(bits_[c / 64] & (std::uint64_t{1} << (c % 64)))) return false;
        return true;
    }

private:
    std::array<std::uint64_t, 4> bits_{};
};

void Retirer(Texte& code, const OctetsPresents& presents, std::string_view mot) {
    if (presents.Tous(mot) && code.find(mot) != Texte::npos) code = RemplacerExact(code, mot, "");
}

} // namespace

int RetirerMotRtf(Texte& code, std::string_view mot) {
    const auto n = code.find(mot);
    if (mot.empty() || n == Texte::npos) return -1;
    const auto derriere = n + mot.size();
    if (derriere < code.size() && code[derriere] >= '0' && code[derriere] <= '9')
        code.erase(derriere, 1);
    else
        code.erase(n, mot.size());
    return 1;
}

void NettoyerCode(Texte& code) {
    // A code as the user typed it, without any RTF, is the usual case: one look settles it.
    const OctetsPresents presents(code);
    if (presents.Tous("\\")) RetirerMotsDeMiseEnForme(code);
    for (auto mot : kRetraits) Retirer(code, presents, mot);

    // Bookmarks, and a "kmk" left alone.
    if (presents.Tous("kmk")) Reduire(code, kSignets, "kmk", 0);
    // OLE links; an "endOLE" without its "_LINK" goes with the five bytes behind it.
    if (presents.Tous("endOLE")) Reduire(code, kLiensOle, "endOLE", 5);

    if (!presents.Tous("\\")) return;
    code = RemplacerExact(code, "\\lquote", "'");
    code = RemplacerExact(code, "\\rquote", "'");
    code = RemplacerExact(code, "\\'80", "\x80");
}

} // namespace verdane
