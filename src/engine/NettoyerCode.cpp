#include "engine/NettoyerCode.h"

#include "utils/Chaines.h"

#include <array>
#include <cctype>
#include <cstdint>

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

constexpr std::string_view kSignets[] = {"kmkstartDDE_LINK", "bkmkendDDE_LINK", "kmkendDDE_LINK"};

bool SignetDans(std::string_view texte) {
    for (auto mot : kSignets)
        if (texte.find(mot) != std::string_view::npos) return true;
    return false;
}

// Bookmark words lose their digits one at a time, then themselves; a "kmk" left over goes
// alone, the first one each time, and the words are looked for again.
void RetirerSignets(Texte& code) {
    while (true) {
        bool retire = false;
        for (auto mot : kSignets)
            if (!retire && RetirerMotRtf(code, mot) == 1) retire = true;
        if (retire) continue;
        auto n = code.find("kmk");
        if (n == Texte::npos) return;
        // No word is left: removing a "kmk" can only make one across the join, so only the
        // join is looked at until one appears.
        while (n != Texte::npos) {
            code.erase(n, 3);
            const std::size_t debut = n >= 16 ? n - 16 : 0;
            if (SignetDans(std::string_view(code).substr(debut, 32))) break;
            n = code.find("kmk", n >= 2 ? n - 2 : 0);
        }
    }
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

    if (presents.Tous("kmk")) RetirerSignets(code);
    while (presents.Tous("endOLE")) {
        const auto n = code.find("endOLE");
        if (n == Texte::npos) break;
        if (RetirerMotRtf(code, "endOLE_LINK") == 1) continue;
        code.erase(n, std::string_view("endOLE_LINK").size());
    }

    if (!presents.Tous("\\")) return;
    code = RemplacerExact(code, "\\lquote", "'");
    code = RemplacerExact(code, "\\rquote", "'");
    code = RemplacerExact(code, "\\'80", "\x80");
}

} // namespace verdane
