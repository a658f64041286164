#pragma once
// What the open dialog decides, in its three modes: "document" (a text document or a model),
// "dossier" (the current dossier) and "dossiermaj" (the dossier with which a finished
// document is refreshed).

#include "library/ListeFichiers.h"
#include "shell/etat/Contexte.h"

#include <vector>

namespace verdane {

enum class ModeOuverture { Document, Dossier, DossierMaj };

// The mode of the dialog's tag; any other tag is "document".
ModeOuverture ModeDuTag(const Texte& tag);

struct OngletOuverture {
    Texte libelle;     // " Liste des documents texte"...
    Texte suppression; // the caption of its delete button: "Sup. doc."...
    Texte tag;         // the list it shows (ListeFichiers.h)
};
std::vector<OngletOuverture> OngletsOuverture(ModeOuverture mode);

// The dialog's title in a dossier mode; empty in "document".
Texte TitreOuverture(ModeOuverture mode, bool comparaison);

// The tip over a row of a dossier list.
Texte InfoBulleDossier(int numero, const Texte& nom);

// Open on the row `ligne` (null when nothing is chosen) of `liste`. A document or a model goes
// to the word processor; a dossier, once confirmed, becomes the current dossier and, in
// "dossiermaj", `documentMaj` is refreshed from it. True when the dialog is done and closes.
bool OuvrirElement(Contexte& ctx, ModeOuverture mode, const ListeFichiers& liste,
                   const LigneListe* ligne, const Texte& documentMaj);

// Delete buttons: the rows chosen, or every row of the list; each asked first. Returns the
// number deleted.
int SupprimerDepuisListe(Contexte& ctx, const ListeFichiers& liste,
                         const std::vector<LigneListe>& choix);
int SupprimerToutDepuisListe(Contexte& ctx, const ListeFichiers& liste);

// The document named by the command line's job OUVRIR: "#mrl#" stands for a blank, and ".rtf"
// is put behind a name that doesn't end with it (any case).
Texte DocumentDuTravailOuvrir(const Texte& argument);

// Cancel: true when the dialog may close (in "dossiermaj" the user is asked).
bool ConfirmerAnnulation(Contexte& ctx, ModeOuverture mode);

} // namespace verdane
