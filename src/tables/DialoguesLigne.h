#pragma once
// What the line dialog composes and refuses: the header forms with their sample texts, the
// definitions of series, totals, crop and activity lines, the lists of decimals and zero
// rules, the catalogue of pre-defined lines, and the lines whose values can't be defined.

#include "domain/Catalogues.h"
#include "shell/etat/Contexte.h"
#include "tables/EditeurTableaux.h"

#include <vector>

namespace verdane {

// A header form offered: its number, its wording and a sample of what it prints.
struct FormeEntete {
    Texte forme;
    Texte libelle;
    Texte exemple;
};
// The year forms, or the dossier forms of a table in mode "d".
const std::vector<FormeEntete>& FormesEntete(bool modeDossier);

// A header definition "entete:form:text1&text2" taken apart; missing pieces are empty.
struct DefinitionEntete {
    Texte forme;
    Texte debut;
    Texte fin;
};
DefinitionEntete LireEntete(const Texte& definition);
Texte EcrireEntete(const DefinitionEntete& entete);

// The decimals list: "AUTO" (7) then 0 to 6.
const std::vector<Texte>& TextesDecimales();
int DecimalesDeChoix(int choix);
int ChoixDeDecimales(int decimales);
// The zero rules "0" to "3", in that order.
const std::vector<Texte>& TextesReglesZero();

// The parts common to the value lines: kind word, code or formula, decimals, zero rule.
struct DefinitionValeurs {
    Texte mot;
    Texte code;
    int decimales = 7;
    int regleZero = 2;
};
// Read as the renderer reads it: decimals 7 and rule 2 when they are missing.
DefinitionValeurs LireValeurs(const Texte& definition);
Texte EcrireValeurs(const DefinitionValeurs& valeurs);

// The simple total "LGa op LGb"; `operateur` as offered ("x" stands for "*").
inline constexpr const char* kOperateursTotal[] = {"+", "-", "x", "/"};
Texte FormuleSimple(int ligneA, const Texte& operateur, int ligneB);
// A simple total taken apart, for the dialog's lists; false when the formula is another one.
bool LireFormuleSimple(const Texte& formule, int& ligneA, Texte& operateur, int& ligneB);
// The free formula as stored: in capitals.
Texte FormuleStockee(const Texte& saisie);

// The words of the repeated tables' value lines, by kind of line ("scult", "scltp", "ALani"),
// and the end of the dialog's title ("cultures"...); empty for the other kinds.
Texte MotSerieRepetee(TypeLigne type);
Texte TitreSerieRepetee(TypeLigne type);
// The items offered for the value of a repeated table's line, as a tree (parents first): the
// catalogue of crops, of perennial crops or of free animal activities, by the kind of line.
std::vector<NoeudElement> ElementsSerieRepetee(TypeLigne type);
// The key a chosen node writes in the definition: a crop's "@" code ("@14"), an activity's
// record number ("24"); empty for a folder.
Texte CleSerieRepetee(const NoeudElement& noeud);

// Asks whether the series' label replaces the first cell's text; true when it should. Not
// asked when the texts are equal or the label is empty.
bool RemplacerLibelle(Contexte& ctx, const Texte& actuel, const Texte& nouveau);

// The catalogue of pre-defined lines, parent before children; a node's key is the definition
// it writes ("cultu", "imemp:inve1"...), the folders' keys end with "#".
std::vector<NoeudTableau> CataloguePredefinies();

// Whether the values of `ligne` may be defined as `type` (none: no kind chosen) in `tableau`;
// otherwise the reason has been told.
bool DefinitionPermise(Contexte& ctx, const TableauModele& tableau, const LigneModele& ligne,
                       std::optional<TypeLigne> type);

} // namespace verdane
