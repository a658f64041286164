#pragma once
// The program's own engines behind the interpreter's prefix codes: tables, formulas, crop and
// activity tables, charts.

#include "engine/ExtensionsCode.h"

namespace verdane {

class ExtensionsProgramme : public ExtensionsCode {
public:
    Texte TableauCultures(Contexte& ctx, const Texte& code) override;
    Texte TableauCulturesPerennes(Contexte& ctx, const Texte& code) override;
    Texte TableauActivites(Contexte& ctx, const Texte& code) override;
    Texte GenererTableau(Contexte& ctx, const Texte& code) override;
    Texte Graphique(Contexte& ctx, const Texte& interieur) override;
    Texte Formule(Contexte& ctx, const Texte& formule, int annee) override;
};

// The one instance a run uses by default; it holds no state.
ExtensionsCode& ExtensionsDuProgramme();

} // namespace verdane
