#pragma once
// The table model: what a code `tab...` holds, line by line and cell by cell. The renderer,
// the editor and the domain tables all work on this one model.

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace verdane {

inline constexpr int kMaxLignesTableau = 511;
inline constexpr int kMaxColonnesLibelle = 9;
inline constexpr std::int16_t kLargeurLibelleDefaut = 1000;
inline constexpr std::int16_t kLargeurValeursDefaut = 7200;
inline constexpr std::int16_t kHauteurDefaut = 280;
inline constexpr std::int16_t kRetraitDefaut = 120;
// Frame written for a cell that has none: no border, white background.
inline constexpr const char* kCadreVide = "0;0;0;0;8";

// Kind of a table repeated per crop, perennial crop or free animal activity.
enum GenreTableau : std::int16_t {
    kTableauClassique = 0,
    kTableauCulture = 1,
    kTableauCulturePerenne = 2,
    kTableauActiviteLibre = 3,
};

// Which years the value columns show.
enum ModeAnnees : std::int16_t {
    kToutesAnnees = 0,
    kAnneeDebutEtToutes = 1,
    kPremiereEtDerniere = 2,
    kSansValeurs = 3,
};

// One label cell. `formatTexte` holds the nine text fields (font; size; colour; bold; italic;
// underlined; struck; shadow; alignment), `formatCadre` the five frame fields (top; bottom;
// left; right border; background), both as ";"-separated text.
struct CelluleModele {
    Texte texte;
    Texte formatTexte;
    Texte formatCadre;

    bool operator==(const CelluleModele&) const = default;
};

struct LigneModele {
    std::int16_t hauteur = kHauteurDefaut; // row height, twips; 10 or less: automatic
    std::int16_t retrait = kRetraitDefaut; // cell gap, twips
    std::array<CelluleModele, kMaxColonnesLibelle> cellules{}; // label column c is cellules[c-1]
    Texte definition;  // what the value cells show: "serie:...", "totalC:...", "espace"...
    Texte formatTexte; // format of the value cells, as in CelluleModele
    Texte formatCadre;
    std::int16_t annee = 0; // multi-dossier table: year index shown by the line

    bool operator==(const LigneModele&) const = default;
};

// Where a table of a library was read from: its entry's text as it stood in the file (from its
// "[" line up to the next entry) and where its code lies in it. While `lignesEnAttente`, the
// lines have not been read: they are, from the code, when the table is opened. Not part of the
// model's value: two models are equal whatever they were read from.
struct SourceTableau {
    Texte entree;
    std::size_t debutCode = 0;
    std::size_t tailleCode = 0;
    bool lignesEnAttente = false;

    std::string_view Code() const { return std::string_view(entree).substr(debutCode, tailleCode); }
    bool operator==(const SourceTableau&) const { return true; }
};

struct TableauModele {
    Texte nom;
    Texte dossier;
    Texte sousDossier;
    std::int16_t centre = 0;       // 1: centred on the page
    std::int16_t typeEntete = 1;   // repeated table: header form
    std::int16_t pageDebut = -1;   // repeated table: page start; -1 none
    std::int16_t multiDossier = 0; // 1: columns are dossiers
    std::int16_t nbDossiers = 2;
    std::int16_t modeAnnees = kToutesAnnees;
    std::int16_t genre = kTableauClassique;
    std::int16_t nbColonnes = 1; // label columns, 1 to 9
    std::array<std::int16_t, kMaxColonnesLibelle> largeurs = {
        kLargeurLibelleDefaut, kLargeurLibelleDefaut, kLargeurLibelleDefaut,
        kLargeurLibelleDefaut, kLargeurLibelleDefaut, kLargeurLibelleDefaut,
        kLargeurLibelleDefaut, kLargeurLibelleDefaut, kLargeurLibelleDefaut};
    std::int16_t largeurValeurs = kLargeurValeursDefaut;
    std::int16_t rouge = 0; // 1: negative values in red
    // The lines, at most kMaxLignesTableau; line n is lignes[n-1].
    std::vector<LigneModele> lignes;
    SourceTableau source;

    std::int16_t nbLignes() const { return static_cast<std::int16_t>(lignes.size()); }
    // Line n counted from 1; null outside 1..nbLignes.
    LigneModele* Ligne(int n) {
        return n >= 1 && n <= nbLignes() ? &lignes[static_cast<std::size_t>(n - 1)] : nullptr;
    }
    const LigneModele* Ligne(int n) const {
        return n >= 1 && n <= nbLignes() ? &lignes[static_cast<std::size_t>(n - 1)] : nullptr;
    }
    // Label columns actually held by a line: nbColonnes kept within 0..9.
    int ColonnesLibelle() const {
        return nbColonnes < 0
                   ? 0
                   : (nbColonnes > kMaxColonnesLibelle ? kMaxColonnesLibelle : nbColonnes);
    }

    bool operator==(const TableauModele&) const = default;
};

} // namespace verdane
