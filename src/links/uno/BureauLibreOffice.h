#pragma once
// A LibreOffice reached through UNO: the one that listens on the shared pipe when the user
// runs one, else one started for this program on a private pipe, headless when this system
// has no screen. The office started here is ended when this object goes, or by Terminer, but
// for one on screen that still shows the user a document; one that died between two
// operations is started again at the next.

#include "links/BureauOffice.h"

#include <memory>
#include <sys/types.h>

namespace verdane {

struct OptionsOffice {
    // The office program to start; empty: the one of this system.
    Texte executable;
    // The pipe of an office the user started with --accept=pipe,name=...;urp; tried first.
    // Empty: always start one.
    Texte tubePartage = "verdane";
    // Headless: forced here, or when there is no display or the office has no window toolkit.
    bool sansEcran = false;
    // How long an office may take to answer after its start.
    int delaiDemarrageMs = 60000;
    // How long one operation may last before the office started here is taken for hung and
    // killed (the next operation starts another).
    int delaiOperationMs = 180000;
};

class BureauLibreOffice : public BureauOffice {
public:
    explicit BureauLibreOffice(OptionsOffice options = {});
    ~BureauLibreOffice() override;
    BureauLibreOffice(const BureauLibreOffice&) = delete;
    BureauLibreOffice& operator=(const BureauLibreOffice&) = delete;

    bool Connecter(Texte& erreur) override;
    int NombreCadres() override;
    void ChargerURL(const Texte& url, bool cache) override;
    bool PrendreDocumentCourant() override;
    bool LectureSeule() override;
    bool AEmplacement() override;
    bool Modifie() override;
    void Stocker() override;
    void StockerSous(const Texte& url, const Texte& filtre, bool exporter) override;
    void FermerCadreActif() override;
    void InsererTexte(const Texte& texte, const Texte& police, int taille) override;
    Texte Selection() override;

    // Selects the whole text of the current document with the view cursor.
    void SelectionnerTout();

    // Ends the office started here, if any: asked to end, then stopped.
    void Terminer();
    // How many offices this object has started.
    int Demarrages() const;
    // The process of the office started here and running, or 0.
    pid_t PidOffice() const;

    struct Impl;

private:
    std::unique_ptr<Impl> impl_;
};

// A file URL made safe for the office: letters beyond ASCII in UTF-8 and "%XX", and the
// characters that would end the path ("#", "?") escaped too.
Texte UrlPourOffice(const Texte& url);

} // namespace verdane
