#include "shell/Proprietes.h"

#include "links/Liens.h"

namespace verdane {

VueProprietes LireProprietes(const Etat& etat) {
    return {NomEditeurAffiche(etat.options.CheminEditeur), etat.options.sautParagraphe == 1,
            etat.options.SansDemarrage == 0};
}

void AppliquerProprietes(Etat& etat, bool aLaLigne, bool popupDemarrage) {
    etat.options.sautParagraphe = aLaLigne ? 1 : 0;
    etat.options.SansDemarrage = popupDemarrage ? 0 : -1;
}

bool DemanderAccesTotal(Contexte& ctx) {
    if (ctx.etat.AccesTotal != -1) return true;
    ctx.utilisateur.Boite("Vous avez déjà l'accès total !", "Saisie du mot de passe inutile",
                          Icone::Information);
    return false;
}

bool ValiderMotDePasse(Contexte& ctx, const Texte& saisie) {
    if (saisie == kMotDePasseAccesTotal) {
        ctx.etat.AccesTotal = -1;
        ctx.utilisateur.Boite("Accès total validé.", "Mot de passe correct.", Icone::Information);
        return true;
    }
    ctx.utilisateur.Boite("Mot de passe erroné.", "Verdane", Icone::Attention);
    return false;
}

Message MessageDejaOuverte() {
    return {"Application déjà ouverte !  En cas de problème, faire Ctrl+Alt+Suppr -> cliquer "
            "\"Verdane\" puis le bouton \"Fin de tâche\".",
            "", "Application déjà ouverte !", "seule"};
}

} // namespace verdane
