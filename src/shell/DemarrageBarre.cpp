#include "shell/DemarrageBarre.h"

#include "data/ChargerDossier.h"
#include "graphs/FichierGraph.h"
#include "shell/Options.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

void AppliquerChoixEditeur(Contexte& ctx, const ParametresRecherche& recherche) {
    Etat& etat = ctx.etat;
    const Texte choisi = Rogner(etat.options.CheminEditeur);
    if (!choisi.empty() && choisi.front() == '/' && !FichierExiste(choisi)) {
        // A word processor of this system that was removed since it was chosen.
        ctx.utilisateur.AfficherMessage(
            {"Le traitement de texte lié à Verdane est introuvable : " + choisi,
             "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\".",
             "Erreur détectée :  cliquez Fermer pour continuer", ""});
        etat.options.CheminEditeur.clear();
    }
    if (Rogner(etat.options.CheminEditeur).empty()) {
        etat.options.CheminEditeur = LibreOfficeInstalle(recherche);
        if (!etat.options.CheminEditeur.empty())
            EnregistrerOptions(etat);
        else if (ctx.formulaires.Connu("FrmChoixEditeur"))
            ctx.formulaires.Ouvrir(ctx, "FrmChoixEditeur", {"demarrage"});
    }
}

bool PreparerBarre(Contexte& ctx, const ParametresRecherche& recherche) {
    Etat& etat = ctx.etat;
    etat.editeurVisible = true;
    etat.PasProgression = 100;
    LireFichierGraph(ctx);
    AppliquerChoixEditeur(ctx, recherche);
    ChargerDossier(ctx);
    etat.ModeleModifie = false;
    return etat.options.SansDemarrage == 0;
}

bool ConfirmerFermeture(Contexte& ctx) {
    return ctx.utilisateur.Question("Retirer la barre d'outils Verdane ?", "Fermeture Verdane",
                                    Boutons::OuiNon, Reponse::Non, Icone::Question) == Reponse::Oui;
}

} // namespace verdane
