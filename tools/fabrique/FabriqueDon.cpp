#include "Fabrique.h"

#include "utils/Binaire.h"
#include "utils/Chaines.h"

#include <charconv>
#include <map>

namespace verdane::fabrique {

namespace {
constexpr std::size_t kTailleEnrDon = 90;

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
    EcrivainBinaire e;
    long long suivant = 1;
    for (const auto& [numero, s] : enregistrements) {
        e.Completer(static_cast<std::size_t>(numero - 1) * kTailleEnrDon);
        // Records not described stay blank.
        for (; suivant < numero; ++suivant) {
            const auto debut = static_cast<std::size_t>(suivant - 1) * kTailleEnrDon;
            std::fill(e.Octets().begin() + static_cast<std::ptrdiff_t>(debut),
                      e.Octets().begin() + static_cast<std::ptrdiff_t>(debut + 34), ' ');
        }
        e.Chaine(s->Valeur("code"), 12);
        e.Chaine(s->Valeur("libelle"), 22);
        const auto valeurs = Couper(s->Valeur("valeurs"), ';');
        for (std::size_t i = 0; i < 14; ++i)
            e.F32(i < valeurs.size() ? LireReel(valeurs[i]) : 0.0f);
        suivant = numero + 1;
    }
    return e.Octets();
}

} // namespace verdane::fabrique
