#include "Fabrique.h"

#include "data/Catalogue.h"
#include "utils/Chaines.h"

#include <map>

namespace verdane::fabrique {

std::string FabriquerCatalogue(const std::vector<Section>& description) {
    std::map<long long, const Section*> enregistrements;
    for (const auto& s : description)
        if (auto n = EntierStrict(s.nom); n && *n >= 1 && *n <= 32767) enregistrements[*n] = &s;
    std::string octets;
    long long suivant = 1;
    for (const auto& [numero, s] : enregistrements) {
        for (; suivant < numero; ++suivant)
            octets += EcrireEnrCatalogue(EnrCatalogue{"", "[ sans nom ]", "", "", 0, 0});
        EnrCatalogue e;
        e.code = s->Valeur("code");
        e.libelle = s->Valeur("libelle");
        e.dossier1 = s->Valeur("dossier1");
        e.dossier2 = s->Valeur("dossier2");
        e.queue = static_cast<std::int16_t>(s->Entier("queue"));
        octets += EcrireEnrCatalogue(e);
        suivant = numero + 1;
    }
    return octets;
}

} // namespace verdane::fabrique
