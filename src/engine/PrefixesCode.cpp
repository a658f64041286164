#include "engine/PrefixesCode.h"

#include "data/DonneesIni.h"
#include "data/ValeurCode.h"
#include "engine/DatesCode.h"
#include "utils/Chaines.h"
#include "utils/ImageRtf.h"

#include <algorithm>
#include <limits>
#include <string>

namespace verdane {

namespace {

const char* const kTitreErreur = "Erreur détectée :  cliquez Fermer pour continuer";

Issue Valeur(Texte valeur, Texte phrase) {
    Issue i;
    i.champ = Champ{std::move(valeur), std::move(phrase)};
    return i;
}

Issue Rien() {
    Issue i;
    i.inserer = false;
    return i;
}

Issue Organisme(Contexte& ctx, const Texte& code) {
    const Texte haut = Majuscules(code);
    std::size_t longueurIndice = 0;
    int n = 0;
    if (haut.size() > 4 && haut.back() >= '0' && haut.back() <= '9') {
        n = haut.back() - '0';
        longueurIndice = 1;
        if (haut.size() > 5 && haut[haut.size() - 2] == '1') {
            n += 10;
            longueurIndice = 2;
        }
    }
    const Texte mot = haut.substr(4, haut.size() - 4 - longueurIndice);
    const EnrOrganisme& o = ctx.etat.Organismes[static_cast<std::size_t>(std::clamp(n, 0, 19))];
    Texte valeur = "??";
    if (mot == "SIGLE")
        valeur = Rogner(o.sigle);
    else if (mot == "NOM")
        valeur = Rogner(o.nom);
    else if (mot == "RUE")
        valeur = Rogner(o.rue);
    else if (mot == "VILLE")
        valeur = Rogner(o.ville);
    else if (mot == "TEL")
        valeur = Rogner(o.tel);
    else if (mot == "FAX")
        valeur = Rogner(o.fax);
    else if (mot == "LOGO") {
        const Texte chemin = Rogner(o.logo);
        valeur = chemin.empty() ? Texte() : ImageFichierVersRtf(chemin);
    }
    return Valeur(valeur, "les coordonnées de l'organisme numéro " + std::to_string(n) +
                              " du fichier de paramètres de Marlo ( " + Minuscules(mot) + " ).");
}

Issue Info() {
    Issue i = Valeur(" ", "#mrl(INFO:code:taillecode:titre:infos:repere)# est le code "
                          "permettant l'affichage d'une info-bulle comprenant un titre en gras "
                          "suivi de l'information elle-même.");
    i.explication = FormeExplication::Phrase;
    i.technique = "Les infos-bulles au même titre que les commentaires de mise à jour des "
                  "données ( ne pas confondre ! ) s'affichent lorsque l'on pointe la souris sur "
                  "un texte ou un espace commenté.";
    return i;
}

Issue Tableau(Texte valeur, const Texte& mots) {
    Issue i = Valeur(std::move(valeur), " est le code d'un tableau " + mots);
    i.explication = FormeExplication::Tableau;
    return i;
}

Issue CodeTableauModele(Contexte& ctx, const Texte& code, bool expliquer) {
    Texte mots = "pluri-annuel.";
    if (CommencePar(code, "tabd1")) {
        mots = "affichant une seule colonne de valeurs sur 1 dossier.";
    } else if (CommencePar(code, "tabd") && code.size() > 4 && code[4] >= '0' && code[4] <= '9') {
        mots = "permettant de comparer les données de " + Texte(1, code[4]) + " dossiers.";
    }
    Issue i = Tableau(
        !expliquer && ctx.extensions ? ctx.extensions->GenererTableau(ctx, code) : Texte(), mots);
    i.tableau = true;
    i.technique = "En cliquant ci-dessous, Verdane re-constitutera le modèle dans son éditeur à "
                  "partir du code que vous avez sélectionné. Si le modèle n'existe pas déjà dans "
                  "votre liste de tableaux sauvegardés, Verdane l'ajoutera et le sauvera "
                  "automatiquement dans le dossier \"Récupéré\".";
    return i;
}

Issue Graphique(Contexte& ctx, const Texte& code) {
    if (code.back() != ')') return Rien();
    const Texte interieur = code.substr(4, code.size() - 5);
    const auto pointVirgule = interieur.find(';');
    if (pointVirgule == Texte::npos) {
        ctx.utilisateur.AfficherMessage(
            {"Le code balisé #mrl(gph(...))# est mal renseigné dans le modèle de document.",
             "Il se peut que ce modèle de document ait été construit avec la version 2003 de "
             "Verdane, auquel cas son code concernant les graphiques doit être mis à jour avec "
             "Verdane 2004 ou ultérieur. Pour cela, ouvrez le modèle VDM et rechercher les codes "
             "pour les graphiques. Ré-éditer ces codes avec Verdane grâce au menu \"Insertion\" "
             "-> \"Graphique\". Enfin, sauvegardez votre modèle VDM, et lancez à nouveau la "
             "création d'un document résultat.",
             "Code d'un graphique erroné dans le modèle VDM", ""});
        return Rien();
    }
    Texte nom = RemplacerExact(interieur.substr(0, pointVirgule), "_", " ");
    if (Rogner(nom).empty()) nom = "Inconnu";
    return Valeur(ctx.extensions ? ctx.extensions->Graphique(ctx, interieur) : Texte(),
                  "le graphique \"" + nom + "\".");
}

Issue Formule(Contexte& ctx, const Texte& code) {
    const Texte reste = code.substr(8);
    const Texte debut =
        "La portion de code \"" + CodeCourt(code) + "\" dans le modèle est mal renseignée : ";
    const Texte malRenseigne = "<Code Mal renseigné : valeur non calculée>";
    const auto deuxPoints = reste.find(':');
    if (deuxPoints == Texte::npos) {
        MessageErreurCode(ctx, debut + "il manque le caractère \":\" séparant l'année d'étude de "
                                       "la formule à calculer.");
        return Valeur(malRenseigne, "le résultat d'une formule de calcul.");
    }
    const auto a = reste.substr(0, deuxPoints).find('a');
    if (a == Texte::npos) {
        MessageErreurCode(ctx, debut + "il manque l'indicateur \"a\" suivant l'année d'exercice "
                                       "sur laquelle doit être fait le calcul.");
        return Valeur(malRenseigne, "le résultat d'une formule de calcul.");
    }
    const auto annee =
        static_cast<int>(std::clamp<long long>(ValEntier(reste.substr(0, a)), -1, 99));
    const Texte formule = reste.substr(deuxPoints + 1);
    return Valeur(ctx.extensions ? ctx.extensions->Formule(ctx, formule, annee) : Texte(),
                  "le résultat d'une formule de calcul pour l'année d'étude " +
                      std::to_string(annee) + ".");
}

Issue Donnee(Contexte& ctx, const Texte& code) {
    Texte donnee = code;
    std::int16_t decimales = -1;
    const auto deuxPoints = donnee.find(':');
    if (deuxPoints != Texte::npos) {
        decimales = static_cast<std::int16_t>(
            std::clamp<long long>(ValEntier(donnee.substr(deuxPoints + 1)), -1, 7));
        donnee.resize(deuxPoints);
    }
    std::int16_t annee = -1;
    const Texte valeur = ValeurCode(ctx, donnee, PositionTiret(donnee), annee, decimales, 0);
    return Valeur(valeur, "une donnée issue de Marlo ou un calcul de plusieurs données de Marlo.");
}

} // namespace

int PositionTiret(const Texte& code) {
    const auto premier = code.find('-');
    if (premier == Texte::npos) return 0;
    const auto second = code.find('-', premier + 1);
    return static_cast<int>((second != Texte::npos ? second : premier) + 1);
}

Texte CodeCourt(const Texte& code) {
    return code.size() > 50 ? code.substr(0, 50) + "..." : code;
}

void MessageErreurCode(Contexte& ctx, const Texte& texte) {
    ctx.utilisateur.AfficherMessage(
        {texte, "Modifier le modèle de document pour que l'erreur n'apparaisse plus.", kTitreErreur,
         ""});
}

Issue CodeAPrefixe(Contexte& ctx, const Texte& code, bool expliquer, const Instant& maintenant) {
    ExtensionsCode* ext = ctx.extensions;
    if (CommenceParSansCasse(code, "ORGA")) return Organisme(ctx, code);
    if (CommenceParSansCasse(code, "INFO:")) return Info();
    if (CommenceParSansCasse(code, "INI:")) {
        Issue i = Valeur(LireDonneesIni(ctx, code),
                         "#mrl(INI:identifiantDonnée)# est le code permettant l'affichage d'une "
                         "information contenue dans un .INI.");
        i.explication = FormeExplication::PhraseAvecExemple;
        return i;
    }
    if (CommencePar(code, "date(")) {
        const Texte nombre = code.size() > 5 ? code.substr(5, code.size() - 6) : Texte();
        const long long n = ValEntier(nombre);
        return Valeur(n < 0 || n > 17 ? Texte() : DateCode(static_cast<int>(n), maintenant),
                      "une date fixe ou mise à jour au moment de la création du document "
                      "résultat.");
    }
    if (CommencePar(code, "culture"))
        return Tableau(!expliquer && ext ? ext->TableauCultures(ctx, code) : Texte(),
                       "des cultures ( pérennes ou non ).");
    if (CommencePar(code, "cultper"))
        return Tableau(!expliquer && ext ? ext->TableauCulturesPerennes(ctx, code) : Texte(),
                       "des cultures ( pérennes ou non ).");
    if (CommencePar(code, "actlibr"))
        return Tableau(!expliquer && ext ? ext->TableauActivites(ctx, code) : Texte(),
                       "des activités libres animales.");
    if (CommencePar(code, "tab")) return CodeTableauModele(ctx, code, expliquer);
    if (CommencePar(code, "gph(")) return Graphique(ctx, code);
    if (CommencePar(code, "formule:")) return Formule(ctx, code);
    if (code.find('-') != Texte::npos) return Donnee(ctx, code);

    MessageErreurCode(ctx, "La portion de code \"" + CodeCourt(code) +
                               "\" dans le modèle est inconnue de l'interpréteur Verdane.");
    return Rien();
}

} // namespace verdane
