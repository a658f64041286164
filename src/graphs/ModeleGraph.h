#pragma once
// The graph model: one record of the library graph.txt (1224 bytes) with its ten series, and
// the same data that a gph( code carries in a document model.
//
// Text fields are kept at their fixed width, padded with blanks, as the file holds them; trim
// them at use. Reserved fields are kept as read and travel with the record.

#include "utils/Texte.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace verdane {

inline constexpr std::size_t kTailleEnrGraph = 1224;
inline constexpr std::size_t kTailleSerieGraph = 76;
inline constexpr int kMaxSeriesGraph = 10;

// Widths of the text fields.
inline constexpr std::size_t kLargeurTitreGraph = 60;
inline constexpr std::size_t kLargeurCommentaire = 100;
inline constexpr std::size_t kLargeurTitreAxe = 40;
inline constexpr std::size_t kLargeurCodeSerie = 12;
inline constexpr std::size_t kLargeurNomSerie = 22;
inline constexpr std::size_t kLargeurFichierSerie = 12;

// A box of the chart: minimum X, maximum X, minimum Y, maximum Y, the order of the file.
struct RectGraph {
    float minX = 0;
    float maxX = 0;
    float minY = 0;
    float maxY = 0;
};

struct AxeGraph {
    Texte titreAxe;                 // 40
    std::int16_t tailleAxe = 12;    // font size of the axis title
    std::int16_t epaisseurAxe = 30; // width of the axis line
};

struct SerieGraph {
    Texte codeSerie;            // 12, code of the series in its data file
    Texte nomSerie;             // 22, name shown in the legend
    std::int16_t typeSerie = 0; // in a combination: 1 bar, 2 line, 3 area, 4 step
    Texte fichierSerie;         // 12, data file of the series in the dossier
    std::int16_t axeY2 = 0;     // 1: second axis Y
    std::int16_t rouge = 0;     // colour; 0, 0, 0 means none chosen yet
    std::int16_t vert = 0;
    std::int16_t bleu = 0;
    std::int16_t epaisseur = 0; // width of the series' line
    std::int16_t brosse = 0;    // 0 empty, 1 solid, 2 hatched
    Texte reserveTexte;         // 10, never used
    Texte reserveOctets;        // 6, never used

    SerieGraph();
};

struct ModeleGraph {
    std::int16_t reserve0 = 0;
    Texte titre; // 60, title and name in the library
    std::int16_t typeGraph = 4;
    std::int16_t legende = 0;
    std::int16_t nbSeries = 0;
    std::int16_t empile = 0;
    Texte commentaire; // 100, footnote of the chart
    std::array<SerieGraph, kMaxSeriesGraph> series;
    std::int16_t inversion = 0;
    std::int16_t espaceBarres = 0;
    std::int16_t espaceAnnees = 2;
    std::int16_t espaceSeries = 5;
    RectGraph rectTitre;
    RectGraph rectPlot;
    RectGraph rectLegende;
    RectGraph rectNote;
    float rotation = 0;
    float elevation = 0;
    std::int16_t retourTitre = 1;
    std::int16_t orientTitre = 1;
    std::int16_t reserve1014 = 0;
    std::int16_t retourLegende = 1;
    std::int16_t orientNote = 1;
    std::int16_t reserve1020 = 0;
    std::array<AxeGraph, 4> axes; // X, first Y, second Y, Z
    std::int16_t tailleTitre = 16;
    Texte reserveTexte;  // 18, never used
    Texte reserveOctets; // 6, never used

    // The defaults of a new graph: "Sans titre", a 2D line chart.
    ModeleGraph();
};

// `texte` cut or padded with blanks to `largeur`: the value of a fixed field.
Texte ChampFixe(std::string_view texte, std::size_t largeur);

// The number of series to read or draw: nbSeries brought into 0 to 10.
int NbSeriesUtiles(const ModeleGraph& g);

// A record from its bytes; missing bytes read as blanks and zeros.
ModeleGraph LireEnrGraph(std::string_view octets);
// The 1224 bytes of a record.
std::string EcrireEnrGraph(const ModeleGraph& g);

} // namespace verdane
