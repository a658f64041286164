#include "engine/AnalyserCodes.h"

#include "engine/InterpreterCode.h"
#include "engine/PrefixesCode.h"
#include "graphs/ImagesAVenir.h"
#include "utils/Chaines.h"

#include <algorithm>

namespace verdane {

namespace {

// Position (from 1) of `cherche` in `texte` from position `depart` (from 1), exact case; 0 if
// absent.
long Chercher(const Texte& texte, std::string_view cherche, long depart) {
    if (depart < 1) depart = 1;
    const auto n = texte.find(cherche, static_cast<std::size_t>(depart - 1));
    return n == Texte::npos ? 0 : static_cast<long>(n) + 1;
}

// The searches of one close mark in a text that doesn't change between them: a search from a
// later start than the last gives the same answer unless it starts beyond it, so marks opened
// many times before one close cost one look at the text, not one each.
class Fermeture {
public:
    explicit Fermeture(std::string_view marque) : marque_(marque) {}
    long Depuis(const Texte& texte, long depart) {
        if (!(depart >= depuis_ && depuis_ > 0 && (trouve_ == 0 || trouve_ >= depart))) {
            depuis_ = depart;
            trouve_ = Chercher(texte, marque_, depart);
        }
        return trouve_;
    }
    void Oublier() { depuis_ = 0; } // the text changed

private:
    std::string_view marque_;
    long depuis_ = 0;
    long trouve_ = 0;
};

} // namespace

bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour) {
    return AnalyserCodes(ctx, texte, expliquer, miseAJour, nullptr);
}

bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool /*miseAJour*/,
                   Explication* explication) {
    const auto premier = TrouverSansCasse(texte, "#mrl(");
    long debut = premier == Texte::npos ? 0 : static_cast<long>(premier) + 1;
    bool resultat = true;
    Fermeture fermeture(")#");
    while (debut != 0) {
        long suite = debut + 5;
        const long autre = Chercher(texte, "#mrl(", suite);
        const long fin = fermeture.Depuis(texte, suite);
        if (autre != 0 && fin > autre) {
            // An open mark with no close of its own: the nested one wins.
        } else if (fin != 0 && debut < fin) {
            resultat =
                InterpreterCode(ctx, texte, debut, suite, fin, expliquer, false, explication);
            fermeture.Oublier();
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
    // A cell's text is reworked after its codes: a chart in it is finished in place.
    const ImagesDifferees enPlace(ctx.etat.graphes, false);
    // The cell is built anew as it is read: each mark is interpreted on its own, its value
    // appended, and the search goes on in the text read, which is never cut nor rebuilt.
    const std::string_view lu = texte;
    Texte cellule;
    std::size_t depart = 0;
    Fermeture fermeture(")%");
    for (;;) {
        const auto debut = lu.find("%mrl(", depart);
        if (debut == std::string_view::npos) break;
        const long ferme = fermeture.Depuis(texte, static_cast<long>(debut) + 6);
        const auto fin = ferme == 0 ? std::string_view::npos : static_cast<std::size_t>(ferme - 1);
        if (fin == std::string_view::npos) break;
        if (lu.find("%mrl(", debut + 5) < fin) {
            // Opened again before its close: as in a document, the inner mark wins and this
            // open stays as text.
            cellule.append(lu.substr(depart, debut + 5 - depart));
            depart = debut + 5;
            continue;
        }
        cellule.append(lu.substr(depart, debut - depart));
        Texte marque(lu.substr(debut, fin + 2 - debut));
        const auto longueur = static_cast<long>(marque.size());
        long suite = 6;
        InterpreterCode(ctx, marque, 1, suite, longueur - 1, false, true);
        // What the interpreter left behind `suite` is the end of the mark as it stood: a code
        // left as text is passed over from just behind its "%mrl(".
        const auto garde =
            static_cast<std::size_t>(std::clamp(suite - 1, 0L, static_cast<long>(marque.size())));
        cellule.append(marque, 0, garde);
        depart = fin + 2 - (marque.size() - garde);
    }
    cellule.append(lu.substr(depart));
    texte = std::move(cellule);
}

Explication ExpliquerCode(Contexte& ctx, const Texte& code) {
    Texte texte = code;
    if (TrouverSansCasse(texte, "#mrl(") == Texte::npos) texte = "#mrl(" + code + ")#";
    Explication explication;
    AnalyserCodes(ctx, texte, true, false, &explication);
    return explication;
}

} // namespace verdane
