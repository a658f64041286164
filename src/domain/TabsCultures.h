#pragma once
// Crop tables: the rows of kinds `cultu` and `cultp` (one row per crop), the values of a crop
// by series name or by `@` code, and the loop that repeats a whole table for each crop.

#include "shell/etat/Contexte.h"
#include "tables/TableauModele.h"

#include <functional>
#include <string_view>

namespace verdane {

// Renders one table code (with its repetition prefix) as the table walk does, with the current
// crop or module of EtatDomaine set. The program's own is GenererTableau.
using RenduTableau = std::function<Texte(Contexte&, const Texte& code)>;
RenduTableau RenduDuProgramme();

// Rows of kind `cultu` for row `ligne` of the table being rendered (slot 1): one row per
// annual crop, in three groups (vente, fourragère, maraîchère), with the group totals when the
// sub-code is `assol`. `prefixe` is the row prefix built by the table walk.
Texte LignesCultures(Contexte& ctx, int ligne, const Texte& prefixe);
// Rows of kind `cultp`: one row per perennial crop, list order, no groups, no totals; the
// values are record 1 of the crop's `CltP<n>.don`, its surface.
Texte LignesCulturesPerennes(Contexte& ctx, int ligne, const Texte& prefixe);

// The value of the current crop for `texte` "<name>:..." (name compared in lower case) at a
// column 0 to 10; `totalvente`, `totalfourr`, `totalmarai` read the group sums. Unknown: 0.
float SerieCultureParNom(const EtatDomaine& domaine, std::string_view texte, int colonne);

// Value of a `@` code of the current crop: `code` is the text after "@" (a ":" and decimals may
// follow), `annee` the year index, `perenne` picks `CltP<n>.don` over `Cult<n>.don`. Number
// text; an unknown plain number reads its record, anything else gives 0.
Texte ValeurArobaseCulture(Contexte& ctx, std::string_view code, int annee, bool perenne);
// The same as a number.
float NombreArobaseCulture(const Etat& etat, std::string_view code, int annee, bool perenne);

// The text of label column `colonne` (from 1) of a line in a repeated crop table: the crop's
// label in column 1 of a `scult` line under header form 1, "Coût net op." for the lines of
// `@14` and `@15` of a fourragère crop, else `texte`.
Texte LibelleLigneCulture(const Etat& etat, const TableauModele& tableau, const LigneModele& ligne,
                          int colonne, const Texte& texte);

// A table code whose lines of `scult:@14` and `scult:@15` carry "Coût net op." as their
// first label, as a fourragère crop's table shows them.
Texte CodeCoutNetOp(const Texte& code);

// The whole table of `code` (with its `culture` or `cultper` prefix) once per crop, each
// opened by its top block, report block or band. Empty without crops.
Texte TableauCultures(Contexte& ctx, const Texte& code,
                      const RenduTableau& rendu = RenduDuProgramme());

// The report blocks and the band, for the current crop.
Texte BlocCulture(const Etat& etat, const EnrCulture& culture);
Texte BlocCulturePerenne(const Etat& etat, const EnrCulturePerenne& culture);
Texte BandeActivite(const Etat& etat, std::string_view libelle);
// The running number block: "\qr\fs20\cf<c>\b <prefix>-<n>\par \plain ".
Texte BlocNumero(const Etat& etat, int prefixe, int compteur);

// The words of a crop kind (1 to 4): long text for the report block, short text.
Texte TypeCulture(int genre, bool derobee);
Texte TypeCultureCourt(int genre);
// The surface unit word of the dossier: "ha", "are", "m²"; for perennials any other "autre".
Texte UniteSurface(int unite, bool perenne);

} // namespace verdane
