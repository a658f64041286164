#include "engine/ExtensionsProgramme.h"

#include "tables/Formules.h"
#include "tables/GenererTableau.h"

namespace verdane {

Texte ExtensionsProgramme::GenererTableau(Contexte& ctx, const Texte& code) {
    return verdane::GenererTableau(ctx, code);
}

Texte ExtensionsProgramme::Formule(Contexte& ctx, const Texte& formule, int annee) {
    return EvaluerFormule(ctx, formule, annee);
}

ExtensionsCode& ExtensionsDuProgramme() {
    static ExtensionsProgramme extensions;
    return extensions;
}

} // namespace verdane
