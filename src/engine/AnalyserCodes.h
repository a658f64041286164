#pragma once
// The code scanner: finds the marks of a text and hands each code to the interpreter.

#include "shell/etat/Contexte.h"

namespace verdane {

struct Explication;

// Expands every "#mrl(...)#" of `texte` in place. The result is that of the last code: false
// after a false condition, true otherwise and when there is no code.
bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour);
// The same; in explanation mode `explication` receives what was told of the last code.
bool AnalyserCodes(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour,
                   Explication* explication);

// Expands every "%mrl(...)%" of a table cell's text in place, without annotation. A "%mrl("
// without its ")%" stays as text and ends the work; one opened again before its ")%" stays
// as text, the inner one being expanded.
void AnalyserCodesImbriques(Contexte& ctx, Texte& texte);

// The meaning of one code for the user (the message form of kind "Aide"), and its value for
// the linked dossier. `code` is either a whole mark "#mrl(...)#" or the bare inside.
Explication ExpliquerCode(Contexte& ctx, const Texte& code);

// The program's scanner behind the port of the creation driver.
class AnalyseurStandard : public AnalyseurCodes {
public:
    bool Analyser(Contexte& ctx, Texte& texte, bool expliquer, bool miseAJour) override {
        return AnalyserCodes(ctx, texte, expliquer, miseAJour);
    }
};

} // namespace verdane
