#include "engine/AnalyserCodes.h"

#include "engine/InterpreterCode.h"
#include "engine/PrefixesCode.h"
#include "utils/Chaines.h"

namespace verdane {

namespace {

// Position (from 1) of `cherche` in `texte` from position `depart` (from 1), exact case; 0 if
// absent.
long Chercher(const Texte& texte, std::string_view cherche, long depart) {
    if (depart < 1) depart = 1;
    const auto n = texte.find(cherche, static_cast<std::size_t>(depart - 1));
    return n == Texte::npos ? 0 : static_cast<long>(n) + 1;
}

} // namespace

bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour) {
    return AnalyserCodes(ctx, texte, expliquer, miseAJour, nullptr);
}

bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool /*miseAJour*/,
                   Explication* explication) {
    const auto premier = TrouverSansCasse(texte, "#mrl(");
    long debut = premier == Texte::npos ? 0 : static_cast<long>(premier) + 1;
    bool resultat = true;
    while (debut != 0) {
        long suite = debut + 5;
        const long autre = Chercher(texte, "#mrl(", suite);
        const long fin = Chercher(texte, ")#", suite);
        if (autre != 0 && fin > autre) {
            // An open mark with no close of its own: the nested one wins.
        } else if (fin != 0 && debut < fin) {
            resultat =
                InterpreterCode(ctx, texte, debut, suite, fin, expliquer, false, explication);
        } else if (fin == 0) {
            ctx.utilisateur.AfficherMessage(
                {"Verdane ne trouve pas une balise \")#\" dans le modèle de document utilisé "
                 "pour la création.",
                 "Modifier le modèle de document pour que l'erreur n'apparaisse plus.",
                 "Erreur détectée :  cliquez Fermer pour continuer", ""});
            suite = debut + 5;
        } else {
            ctx.utilisateur.AfficherMessage(
                {"une portion de code est mal balisée dans le modèle de document choisi pour la "
                 "création.",
                 "Modifier le modèle de document pour que l'erreur n'apparaisse plus.",
                 "Erreur détectée :  cliquez Fermer pour continuer", ""});
            suite = debut + 5;
        }
        debut = Chercher(texte, "#mrl(", suite);
    }
    return resultat;
}

void AnalyserCodesImbriques(Contexte& ctx, Texte& texte) {
    long depart = 1;
    while (true) {
        const long debut = Chercher(texte, "%mrl(", depart);
        if (debut == 0) return;
        const long fin = Chercher(texte, ")%", debut + 5);
        if (fin == 0) return;
        long suite = debut + 5;
        InterpreterCode(ctx, texte, debut, suite, fin, false, true);
        // A code left as text is passed over; the search goes on behind it.
        depart = suite;
    }
}

Explication ExpliquerCode(Contexte& ctx, const Texte& code) {
    Texte texte = code;
    if (TrouverSansCasse(texte, "#mrl(") == Texte::npos) texte = "#mrl(" + code + ")#";
    Explication explication;
    AnalyserCodes(ctx, texte, true, false, &explication);
    return explication;
}

} // namespace verdane
