#include "links/RechercheEditeurs.h"

#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <cstdlib>
#include <deque>
#include <fstream>
#include <set>
#include <sstream>
#include <system_error>

namespace fs = std::filesystem;

namespace verdane {

namespace {

const char* const kTitreChoix = "Choix d'un éditeur de texte pour Verdane";

// Mount points of kernel file systems, where no program is installed and whose walk never
// ends or blocks.
std::set<fs::path> DossiersVirtuels() {
    std::set<fs::path> exclus{"/proc", "/sys", "/dev", "/run"};
    static const std::set<std::string> kTypes{
        "proc",    "sysfs",   "devtmpfs",    "devpts",   "cgroup", "cgroup2",   "securityfs",
        "debugfs", "tracefs", "pstore",      "bpf",      "mqueue", "hugetlbfs", "configfs",
        "fusectl", "autofs",  "binfmt_misc", "efivarfs", "nsfs"};
    std::ifstream montages("/proc/mounts");
    std::string ligne;
    while (std::getline(montages, ligne)) {
        std::istringstream champs(ligne);
        std::string source, point, type;
        if (champs >> source >> point >> type && kTypes.count(type)) exclus.insert(point);
    }
    return exclus;
}

bool NomCorrespond(const Texte& nomFichier, const Texte& cherche) {
    if (EgalSansCasse(nomFichier, cherche)) return true;
    if (cherche != "soffice.exe") return false;
    return nomFichier == "soffice" || nomFichier == "libreoffice";
}

// The executable of that name in the folder, if there is one.
Texte ChercherDans(const fs::path& dossier, const Texte& nom) {
    std::error_code ec;
    fs::directory_iterator it(dossier, fs::directory_options::skip_permission_denied, ec);
    if (ec) return {};
    for (; it != fs::directory_iterator(); it.increment(ec)) {
        if (ec) break;
        const Texte nomFichier = CheminTexte(it->path().filename());
        if (!NomCorrespond(nomFichier, nom)) continue;
        std::error_code ec2;
        if (fs::is_regular_file(it->path(), ec2)) return CheminTexte(it->path());
    }
    return {};
}

} // namespace

ParametresRecherche ParametresParDefaut() {
    ParametresRecherche p;
    if (const char* path = std::getenv("PATH")) {
        std::istringstream dossiers(path);
        std::string d;
        while (std::getline(dossiers, d, ':'))
            if (!d.empty()) p.prioritaires.emplace_back(d);
    }
    for (const char* d : {"/usr/lib/libreoffice/program", "/usr/local/lib/libreoffice/program",
                          "/opt/libreoffice/program", "/snap/bin", "/usr/bin", "/usr/local/bin"})
        p.prioritaires.emplace_back(d);
    std::error_code ec;
    for (fs::directory_iterator it("/opt", ec), fin; !ec && it != fin; it.increment(ec))
        p.prioritaires.push_back(it->path() / "program");
    return p;
}

Texte LibreOfficeInstalle(const ParametresRecherche& parametres) {
    for (const auto& dossier : parametres.prioritaires)
        if (Texte trouve = ChercherDans(dossier, "soffice.exe"); !trouve.empty()) return trouve;
    return {};
}

Texte ChercherEditeur(Contexte& ctx, const Texte& nom, SuiviRecherche& suivi,
                      const ParametresRecherche& parametres) {
    suivi.Commencer("Recherche de " + nom + " sur votre PC");
    for (const auto& dossier : parametres.prioritaires) {
        const Texte trouve = ChercherDans(dossier, nom);
        if (!trouve.empty()) {
            suivi.Terminer();
            return trouve;
        }
    }
    const std::set<fs::path> exclus = DossiersVirtuels();
    std::deque<fs::path> liste(parametres.racines.begin(), parametres.racines.end());
    int progression = 0;
    std::size_t vus = 0;
    while (!liste.empty() && vus < parametres.maxDossiers) {
        progression += 5;
        if (progression >= 90) progression = 0;
        suivi.Progresser(progression);
        if (suivi.Annulee()) {
            suivi.Terminer();
            ctx.utilisateur.Boite("Recherche de " + nom + " annulée.", kTitreChoix,
                                  Icone::Information);
            return {};
        }
        const fs::path dossier = liste.front();
        liste.pop_front();
        ++vus;
        std::error_code ec;
        fs::directory_iterator it(dossier, fs::directory_options::skip_permission_denied, ec);
        for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
            std::error_code ec2;
            if (it->is_symlink(ec2)) {
                // Links to folders are not followed: they would make the walk loop.
                if (NomCorrespond(CheminTexte(it->path().filename()), nom) &&
                    fs::is_regular_file(it->path(), ec2)) {
                    suivi.Terminer();
                    return CheminTexte(it->path());
                }
            } else if (it->is_directory(ec2)) {
                if (!exclus.count(it->path())) liste.push_back(it->path());
            } else if (it->is_regular_file(ec2) &&
                       NomCorrespond(CheminTexte(it->path().filename()), nom)) {
                suivi.Terminer();
                return CheminTexte(it->path());
            }
        }
    }
    suivi.Terminer();
    return {};
}

EditeursTrouves DetecterEditeurs(Contexte& ctx, SuiviRecherche& suivi,
                                 const ParametresRecherche& parametres) {
    EditeursTrouves t;
    t.cheminWord = ChercherEditeur(ctx, "winword.exe", suivi, parametres);
    t.cheminWordPro = ChercherEditeur(ctx, "wordpro.exe", suivi, parametres);
    t.cheminOffice = ChercherEditeur(ctx, "soffice.exe", suivi, parametres);
    return t;
}

Texte CheminExecutableChoisi(const Texte& chemin) {
    if (chemin.find('\\') == Texte::npos || chemin.size() < 4 || chemin[chemin.size() - 4] == '.')
        return chemin;
    return chemin.substr(0, chemin.size() - 4) + ".exe";
}

void ValiderChoixEditeur(Contexte& ctx, const Texte& chemin) {
    if (Rogner(chemin).empty())
        ctx.utilisateur.Boite("Le chemin de l'éditeur choisi est vide !", kTitreChoix,
                              Icone::Attention);
    ctx.etat.options.CheminEditeur = Rogner(chemin);
    const Editeur editeur = EditeurLie(ctx.etat);
    PiloteEditeur* pilote = ctx.Pilote(editeur);
    if (editeur != Editeur::Aucun && pilote && !pilote->Disponible()) pilote->LierApplication();
}

} // namespace verdane
