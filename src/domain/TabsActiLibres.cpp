#include "domain/TabsActiLibres.h"

#include "data/ChargerDossier.h"
#include "domain/CadreDomaine.h"
#include "domain/FichiersDomaine.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <string>

namespace verdane {

Texte TableauActivites(Contexte& ctx, const Texte& codeComplet, const RenduTableau& rendu) {
    Texte code = codeComplet;
    TableauModele entete;
    LirePrefixeTableau(code, entete);
    EtatDomaine& d = ctx.etat.domaine;
    const Texte couleur = std::to_string(ctx.etat.decalageCouleurs + 1);
    Texte rtf;
    for (const auto& module : LireModulesAnimaux(ctx.etat)) {
        if (!module.actif) continue;
        ++d.compteurTableaux;
        if (entete.pageDebut > 0) rtf += BlocNumero(ctx.etat, entete.pageDebut, d.compteurTableaux);
        d.numModuleAnimal = module.numero;
        d.libelleModuleAnimal = module.nom;
        d.moduleSignale = 0;
        if (entete.typeEntete == 1)
            rtf += "\\par \\plain \\ql\\fs28\\cf" + couleur + "\\b     \\ql\\fs28\\cf1\\b\\ul " +
                   Rogner(module.nom) + "\\par \\plain \\par \\plain ";
        else if (entete.typeEntete == 2)
            rtf += BandeActivite(ctx.etat, module.nom) + kParagraphe;
        if (rendu) rtf += rendu(ctx, codeComplet);
    }
    return rtf;
}

float NombreActivite(Contexte& ctx, std::string_view code, int annee) {
    if (!code.empty() && code.front() == '@') code.remove_prefix(1);
    const auto numero = EntierStrict(code.substr(0, code.find(':')));
    if (!numero) return 0;
    EtatDomaine& d = ctx.etat.domaine;
    const Texte fichier = FichierDonModule(ctx.etat, d.numModuleAnimal);
    if (!ctx.etat.fichiers.Existe(fichier)) {
        if (d.moduleSignale != d.numModuleAnimal) {
            d.moduleSignale = d.numModuleAnimal;
            ctx.utilisateur.AfficherMessage(
                {"Le fichier " + NomFichier(fichier) +
                     " contenant les données à récupérer pour construire le document RTF est "
                     "introuvable !",
                 "Répertoire de recherche (dossier Marlo en cours) : " +
                     DossierComplet(ctx.etat, 0),
                 "Données des activ. libres animales introuvable !", ""});
        }
        return 0;
    }
    return ValeurDon(ctx.etat, fichier, *numero, annee).value_or(0.0f);
}

Texte ValeurActivite(Contexte& ctx, std::string_view code, int annee) {
    const auto deuxPoints = code.find(':');
    const int dec =
        deuxPoints == std::string_view::npos ? 7 : NombreTableau(code.substr(deuxPoints + 1));
    return TexteNombre(ctx.etat, NombreActivite(ctx, code, annee), dec, false);
}

} // namespace verdane
