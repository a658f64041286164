#include "engine/InterpreterCode.h"

#include "data/DonneesIni.h"
#include "data/ValeurCode.h"
#include "engine/ChampsDossier.h"
#include "engine/DatesCode.h"
#include "engine/ExtensionsCode.h"
#include "engine/InsererValeur.h"
#include "engine/NettoyerCode.h"
#include "engine/PrefixesCode.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <exception>

namespace verdane {

namespace {

// A condition `si(<test>)alors:<code>`: false when the test reads empty or "0".
enum class Condition { Aucune, Vraie, Fausse, Erronee };

Condition LireCondition(Contexte& ctx, Texte& code) {
    if (!CommenceParSansCasse(code, "si(")) return Condition::Aucune;
    const auto alors = code.find(")alors:");
    if (alors == Texte::npos) return Condition::Erronee;
    Texte test = code.substr(3, alors - 3);
    code.erase(0, alors + 7);
    if (FinitPar(test, "<>0")) {
        test.resize(test.size() - 3);
        Texte valeur = test;
        if (test.find('-') != Texte::npos) {
            std::int16_t annee = -1, decimales = 7;
            valeur = ValeurCode(ctx, test, PositionTiret(test), annee, decimales, 0);
        }
        return valeur.empty() || valeur == "0" ? Condition::Fausse : Condition::Vraie;
    }
    if (Minuscules(test) == "transfoperenne=vrai") ctx.etat.TransfoPerenne = true;
    return Condition::Vraie;
}

Texte ParLignes(const Texte& valeur) {
    return RemplacerExact(valeur, "\\par ", "\n");
}

void Expliquer(Contexte& ctx, const Texte& code, const Issue& issue, Explication* explication) {
    Message m;
    m.titre = "Interprétation d'un code Verdane";
    m.genre = "Aide";
    const Texte marque = "#mrl(" + code + ")#";
    Texte valeur = Rogner(ParLignes(issue.champ.valeur));
    // A picture (a chart, a logo) can't be told in words: the message names it instead.
    if (CommencePar(valeur, "{\\pict")) valeur = "une image";
    switch (issue.explication) {
    case FormeExplication::Exemple:
        m.texte = marque + " est le code pour afficher " + issue.champ.phrase +
                  "Par exemple, pour le dossier Marlo actuellement lié à Verdane, le résultat du "
                  "code serait " +
                  (issue.champ.liste ? "( avec un saut de ligne après chaque nom ) : " : ": ") +
                  valeur;
        break;
    case FormeExplication::Seule:
        m.texte = marque + issue.champ.phrase;
        break;
    case FormeExplication::Phrase:
        m.texte = issue.champ.phrase;
        break;
    case FormeExplication::PhraseAvecExemple:
        m.texte = issue.champ.phrase +
                  " Par exemple, pour le dossier Marlo actuellement lié à Verdane, le résultat du "
                  "code serait : " +
                  valeur;
        break;
    case FormeExplication::Tableau:
        m.texte = code.substr(0, 50) + "... " + issue.champ.phrase;
        break;
    }
    m.technique = issue.technique;
    ctx.utilisateur.AfficherMessage(m);
    if (explication) {
        explication->code = marque;
        explication->phrase = m.texte;
        explication->technique = m.technique;
        explication->valeur = issue.explication == FormeExplication::Tableau ? Texte() : valeur;
        explication->valeurCalculee = issue.explication != FormeExplication::Tableau;
        explication->tableau = issue.tableau;
    }
}

} // namespace

bool InterpreterCode(Contexte& ctx, Texte& texte, long debutMarque, long& suite, long fin,
                     bool expliquer, bool imbrique, Explication* explication) {
    const auto taille = static_cast<long>(texte.size());
    if (debutMarque < 1 || suite < debutMarque || fin < suite || fin > taille + 1) return true;

    Etat& etat = ctx.etat;
    Texte code =
        texte.substr(static_cast<std::size_t>(suite - 1), static_cast<std::size_t>(fin - suite));
    if (!imbrique) etat.CodeEnCours = "#mrl(" + code + ")#";
    NettoyerCode(code);
    etat.TransfoPerenne = false;

    try {
        switch (LireCondition(ctx, code)) {
        case Condition::Erronee:
            MessageErreurCode(ctx, "La portion de code \"" + CodeCourt(code) +
                                       "\" dans le modèle est mal renseignée : il manque la "
                                       "balise \")alors:\" de fin d'une condition Si... Alors...");
            suite =
                InsererValeur(ctx, texte, debutMarque, fin,
                              "< Portion de code erronée dans le modèle de document >", imbrique);
            return true;
        case Condition::Fausse:
            suite = InsererValeur(ctx, texte, debutMarque, fin, "\\v", imbrique);
            return false;
        case Condition::Aucune:
        case Condition::Vraie:
            break;
        }

        const Instant maintenant =
            ctx.extensions ? ctx.extensions->Maintenant() : MaintenantSysteme();
        Issue issue;
        if (auto champ = ChampDossier(ctx, code, maintenant)) {
            issue.champ = std::move(*champ);
            if (code == "saut2page") {
                issue.explication = FormeExplication::Seule;
                issue.champ.phrase = " est le code permettant un saut de page.";
            }
        } else {
            issue = CodeAPrefixe(ctx, code, expliquer, maintenant);
        }
        if (!issue.inserer) return true;
        if (!(expliquer && issue.explication == FormeExplication::Tableau))
            suite = InsererValeur(ctx, texte, debutMarque, fin, issue.champ.valeur, imbrique);
        if (expliquer) Expliquer(ctx, code, issue, explication);
    } catch (const std::exception&) {
        // A date or a number that can't be read ends this code alone: the mark stays as text.
    }
    return true;
}

} // namespace verdane
