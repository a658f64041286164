#pragma once
// The state of one run of the program, in one explicit object in place of flat globals. Field
// names are those the program's documentation uses; each is set by one module.

#include "data/EnrDossier.h"
#include "data/FormatNombre.h"
#include "domain/EtatDomaine.h"
#include "graphs/EtatGraphes.h"
#include "library/EtatInsertion.h"
#include "tables/EtatTableaux.h"
#include "utils/CacheFichiers.h"
#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <optional>

namespace verdane {

// Folders of the installation, each ending with a separator; set once by InitialiserChemins.
struct Chemins {
    Texte RepWinMarlo;
    Texte RepDatacfg;
    Texte RepModelGraph;
    Texte RepVerdane;
    Texte RepModlDocs;
    Texte RepImages;
    Texte RepSkin;
    Texte RepGuide;
};

inline constexpr const char* kFormatDefaut = "1;1;1;1;8";

// The lasting choices of the user: the records of the options file Editeur.svg, but for the
// dossier slots, which live in the dossier tables of Etat.
struct Options {
    Texte CheminEditeur;
    std::int16_t MemoRepDocuments = 0;
    std::int16_t PositionBarre = 0;
    std::int16_t sautParagraphe = 1;
    std::int16_t SansDemarrage = 0;
    // Six pairs of default cell frames (label, value) for the six kinds of row.
    std::array<Texte, 12> FormatsDefaut = {
        kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut,
        kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut, kFormatDefaut};
    std::int16_t SansAnnotation = 1;
    std::int16_t CouleurAnnotation = 0;
    std::int16_t ConvertirViaOO = 0;
    Texte RepDocuments;
    // Nine records that keep their place in the file and mean nothing to this program.
    std::array<Texte, 9> brouillon;
    std::int16_t TempsSauvegarde = 0;
    std::int16_t TailleDefaut = 10;
    Texte AlignementDefaut = "l";
};

// A body (organisme) of the parameter file Marlo.par.
struct EnrOrganisme {
    static constexpr std::size_t kTaille = 360;
    Texte nom;   // 80
    Texte rue;   // 80
    Texte ville; // 60
    Texte sigle; // 20
    Texte tel;   // 20
    Texte fax;   // 20
    Texte logo;  // 80, path of a picture
};

// A document that couldn't be made in the format its name asks: why, and the path its RTF is
// kept under instead (empty when none could be kept).
struct ConversionManquee {
    Texte raison;
    Texte copieRtf;
    bool Manquee() const { return !raison.empty(); }
};

struct Etat {
    Chemins chemins;
    Options options;

    // Dossier tables: slot 0 the current dossier, slots 1 to 9 those of a multi-dossier table.
    std::array<Texte, 10> RepDossier;
    std::array<Texte, 10> NomDossier;
    EnrDossier enrDossier;
    std::int16_t nbAnEtude = 0;
    std::int16_t anneeDebut = 0;

    std::array<EnrOrganisme, 20> Organismes;
    std::int16_t NbOrganismes = 0;

    // Run state.
    std::int16_t NumPageCourant = 0;
    Texte CodeEnCours;
    bool TransfoPerenne = false;
    bool ModeleModifie = false;
    std::int16_t PasProgression = 100;
    std::int16_t NbCouleursDoc = 0;
    std::int16_t ModeMemeDossier = 0;
    std::int16_t decalageCouleurs = 0;
    std::int16_t AccesTotal = 0;

    // Counters of the creation driver.
    int NbCodes = 0;
    int CodesFaits = 0;
    int ChampsMaj = 0;
    bool SuiteVisible = true;

    // Study length asked in the PDE frame of the creation dialog, when that frame is shown:
    // 0 means 5 years. Overrides the dossier's length for the run.
    std::optional<int> anneesPDE;

    // Dossiers of a comparison chosen in advance by the caller, in slots 1 to this count: the
    // selection of a multi-dossier table then asks nothing (0: ask as usual).
    std::int16_t nbDossiersImposes = 0;

    // The program runs as the desktop bar: the word processor it starts is shown to the user,
    // who writes models in it; batch runs keep theirs out of sight.
    bool editeurVisible = false;

    // The end of the last creation or update: empty when the document is in the format its
    // name asks.
    ConversionManquee conversionManquee;

    // Number marks of the user's locale, read once at start.
    MarquesNombre marques;

    // The dossier files of the run: names resolved once, small files kept while unchanged.
    mutable CacheFichiers fichiers;

    EtatTableaux tableaux;
    EtatGraphes graphes;
    EtatDomaine domaine;
    EtatInsertion insertion;
};

} // namespace verdane
