#pragma once
// The link to Lotus Word Pro over late-bound automation. The program always starts its own
// Word Pro and keeps that one object for its life.

#include "links/Automation.h"
#include "shell/etat/Contexte.h"

namespace verdane {

class PiloteWordPro : public PiloteEditeur {
public:
    PiloteWordPro(Contexte& ctx, PortAutomation& port) : ctx_(ctx), port_(port) {}

    bool LierApplication() override;
    bool NouveauDocument() override;
    bool OuvrirDocument(const Texte& chemin) override;
    bool SauverDocument(int forcer, bool confirmer) override;
    bool FermerDocument(int reponse) override;
    bool InsererTexte(const Texte& texte, const Texte& police, int taille) override;
    Texte LireSelection() override;
    void EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) override;

    // Word Pro's name of a save-as format.
    static Texte FormatWordPro(FormatDocument format);

private:
    RefObjet DocumentActif();
    void Montrer();
    void SignalerErreur(const std::exception& e);

    Contexte& ctx_;
    PortAutomation& port_;
    RefObjet app_;
};

} // namespace verdane
