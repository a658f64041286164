#include "domain/LignesDomaineMarlo.h"

#include "domain/CadreDomaine.h"
#include "domain/TabsActiLibres.h"
#include "domain/TabsCultures.h"
#include "domain/TabsImmoEmpr.h"
#include "shell/etat/Contexte.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"

namespace verdane {

namespace {

int Decimales(const Texte& reste) {
    const auto p = reste.find(':');
    return p == Texte::npos ? 7 : NombreTableau(std::string_view(reste).substr(p + 1));
}

} // namespace

Texte LignesDomaineMarlo::Lignes(Contexte& ctx, GenreLigne genre, int ligne, const Texte& prefixe) {
    switch (genre) {
    case GenreLigne::Cultu:
        return LignesCultures(ctx, ligne, prefixe);
    case GenreLigne::Cultp:
        return LignesCulturesPerennes(ctx, ligne, prefixe);
    case GenreLigne::Imemp:
        return LigneImemp(ctx, ligne, prefixe);
    default:
        return {};
    }
}

Texte LignesDomaineMarlo::Valeur(Contexte& ctx, GenreLigne genre, const Texte& reste, int colonne) {
    switch (genre) {
    case GenreLigne::Cultu:
        return TexteNombre(ctx.etat, SerieCultureParNom(ctx.etat.domaine, reste, colonne),
                           Decimales(reste), false);
    case GenreLigne::Cultp:
        return ValeurArobaseCulture(ctx, "assolemper:" + std::to_string(Decimales(reste)), colonne,
                                    true);
    case GenreLigne::Scult:
        return ValeurArobaseCulture(ctx, reste, colonne, false);
    case GenreLigne::Scltp:
        return ValeurArobaseCulture(ctx, reste, colonne, true);
    case GenreLigne::ALani:
        return ValeurActivite(ctx, reste, colonne);
    default:
        return {};
    }
}

Texte LignesDomaineMarlo::LibelleCulture(Contexte& ctx) {
    return Rogner(ctx.etat.domaine.libelleCulture);
}

void BrancherDomaine(Contexte& ctx) {
    static LignesDomaineMarlo domaine;
    ctx.etat.tableaux.lignesDomaine = &domaine;
}

} // namespace verdane
