#include "graphs/EditeurGraph.h"

#include "data/SeriesProposees.h"
#include "graphs/CodeGraph.h"
#include "graphs/FichierGraph.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>

namespace verdane {

namespace {

constexpr const char* kTitreInsertion = "Edition - Insertion des Graphiques";
constexpr int kTailleTitreMax = 50;

// A whole number typed in a box, within 16 bits; nothing when it doesn't read.
std::optional<std::int16_t> Entier16(std::string_view texte) {
    const auto n = EntierStrict(Rogner(texte));
    if (!n || *n < -32768 || *n > 32767) return std::nullopt;
    return static_cast<std::int16_t>(*n);
}

void PoserEntier(std::string_view texte, std::int16_t& champ) {
    if (const auto n = Entier16(texte)) champ = *n;
}

std::int16_t IndexVersValeur(int index, std::size_t taille, std::int16_t defaut) {
    if (index < 0 || static_cast<std::size_t>(index) >= taille) return defaut;
    return static_cast<std::int16_t>(index + 1);
}

int ValeurVersIndex(int valeur, std::size_t taille) {
    if (valeur < 1 || static_cast<std::size_t>(valeur) > taille) return -1;
    return valeur - 1;
}

Texte EnTexte(int n) {
    return std::to_string(n);
}

} // namespace

const std::vector<Texte>& TextesTypesGraph() {
    static const std::vector<Texte> textes = {
        "Graphique à barres 3D",     "Graphique à barres 2D",     "Graphique en courbes 3D",
        "Graphique en courbes 2D",   "Graphique en aires 3D",     "Graphique en aires 2D",
        "Graphique en escaliers 3D", "Graphique en escaliers 2D", "Graphique combinaison 3D",
        "Graphique combinaison 2D",  "Graphique en secteurs 2D",  "Graphique XY 2D"};
    return textes;
}

const std::vector<Texte>& TextesTypesSerie() {
    static const std::vector<Texte> textes = {"Barre", "Courbe", "Aire", "Escalier"};
    return textes;
}

const std::vector<Texte>& TextesOrientations() {
    static const std::vector<Texte> textes = {"horizontal", "vertical empilé", "vertical pivoté 1",
                                              "vertical pivoté 2"};
    return textes;
}

bool EstCombinaison(int typeGraph) {
    const int index = ValeurVersIndex(typeGraph, TextesTypesGraph().size());
    return index >= 0 && CommencePar(TextesTypesGraph()[static_cast<std::size_t>(index)],
                                     "Graphique combinaison");
}

ControlesGraph ChargerDialogue(const ModeleGraph& g) {
    ControlesGraph c;
    c.txtTitre = Rogner(g.titre);
    c.ComboType = ValeurVersIndex(g.typeGraph, TextesTypesGraph().size());
    c.CheckLegend = g.legende == 1;
    c.CheckEmpile = g.empile != 0;
    c.TextCommentr = Rogner(g.commentaire);
    c.CheckInversionDataSeries = g.inversion == 1;
    c.txtEspaceBarres = EnTexte(g.espaceBarres);
    c.txtEspaceAnnees = EnTexte(g.espaceAnnees);
    c.txtEspaceSeries = EnTexte(g.espaceSeries);
    c.CheckRetourTexte = {g.retourTitre == 1, g.retourLegende == 1};
    c.ComboOrientext = {ValeurVersIndex(g.orientTitre, TextesOrientations().size()),
                        ValeurVersIndex(g.orientNote, TextesOrientations().size())};
    for (std::size_t a = 0; a < g.axes.size(); ++a) {
        c.txtAxe[a] = Rogner(g.axes[a].titreAxe);
        c.txtAxeSize[a] = EnTexte(g.axes[a].tailleAxe);
        c.txtEpaisseurAxe[a] = EnTexte(g.axes[a].epaisseurAxe);
    }
    c.txtTailleTitre = EnTexte(g.tailleTitre);
    for (std::size_t i = 0; i < g.series.size(); ++i)
        c.ComboTypeIndiv[i] = ValeurVersIndex(g.series[i].typeSerie, TextesTypesSerie().size());
    return c;
}

void SauverDialogue(const ControlesGraph& c, ModeleGraph& g) {
    g.titre = ChampFixe(c.txtTitre, kLargeurTitreGraph);
    g.typeGraph = IndexVersValeur(c.ComboType, TextesTypesGraph().size(), g.typeGraph);
    g.legende = c.CheckLegend ? 1 : 0;
    // Any non-zero value stacks: a checked box keeps the one the record holds.
    g.empile = c.CheckEmpile ? (g.empile != 0 ? g.empile : std::int16_t{1}) : std::int16_t{0};
    g.commentaire = ChampFixe(c.TextCommentr, kLargeurCommentaire);
    g.inversion = c.CheckInversionDataSeries ? 1 : 0;
    PoserEntier(c.txtEspaceBarres, g.espaceBarres);
    PoserEntier(c.txtEspaceAnnees, g.espaceAnnees);
    PoserEntier(c.txtEspaceSeries, g.espaceSeries);
    g.retourTitre = c.CheckRetourTexte[0] ? 1 : 0;
    g.retourLegende = c.CheckRetourTexte[1] ? 1 : 0;
    g.orientTitre = IndexVersValeur(c.ComboOrientext[0], TextesOrientations().size(), 1);
    g.orientNote = IndexVersValeur(c.ComboOrientext[1], TextesOrientations().size(), 1);
    for (std::size_t a = 0; a < g.axes.size(); ++a) {
        g.axes[a].titreAxe = ChampFixe(c.txtAxe[a], kLargeurTitreAxe);
        PoserEntier(c.txtAxeSize[a], g.axes[a].tailleAxe);
        PoserEntier(c.txtEpaisseurAxe[a], g.axes[a].epaisseurAxe);
    }
    PoserEntier(c.txtTailleTitre, g.tailleTitre);
    if (g.tailleTitre > kTailleTitreMax) g.tailleTitre = kTailleTitreMax;
    for (std::size_t i = 0; i < static_cast<std::size_t>(NbSeriesUtiles(g)); ++i)
        g.series[i].typeSerie = IndexVersValeur(c.ComboTypeIndiv[i], TextesTypesSerie().size(), 1);
}

Texte ValiderTaille(PortUtilisateur& u, const Texte& saisie, const Texte& ancienne) {
    const auto n = Entier16(saisie);
    if (n && *n == 0) {
        u.Boite("Saisir une taille non nulle !", "Verdane", Icone::Attention);
        return ancienne;
    }
    return saisie;
}

DialogueSerie ChargerSerie(const SerieGraph& s) {
    DialogueSerie d;
    d.nom = Rogner(s.nomSerie);
    d.brosse = std::clamp<int>(s.brosse, 0, 2);
    d.epaisseur = EnTexte(s.epaisseur);
    d.axeY2 = s.axeY2 == 1;
    d.couleur = {s.rouge, s.vert, s.bleu};
    return d;
}

void ValiderSerie(const DialogueSerie& d, SerieGraph& s) {
    s.nomSerie = ChampFixe(d.nom, kLargeurNomSerie);
    s.brosse = static_cast<std::int16_t>(std::clamp(d.brosse, 0, 2));
    Texte epaisseur = Rogner(d.epaisseur);
    if (const auto n = Entier16(epaisseur); n && *n > 99)
        epaisseur = epaisseur.substr(epaisseur.size() - 2);
    PoserEntier(epaisseur, s.epaisseur);
    s.axeY2 = d.axeY2 ? 1 : 0;
    s.rouge = static_cast<std::int16_t>(d.couleur.rouge);
    s.vert = static_cast<std::int16_t>(d.couleur.vert);
    s.bleu = static_cast<std::int16_t>(d.couleur.bleu);
}

bool CouleurPermise(PortUtilisateur& u, int brosse) {
    if (brosse != 0) return true;
    u.AfficherMessage(
        {"Impossible d'affecter une couleur à cette série !",
         "Vous devez choisir la brosse 'solide' ou 'hachuré' pour pouvoir affecter une couleur."
         "\r\nEn effet, la brosse 'vide' applique à la série la couleur de l'arrière plan."
         "\r\nA noter que dans le cas d'une courbe, la brosse est forcément 'solide'.",
         kTitreInsertion, ""});
    return false;
}

Texte TitreDialogueSerie(int i) {
    return "- Définition de la série n°" + EnTexte(i) + " -";
}

Texte LibelleAxeSerie(int i) {
    return "Axe des Y utilisé par la série " + EnTexte(i) + " :";
}

Texte InfoBulleSerie(const SerieGraph& s, int i) {
    return "Série " + EnTexte(i) + "  \"" + Rogner(s.nomSerie) + "\" : utilise le " +
           (s.axeY2 == 1 ? "2ème axe des Y" : "1er axe des Y");
}

Texte TitreOngletDefinition() {
    return " Définition des séries de données et paramétrage du graphique";
}

Texte TitreOngletApercu(bool avecArguments) {
    return avecArguments ? " Visualisation du graphique avec les valeurs du dossier Marlo en cours"
                         : " Visualisation du graphique avec des valeurs exemples";
}

Texte TitreTravailGraph(const Etat& etat) {
    return "- Edition des graphiques avec les valeurs du dossier : " + Rogner(etat.NomDossier[0]) +
           " -";
}

// ---- the editor ----------------------------------------------------------------------------

void EditeurGraph::Ouvrir() {
    LireFichierGraph(ctx_);
    auto& eg = ctx_.etat.graphes;
    eg.grapheCourant = eg.nbGraphes > 0 ? 1 : 0;
}

ModeleGraph* EditeurGraph::Modele() {
    auto& eg = ctx_.etat.graphes;
    if (eg.grapheCourant < 1 || eg.grapheCourant > eg.nbGraphes) return nullptr;
    return &eg.graphes[static_cast<std::size_t>(eg.grapheCourant)];
}

std::vector<NoeudGraph> EditeurGraph::Graphes() const {
    const auto& eg = ctx_.etat.graphes;
    std::vector<NoeudGraph> noeuds;
    for (int i = 1; i <= eg.nbGraphes; ++i) {
        const ModeleGraph& g = eg.graphes[static_cast<std::size_t>(i)];
        const Texte titre = Rogner(g.titre);
        noeuds.push_back({"graph" + EnTexte(i), titre.empty() ? "Sans titre" : titre,
                          "graph" + EnTexte(g.typeGraph)});
    }
    if (noeuds.empty()) noeuds.push_back({"graph0", "Aucun enregistrement", "Vide"});
    return noeuds;
}

std::vector<NoeudGraph> EditeurGraph::SeriesDuGraphe() const {
    const auto& eg = ctx_.etat.graphes;
    std::vector<NoeudGraph> noeuds;
    if (eg.grapheCourant >= 1 && eg.grapheCourant <= eg.nbGraphes) {
        const ModeleGraph& g = eg.graphes[static_cast<std::size_t>(eg.grapheCourant)];
        for (int i = 0; i < NbSeriesUtiles(g); ++i) {
            const SerieGraph& s = g.series[static_cast<std::size_t>(i)];
            noeuds.push_back(
                {Rogner(s.fichierSerie) + "+" + Rogner(s.codeSerie), Rogner(s.nomSerie), "puce"});
        }
    }
    if (noeuds.empty()) noeuds.push_back({"vide", "Aucune série sélectionnée", "graph12"});
    return noeuds;
}

ArbreCatalogue EditeurGraph::SeriesProposees() const {
    return verdane::SeriesProposees(ctx_.etat.chemins.RepDatacfg);
}

void EditeurGraph::Selectionner(const Texte& cle) {
    auto& eg = ctx_.etat.graphes;
    eg.grapheCourant = 0;
    if (!CommencePar(cle, "graph")) return;
    const auto n = EntierStrict(std::string_view(cle).substr(5));
    if (n && *n >= 1 && *n <= eg.nbGraphes) eg.grapheCourant = static_cast<std::int16_t>(*n);
}

bool EditeurGraph::AjouterGraphe() {
    auto& eg = ctx_.etat.graphes;
    if (eg.nbGraphes >= kMaxGraphes) {
        ctx_.utilisateur.Boite("La bibliothèque est pleine : elle tient " + EnTexte(kMaxGraphes) +
                                   " graphiques au plus.",
                               kTitreInsertion, Icone::Attention);
        return false;
    }
    ++eg.nbGraphes;
    eg.graphes[static_cast<std::size_t>(eg.nbGraphes)] = ModeleGraph{};
    eg.grapheCourant = eg.nbGraphes;
    return true;
}

bool EditeurGraph::SupprimerGraphe(const Texte& cle) {
    auto& eg = ctx_.etat.graphes;
    Selectionner(cle);
    if (eg.grapheCourant == 0) {
        ctx_.utilisateur.Boite("Sélectionnez d'abord le graphique que vous voulez supprimer",
                               "Suppression impossible", Icone::Attention);
        return false;
    }
    const int i = eg.grapheCourant;
    const Texte nom = Rogner(eg.graphes[static_cast<std::size_t>(i)].titre);
    if (ctx_.utilisateur.Question("Voulez-vous supprimer " + nom + " ?",
                                  "Suppression du graphique sélectionné", Boutons::OuiNon,
                                  Reponse::Non, Icone::Question) != Reponse::Oui)
        return false;
    std::move(eg.graphes.begin() + i + 1, eg.graphes.begin() + eg.nbGraphes + 1,
              eg.graphes.begin() + i);
    eg.graphes[static_cast<std::size_t>(eg.nbGraphes)] = ModeleGraph{};
    --eg.nbGraphes;
    eg.grapheCourant = static_cast<std::int16_t>(std::min<int>(i, eg.nbGraphes));
    return true;
}

bool EditeurGraph::AjouterSerie(const NoeudCatalogue& source, bool estRacine) {
    ModeleGraph* g = Modele();
    if (g == nullptr || estRacine || !source.enfants.empty()) return false;
    const auto plus = source.cle.find('+');
    if (plus == Texte::npos) return false;
    const Texte fichier = source.cle.substr(0, plus);
    Texte code = source.cle.substr(plus + 1);
    code = code.substr(0, code.find('+'));
    const int n = NbSeriesUtiles(*g);
    if (n >= kMaxSeriesGraph) {
        ctx_.utilisateur.Boite(
            "Vous êtes limité à 10 séries par graphique, cette série ne peut être ajoutée.",
            kTitreInsertion, Icone::Attention);
        return false;
    }
    for (int i = 0; i < n; ++i) {
        const SerieGraph& s = g->series[static_cast<std::size_t>(i)];
        if (EgalSansCasse(Rogner(s.fichierSerie), fichier) &&
            EgalSansCasse(Rogner(s.codeSerie), code)) {
            ctx_.utilisateur.Boite("Cette série est déjà présente dans l'arbre de destination.",
                                   kTitreInsertion, Icone::Attention);
            return false;
        }
    }
    SerieGraph& s = g->series[static_cast<std::size_t>(n)];
    s.nomSerie = ChampFixe(source.texte, kLargeurNomSerie);
    s.codeSerie = ChampFixe(code, kLargeurCodeSerie);
    s.fichierSerie = ChampFixe(fichier, kLargeurFichierSerie);
    if (s.typeSerie < 1) s.typeSerie = 1;
    g->nbSeries = static_cast<std::int16_t>(n + 1);
    return true;
}

bool EditeurGraph::RetirerSerie(int i) {
    ModeleGraph* g = Modele();
    const int n = g ? NbSeriesUtiles(*g) : 0;
    if (i < 1 || i > n) return false;
    const Texte nom = Rogner(g->series[static_cast<std::size_t>(i - 1)].nomSerie);
    if (ctx_.utilisateur.Question("Retirer la série " + nom + " ?", kTitreInsertion,
                                  Boutons::OuiNon, Reponse::Non, Icone::Question) != Reponse::Oui)
        return false;
    std::move(g->series.begin() + i, g->series.begin() + n, g->series.begin() + i - 1);
    g->series[static_cast<std::size_t>(n - 1)] = SerieGraph{};
    g->nbSeries = static_cast<std::int16_t>(n - 1);
    return true;
}

std::optional<Texte> EditeurGraph::Inserer() {
    if (Modele() == nullptr) {
        ctx_.utilisateur.Boite("Sélectionnez d'abord le graphique à insérer.", kTitreInsertion,
                               Icone::Attention);
        return std::nullopt;
    }
    if (ctx_.utilisateur.Question("Voulez-vous insérer le graphique en cours dans le document ?",
                                  kTitreInsertion, Boutons::OuiNon, Reponse::Non,
                                  Icone::Question) != Reponse::Oui)
        return std::nullopt;
    EcrireFichierGraph(ctx_);
    return EcrireCodeGraph(ctx_);
}

bool EditeurGraph::Quitter(bool demander) {
    if (demander && ctx_.utilisateur.Question("Voulez-vous quitter la Visionneuse de Graphique ?",
                                              kTitreInsertion, Boutons::OuiNon, Reponse::Oui,
                                              Icone::Question) != Reponse::Oui)
        return false;
    EcrireFichierGraph(ctx_);
    return true;
}

bool EditeurGraph::DemanderImpression(const Texte& cleSelection) {
    if (Modele() == nullptr || cleSelection == "graph0") {
        ctx_.utilisateur.Boite("Sélectionner d'abord un graphique à imprimer.",
                               "Demande d'impression.", Icone::Information);
        return false;
    }
    return ctx_.utilisateur.Question("Imprimer le graphique " + Rogner(Modele()->titre) + " ?",
                                     "Impression d'un graphique Marlo", Boutons::OuiNon,
                                     Reponse::Non, Icone::Question) == Reponse::Oui;
}

} // namespace verdane
