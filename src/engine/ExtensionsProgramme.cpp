#include "engine/ExtensionsProgramme.h"

#include "domain/TabsActiLibres.h"
#include "domain/TabsCultures.h"
#include "graphs/ImageGraph.h"
#include "tables/Formules.h"
#include "tables/GenererTableau.h"

namespace verdane {

Texte ExtensionsProgramme::TableauCultures(Contexte& ctx, const Texte& code) {
    return verdane::TableauCultures(ctx, code);
}

Texte ExtensionsProgramme::TableauCulturesPerennes(Contexte& ctx, const Texte& code) {
    return verdane::TableauCultures(ctx, code);
}

Texte ExtensionsProgramme::TableauActivites(Contexte& ctx, const Texte& code) {
    return verdane::TableauActivites(ctx, code);
}

Texte ExtensionsProgramme::Graphique(Contexte& ctx, const Texte& interieur) {
    return ImageGraphRtf(ctx, interieur);
}

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
