#include "links/Liens.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

Texte EditeurCourant(const Etat& etat) {
    return Minuscules(NomFichier(Rogner(etat.options.CheminEditeur)));
}

Editeur EditeurLie(const Etat& etat) {
    const Texte nom = EditeurCourant(etat);
    if (nom == "winword.exe") return Editeur::Word;
    if (nom == "wordpro.exe") return Editeur::WordPro;
    if (nom == "soffice.exe") return Editeur::OpenOffice;
    return Editeur::Aucun;
}

void OuvrirDansEditeur(Contexte& ctx, const Texte& chemin) {
    PiloteEditeur* pilote = ctx.Pilote(EditeurLie(ctx.etat));
    if (pilote) {
        pilote->OuvrirDocument(chemin);
        return;
    }
    ctx.utilisateur.AfficherMessage(
        {"Aucun traitement de texte n'est actuellement lié à Verdane !",
         "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur "
         "\"DOCUMENT\" -> \"OUVRIR\".",
         "Erreur détectée :  cliquez Fermer pour continuer", ""});
}

void AfficherDocument(Contexte& ctx, const Texte& chemin) {
    OuvrirDansEditeur(ctx, chemin);
}

void SauverSous(Contexte& ctx, bool fermeture, Editeur editeur, const Texte& chemin,
                bool confirmer) {
    if (PiloteEditeur* pilote = ctx.Pilote(editeur)) pilote->Sauver(fermeture, chemin, confirmer);
}

} // namespace verdane
