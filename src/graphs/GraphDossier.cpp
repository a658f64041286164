#include "graphs/GraphDossier.h"

#include "graphs/DessinGraphique.h"
#include "graphs/FichierGraph.h"
#include "graphs/ImageGraph.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

constexpr const char* kTitreTravail = "Graphique du dossier";

} // namespace

Texte CheminGraphDossier(const Etat& etat) {
    const Texte nom = Rogner(etat.NomDossier[0]);
    if (Rogner(etat.RepDossier[0]).empty() || nom.empty()) return {};
    return AjouterBarre(etat.RepDossier[0]) + nom + "-graphique.png";
}

bool DessinerGraphDossier(Contexte& ctx) {
    PortUtilisateur& u = ctx.utilisateur;
    const Texte chemin = CheminGraphDossier(ctx.etat);
    if (chemin.empty()) {
        u.AfficherMessage({"Aucun dossier n'est chargé : le graphique ne peut pas être dessiné.",
                           "Donnez le chemin d'un dossier Marlo après GRAPH.", kTitreTravail, ""});
        return false;
    }
    EtatGraphes& eg = ctx.etat.graphes;
    LireFichierGraph(ctx);
    if (eg.nbGraphes == 0) {
        u.AfficherMessage({"La bibliothèque des graphiques est vide : il n'y a rien à dessiner.",
                           "Fichier : " + CheminFichierGraph(ctx.etat), kTitreTravail, ""});
        return false;
    }
    if (SurfaceInsertion(ctx) == nullptr) return false;
    eg.avecArguments = true;
    std::int16_t index = 1;
    DessinerGraphique(ctx, index, true);
    const std::string png = eg.graphInsertion->CopierImage();
    const Texte titre = Rogner(eg.graphes[1].titre);
    if (png.empty() || !EcrireFichierSur(chemin, png)) {
        u.AfficherMessage({"Le graphique \"" + titre + "\" n'a pas pu être enregistré.",
                           "Fichier : " + chemin, kTitreTravail, ""});
        return false;
    }
    u.AfficherMessage({"Le graphique \"" + titre + "\" du dossier " +
                           Rogner(ctx.etat.NomDossier[0]) + " a été dessiné dans " + chemin + ".",
                       "Sans écran, l'éditeur des graphiques ne peut pas s'ouvrir : le premier "
                       "graphique de la bibliothèque est dessiné en image.",
                       kTitreTravail, ""});
    return true;
}

} // namespace verdane
