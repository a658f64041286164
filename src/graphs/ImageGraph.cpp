#include "graphs/ImageGraph.h"

#include "engine/InsererValeur.h"
#include "engine/NettoyerCode.h"
#include "graphs/CodeGraph.h"
#include "graphs/DessinGraphique.h"
#include "graphs/FabriqueSurface.h"
#include "graphs/ImagesAVenir.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/ImageRtf.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

constexpr const char* kTitreGraphique = "Graphique dans un document";

// The code as a word processor may have left it: RTF pieces and blanks out, accented
// letters back, "_" standing for a blank.
Texte CodePropre(const Texte& code) {
    Texte t = code;
    NettoyerCode(t);
    RtfVersTexte(t);
    return RemplacerExact(t, "_", " ");
}

void Signaler(Contexte& ctx, const Texte& texte, const Texte& technique) {
    ctx.utilisateur.AfficherMessage({texte, technique, kTitreGraphique, ""});
}

void SignalerSansImage(Contexte& ctx) {
    Signaler(ctx,
             "Le graphique \"" + Rogner(ctx.etat.graphes.graphes[1].titre) +
                 "\" n'a pas pu être dessiné.",
             "Le moteur de graphiques n'a pas rendu d'image.");
}

} // namespace

Texte CheminImageGraph(const Etat& etat) {
    if (Rogner(etat.chemins.RepModelGraph).empty()) return {};
    return AjouterBarre(etat.chemins.RepModelGraph) + kFichierImageGraph;
}

SurfaceGraphique* SurfaceInsertion(Contexte& ctx) {
    EtatGraphes& eg = ctx.etat.graphes;
    if (eg.graphInsertion == nullptr && eg.fabriqueSurface != nullptr) {
        eg.insertionCreee = eg.fabriqueSurface->Creer();
        eg.graphInsertion = eg.insertionCreee.get();
    }
    if (eg.graphInsertion == nullptr && !eg.absenceSurfaceSignalee) {
        eg.absenceSurfaceSignalee = true;
        Signaler(ctx,
                 "Les graphiques des modèles ne peuvent pas être dessinés : cette version de "
                 "Verdane n'a pas de moteur de graphiques.",
                 "Les codes gph(...) du modèle ne donneront aucune image dans le document.");
    }
    return eg.graphInsertion;
}

namespace {

// The chart of `code` drawn, with what is left to make its PNG bytes; null when nothing was
// drawn (told to the user).
std::function<std::string()> Dessiner(Contexte& ctx, const Texte& code) {
    if (SurfaceInsertion(ctx) == nullptr) return {};
    LireCodeGraph(ctx, 1, CodePropre(code));
    std::int16_t index = 1;
    DessinerGraphique(ctx, index, true);
    auto png = ctx.etat.graphes.graphInsertion->CopierImagePlusTard();
    if (!png) SignalerSansImage(ctx);
    return png;
}

} // namespace

std::string DessinerImageGraph(Contexte& ctx, const Texte& code) {
    const auto dessin = Dessiner(ctx, code);
    if (!dessin) return {};
    std::string png = dessin();
    if (png.empty()) SignalerSansImage(ctx);
    return png;
}

namespace {

// The work file, overwritten at each chart; false when it couldn't be written.
bool EcrireImageGraph(Contexte& ctx, const std::string& png) {
    const Texte chemin = CheminImageGraph(ctx.etat);
    if (chemin.empty()) return false;
    if (!DossierExiste(ctx.etat.chemins.RepModelGraph)) CreerChemin(chemin);
    return EcrireFichierSur(chemin, png);
}

} // namespace

Texte ConstruireImageGraph(Contexte& ctx, const Texte& code) {
    const std::string png = DessinerImageGraph(ctx, code);
    if (png.empty() || !EcrireImageGraph(ctx, png)) return {};
    return CheminImageGraph(ctx.etat);
}

Texte ImageGraphRtf(Contexte& ctx, const Texte& interieur) {
    auto dessin = Dessiner(ctx, interieur);
    if (!dessin) return {};
    // The work file is a by-product: the picture goes into the document even when it can't be
    // written. Its folder is made here; the file itself is written with the picture, which
    // touches nothing of the run.
    Texte chemin = CheminImageGraph(ctx.etat);
    if (!chemin.empty() && !DossierExiste(ctx.etat.chemins.RepModelGraph)) CreerChemin(chemin);
    auto finir = [dessin = std::move(dessin), chemin = std::move(chemin)]() -> std::string {
        const std::string png = dessin();
        if (png.empty()) return "\\~";
        if (!chemin.empty()) EcrireFichierSur(chemin, png);
        return ImageVersRtf(png, kLargeurImageGraphTwips);
    };
    EtatGraphes& g = ctx.etat.graphes;
    if (!g.differerImages || !g.imagesEnParallele) return finir();
    if (!g.aVenir) g.aVenir = std::make_shared<ImagesAVenir>();
    return g.aVenir->Confier(std::move(finir));
}

} // namespace verdane
