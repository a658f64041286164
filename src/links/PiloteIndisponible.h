#pragma once
// The link to a word processor that this system can't drive (Word and Word Pro away from
// Windows): every operation says so plainly and does nothing.

#include "shell/etat/Contexte.h"

namespace verdane {

class PiloteIndisponible : public PiloteEditeur {
public:
    // `nom`: the name shown for the word processor ("Microsoft Word").
    PiloteIndisponible(Contexte& ctx, Texte nom) : ctx_(ctx), nom_(std::move(nom)) {}

    bool LierApplication() override { return Signaler(); }
    bool NouveauDocument() override { return Signaler(); }
    bool OuvrirDocument(const Texte&) override { return Signaler(); }
    bool SauverDocument(int, bool) override { return Signaler(); }
    bool FermerDocument(int) override { return Signaler(); }
    bool InsererTexte(const Texte&, const Texte&, int) override { return Signaler(); }
    Texte LireSelection() override {
        Signaler();
        return {};
    }
    void EnregistrerSous(const Texte&, FormatDocument, bool) override {
        throw ErreurEditeur(Texte(nom_ + " n'est pas disponible sur ce système."));
    }
    bool Disponible() const override { return false; }

    // The message, shown also when this word processor is chosen.
    bool Signaler();

private:
    Contexte& ctx_;
    Texte nom_;
};

} // namespace verdane
