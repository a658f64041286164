#include "tables/DefinitionLigne.h"

#include "tables/LectureCode.h"

#include <algorithm>

namespace verdane {

GenreLigne GenreDeLigne(std::string_view definition) {
    struct Mot {
        std::string_view mot;
        GenreLigne genre;
    };
    static constexpr Mot kCinqLettres[] = {
        {"espac", GenreLigne::Espace}, {"cultu", GenreLigne::Cultu}, {"cultp", GenreLigne::Cultp},
        {"imemp", GenreLigne::Imemp},  {"prime", GenreLigne::Prime}, {"newpg", GenreLigne::Newpg},
    };
    static constexpr Mot kMotsEntiers[] = {
        {"entete", GenreLigne::Entete}, {"serie", GenreLigne::Serie},
        {"totalS", GenreLigne::TotalS}, {"totalC", GenreLigne::TotalC},
        {"scult", GenreLigne::Scult},   {"scltp", GenreLigne::Scltp},
        {"ALani", GenreLigne::ALani},
    };
    const std::string_view debut = definition.substr(0, 5);
    for (const Mot& m : kCinqLettres)
        if (debut == m.mot) return m.genre;
    const std::string_view mot = definition.substr(0, definition.find(':'));
    for (const Mot& m : kMotsEntiers)
        if (mot == m.mot) return m.genre;
    return GenreLigne::Autre;
}

DefinitionLigne AnalyserDefinition(std::string_view definition) {
    DefinitionLigne d;
    d.genre = GenreDeLigne(definition);
    const std::size_t deuxPoints = definition.find(':');
    d.mot = Texte(definition.substr(0, deuxPoints));
    if (deuxPoints != std::string_view::npos) d.reste = Texte(definition.substr(deuxPoints + 1));

    static constexpr GenreLigne kAvecRegle[] = {
        GenreLigne::Serie, GenreLigne::TotalS, GenreLigne::TotalC,
        GenreLigne::Scult, GenreLigne::Scltp,  GenreLigne::ALani,
        GenreLigne::Cultu, GenreLigne::Cultp,  GenreLigne::Imemp};
    if (std::find(std::begin(kAvecRegle), std::end(kAvecRegle), d.genre) != std::end(kAvecRegle)) {
        const std::size_t premier = d.reste.find(':');
        const std::size_t second =
            premier == Texte::npos ? Texte::npos : d.reste.find(':', premier + 1);
        if (second != Texte::npos) {
            d.regleZero = d.reste.substr(second + 1);
            d.reste.resize(second);
        }
    }
    const std::size_t decimales = d.reste.find(':');
    d.code = d.reste.substr(0, decimales);
    if (decimales != Texte::npos) d.decimales = NombreTableau(d.reste.substr(decimales + 1));
    return d;
}

} // namespace verdane
