#pragma once
// Writing that loses nothing: a file is written beside its final place under a temporary name
// and put in place only once complete, so a failure or a kill never leaves a half-written
// result, and never destroys the file it replaces.
//
// The temporary name is ".<name>.part-<process>-<random>". A run killed while writing leaves
// it behind; the next writing of the same name removes it once its process is gone (or, where
// processes can't be told, once it has been left untouched for a day).

#include "utils/Texte.h"

#include <fstream>
#include <string_view>

namespace verdane {

class FichierSur {
public:
    // Opens a temporary file beside `chemin`. `Ouvert()` tells whether that worked: not when
    // the folder is missing or can't be written, nor when `chemin` names a folder.
    // `remplacer` false: the file is put in place only if no file of that name exists at that
    // moment, checked and done in one step, so two runs can't both think they made it.
    explicit FichierSur(std::string_view chemin, bool remplacer = true);
    ~FichierSur(); // an uncommitted file is removed
    FichierSur(const FichierSur&) = delete;
    FichierSur& operator=(const FichierSur&) = delete;

    bool Ouvert() const { return ouvert_; }
    void Ecrire(std::string_view octets);
    // Flushes, closes and puts in place. False (and nothing replaced) on any failure.
    bool Valider();
    // After a failed Valider without replacing: another file had taken the name meanwhile.
    bool NomPris() const { return nomPris_; }
    // Flushes and closes without putting in place: the complete temporary file is the
    // caller's from then on (to be converted, then put in place by `PlacerFichier`). Its path,
    // or empty on any failure (nothing is then left).
    Texte Fermer();

private:
    std::string final_;
    std::string temporaire_;
    std::ofstream flux_;
    bool remplacer_;
    bool ouvert_ = false;
    bool valide_ = false;
    bool nomPris_ = false;
};

// A new temporary name beside `chemin`, as above, followed by `suffixe`; empty when `chemin`
// names no file.
Texte CheminTemporaire(std::string_view chemin, std::string_view suffixe = {});

// Puts the complete file `temporaire` at `chemin`, replacing it or, without `remplacer`, only
// if the name is free (`nomPris` then tells that it wasn't). True when done; `temporaire` is
// gone either way.
bool PlacerFichier(std::string_view temporaire, std::string_view chemin, bool remplacer,
                   bool& nomPris);

// The whole of `contenu` written to `chemin` as above.
bool EcrireFichierSur(std::string_view chemin, std::string_view contenu);

// Removes the temporary files that runs killed while writing `chemin` left beside it.
void NettoyerTemporairesAbandonnes(std::string_view chemin);

} // namespace verdane
