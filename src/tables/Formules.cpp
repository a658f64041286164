#include "tables/Formules.h"

#include "data/FormatNombre.h"
#include "data/ValeurCode.h"
#include "tables/Calculateur.h"
#include "tables/FormuleReferences.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace verdane {

namespace {

using formule::FinNumero;
using formule::NumeroLigne;
using formule::TexteNombre;

// Text of a reference that names nothing (a line outside the table, a column past the last):
// the calculator can't read it, so the formula counts as 0.
constexpr const char* kReferenceInvalide = "#REF!";

// A replacement that may hold or make an `LG` is read again; labels can name one another, so
// the number of such readings is bounded.
constexpr int kRelecturesMax = 10000;

constexpr const char* kErreurLigneTotal = "La formule de calcul d'une ligne de total est erronée.";

void Dire(Contexte& ctx, const Texte& texte, const Texte& technique, const Texte& titre) {
    ctx.utilisateur.AfficherMessage(Message{texte, technique, titre, ""});
}

// The year that `LG(code!A...)` reads at `colonne`, and the code without its year word.
int AnneeReference(Contexte& ctx, Texte& code, int colonne, const TableauFormule& tableau,
                   const Texte& titre) {
    const std::size_t marque = code.find("!A");
    if (marque == Texte::npos) return colonne;
    const long long mot = ValEntier(code.substr(marque + 2));
    code.erase(marque);
    if (mot != -1) return static_cast<int>(std::clamp<long long>(mot, INT_MIN, INT_MAX));
    if (tableau.modeAnnees == 1) {
        Dire(ctx,
             "Erreur de conception du modèle de tableau en cours d'interprétation :\r"
             "Une formule de calcul demande à ce que les valeurs d'une ligne débute à "
             "NumAnnee-1\r"
             "pour un tableau qui débute déjà à l'année début ! Modifier le modèle.",
             "", titre);
        return colonne;
    }
    return colonne - 1;
}

Texte ValeurLigne(const Contexte& ctx, std::string_view numero, int colonne) {
    const auto ligne = NumeroLigne(numero);
    const auto& valeurs = ctx.etat.tableaux.valeursLignes;
    if (!ligne || colonne >= static_cast<int>(valeurs.size())) return kReferenceInvalide;
    const float v = valeurs[static_cast<std::size_t>(colonne)][static_cast<std::size_t>(*ligne)];
    return TexteNombre(v, ctx.etat.marques.decimale);
}

} // namespace

Texte SubstituerFormule(Contexte& ctx, const Texte& formule, int colonne,
                        const TableauFormule& tableau) {
    const Texte titre = colonne >= 0 ? "Tableau incorrect dans le modèle de document."
                                     : "Formule de total incorrecte.";
    Texte reste = RemplacerExact(formule, "_", " ");
    Texte sortie;
    std::size_t pos = 0;
    int relectures = 0;
    for (;;) {
        const std::size_t lg = reste.find("LG", pos);
        if (lg == Texte::npos) return sortie.append(reste, pos);
        sortie.append(reste, pos, lg - pos);
        Texte remplacement;
        std::size_t fin;
        if (lg + 2 < reste.size() && reste[lg + 2] == '(') {
            const std::size_t ferme = reste.find(')', lg + 3);
            if (ferme == Texte::npos) {
                Dire(ctx, kErreurLigneTotal,
                     "Diagnostic : Il manque la parenthèse fermante après le code d'un LG.", titre);
                return sortie.append(reste, lg);
            }
            Texte code = reste.substr(lg + 3, ferme - lg - 3);
            if (code.find('-') == Texte::npos) {
                Dire(ctx, kErreurLigneTotal,
                     "Diagnostic : Concernant le code entre parenthèse d'un LG, il manque le "
                     "tiret entre le nom du fichier et le numéro d'enregistrement.",
                     titre);
                return sortie.append(reste, lg);
            }
            if (colonne >= 0) {
                const int annee = AnneeReference(ctx, code, colonne, tableau, titre);
                const float v = tableau.valeurSerie ? tableau.valeurSerie(code, annee)
                                                    : ValeurSerie(ctx, code, annee);
                remplacement = TexteNombre(v, ctx.etat.marques.decimale);
            } else {
                const std::size_t marque = code.find("!A");
                if (marque != Texte::npos) code.erase(marque);
                remplacement =
                    tableau.libelleSerie ? tableau.libelleSerie(code) : LibelleSerie(ctx, code);
            }
            fin = ferme + 1;
        } else {
            fin = FinNumero(reste, lg + 2);
            if (fin == lg + 2) {
                Dire(ctx, "Formule erronée.",
                     "Il manque le code après un LG qui n'a pas de sens écrit tout seul", titre);
                return {};
            }
            const std::string_view numero = std::string_view(reste).substr(lg + 2, fin - lg - 2);
            if (colonne >= 0) {
                remplacement = ValeurLigne(ctx, numero, colonne);
            } else if (colonne == kColonneLibelles) {
                const auto ligne = NumeroLigne(numero);
                if (ligne && tableau.libelleLigne) remplacement = tableau.libelleLigne(*ligne);
            } else {
                Dire(ctx, "Formule erronée. Insertion impossible.",
                     "Votre formule contient le code LGn qui désigne une ligne n de tableau. \r"
                     "Vous ne pouvez utiliser ce type de code ici, utilisez la formulation "
                     "LG<nomFic-numEnreg>\r"
                     "en sélectionnant vos séries de données directement dans l'arbre de choix "
                     "ci-contre.",
                     titre);
            }
        }
        // A number holds no L nor G: go on behind it. Anything else is read again from where
        // an `LG` could now begin, as if the search started over.
        if (!remplacement.empty() && remplacement.find_first_of("LG") == Texte::npos) {
            sortie += remplacement;
            pos = fin;
            continue;
        }
        if (++relectures > kRelecturesMax) return sortie.append(remplacement).append(reste, fin);
        const bool rendreL = !sortie.empty() && sortie.back() == 'L';
        if (rendreL) sortie.pop_back();
        Texte suite(rendreL ? 1 : 0, 'L');
        suite.append(remplacement).append(reste, fin);
        reste = std::move(suite);
        pos = 0;
    }
}

Texte EvaluerFormule(Contexte& ctx, const Texte& formule, int colonne,
                     const TableauFormule& tableau) {
    Texte calcul = formule;
    std::int16_t decimales = 7;
    if (const std::size_t deuxPoints = formule.find(':'); deuxPoints != Texte::npos) {
        calcul.erase(deuxPoints);
        const long long d = ValEntier(formule.substr(deuxPoints + 1));
        if (d >= 0 && d <= 6) decimales = static_cast<std::int16_t>(d);
    }
    calcul = RemplacerExact(SubstituerFormule(ctx, calcul, colonne, tableau), ",", ".");
    const std::optional<double> valeur = Calculer(calcul);
    float resultat = valeur ? static_cast<float>(*valeur) : 0.0f;
    if (!std::isfinite(resultat)) resultat = 0.0f;
    return FormatNombre(resultat, decimales, false, ctx.etat.marques);
}

} // namespace verdane
