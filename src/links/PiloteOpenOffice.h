#pragma once
// The link to OpenOffice (LibreOffice here): the contract over a running office.

#include "links/BureauOffice.h"
#include "shell/etat/Contexte.h"

namespace verdane {

class PiloteOpenOffice : public PiloteEditeur {
public:
    PiloteOpenOffice(Contexte& ctx, BureauOffice& bureau) : ctx_(ctx), bureau_(bureau) {}

    bool LierApplication() override;
    bool NouveauDocument() override;
    bool OuvrirDocument(const Texte& chemin) override;
    bool OuvrirDocumentCache(const Texte& chemin) override;
    bool SauverDocument(int forcer, bool confirmer) override;
    bool FermerDocument(int reponse) override;
    bool InsererTexte(const Texte& texte, const Texte& police, int taille) override;
    Texte LireSelection() override;
    void EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) override;

    // The filter of a save-as, by the table of saves ("MS Word 97" when closing, "MS WinWord
    // 97/2000/XP" when not, and the office's own filters for ODT, DOCX and PDF).
    static Texte Filtre(FormatDocument format, bool fermeture);

private:
    bool Charger(const Texte& url, bool cache);
    void SignalerErreur(const std::exception& e);

    Contexte& ctx_;
    BureauOffice& bureau_;
};

} // namespace verdane
