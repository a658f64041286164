#pragma once
// The table editor over the library tableaux.txt: its tree of folders, the new table and the
// kinds of line with their defaults, the line operations that keep totals in step, the folder
// rules, and inserting or recovering a table. Every message and question goes through the
// user port; the windows only show what this decides.

#include "shell/etat/Contexte.h"
#include "tables/Formules.h"
#include "tables/TableauModele.h"

#include <optional>
#include <vector>

namespace verdane {

// A node of the library's tree, listed parent before children; `parent` is empty for the root.
struct NoeudTableau {
    Texte cle;
    Texte texte;
    Texte parent;
    bool operator==(const NoeudTableau&) const = default;
};

// The tree: root "Racine" "Tableaux enregistrés", folders "#Doss", sub-folders "#ssDoss##"
// (keys that tell the node's kind, hence no "tab" in a folder's name), tables "tab" + number in
// file order; "tab0" "Aucun enregistrement" when there is no table.
std::vector<NoeudTableau> ArbreTableaux(const std::vector<TableauModele>& tableaux);
// The table number of a node key ("tab12" gives 12), 0 for any other node.
int NumeroTableau(const Texte& cle);

// Kinds of line as the line dialog offers them, in the order of its list.
enum class TypeLigne {
    Intitule,
    Serie,
    Espace,
    Calcul,
    Predefinies,
    SerieCulture,
    SerieCulturePerenne,
    SerieActivite
};
const std::vector<Texte>& TextesTypesLigne();
const std::vector<Texte>& TextesGenresTableau();
const std::vector<Texte>& TextesAnneesTableau();
// The kind of an existing line, from its definition.
TypeLigne TypeDeLigne(const LigneModele& ligne);

TableauModele NouveauTableau(const Options& options);
LigneModele NouvelleLigne(const Options& options);
// The defaults of a kind picked for a line: texts, definition, bold labels, formats and frames
// from the options' pairs.
void AppliquerTypeLigne(LigneModele& ligne, TypeLigne genre, const Options& options,
                        int nbColonnes);

// A label cell's text as typed: paragraph ends dropped, ";" (which separates the code's
// fields) turned into ",".
Texte TexteDeLibelle(const Texte& saisie);

class EditeurTableaux {
public:
    explicit EditeurTableaux(Contexte& ctx) : ctx_(ctx) {}

    // Loads the library (the PDE one when the user in full access asks for it) and selects the
    // first table. False when the library's text could not be read whole: it is then never
    // written back without the user's consent.
    bool Ouvrir();
    const Texte& Chemin() const { return chemin_; }
    std::vector<TableauModele>& Tableaux() { return ctx_.etat.tableaux.TableauxCourants; }

    int Courant() const { return courant_; }
    void Selectionner(int numero);
    TableauModele* Tableau();

    // A new table in `dossier` (default "Divers"), selected; false at the library's end.
    bool AjouterTableau(const Texte& dossier = {}, const Texte& sousDossier = {});
    bool SupprimerTableau();
    bool SupprimerDossier(const Texte& dossier);
    bool SupprimerSousDossier(const Texte& dossier, const Texte& sousDossier);
    // A folder's (or sub-folder's) new name: refused when it holds "tab".
    bool NomDossierAccepte(const Texte& nom, bool sousDossier);
    // The table's kind: refused while it holds lines of another repeated kind.
    bool ChangerGenre(int genre);

    // The line operations on the selected table, lines counted from 1; `apres` 0 adds at the
    // top. Totals below follow; a total that can't follow is emptied and told.
    bool AjouterLigne(int apres);
    bool SupprimerLigne(int numero);
    bool DeplacerLigne(int numero, int cible, bool apresCible);
    bool DupliquerLigne(int numero);

    // "Insérer": asks, saves, and gives the table's code, to be put at the document's caret
    // between its marks.
    std::optional<Texte> Inserer();
    // A table code taken from a document: the library's equal entry is selected, or the code
    // becomes a new table of the folder "Récupéré", saved at once. Returns its number.
    int Recuperer(const Texte& code);
    // Writes the library; refused while it could not be read whole, unless `forcer`.
    bool Enregistrer(bool forcer = false);

private:
    void Renumeroter(int ligneChangee, SensRenumerotation sens);

    Contexte& ctx_;
    Texte chemin_;
    int courant_ = 0;
    bool lisible_ = true;
};

} // namespace verdane
