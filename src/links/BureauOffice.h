#pragma once
// What the OpenOffice link needs of a running office: one connection to it, its desktop and
// the current document. A platform puts a real office behind it (LibreOffice through UNO);
// tests put a recording one. Every operation throws ErreurEditeur when the office fails.

#include "links/PiloteEditeur.h"

namespace verdane {

class BureauOffice {
public:
    virtual ~BureauOffice() = default;

    // Reaches the office, starting one when none answers, and restarting it when the one
    // reached before has died. False, with the reason in `erreur`, when none can be had.
    virtual bool Connecter(Texte& erreur) = 0;

    // Why the office that held the current document went away under it (a crash, a kill):
    // the document went with it. Empty when no document was lost so.
    virtual Texte DocumentPerdu() { return {}; }

    // The number of frames of the desktop.
    virtual int NombreCadres() = 0;
    // Loads a document from a URL ("private:factory/swriter" for a new one) into a new frame;
    // it becomes the current document. `cache`: without showing it.
    virtual void ChargerURL(const Texte& url, bool cache) = 0;
    // Takes the desktop's current component as the current document; false if there is none.
    virtual bool PrendreDocumentCourant() = 0;

    // Of the current document:
    virtual bool LectureSeule() = 0;
    virtual bool AEmplacement() = 0;
    virtual bool Modifie() = 0;
    virtual void Stocker() = 0;
    // Stores under a URL with a filter; `exporter` keeps the document's own location (an
    // export filter such as PDF can only be written so).
    virtual void StockerSous(const Texte& url, const Texte& filtre, bool exporter) = 0;
    // Closes the active frame of the desktop.
    virtual void FermerCadreActif() = 0;
    // Inserts at the view cursor, nothing replaced; font name applied when not empty, height
    // when above 0.
    virtual void InsererTexte(const Texte& texte, const Texte& police, int taille) = 0;
    // The text of the view cursor.
    virtual Texte Selection() = 0;
};

} // namespace verdane
