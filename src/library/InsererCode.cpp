#include "library/InsererCode.h"

#include "links/Liens.h"
#include "utils/Chaines.h"

namespace verdane {

bool InsererDansEditeur(Contexte& ctx, const Texte& texte) {
    const Editeur editeur = EditeurLie(ctx.etat);
    PiloteEditeur* pilote = editeur == Editeur::Aucun ? nullptr : ctx.Pilote(editeur);
    if (!pilote) {
        SignalerAucunEditeur(ctx);
        return false;
    }
    return pilote->InsererTexte(texte, "", 0);
}

bool InsererCode(Contexte& ctx) {
    EtatInsertion& insertion = ctx.etat.insertion;
    const Texte code = Rogner(RemplacerExact(insertion.codeEnAttente, " ", "_"));
    if (!insertion.modeCellule) return InsererDansEditeur(ctx, "#mrl(" + code + ")#");

    const Texte texte = "%mrl(" + code + ")%";
    if (insertion.collerCellule && insertion.collerCellule(texte)) return true;
    ctx.utilisateur.AfficherMessage(
        {"Verdane n'arrive pas à insérer le code dans la cellule du tableau en cours de "
         "définition.\r\nEcrire le code suivant dans votre cellule : " +
             texte,
         "", "Erreur d'insertion d'une donnée Marlo", ""});
    return false;
}

} // namespace verdane
