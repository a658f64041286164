#pragma once
// The code scanner: finds the marks of a text and hands each code to the interpreter.

#include "shell/Contexte.h"

namespace verdane {

// Expands every "#mrl(...)#" of `texte` in place. The result is that of the last code: false
// after a false condition, true otherwise and when there is no code.
bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour);

// The program's scanner behind the port of the creation driver.
class AnalyseurStandard : public AnalyseurCodes {
public:
    bool Analyser(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour) override {
        return AnalyserCodes(ctx, texte, expliquer, miseAJour);
    }
};

} // namespace verdane
