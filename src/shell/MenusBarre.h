#pragma once
// What the bar offers: its tabs, and the entries of each menu form with their hint texts and
// what they do. The forms draw this table; ExecuterEntree does what an entry says.

#include "shell/GestionBarre.h"
#include "shell/etat/Contexte.h"

#include <span>
#include <vector>

namespace verdane {

enum class ActionEntree {
    Forme,      // opens a form of the registry
    Code,       // inserts a code at the cursor
    NouveauDoc, // the word processor's operations
    SauverDoc,
    SauverDocSous,
    FermerDoc,
    ChoixEditeur,   // the editor choice, then the options are saved
    Adresse,        // a web page or the guide, opened by the desktop
    ValiderOptions, // saves the options; the menu closes
};

struct EntreeMenu {
    Menu menu;
    const char* controle; // the control's name (lblNewDoc...)
    const char* libelle;  // what the entry shows
    const char* bulle;    // its hint text
    ActionEntree action;
    const char* forme;                  // the form opened, or the code inserted
    std::vector<const char*> arguments; // the form's arguments
    bool editeurRequis;                 // needs a linked word processor
};

// The tab captions, index 0 to 5.
const char* LibelleOnglet(int index);
// The entries of one menu form, in their order on the form.
std::vector<const EntreeMenu*> EntreesMenu(Menu menu);
// An entry by its control's name; null when there is none.
const EntreeMenu* EntreeParControle(std::string_view controle);

// Address opened by the update entry: a setting of the deployment (VERDANE_ADRESSE_MAJ).
Texte AdresseMiseAJour();

// What remains for the form to do after an entry ran.
struct SuiteEntree {
    Texte adresse; // a page for the desktop to open; empty: nothing
};

// Does what `entree` says, the menu's close token being already set. A form that this build
// hasn't got, or a word processor that isn't linked, is told to the user; nothing throws.
SuiteEntree ExecuterEntree(Contexte& ctx, const EntreeMenu& entree);

// True when a word processor is linked; else tells the user so and returns false.
bool VerifierEditeur(Contexte& ctx);

// Says that `forme` isn't part of this version.
void SignalerFormeAbsente(Contexte& ctx, const Texte& forme);

} // namespace verdane
