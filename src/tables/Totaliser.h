#pragma once
// What the formula dialog of a total line composes: references added at the end of the
// formula, to a line above the total (`LG`n) or to a series of the dossier
// (`LG(`tag-record`)`, for the column's year, the year before it, or a fixed year).

#include "shell/etat/Contexte.h"
#include "tables/TableauModele.h"

#include <vector>

namespace verdane {

// The year a series reference reads: the column's, the one before ("!A-1"), or a fixed year
// index ("!A"y).
enum class AnneeSerie { Colonne, Precedente, Fixe };

class Totaliser {
public:
    // The formula of total line `ligneTotal` of `tableau`, as it stands when the dialog opens.
    Totaliser(Contexte& ctx, const TableauModele& tableau, int ligneTotal, Texte formule);

    const Texte& Formule() const { return formule_; }
    // The formula as the user typed it.
    void Changer(const Texte& formule) { formule_ = formule; }

    // The lines offered: those above the total, "LG"n and the line's first label.
    std::vector<Texte> LignesProposees() const;
    // Adds `LG`n; refused, told, for a line that isn't above the total.
    bool AjouterLigne(int numero);
    // Adds the series of a tree leaf (key "<file.DON>+<tag>-<record>") at the year chosen;
    // `anneeFixe` is a year index (0 the start year). Refused, told, for a node that is not a
    // series.
    bool AjouterSerie(const Texte& cle, AnneeSerie annee, int anneeFixe = 0);
    // An operator or bracket of the dialog's buttons.
    void Ajouter(const Texte& texte);

private:
    Contexte& ctx_;
    const TableauModele& tableau_;
    int ligneTotal_;
    Texte formule_;
};

// The fixed years offered: "année début", "1ère année", then "2e année" to "13e année".
std::vector<Texte> TextesAnneesFixes();

} // namespace verdane
