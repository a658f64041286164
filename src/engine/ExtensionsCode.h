#pragma once
// What the interpreter hands to the table, graph, formula and domain engines, and the clock it
// reads. The program's engines stand behind it; with none (ctx.extensions null) those codes give
// an empty value and the clock is the machine's.

#include "utils/Texte.h"

namespace verdane {

class Contexte;

// A moment of the calendar, in local time.
struct Instant {
    int annee = 1970;
    int mois = 1; // 1 to 12
    int jour = 1; // 1 to 31
    int heure = 0;
    int minute = 0;
    int seconde = 0;
};

// The machine's clock, local time.
Instant MaintenantSysteme();

class ExtensionsCode {
public:
    virtual ~ExtensionsCode() = default;

    // `culture...`: the RTF of a crop table; `code` is the whole cleaned code.
    virtual Texte TableauCultures(Contexte&, const Texte& /*code*/) { return {}; }
    // `cultper...`: the RTF of a perennial-crop table.
    virtual Texte TableauCulturesPerennes(Contexte&, const Texte& /*code*/) { return {}; }
    // `actlibr...`: the RTF of an animal activity table.
    virtual Texte TableauActivites(Contexte&, const Texte& /*code*/) { return {}; }
    // `tab...`: the RTF of a table model carried in the code.
    virtual Texte GenererTableau(Contexte&, const Texte& /*code*/) { return {}; }
    // `gph(...)`: the RTF picture of a chart; `interieur` is what stands between "gph(" and the
    // last ")", and always holds a ";".
    virtual Texte Graphique(Contexte&, const Texte& /*interieur*/) { return {}; }
    // `formule:<annee>a:<formule>`: the value of the formula at that year index.
    virtual Texte Formule(Contexte&, const Texte& /*formule*/, int /*annee*/) { return {}; }

    // The clock of the `date(n)` codes and of the ages.
    virtual Instant Maintenant() { return MaintenantSysteme(); }
};

} // namespace verdane
