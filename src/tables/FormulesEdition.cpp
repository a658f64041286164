// The formulas as the table editor handles them: the check of a free formula typed by the
// user, and the renumbering of totals when lines are inserted or deleted.

#include "tables/Calculateur.h"
#include "tables/FormuleReferences.h"
#include "tables/Formules.h"
#include "utils/Chaines.h"

#include <string>

namespace verdane {

namespace {

using formule::FinNumero;
using formule::NumeroLigne;

constexpr const char* kTitreRenumerotation = "Renumérotation des lignes";

bool SuiviDeParenthese(const Texte& texte, std::size_t lg) {
    return lg + 2 < texte.size() && texte[lg + 2] == '(';
}

// The formula with every reference replaced by 1, for the calculator to tell whether the rest
// reads; `formule` has passed the checks of the references.
Texte SansReferences(const Texte& formule) {
    Texte resultat;
    std::size_t pos = 0;
    for (std::size_t lg = formule.find("LG"); lg != Texte::npos; lg = formule.find("LG", pos)) {
        resultat.append(formule, pos, lg - pos).append("1");
        if (!SuiviDeParenthese(formule, lg)) {
            pos = FinNumero(formule, lg + 2);
        } else if (const std::size_t ferme = formule.find(')', lg); ferme != Texte::npos) {
            pos = ferme + 1;
        } else {
            return {};
        }
    }
    resultat.append(formule, pos);
    return RemplacerExact(RemplacerExact(resultat, ",", "."), "_", " ");
}

} // namespace

bool VerifierFormule(Contexte& ctx, const Texte& formule,
                     const std::function<bool(int ligne)>& ligneProposee) {
    Texte texte = Majuscules(Rogner(formule));
    if (texte.empty()) {
        ctx.utilisateur.Boite("Vous devez saisir une formule !", "Validation impossible.",
                              Icone::Attention);
        return false;
    }
    auto refuser = [&](const Texte& message) {
        ctx.utilisateur.Boite(message, "Formule erronée.", Icone::Attention);
        return false;
    };
    const Texte original = texte;
    int k = 0;
    for (std::size_t lg = texte.find("LG"); lg != Texte::npos; lg = texte.find("LG", lg)) {
        const Texte rang = std::to_string(++k) + "e ";
        if (SuiviDeParenthese(texte, lg)) {
            const std::size_t ferme = texte.find(')', lg + 3);
            if (ferme == Texte::npos)
                return refuser("Il manque la parenthèse fermante après le code du " + rang +
                               "LG !");
            if (texte.substr(lg + 3, ferme - lg - 3).find('-') == Texte::npos)
                return refuser("Concernant le code entre parenthèse du " + rang +
                               "LG, il manque le tiret entre le nom du fichier et le numéro "
                               "d'enregistrement !");
        } else {
            const std::size_t fin = FinNumero(texte, lg + 2);
            const Texte numero = texte.substr(lg + 2, fin - lg - 2);
            if (numero.empty())
                return refuser("Il manque un numéro de ligne après le dernier LG !");
            const auto ligne = NumeroLigne(numero);
            if (!ligne || !ligneProposee || !ligneProposee(*ligne))
                return refuser("Le numéro de ligne \"" + numero + "\" suivant le " + rang +
                               "LG est incorrect !");
        }
        texte.replace(lg, 2, "val");
    }
    if (!CalculLisible(SansReferences(original)))
        return refuser("Le calcul de la formule ne peut être lu : vérifiez ses parenthèses, ses "
                       "opérateurs et les noms de ses fonctions !");
    return true;
}

bool RenumeroterFormule(Contexte& ctx, Texte& definition, int ligneChangee, int ligneFormule,
                        SensRenumerotation sens,
                        const std::function<bool(int ligne)>& ligneDefinie) {
    if (definition.compare(0, 5, "total") != 0) return false;
    // The formula, then its tail of decimals and zero rule from the first ":".
    Texte formule = Rogner(definition.size() > 7 ? definition.substr(7) : Texte{});
    Texte queue;
    if (const std::size_t deuxPoints = formule.find(':'); deuxPoints != Texte::npos) {
        queue = formule.substr(deuxPoints);
        formule.erase(deuxPoints);
    }
    const Texte t = std::to_string(ligneFormule);
    auto invalider = [&](const Texte& message) {
        definition.clear();
        ctx.utilisateur.Boite(message, kTitreRenumerotation, Icone::Attention);
        return true;
    };
    Texte nouvelle;
    bool changee = false;
    std::size_t pos = 0;
    for (std::size_t lg = formule.find("LG"); lg != Texte::npos; lg = formule.find("LG", pos)) {
        nouvelle.append(formule, pos, lg + 2 - pos);
        pos = lg + 2;
        if (SuiviDeParenthese(formule, lg)) continue;
        const std::size_t fin = FinNumero(formule, pos);
        auto ligne = NumeroLigne(std::string_view(formule).substr(pos, fin - pos));
        if (!ligne) continue;
        if (sens == SensRenumerotation::Moins && *ligne == ligneChangee)
            return invalider("Formule invalide : " + formule +
                             "\rLa ligne supprimée était totalisée dans la ligne n°" + t +
                             ".\rLa formule de la ligne n°" + t + " est donc à ré-écrire !");
        if (*ligne > ligneChangee) {
            *ligne += sens == SensRenumerotation::Plus ? 1 : -1;
            changee = true;
        }
        if (!ligneDefinie || !ligneDefinie(*ligne))
            return invalider("Formule non valide : " + formule + "\rLa formule de la ligne n°" + t +
                             " est à ré-écrire !");
        nouvelle += std::to_string(*ligne);
        pos = fin;
    }
    nouvelle.append(formule, pos);
    if (!changee) return false;
    definition = definition.substr(0, 7) + nouvelle + queue;
    ctx.utilisateur.Boite("Formule mise à jour : " + nouvelle +
                              "\rLa formule de total de la ligne n°" + t +
                              " a été mise à jour avec la nouvelle numérotation des lignes.",
                          kTitreRenumerotation, Icone::Information);
    return true;
}

std::vector<int> LignesReferencees(const Texte& formule) {
    std::vector<int> lignes;
    for (std::size_t lg = formule.find("LG"); lg != Texte::npos; lg = formule.find("LG", lg + 2)) {
        if (SuiviDeParenthese(formule, lg)) continue;
        const std::size_t fin = FinNumero(formule, lg + 2);
        if (auto ligne = NumeroLigne(std::string_view(formule).substr(lg + 2, fin - lg - 2)))
            lignes.push_back(*ligne);
    }
    return lignes;
}

} // namespace verdane
