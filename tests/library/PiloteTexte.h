#pragma once
// A word processor for the insertion tests: it keeps what is inserted, in one text, and gives
// a selection set by the test.

#include "links/PiloteEditeur.h"
#include "shell/etat/Contexte.h"

#include <vector>

namespace verdane::test {

class PiloteTexte : public PiloteEditeur {
public:
    bool LierApplication() override { return true; }
    bool NouveauDocument() override { return true; }
    bool OuvrirDocument(const Texte&) override { return true; }
    bool SauverDocument(int, bool) override { return true; }
    bool FermerDocument(int) override { return true; }
    bool InsererTexte(const Texte& texte, const Texte& police, int taille) override {
        inseres.push_back(texte);
        polices.push_back(police + "/" + std::to_string(taille));
        return true;
    }
    Texte LireSelection() override { return selection; }
    void EnregistrerSous(const Texte&, FormatDocument, bool) override {}

    // Links it to `ctx` as its OpenOffice.
    void Lier(Contexte& ctx) {
        ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
        ctx.pilotes[static_cast<std::size_t>(Editeur::OpenOffice)] = this;
    }

    std::vector<Texte> inseres;
    std::vector<Texte> polices;
    Texte selection;
};

} // namespace verdane::test
