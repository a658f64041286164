#include "tables/GenererTableau.h"

#include "shell/etat/Contexte.h"
#include "tables/Cellules.h"
#include "tables/Formules.h"
#include "tables/LectureCode.h"
#include "tables/LigneTableauRTF.h"
#include "tables/MultiDossiers.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <limits>

namespace verdane {

namespace {

// The escapes "\'xx" of accented letters, as a model's RTF writes them inside a code: the
// letters the codes use come back, any other escape goes.
Texte EchappementsVersLettres(const Texte& texte) {
    struct Lettre {
        const char* code;
        char lettre;
    };
    static constexpr Lettre kLettres[] = {
        {"e0", '\xE0'}, {"e2", '\xE2'}, {"e7", '\xE7'}, {"e8", '\xE8'}, {"e9", '\xE9'},
        {"ea", '\xEA'}, {"ee", '\xEE'}, {"f4", '\xF4'}, {"f9", '\xF9'}, {"fb", '\xFB'},
    };
    Texte r;
    r.reserve(texte.size());
    std::size_t i = 0;
    while (i < texte.size()) {
        if (texte.compare(i, 2, "\\'") != 0) {
            r += texte[i++];
            continue;
        }
        const Texte code = texte.substr(i + 2, 2);
        for (const Lettre& l : kLettres)
            if (code == l.code) r += l.lettre;
        i += 4;
    }
    return r;
}

bool CommenceParPrefixe(const Texte& code) {
    return CommencePar(code, "culture") || CommencePar(code, "cultper") ||
           CommencePar(code, "actlibr");
}

} // namespace

Texte GenererTableau(Contexte& ctx, const Texte& codeDocument) {
    Texte code;
    code.reserve(codeDocument.size());
    for (char c : codeDocument)
        if (c != ' ') code += c;
    // An escape may have been written in several passes: go on until none is left.
    while (code.find("\\'") != Texte::npos) code = EchappementsVersLettres(code);

    EtatTableaux& et = ctx.etat.tableaux;
    et.TableauxCourants.resize(1);
    if (CommenceParPrefixe(code)) LirePrefixeTableau(ctx, code, 1);
    LireEnteteTableau(ctx, code, 1);
    SelectionnerDossiers(ctx, et.TableauxCourants[0]);
    LireLignesTableau(ctx, code, 1);

    Texte rtf;
    const int nbLignes = et.TableauxCourants.empty() ? 0 : et.TableauxCourants[0].nbLignes();
    for (int n = 1; n <= nbLignes; ++n) {
        et.ligneCourante = static_cast<std::int16_t>(n);
        Texte ligne = LigneTableauRTF(ctx);
        if (!EstValeursNulles(ligne)) rtf += ligne;
    }
    et.ligneCourante = 0;
    return rtf;
}

} // namespace verdane
