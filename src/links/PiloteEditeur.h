#pragma once
// The link contract: what the program asks of a word processor. One implementation stands
// behind it per word processor; on a system without one, none does, or one that says so.

#include "utils/Texte.h"

#include <stdexcept>

namespace verdane {

// Editor numbers passed to the save-as routine.
enum class Editeur { Aucun = 0, Word = 1, WordPro = 2, OpenOffice = 3 };

// The format of a save-as, told by the extension of the target.
enum class FormatDocument { Rtf, Doc, Lwp, Odt, Docx, Pdf, Autre };

// A failure reported by a word processor (automation error, lost connection, refused save):
// its description is the technical text shown to the user.
class ErreurEditeur : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The shell's file dialog, as the save-as needs it.
class DialogueFichiers {
public:
    virtual ~DialogueFichiers() = default;
    // The path chosen to save a document, starting in `dossier`, with a filter written
    // "Label (*.ext)|*.ext|..."; empty when the user cancels.
    virtual Texte CheminSauvegarde(const Texte& dossier, const Texte& filtre) = 0;
};

class PiloteEditeur {
public:
    virtual ~PiloteEditeur() = default;

    virtual bool LierApplication() = 0;
    virtual bool NouveauDocument() = 0;
    virtual bool OuvrirDocument(const Texte& chemin) = 0;
    // `forcer` non-zero forces the save-as dialog; `confirmer` is passed on to the save-as.
    virtual bool SauverDocument(int forcer, bool confirmer) = 0;
    // `reponse` 0 asks the user, else 6 (yes, save), 7 (no) or 5 (save, kept for later).
    virtual bool FermerDocument(int reponse) = 0;
    virtual bool InsererTexte(const Texte& texte, const Texte& police, int taille) = 0;
    virtual Texte LireSelection() = 0;

    // The save of the active document under `chemin` in `format`, as the save-as table asks
    // of this word processor; `fermeture` closes the document after. Refusals and questions
    // are settled before; throws ErreurEditeur when the word processor fails.
    virtual void EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) = 0;

    // Opens a document that is only to be converted: without showing it where the word
    // processor can.
    virtual bool OuvrirDocumentCache(const Texte& chemin) { return OuvrirDocument(chemin); }
    // False for a word processor that this system cannot drive.
    virtual bool Disponible() const { return true; }

    void PoserDialogue(DialogueFichiers* dialogue) { dialogue_ = dialogue; }
    DialogueFichiers* Dialogue() const { return dialogue_; }

    // Why the last failed operation of this link failed, as the user was told; a caller that
    // reports on a batch of operations clears it first.
    const Texte& DerniereErreur() const { return derniereErreur_; }
    void NoterErreur(const Texte& erreur) { derniereErreur_ = erreur; }

private:
    DialogueFichiers* dialogue_ = nullptr;
    Texte derniereErreur_;
};

} // namespace verdane
