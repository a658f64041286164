#pragma once
// The link contract: what the program asks of a word processor. One implementation stands
// behind it per word processor; on a system without one, none does.

#include "utils/Texte.h"

namespace verdane {

class PiloteEditeur {
public:
    virtual ~PiloteEditeur() = default;

    virtual bool LierApplication() = 0;
    virtual bool NouveauDocument() = 0;
    virtual bool OuvrirDocument(const Texte& chemin) = 0;
    // `forcer` non-zero forces the save-as dialog; `confirmer` is passed on to the save-as.
    virtual bool SauverDocument(int forcer, bool confirmer) = 0;
    // `reponse` 0 asks the user, else 6 (yes, save) or 7 (no).
    virtual bool FermerDocument(int reponse) = 0;
    virtual bool InsererTexte(const Texte& texte, const Texte& police, int taille) = 0;
    virtual Texte LireSelection() = 0;
    // The save of the active document under `chemin`, by the rules of the save-as table:
    // `fermeture` closes the document after, `confirmer` asks before a change of format.
    virtual bool Sauver(bool fermeture, const Texte& chemin, bool confirmer) = 0;
};

// Editor numbers passed to the save-as routine.
enum class Editeur { Aucun = 0, Word = 1, WordPro = 2, OpenOffice = 3 };

} // namespace verdane
