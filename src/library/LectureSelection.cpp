#include "library/LectureSelection.h"

#include "engine/AnalyserCodes.h"
#include "engine/NettoyerCode.h"
#include "graphs/ImageGraph.h"
#include "links/Liens.h"
#include "utils/Chaines.h"

namespace verdane {

namespace {

constexpr const char* kTitre = "Interprétation d'un code Verdane";
constexpr const char* kConseil = "Sélectionnez dans le document un code Verdane complet, de "
                                 "\"#mrl(\" à \")#\", puis cliquez à nouveau sur ce menu.";

void Dire(Contexte& ctx, const Texte& texte, const Texte& technique = kConseil) {
    ctx.utilisateur.AfficherMessage({texte, technique, kTitre, ""});
}

// The inside of the kept code, cleaned as the interpreter cleans it; empty, told, when no code
// was read.
Texte InterieurSelectionne(Contexte& ctx) {
    const Texte& marque = ctx.etat.insertion.codeSelectionne;
    if (marque.size() < 7) {
        Dire(ctx, "Aucun code Verdane n'a été interprété.",
             "Utilisez d'abord le menu \"OUTILS\" -> \"Interprétation d'un code MRL sélectionné "
             "dans un modèle de document\".");
        return {};
    }
    Texte code = marque.substr(5, marque.size() - 7);
    NettoyerCode(code);
    return code;
}

bool OuvrirEditeur(Contexte& ctx, const char* formulaire, const std::vector<Texte>& arguments,
                   const Texte& quoi) {
    if (ctx.formulaires.Connu(formulaire)) {
        ctx.formulaires.Ouvrir(ctx, formulaire, arguments);
        return true;
    }
    Dire(ctx, "L'éditeur de " + quoi + " de Verdane n'est pas disponible dans cette version.",
         "Le code sélectionné reste dans le document : il peut y être modifié directement.");
    return false;
}

} // namespace

SelectionLue LireCodeSelection(const Texte& selection) {
    if (selection.size() > kTailleSelectionMax) return {GenreSelection::TropLongue, {}};
    if (RognerTout(selection).empty()) return {GenreSelection::Vide, {}};
    if (const auto debut = TrouverSansCasse(selection, "#mrl("); debut != Texte::npos) {
        const auto fin = selection.find(")#", debut + 5);
        if (fin != Texte::npos)
            return {GenreSelection::Code,
                    "#mrl(" + selection.substr(debut + 5, fin - debut - 5) + ")#"};
    }
    if (const auto debut = selection.find("%mrl("); debut != Texte::npos) {
        const auto fin = selection.find(")%", debut + 5);
        if (fin != Texte::npos)
            return {GenreSelection::Code,
                    "#mrl(" + selection.substr(debut + 5, fin - debut - 5) + ")#"};
    }
    return {GenreSelection::SansCode, {}};
}

std::optional<Explication> ExpliquerSelection(Contexte& ctx) {
    const Editeur editeur = EditeurLie(ctx.etat);
    PiloteEditeur* pilote = editeur == Editeur::Aucun ? nullptr : ctx.Pilote(editeur);
    if (!pilote) {
        SignalerAucunEditeur(ctx);
        return std::nullopt;
    }
    const SelectionLue lue = LireCodeSelection(pilote->LireSelection());
    switch (lue.genre) {
    case GenreSelection::Vide:
        Dire(ctx, "Aucun texte n'est sélectionné dans le document en cours.");
        return std::nullopt;
    case GenreSelection::TropLongue:
        Dire(ctx, "La sélection est trop longue pour être un code Verdane.");
        return std::nullopt;
    case GenreSelection::SansCode:
        Dire(ctx, "La sélection ne contient pas de code Verdane.");
        return std::nullopt;
    case GenreSelection::Code:
        break;
    }
    ctx.etat.insertion.codeSelectionne = lue.marque;
    return ExpliquerCode(ctx, lue.marque);
}

Texte CodeGraphSelectionne(Contexte& ctx) {
    const Texte code = InterieurSelectionne(ctx);
    if (code.empty()) return {};
    if (!CommencePar(code, "gph(") || code.back() != ')') {
        Dire(ctx, "Le code sélectionné n'est pas celui d'un graphique.");
        return {};
    }
    return code;
}

Texte CodeTableauSelectionne(Contexte& ctx) {
    const Texte code = InterieurSelectionne(ctx);
    if (code.empty()) return {};
    for (const char* prefixe : {"tab", "culture", "cultper", "actlibr"})
        if (CommencePar(code, prefixe)) return code;
    Dire(ctx, "Le code sélectionné n'est pas celui d'un tableau.");
    return {};
}

Texte ApercuGraphSelection(Contexte& ctx) {
    const Texte code = CodeGraphSelectionne(ctx);
    if (code.empty()) return {};
    const Texte chemin = ConstruireImageGraph(ctx, code.substr(4, code.size() - 5));
    if (chemin.empty())
        Dire(ctx, "Verdane n'a pas pu dessiner le graphique du code sélectionné.",
             "Vérifiez que le dossier Marlo en cours contient les séries du graphique.");
    return chemin;
}

Texte TitreApercuGraph(const Etat& etat) {
    return "Aperçu du graphique résultant du code sélectionné et du dossier Marlo en cours - "
           "Dossier : " +
           Rogner(etat.NomDossier[0]);
}

bool RecupererModeleGraph(Contexte& ctx) {
    const Texte code = CodeGraphSelectionne(ctx);
    if (code.empty()) return false;
    const auto pointVirgule = code.find(';');
    const auto finNom = pointVirgule == Texte::npos ? code.size() - 1 : pointVirgule;
    const Texte nom = RemplacerExact(code.substr(4, finNom - 4), "_", " ");
    return OuvrirEditeur(ctx, "FrmGraphik", {"Récupéré: " + nom, code}, "graphiques");
}

bool RecupererModeleTableau(Contexte& ctx) {
    const Texte code = CodeTableauSelectionne(ctx);
    if (code.empty()) return false;
    return OuvrirEditeur(ctx, "FrmInserTab", {"Récupéré", code}, "tableaux");
}

} // namespace verdane
