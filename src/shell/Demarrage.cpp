#include "shell/Demarrage.h"

#include "data/ChargerDossier.h"
#include "data/FormatNombre.h"
#include "engine/CreationDoc.h"
#include "graphs/GraphDossier.h"
#include "shell/Chemins.h"
#include "shell/DemarrageBarre.h"
#include "shell/Options.h"
#include "shell/Parametres.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {
namespace {

int TravailIni(Contexte& ctx, const LigneCommande& ligne) {
    const Texte modele = Remplacer(ligne.Argument(2), "#esp#", " ");
    const Texte resultat = Remplacer(ligne.Argument(3), "#esp#", " ");
    ctx.etat.RepDossier[0].clear();
    ctx.etat.NomDossier[0].clear();
    const bool ouvrir = Minuscules(ligne.Argument(4)) == "ouvrir";
    const bool remplacer = Minuscules(ligne.Argument(5)) == "remplacer";
    const auto issue = CreerDocument(ctx, modele, resultat, false, !ouvrir, !remplacer);
    switch (issue) {
    case IssueCreation::Faite:
        // A result that stayed RTF where another format was asked wasn't made.
        return ctx.etat.conversionManquee.Manquee() ? kSortieEchec : kSortieFaite;
    case IssueCreation::Abandonnee:
        return kSortieFaite;
    case IssueCreation::ModeleIllisible:
    case IssueCreation::ResultatImpossible:
        return kSortieEchec;
    }
    return kSortieEchec;
}

int TravailSansFenetre(Contexte& ctx, const Texte& travail) {
    ctx.utilisateur.AfficherMessage(
        {"Le travail " + travail +
             " ouvre une fenêtre : il demande un écran (DISPLAY ou WAYLAND_DISPLAY), absent ici, "
             "et une version de Verdane construite avec ses fenêtres.",
         "Dossier chargé : " + DossierComplet(ctx.etat, 0) +
             "\r\nPour créer un document d'un dossier sans fenêtre, utilisez verdane-lot.",
         "Verdane", ""});
    return kSortieUsage;
}

} // namespace

bool Initialiser(Contexte& ctx, const Environnement& env) {
    ctx.etat.marques = MarquesDuSysteme();
    InitialiserChemins(ctx.etat, env.dossierProgramme, env.marloHome);
    ChargerOptions(ctx.etat, env.optionsEnLectureSeule);
    return ChargerParametres(ctx);
}

void PreparerDossierLigneCommande(Contexte& ctx, const LigneCommande& ligne) {
    Texte chemin = AjouterBarre(Remplacer(ligne.Argument(2), "#mrl#", " "));
    chemin.pop_back();
    const auto p = DerniereBarre(chemin);
    if (p != Texte::npos) {
        ctx.etat.RepDossier[0] = chemin.substr(0, p + 1);
        ctx.etat.NomDossier[0] = chemin.substr(p + 1);
    }
    ChargerDossier(ctx);
}

int ExecuterProgramme(Contexte& ctx, const LigneCommande& ligne, const Environnement& env) {
    if (!Initialiser(ctx, env)) return kSortieEchec;
    if (ligne.NbArguments() == 0) {
        if (ctx.formulaires.Connu("frmBarre")) {
            const int sortie = ctx.formulaires.Ouvrir(ctx, "frmBarre");
            EnregistrerOptions(ctx.etat);
            return sortie;
        }
        ctx.utilisateur.AfficherMessage(
            {"La barre d'outils de Verdane a besoin d'un écran : aucun n'est disponible.",
             "Usage : verdane INI <modèle> <résultat> [ouvrir] [remplacer]\r\n"
             "        verdane OUVRIR|CREER|CERFA|GRAPH <dossier> [document]",
             "Verdane", ""});
        return kSortieUsage;
    }
    const Texte travail = Majuscules(ligne.Argument(1));
    int sortie = kSortieFaite;
    if (travail == "INI") {
        sortie = TravailIni(ctx, ligne);
    } else if (travail == "OUVRIR" || travail == "CREER" || travail == "CERFA" ||
               travail == "GRAPH") {
        PreparerDossierLigneCommande(ctx, ligne);
        // With a display the job opens its window and ends with it.
        const Texte forme = travail == "GRAPH"    ? "FrmGraphik"
                            : travail == "OUVRIR" ? "FrmOuvrDoc"
                                                  : "FrmCreerDoc";
        std::vector<Texte> arguments;
        for (int i = 1; i <= ligne.NbArguments(); ++i) arguments.push_back(ligne.Argument(i));
        // Before a document is created, the word processor it opens in is chosen.
        if (forme == "FrmCreerDoc" && ctx.formulaires.Connu(forme))
            AppliquerChoixEditeur(ctx, env.rechercheEditeurs);
        if (ctx.formulaires.Connu(forme))
            sortie =
                ctx.formulaires.Ouvrir(ctx, forme, arguments) < 0 ? kSortieEchec : kSortieFaite;
        else if (travail == "GRAPH")
            sortie = DessinerGraphDossier(ctx) ? kSortieFaite : kSortieEchec;
        else
            sortie = TravailSansFenetre(ctx, travail);
    } else {
        ctx.utilisateur.AfficherMessage({"Travail inconnu : " + ligne.Argument(1),
                                         "Les travaux sont INI, OUVRIR, CREER, CERFA et GRAPH.",
                                         "Verdane", ""});
        sortie = kSortieUsage;
    }
    // The options are saved when the program ends, whatever the job was.
    EnregistrerOptions(ctx.etat);
    return sortie;
}

} // namespace verdane
