#pragma once
// The graph editor, the "Visionneuse": what it shows and decides over the library graph.txt,
// apart from the windows that show it. Its trees are lists of nodes; its operations are those
// of the editor's buttons, each with its messages and questions through the user port.

#include "data/Catalogue.h"
#include "graphs/ModeleGraph.h"
#include "graphs/SurfaceGraphique.h"
#include "shell/etat/Contexte.h"

#include <optional>
#include <vector>

namespace verdane {

// A node of one of the editor's trees.
struct NoeudGraph {
    Texte cle;
    Texte texte;
    Texte image;
    bool operator==(const NoeudGraph&) const = default;
};

// Texts of the kinds of chart, of the series inside a combination and of the orientations,
// in the order of their lists (the list's index + 1 is the value of the record).
const std::vector<Texte>& TextesTypesGraph();
const std::vector<Texte>& TextesTypesSerie();
const std::vector<Texte>& TextesOrientations();
// True for the kinds whose series each take their own kind.
bool EstCombinaison(int typeGraph);

// The controls of the definition tab, as texts and states, in the record's terms.
struct ControlesGraph {
    Texte txtTitre;
    int ComboType = 0; // list index, -1 for none
    bool CheckLegend = false;
    bool CheckEmpile = false;
    Texte TextCommentr;
    bool CheckInversionDataSeries = false;
    Texte txtEspaceBarres, txtEspaceAnnees, txtEspaceSeries;
    std::array<bool, 2> CheckRetourTexte{};
    std::array<int, 2> ComboOrientext{}; // list index, -1 for none
    std::array<Texte, 4> txtAxe, txtAxeSize, txtEpaisseurAxe;
    Texte txtTailleTitre;
    std::array<int, kMaxSeriesGraph> ComboTypeIndiv{}; // list index, -1 for none
};

// The controls of a graph as the dialog shows it.
ControlesGraph ChargerDialogue(const ModeleGraph& g);
// The controls written back into the graph: texts cut to their fields, numbers that don't read
// keep the record's value, a title size above 50 comes back as 50, a series without a kind
// takes 1 ("Barre").
void SauverDialogue(const ControlesGraph& c, ModeleGraph& g);

// A size box (title, axis size, axis width): 0 is refused with "Saisir une taille non nulle !"
// and the former value comes back. Returns the text the box keeps.
Texte ValiderTaille(PortUtilisateur& u, const Texte& saisie, const Texte& ancienne);

// The series dialog's values, and their checks.
struct DialogueSerie {
    Texte nom;       // at most 22 characters
    int brosse = 0;  // 0 "vide", 1 "solide", 2 "hachuré"
    Texte epaisseur; // the line width as typed
    bool axeY2 = false;
    CouleurGraphique couleur{};
};
DialogueSerie ChargerSerie(const SerieGraph& s);
// Validation writes the name, the brush, the width (above 99 keeps its last two characters),
// the axis and the colour into the series.
void ValiderSerie(const DialogueSerie& d, SerieGraph& s);
// The colour button: refused with its explanation when the brush is "vide".
bool CouleurPermise(PortUtilisateur& u, int brosse);
// Caption of the series dialog, its axis label, and the tip of a series in the tree.
Texte TitreDialogueSerie(int i);
Texte LibelleAxeSerie(int i);
Texte InfoBulleSerie(const SerieGraph& s, int i);

// Captions of the editor's two tabs; the preview's tells whether the dossier's values are
// drawn (a job of the command line) or sample values.
Texte TitreOngletDefinition();
Texte TitreOngletApercu(bool avecArguments);
// The title label of the job GRAPH.
Texte TitreTravailGraph(const Etat& etat);

class EditeurGraph {
public:
    explicit EditeurGraph(Contexte& ctx) : ctx_(ctx) {}

    // Reads the library and selects its first graph (none when empty).
    void Ouvrir();

    // TreeViewGraph's nodes under its root "Graphiques": "graph" + index per graph, or the one
    // node "graph0" "Aucun enregistrement" for an empty library.
    std::vector<NoeudGraph> Graphes() const;
    // TreeViewSeriesD's nodes under "Séries du graphique", or the one node "vide".
    std::vector<NoeudGraph> SeriesDuGraphe() const;
    // TreeViewSeriesS: the catalogues of the installation's Datacfg folder.
    ArbreCatalogue SeriesProposees() const;

    // The selected graph's index, 0 when none; the selected record, or null.
    int Courant() const { return ctx_.etat.graphes.grapheCourant; }
    ModeleGraph* Modele();
    // Selects by a node key of TreeViewGraph ("graph3"); "graph0" and the root select nothing.
    void Selectionner(const Texte& cle);

    // cmdAdd: a new graph with the defaults, selected. False when the library is full.
    bool AjouterGraphe();
    // cmdRmv on the node `cle`: refused on the root, asked otherwise; the graph then at that
    // place (or the last one) is selected.
    bool SupprimerGraphe(const Texte& cle);
    // cmdCopy: the node `source` of the offered series into the selected graph.
    bool AjouterSerie(const NoeudCatalogue& source, bool estRacine);
    // Removes series i (1 to nbSeries) of the selected graph, after asking.
    bool RetirerSerie(int i);

    // cmdInserer: asks, saves the library, and gives the code to insert (empty: not asked).
    std::optional<Texte> Inserer();
    // cmdQuitter: asks; on yes saves the library. True: the editor closes.
    bool Quitter(bool demander = true);
    // cmdPrint: true when the selected graph is to be printed (after its checks and question).
    bool DemanderImpression(const Texte& cleSelection);

private:
    Contexte& ctx_;
};

} // namespace verdane
