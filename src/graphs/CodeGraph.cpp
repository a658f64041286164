#include "graphs/CodeGraph.h"

#include "graphs/ChampsGraph.h"
#include "graphs/NombresCode.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <optional>
#include <string>

namespace verdane {

namespace {

constexpr int kChampsEntete = 45;
constexpr int kChampsSerie = 9;
constexpr const char* kTitreErreur = "Code d'un graphique erroné dans le modèle VDM";

// The text: a field closed by ";" for each field the text carries.
struct Ecriture {
    std::string_view decimale;
    Texte sortie;

    void Champ(std::string_view t) {
        sortie += t;
        sortie += ';';
    }
    void Chaine(Texte& champ, std::size_t largeur) {
        champ = ChampFixe(Rogner(champ), largeur);
        Champ(Rogner(champ));
    }
    void Entier(std::int16_t& v) { Champ(std::to_string(v)); }
    // The text carries no more series than a record holds.
    void Compte(std::int16_t& v) {
        auto n = static_cast<std::int16_t>(std::clamp<int>(v, 0, kMaxSeriesGraph));
        Entier(n);
    }
    void Reel(float& v) { Champ(TexteReel(v, decimale)); }
    // One digit and the "]" that closes the series: a brush the digit can't carry becomes one
    // that draws nothing new either.
    void Brosse(std::int16_t& v) {
        sortie += (v >= 0 && v <= 9) ? static_cast<char>('0' + v) : '9';
        sortie += ']';
    }
    void Series(std::array<SerieGraph, kMaxSeriesGraph>&) {}
    void Reserve(std::int16_t&) {}
    void Reserve(Texte&, std::size_t) {}
};

struct Lecture {
    std::string_view reste;
    int maximum = 0;
    int lus = 0;
    int serie = 0; // 0: the header
    // The technical text of what went wrong first, told once the reading is over.
    std::optional<Texte>* probleme = nullptr;

    std::optional<std::string_view> Suivant() {
        if (lus >= maximum) return std::nullopt;
        const auto p = reste.find(';');
        if (p == std::string_view::npos) return std::nullopt;
        const auto champ = reste.substr(0, p);
        reste.remove_prefix(p + 1);
        ++lus;
        return champ;
    }
    void Noter(Texte technique) {
        if (!probleme->has_value()) *probleme = std::move(technique);
    }
    void ValeurRefusee(std::string_view valeur, int champ) {
        Texte t = "Description technique de l'erreur : La valeur \"" + Texte(valeur) +
                  "\" du champ n°" + std::to_string(champ);
        if (serie > 0) t += " de la série de données n°" + std::to_string(serie);
        Noter(t + " n'est pas un nombre admis pour ce champ : elle a été ignorée.");
    }

    void Chaine(Texte& champ, std::size_t largeur) {
        if (const auto f = Suivant()) champ = ChampFixe(*f, largeur);
    }
    // A number of the text into `v`; false when it isn't one, `v` then keeping its value.
    template <typename T>
    bool Nombre(std::string_view texte, T& v, std::optional<T> (*lire)(std::string_view)) {
        const auto n = lire(texte);
        if (n)
            v = *n;
        else
            ValeurRefusee(texte, lus);
        return n.has_value();
    }
    void Entier(std::int16_t& v) {
        if (const auto f = Suivant()) Nombre(*f, v, LireEntierCode);
    }
    void Reel(float& v) {
        if (const auto f = Suivant()) Nombre(*f, v, LireReelCode);
    }
    void Compte(std::int16_t& v) {
        const auto f = Suivant();
        if (!f || !Nombre(*f, v, LireEntierCode) || (v >= 0 && v <= kMaxSeriesGraph)) return;
        v = v < 0 ? 0 : kMaxSeriesGraph;
        Noter("Description technique de l'erreur : Le nombre de séries de données \"" + Texte(*f) +
              "\" n'est pas compris entre 0 et 10 : il a été ramené à " + std::to_string(v) + ".");
    }
    // The one character that remains first; it goes with the "]" behind it.
    void Brosse(std::int16_t& v) {
        ++lus;
        Nombre(reste.substr(0, 1), v, LireEntierCode);
        reste.remove_prefix(std::min<std::size_t>(2, reste.size()));
    }
    void Series(std::array<SerieGraph, kMaxSeriesGraph>&) {}
    void Reserve(std::int16_t&) {}
    void Reserve(Texte&, std::size_t) {}
};

void Signaler(Contexte& ctx, const ModeleGraph& g, const Texte& technique) {
    ctx.utilisateur.AfficherMessage({"Le code du graphique \"" + Rogner(g.titre) +
                                         "\" comporte des erreurs" +
                                         " dans le modèle de document en cours d'analyse.",
                                     technique, kTitreErreur, ""});
}

} // namespace

Texte TexteCodeGraph(ModeleGraph& g, std::string_view decimale) {
    Ecriture e{decimale, {}};
    ParcourirGraphe(e, g);
    for (int i = 0; i < NbSeriesUtiles(g); ++i) {
        e.sortie += '[';
        ParcourirSerie(e, g.series[static_cast<std::size_t>(i)]);
    }
    return e.sortie;
}

Texte EcrireCodeGraph(Contexte& ctx) {
    auto& eg = ctx.etat.graphes;
    if (eg.grapheCourant < 1 || eg.grapheCourant > kMaxGraphes) return {};
    auto& g = eg.graphes[static_cast<std::size_t>(eg.grapheCourant)];
    return "gph(" + TexteCodeGraph(g, ctx.etat.marques.decimale) + ")";
}

void LireCodeGraph(Contexte& ctx, int index, std::string_view code) {
    if (index < 1 || index > kMaxGraphes) return;
    ModeleGraph& g = ctx.etat.graphes.graphes[static_cast<std::size_t>(index)];
    std::optional<Texte> probleme;

    Lecture l{code, kChampsEntete, 0, 0, &probleme};
    ParcourirGraphe(l, g);
    if (l.lus < kChampsEntete)
        l.Noter("Description technique de l'erreur : Le code ne comporte que " +
                std::to_string(l.lus) + " champ(s) sur les 45 attendus avant les séries de" +
                " données." + "\r\n" + "Les champs manquants ont gardé leur valeur précédente.");

    int sansCrochet = 0;
    for (int i = 1; i <= NbSeriesUtiles(g); ++i) {
        if (l.reste.empty() || l.reste.front() != '[') {
            sansCrochet = i;
            break;
        }
        l.reste.remove_prefix(1);
        l.maximum = kChampsSerie;
        l.lus = 0;
        l.serie = i;
        ParcourirSerie(l, g.series[static_cast<std::size_t>(i - 1)]);
    }

    if (probleme) Signaler(ctx, g, *probleme);
    if (sansCrochet > 0)
        Signaler(ctx, g,
                 Texte("Description technique de l'erreur :") +
                     " Le crochet \"[\", annonçant une série de données pour le graphique," +
                     " n'apparaît pas à" + " l'endroit demandé." + "\r\n" +
                     "La série de données n°" + std::to_string(sansCrochet) +
                     " (et suivante(s) s'il y en a) n'a (n'ont) donc pas été correctement" +
                     " récupérée(s).");
}

} // namespace verdane
