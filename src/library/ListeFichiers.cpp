#include "library/ListeFichiers.h"

#include "graphs/ModeleGraph.h"
#include "library/EntreesTableaux.h"
#include "library/FormatsDocument.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <optional>
#include <system_error>

namespace verdane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kGraphes = "graph.txt";

struct Horodatage {
    Texte date;
    Texte heure;
};

Horodatage DateFichier(const fs::path& chemin) {
    std::error_code ec;
    const auto t = fs::last_write_time(chemin, ec);
    if (ec) return {};
    const std::time_t s = std::chrono::system_clock::to_time_t(
        std::chrono::time_point_cast<std::chrono::system_clock::duration>(
            std::chrono::file_clock::to_sys(t)));
    std::tm tm{};
    if (localtime_r(&s, &tm) == nullptr) return {};
    std::array<char, 16> date{};
    std::array<char, 16> heure{};
    std::strftime(date.data(), date.size(), "%d/%m/%Y", &tm);
    std::strftime(heure.data(), heure.size(), "%H:%M:%S", &tm);
    return {date.data(), heure.data()};
}

LigneListe LigneFichier(const fs::path& chemin, const Texte& nom, const Texte& type,
                        const Etat& etat) {
    std::error_code ec;
    const auto octets = fs::file_size(chemin, ec);
    const Horodatage h = DateFichier(chemin);
    return {nom, type, TailleKo(ec ? 0 : octets, etat.marques.decimale), h.date, h.heure, 0};
}

void Trier(std::vector<LigneListe>& lignes) {
    std::sort(lignes.begin(), lignes.end(), [](const LigneListe& a, const LigneListe& b) {
        return Minuscules(a.nom) < Minuscules(b.nom);
    });
}

void SignalerIllisible(ListeFichiers& l) {
    l.probleme = "Le répertoire " + l.dossier + " est introuvable ou illisible.";
    l.titreProbleme = "Lecteur indisponible.";
}

// Walks the entries of the listed folder; `ligne` gives the row of an entry, or nothing to
// leave it out. The rows come out sorted by name.
template <typename Ligne> void Parcourir(ListeFichiers& l, Ligne ligne) {
    std::error_code ec;
    fs::directory_iterator it(CheminSysteme(l.dossier), ec);
    if (ec) return SignalerIllisible(l);
    for (; it != fs::directory_iterator(); it.increment(ec))
        if (auto r = ligne(*it, CheminTexte(it->path().filename()))) l.lignes.push_back(*r);
    if (ec) SignalerIllisible(l);
    Trier(l.lignes);
}

// Files of the folder whose extension is one of `extensions`.
void ListerDocuments(ListeFichiers& l, const std::vector<Texte>& extensions, const Etat& etat) {
    Parcourir(l, [&](const fs::directory_entry& e, const Texte& nom) -> std::optional<LigneListe> {
        std::error_code ec;
        const Texte ext = ExtensionMinuscule(nom);
        if (!e.is_regular_file(ec) ||
            std::find(extensions.begin(), extensions.end(), ext) == extensions.end())
            return std::nullopt;
        return LigneFichier(e.path(), nom, TypeDocument(nom), etat);
    });
}

// Folders of the folder that hold their dossier record (a file of the folder's own name).
void ListerDossiers(ListeFichiers& l, const Etat& etat) {
    Parcourir(l, [&](const fs::directory_entry& e, const Texte& nom) -> std::optional<LigneListe> {
        std::error_code ec;
        const Texte enregistrement = l.dossier + nom + "/" + nom;
        if (!e.is_directory(ec) || !FichierExiste(enregistrement)) return std::nullopt;
        return LigneFichier(CheminSysteme(enregistrement), nom, "Dossier Marlo", etat);
    });
}

void ListerTableaux(ListeFichiers& l, const Etat& etat) {
    const Texte chemin = l.dossier + kFichierTableaux;
    if (!FichierExiste(chemin)) return;
    const auto contenu = LireFichier(chemin);
    if (!contenu) return SignalerIllisible(l);
    const Horodatage h = DateFichier(CheminSysteme(chemin));
    const LectureTableaux lu = LireEntreesTableaux(*contenu);
    int numero = 0;
    for (const EntreeTableau& e : lu.entrees)
        l.lignes.push_back({e.nom, "Tableau : " + e.dossier,
                            TailleKo(e.fin - e.debut, etat.marques.decimale), h.date, h.heure,
                            ++numero});
    if (!lu.illisibles.empty()) {
        l.probleme = "La bibliothèque " + chemin + " contient " +
                     std::to_string(lu.illisibles.size()) +
                     " entrée(s) illisible(s), qui ne sont pas listées : " + lu.illisibles[0];
        l.titreProbleme = "Bibliothèque de tableaux endommagée";
    }
}

void ListerGraphes(ListeFichiers& l, const Etat& etat) {
    const Texte chemin = l.dossier + kGraphes;
    if (!FichierExiste(chemin)) return;
    const auto octets = LireFichier(chemin);
    if (!octets) return SignalerIllisible(l);
    const Horodatage h = DateFichier(CheminSysteme(chemin));
    const std::size_t nombre = octets->size() / kTailleEnrGraph;
    for (std::size_t i = 0; i < nombre; ++i) {
        const ModeleGraph g =
            LireEnrGraph(std::string_view(*octets).substr(i * kTailleEnrGraph, kTailleEnrGraph));
        l.lignes.push_back({Rogner(g.titre), NomCourtGraphique(g.typeGraph),
                            TailleKo(kTailleEnrGraph, etat.marques.decimale), h.date, h.heure,
                            static_cast<int>(i + 1)});
    }
    if (octets->size() % kTailleEnrGraph != 0) {
        l.probleme = "La bibliothèque " + chemin + " n'a pas une longueur multiple de " +
                     std::to_string(kTailleEnrGraph) +
                     " octets : sa fin incomplète n'est pas un graphique et sera ignorée.";
        l.titreProbleme = "Bibliothèque de graphiques endommagée";
    }
}

} // namespace

Texte TailleKo(std::uintmax_t octets, const Texte& decimale) {
    // Tenths of a kilobyte, the half rounded up.
    const std::uintmax_t dixiemes = (octets * 10 + 512) / 1024;
    return std::to_string(dixiemes / 10) + decimale + std::to_string(dixiemes % 10) + " ko";
}

Texte NomCourtGraphique(int typeGraph) {
    static constexpr std::array<const char*, 12> kNoms = {
        "barres 3D",      "barres 2D",      "courbes 3D",   "courbes 2D",
        "aires 3D",       "aires 2D",       "escaliers 3D", "escaliers 2D",
        "combinaison 3D", "combinaison 2D", "secteurs 2D",  "XY 2D"};
    if (typeGraph < 1 || typeGraph > 12) return {};
    return kNoms[static_cast<std::size_t>(typeGraph - 1)];
}

Texte GenreElement(const Texte& tag) {
    if (tag == "DOC") return "document texte";
    if (tag == "DOS") return "dossier";
    return "modèle";
}

ListeFichiers ListerFichiers(const Etat& etat, const Texte& dossier, const Texte& tag) {
    ListeFichiers l;
    l.tag = tag;
    l.dossier = AjouterBarre(dossier);
    l.source = "Répertoire source : " + l.dossier;
    l.ligneVide = "Aucun document dans ce répertoire";
    if (tag == "TAB") {
        l.titre = "Liste des modèles de tableau disponibles";
        l.colonneNom = "Nom du modèle de tableau";
    } else if (tag == "GPH") {
        l.titre = "Liste des modèles de graphique disponibles";
        l.colonneNom = "Nom du modèle de graphique";
    } else if (tag == "MDL") {
        l.titre = "Liste des modèles de document disponibles";
        l.colonneNom = "Nom du modèle de document";
    } else if (tag == "DOS") {
        l.titre = "Liste des dossiers win-Marlo";
        l.colonneNom = "Nom du dossier";
        l.ligneVide = "Aucun dossier dans ce répertoire";
    } else {
        l.tag = "DOC";
        l.titre = "Liste des documents Word disponibles";
        l.colonneNom = "Nom du document Word";
    }
    if (Rogner(dossier).empty() || !DossierExiste(l.dossier)) {
        SignalerIllisible(l);
        return l;
    }
    if (l.tag == "TAB")
        ListerTableaux(l, etat);
    else if (l.tag == "GPH")
        ListerGraphes(l, etat);
    else if (l.tag == "MDL")
        ListerDocuments(l, {"vdm"}, etat);
    else if (l.tag == "DOS")
        ListerDossiers(l, etat);
    else
        ListerDocuments(l, ExtensionsDocuments(etat), etat);
    return l;
}

} // namespace verdane
