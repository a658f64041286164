#pragma once
// The link to Microsoft Word over late-bound automation.

#include "links/Automation.h"
#include "shell/etat/Contexte.h"

#include <optional>

namespace verdane {

class PiloteMSWord : public PiloteEditeur {
public:
    PiloteMSWord(Contexte& ctx, PortAutomation& port) : ctx_(ctx), port_(port) {}

    bool LierApplication() override;
    bool NouveauDocument() override;
    bool OuvrirDocument(const Texte& chemin) override;
    bool SauverDocument(int forcer, bool confirmer) override;
    bool FermerDocument(int reponse) override;
    bool InsererTexte(const Texte& texte, const Texte& police, int taille) override;
    Texte LireSelection() override;
    void EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) override;

    // The insertion with Word's own font settings; an absent one is left as it stands.
    bool InsererTexteMisEnForme(const Texte& texte, std::optional<bool> gras,
                                std::optional<bool> italique, std::optional<long> couleur,
                                const Texte& police, int taille);

    // Word's number of a save-as format: 0 document, 6 RTF, and Word's own for the others.
    static long FormatWord(FormatDocument format);

private:
    long NombreDocuments();
    RefObjet DocumentActif();
    bool DocumentSansNom();
    void Montrer(const RefObjet& document);
    void SignalerErreur(const std::exception& e);
    void SignalerAucunDocument(const char* technique);

    Contexte& ctx_;
    PortAutomation& port_;
    RefObjet app_;
};

} // namespace verdane
