#pragma once
// The search of the disk for the three word processors, and the stored choice of one.

#include "shell/etat/Contexte.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace verdane {

// The progress window of a search, with its cancel button.
class SuiviRecherche {
public:
    virtual ~SuiviRecherche() = default;
    virtual void Commencer(const Texte& titre) = 0;
    // The progress, 0 to 90.
    virtual void Progresser(int valeur) = 0;
    // Handles pending events; true once the user has cancelled.
    virtual bool Annulee() = 0;
    virtual void Terminer() = 0;
};

struct ParametresRecherche {
    // Folders looked in first, without their subfolders.
    std::vector<std::filesystem::path> prioritaires;
    // Where the breadth-first walk starts when those hold nothing.
    std::vector<std::filesystem::path> racines;
    // The walk stops after that many folders.
    std::size_t maxDossiers = 200000;
};

// The folders of PATH and the usual install folders of the office; no walk of the disk.
ParametresRecherche ParametresParDefaut();

// The office of this system found in those folders, without a progress window: the choice
// given to a user who never chose. Empty when LibreOffice isn't installed.
Texte LibreOfficeInstalle(const ParametresRecherche& parametres);

// The full path of the executable of word processor `nom` ("winword.exe", "wordpro.exe",
// "soffice.exe"), or empty when not found or when the user cancelled (and was told so).
// LibreOffice is found under "soffice" and "libreoffice" as well; ".exe" names are compared
// without regard to case.
Texte ChercherEditeur(Contexte& ctx, const Texte& nom, SuiviRecherche& suivi,
                      const ParametresRecherche& parametres);

struct EditeursTrouves {
    Texte cheminWord;
    Texte cheminWordPro;
    Texte cheminOffice;
};

// The three searches, in the order Word, Word Pro, OpenOffice.
EditeursTrouves DetecterEditeurs(Contexte& ctx, SuiviRecherche& suivi,
                                 const ParametresRecherche& parametres);

// A path picked by hand in the file dialog: a Windows path whose fourth character from the
// end isn't "." ends in ".exe" in place of its last four; a path of this system, whose programs
// carry no extension, stands as it is.
Texte CheminExecutableChoisi(const Texte& chemin);

// The choice of the dialog stored as `CheminEditeur` (trimmed); an empty one is told and still
// stored. A word processor that this system can't drive says so. The caller writes the options
// file.
void ValiderChoixEditeur(Contexte& ctx, const Texte& chemin);

} // namespace verdane
