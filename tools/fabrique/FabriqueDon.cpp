#include "Fabrique.h"

#include "data/EnrDon.h"
#include "utils/Chaines.h"

#include <charconv>
#include <map>

namespace verdane::fabrique {

namespace {
float LireReel(const Texte& t) {
    const Texte v = RemplacerExact(RognerTout(t), ",", ".");
    float f = 0.0f;
    std::from_chars(v.data(), v.data() + v.size(), f);
    return f;
}
} // namespace

std::string FabriquerDon(const std::vector<Section>& description) {
    std::map<long long, const Section*> enregistrements;
    for (const auto& s : description)
        if (auto n = EntierStrict(s.nom); n && *n >= 1 && *n <= 100000) enregistrements[*n] = &s;
    std::string octets;
    long long suivant = 1;
    for (const auto& [numero, s] : enregistrements) {
        for (; suivant < numero; ++suivant) octets += EcrireEnrDon(EnrDon{}); // left blank
        EnrDon e;
        e.code = s->Valeur("code");
        e.libelle = s->Valeur("libelle");
        const auto valeurs = Couper(s->Valeur("valeurs"), ';');
        for (std::size_t i = 0; i < e.valeur.size() && i < valeurs.size(); ++i)
            e.valeur[i] = LireReel(valeurs[i]);
        octets += EcrireEnrDon(e);
        suivant = numero + 1;
    }
    return octets;
}

} // namespace verdane::fabrique
