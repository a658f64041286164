#pragma once
// The lists of the library: document models, text documents, table and graph models of a
// folder, and the dossiers of Marlo in a folder, with the columns the dialogs show.

#include "shell/etat/Etat.h"
#include "utils/Texte.h"

#include <cstdint>
#include <vector>

namespace verdane {

// Tags of the lists: "TAB" tableaux.txt, "GPH" graph.txt, "MDL" models (".vdm"), "DOC" text
// documents, "DOS" dossiers of Marlo.
struct LigneListe {
    Texte nom;
    Texte type;
    Texte taille; // "####0.0 ko"
    Texte date;   // dd/mm/yyyy
    Texte heure;  // hh:mm:ss
    // The entry's number from 1 in its library (TAB, GPH); 0 for a file or a dossier.
    int numero = 0;
};

struct ListeFichiers {
    Texte tag;
    Texte dossier;    // the folder listed, with its separator
    Texte titre;      // "Liste des modèles de document disponibles"...
    Texte colonneNom; // "Nom du modèle de document"...
    Texte source;     // "Répertoire source : " + folder
    // The rows; an empty list shows the one row `ligneVide`, which can't be selected.
    std::vector<LigneListe> lignes;
    Texte ligneVide;
    // What went wrong while reading, to tell the user (empty: nothing), and its caption.
    Texte probleme;
    Texte titreProbleme;

    bool Vide() const { return lignes.empty(); }
};

ListeFichiers ListerFichiers(const Etat& etat, const Texte& dossier, const Texte& tag);

// A length in bytes as the lists show it: divided by 1024, "####0.0", then " ko".
Texte TailleKo(std::uintmax_t octets, const Texte& decimale);

// The short name of a chart kind 1 to 12 ("barres 3D", ... "XY 2D"); empty outside.
Texte NomCourtGraphique(int typeGraph);

// "modèle", "document texte", "dossier": what a row of a list is, as messages name it.
Texte GenreElement(const Texte& tag);

} // namespace verdane
