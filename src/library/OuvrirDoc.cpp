#include "library/OuvrirDoc.h"

#include "data/ChargerDossier.h"
#include "engine/CreationDoc.h"
#include "library/GestModeles.h"
#include "links/Liens.h"
#include "utils/Chaines.h"

namespace verdane {

namespace {

constexpr const char* kOuvertureImpossible = "Ouverture impossible.";

Texte Pluriel(const Texte& tag) {
    if (tag == "DOC") return "documents texte";
    return GenreElement(tag) + "s";
}

// The dossiers belong to Marlo: this program reads them and never deletes them.
bool RefuserDossiers(Contexte& ctx, const ListeFichiers& liste) {
    if (liste.tag != "DOS") return false;
    ctx.utilisateur.Boite("Les dossiers de Marlo ne sont pas supprimés par Verdane : "
                          "supprimez-les depuis Marlo.",
                          "Suppression impossible !", Icone::Attention);
    return true;
}

} // namespace

ModeOuverture ModeDuTag(const Texte& tag) {
    const Texte t = Minuscules(Rogner(tag));
    if (t == "dossier") return ModeOuverture::Dossier;
    if (t == "dossiermaj") return ModeOuverture::DossierMaj;
    return ModeOuverture::Document;
}

std::vector<OngletOuverture> OngletsOuverture(ModeOuverture mode) {
    if (mode != ModeOuverture::Document)
        return {{" Liste des dossiers win-Marlo", "Sup. doss.", "DOS"}};
    return {{" Liste des documents texte", "Sup. doc.", "DOC"},
            {" Liste des modèles de document", "Sup. mod.", "MDL"}};
}

Texte TitreOuverture(ModeOuverture mode, bool comparaison) {
    if (mode == ModeOuverture::Document) return {};
    return comparaison ? " Sélection des dossiers Marlo à comparer dans un tableau"
                       : " Sélection d'un dossier Marlo";
}

Texte InfoBulleDossier(int numero, const Texte& nom) {
    return "Dossier " + std::to_string(numero) + " : " + nom;
}

bool OuvrirElement(Contexte& ctx, ModeOuverture mode, const ListeFichiers& liste,
                   const LigneListe* ligne, const Texte& documentMaj) {
    if (liste.Vide() || ligne == nullptr) {
        ctx.utilisateur.Boite(mode == ModeOuverture::DossierMaj
                                  ? Texte("Aucun dossier à choisir !")
                                  : "Aucun " + GenreElement(liste.tag) + " à ouvrir !",
                              kOuvertureImpossible, Icone::Attention);
        return false;
    }
    if (liste.tag != "DOS") {
        OuvrirDansEditeur(ctx, liste.dossier + ligne->nom);
        return true;
    }
    if (ctx.utilisateur.Question("Choisir le répertoire du dossier \"" + ligne->nom + "\" ?",
                                 "Demande de confirmation", Boutons::OuiNon, Reponse::Oui,
                                 Icone::Question) != Reponse::Oui)
        return false;
    ctx.etat.RepDossier[0] = liste.dossier;
    ctx.etat.NomDossier[0] = ligne->nom;
    ChargerDossier(ctx);
    if (mode == ModeOuverture::DossierMaj && !Rogner(documentMaj).empty())
        CreerDocument(ctx, documentMaj, documentMaj, true, false, true);
    return true;
}

int SupprimerDepuisListe(Contexte& ctx, const ListeFichiers& liste,
                         const std::vector<LigneListe>& choix) {
    if (RefuserDossiers(ctx, liste)) return 0;
    if (liste.Vide() || choix.empty()) {
        ctx.utilisateur.Boite("Aucun " + GenreElement(liste.tag) + " à supprimer dans la liste.",
                              "Suppression impossible !", Icone::Attention);
        return 0;
    }
    std::vector<LigneListe> retenus;
    for (const LigneListe& l : choix)
        if (ctx.utilisateur.Question("Supprimer définitivement " + l.nom + " ?",
                                     "Confirmation de suppression", Boutons::OuiNon, Reponse::Non,
                                     Icone::Question) == Reponse::Oui)
            retenus.push_back(l);
    return SupprimerElements(ctx, liste.dossier, liste.tag, retenus);
}

int SupprimerToutDepuisListe(Contexte& ctx, const ListeFichiers& liste) {
    if (RefuserDossiers(ctx, liste)) return 0;
    if (liste.Vide()) {
        ctx.utilisateur.Boite("Aucun " + GenreElement(liste.tag) + " à supprimer dans la liste.",
                              "Suppression impossible !", Icone::Attention);
        return 0;
    }
    if (ctx.utilisateur.Question("Supprimer définitivement TOUS les " + Pluriel(liste.tag) +
                                     " de la liste ?",
                                 "Confirmation de suppression", Boutons::OuiNon, Reponse::Non,
                                 Icone::Question) != Reponse::Oui)
        return 0;
    return SupprimerElements(ctx, liste.dossier, liste.tag, liste.lignes);
}

Texte DocumentDuTravailOuvrir(const Texte& argument) {
    Texte nom = Remplacer(argument, "#mrl#", " ");
    if (!FinitParSansCasse(nom, ".rtf")) nom += ".rtf";
    return nom;
}

bool ConfirmerAnnulation(Contexte& ctx, ModeOuverture mode) {
    if (mode != ModeOuverture::DossierMaj) return true;
    return ctx.utilisateur.Question("Annuler la mise à jour du document RTF ?",
                                    "Demande de confirmation", Boutons::OuiNon, Reponse::Oui,
                                    Icone::Question) == Reponse::Oui;
}

} // namespace verdane
