#pragma once
// Fakes of the ports for the engine's tests: a user who records every message, and engines
// that answer with recognisable texts at a fixed time.

#include "engine/AnalyserCodes.h"
#include "engine/ExtensionsCode.h"
#include "shell/etat/Contexte.h"
#include "support/FauxUtilisateur.h"

#include <vector>

namespace verdane::test {

class FaussesExtensions : public ExtensionsCode {
public:
    Texte TableauCultures(Contexte& ctx, const Texte& code) override {
        perenne = ctx.etat.TransfoPerenne;
        return "[cultures " + code + "]";
    }
    Texte TableauCulturesPerennes(Contexte& ctx, const Texte& code) override {
        perenne = ctx.etat.TransfoPerenne;
        return "[perennes " + code + "]";
    }
    Texte TableauActivites(Contexte&, const Texte& code) override {
        return "[activites " + code + "]";
    }
    Texte GenererTableau(Contexte&, const Texte& code) override { return "[tableau " + code + "]"; }
    Texte Graphique(Contexte&, const Texte& interieur) override {
        return "[graphique " + interieur + "]";
    }
    Texte Formule(Contexte&, const Texte& formule, int annee) override {
        return "[formule " + formule + " en " + std::to_string(annee) + "]";
    }
    Instant Maintenant() override { return maintenant; }

    // Sunday 22 November 2026, 09:05:07.
    Instant maintenant{2026, 11, 22, 9, 5, 7};
    bool perenne = false;
};

// A context with the recording user.
struct MoteurDeTest {
    FauxUtilisateur utilisateur;
    Contexte ctx{utilisateur};
    FaussesExtensions extensions;

    MoteurDeTest() { ctx.extensions = &extensions; }

    // `texte` with its marks expanded; `resultat` receives the scanner's result.
    Texte Developper(Texte texte, bool* resultat = nullptr) {
        const bool r = AnalyserCodes(ctx, texte, false, false);
        if (resultat) *resultat = r;
        return texte;
    }
    // The expansion of one code standing alone.
    Texte Valeur(const Texte& code, bool* resultat = nullptr) {
        return Developper("#mrl(" + code + ")#", resultat);
    }
};

} // namespace verdane::test
