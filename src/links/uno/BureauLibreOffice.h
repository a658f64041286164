#pragma once
// A LibreOffice reached through UNO: the one that listens on the shared pipe when the user
// runs one, else one started for this program on a private pipe: on screen when the office is
// the user's (and this system has a screen), headless otherwise. The office started here is
// ended when this object goes, or by Terminer, but for one on screen that still shows the user
// a document; one that died between two operations is started again at the next, and one
// that dies under an operation is told as such.

#include "links/BureauOffice.h"

#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>

namespace verdane {

struct OptionsOffice {
    // The office program to start; empty: the one of this system (or of `executableChoisi`).
    Texte executable;
    // The pipe of an office the user started with --accept=pipe,name=...;urp; tried first.
    // Empty: always start one.
    Texte tubePartage = "verdane";
    // Headless: forced here, or when there is no display or the office has no window toolkit.
    bool sansEcran = false;
    // How long an office may take to answer after its start: well over a minute on a loaded
    // machine.
    int delaiDemarrageMs = 300000;
    // How long one operation may last before the office started here is taken for hung and
    // killed (the next operation starts another).
    int delaiOperationMs = 180000;
    // Asked at each start of an office, when set: the office program chosen by the user (a
    // path of this system, empty for none), and whether the office is the user's, to be shown
    // on screen (else it runs headless).
    std::function<std::string()> executableChoisi = nullptr;
    std::function<bool()> officeVisible = nullptr;
};

class BureauLibreOffice : public BureauOffice {
public:
    explicit BureauLibreOffice(OptionsOffice options = {});
    ~BureauLibreOffice() override;
    BureauLibreOffice(const BureauLibreOffice&) = delete;
    BureauLibreOffice& operator=(const BureauLibreOffice&) = delete;

    bool Connecter(Texte& erreur) override;
    Texte DocumentPerdu() override;
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
    // Changes how long one operation may last from now on.
    void PoserDelaiOperation(int delaiMs);
    // The profile folder of the office started here and running; empty when none.
    std::string ProfilOffice() const;
    // True when the office started here runs headless.
    bool SansEcran() const;
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
