#include "library/InfoBulle.h"

#include "library/InsererCode.h"
#include "links/Liens.h"
#include "utils/Chaines.h"

#include <string>

namespace verdane {

std::optional<Texte> ComposerInfoBulle(Contexte& ctx, const PiecesInfoBulle& p) {
    const Texte titre = Rogner(p.titre);
    const Texte commentaire = Rogner(p.commentaire);
    const Texte texteAnnote = Rogner(p.texteAnnote);
    const Texte codeAffiche = Rogner(p.codeAffiche);
    if (titre.size() > kTitreInfoBulleMax) {
        ctx.utilisateur.AfficherMessage(
            {"Vous devez réduire votre titre à 50 caractères maximum pour pouvoir créer "
             "l'info-bulle.",
             "Vous avez dépassé la taille maximale du titre de " +
                 std::to_string(titre.size() - kTitreInfoBulleMax) +
                 " caractère(s) ( limite imposée par le RTF ).",
             "Insertion du commentaire impossible !", ""});
        return std::nullopt;
    }
    if (titre.empty() || commentaire.empty()) {
        ctx.utilisateur.AfficherMessage(
            {"Vous devez inscrire un titre et un commentaire avant de valider l'insertion !",
             "Merci de corriger pour pouvoir valider l'insertion de l'info-bulle.", "", ""});
        return std::nullopt;
    }
    const std::pair<const Texte*, const char*> pieces[] = {
        {&titre, "Le titre ne doit pas contenir le caractère deux-points \":\"."},
        {&commentaire, "L'annotation ne doit pas contenir le caractère deux-points \":\"."},
        {&texteAnnote, "Le texte annoté ne doit pas contenir le caractère deux-points \":\"."},
        {&codeAffiche, "Le code à afficher ne doit pas contenir le caractère deux-points \":\"."},
    };
    for (const auto& [piece, message] : pieces) {
        if (piece->find(':') == Texte::npos) continue;
        ctx.utilisateur.AfficherMessage(
            {message, "", "Caractère réservé pour le codage de l'info-bulle", ""});
        return std::nullopt;
    }
    return "INFO:" + (codeAffiche.empty() ? Texte("MRL") : codeAffiche) + ":" +
           std::to_string(p.taille > 0 ? p.taille : 10) + ":" + titre + ":" + commentaire + ":" +
           texteAnnote;
}

bool InsererInfoBulle(Contexte& ctx, const PiecesInfoBulle& pieces) {
    const auto code = ComposerInfoBulle(ctx, pieces);
    if (!code) return false;
    ctx.etat.insertion.codeEnAttente = *code;
    return InsererCode(ctx);
}

bool AvertirInfoBullesOpenOffice(Contexte& ctx) {
    if (EditeurLie(ctx.etat) != Editeur::OpenOffice) return false;
    ctx.utilisateur.AfficherMessage(
        {"OpenOffice ne gère malheureusement pas les annotations (jusque dans sa version 2.0 du "
         "moins) au format RTF.",
         "A noter que le système de mise à jour automatique de Verdane étant basé sur ces "
         "info-bulles, celui-ci n'est actuellement pas utilisable avec OpenOffice.",
         "OpenOffice ne gère pas les Info-bulles !", ""});
    return true;
}

} // namespace verdane
