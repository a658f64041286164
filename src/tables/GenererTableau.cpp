#include "tables/GenererTableau.h"

#include "engine/InsererValeur.h"
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
    RtfVersTexte(code);

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
