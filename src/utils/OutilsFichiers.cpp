#include "utils/OutilsFichiers.h"

#include "utils/Chaines.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace verdane {
namespace {

std::vector<Texte> Parties(std::string_view chemin) {
    std::vector<Texte> parties;
    Texte courante;
    for (char c : chemin) {
        if (EstSeparateur(c)) {
            parties.push_back(courante);
            courante.clear();
        } else {
            courante += c;
        }
    }
    parties.push_back(courante);
    return parties;
}

// The entry of `dossier` whose name matches `nom` without regard to case, if any.
std::optional<fs::path> EntreeSansCasse(const fs::path& dossier, const Texte& nom) {
    std::error_code ec;
    fs::directory_iterator it(dossier.empty() ? fs::path(".") : dossier, ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        const Texte candidat = Utf8VersCp1252(it->path().filename().string());
        if (EgalSansCasse(candidat, nom)) return dossier / it->path().filename();
    }
    return std::nullopt;
}

// No name of the file system holds a NUL: a path read from a data file ends at its first one.
std::string_view AvantNul(std::string_view chemin) {
    return chemin.substr(0, chemin.find('\0'));
}

// An open stream on a regular file, or nothing: a folder, a pipe or a device is not read.
std::optional<std::ifstream> OuvrirFichier(std::string_view chemin) {
    const fs::path p = CheminSysteme(chemin);
    std::error_code ec;
    if (p.empty() || !fs::is_regular_file(p, ec)) return std::nullopt;
    std::ifstream f(p, std::ios::binary);
    if (!f) return std::nullopt;
    return f;
}

} // namespace

bool EstSeparateur(char c) {
    return c == '\\' || c == '/';
}

Texte AjouterBarre(std::string_view chemin) {
    Texte t = Rogner(chemin);
    if (t.empty() || !EstSeparateur(t.back())) t += kSeparateur;
    return t;
}

fs::path CheminSysteme(std::string_view cheminDonne) {
    const std::string_view chemin = AvantNul(cheminDonne);
    if (chemin.empty()) return {};
    // The spelling given is the usual case: one look at the disk settles it.
    std::string direct = Cp1252VersUtf8(chemin);
    for (auto& c : direct)
        if (c == '\\') c = '/';
    std::error_code ec;
    if (fs::exists(direct, ec)) return direct;
    const auto parties = Parties(chemin);
    fs::path resultat;
    std::size_t i = 0;
    if (parties[0].empty()) { // absolute path
        resultat = "/";
        i = 1;
    }
    bool resoudre = true;
    for (; i < parties.size(); ++i) {
        const Texte& partie = parties[i];
        if (partie.empty() || partie == ".") continue;
        const fs::path exact = resultat / Cp1252VersUtf8(partie);
        if (!resoudre || partie == ".." || fs::exists(exact, ec)) {
            resultat = exact;
            continue;
        }
        if (auto trouve = EntreeSansCasse(resultat, partie)) {
            resultat = *trouve;
        } else {
            resultat = exact;
            resoudre = false; // nothing below a missing folder can exist
        }
    }
    if (EstSeparateur(chemin.back()) && !resultat.empty()) resultat /= "";
    return resultat;
}

Texte CheminTexte(const fs::path& chemin) {
    return Utf8VersCp1252(chemin.string());
}

bool FichierExiste(std::string_view chemin, std::int16_t attributs) {
    if (Rogner(chemin).empty()) return false;
    std::error_code ec;
    const auto statut = fs::status(CheminSysteme(chemin), ec);
    if (ec) return false;
    if (fs::is_regular_file(statut)) return true;
    return (attributs & kAttributDossier) != 0 && fs::is_directory(statut);
}

void SupprimerFichier(std::string_view chemin) {
    std::error_code ec;
    const auto p = CheminSysteme(chemin);
    if (!fs::is_regular_file(p, ec)) return;
    fs::permissions(p, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add, ec);
    fs::remove(p, ec);
}

std::int32_t TailleFichier(std::string_view chemin) {
    std::error_code ec;
    const auto p = CheminSysteme(chemin);
    if (!fs::is_regular_file(p, ec)) return 0;
    const auto taille = fs::file_size(p, ec);
    if (ec) return 0;
    return taille > 0x7FFFFFFF ? 0x7FFFFFFF : static_cast<std::int32_t>(taille);
}

bool DossierExiste(std::string_view chemin) {
    if (Rogner(chemin).empty()) return false;
    std::error_code ec;
    return fs::is_directory(CheminSysteme(chemin), ec);
}

void CreerDossier(std::string_view chemin) {
    std::error_code ec;
    fs::create_directory(CheminSysteme(chemin), ec);
}

void CreerChemin(std::string_view chemin) {
    for (std::size_t i = 0; i < chemin.size(); ++i) {
        if (!EstSeparateur(chemin[i]) || i == 0) continue;
        const auto partie = chemin.substr(0, i + 1);
        if (!DossierExiste(partie)) CreerDossier(partie);
    }
}

Texte UrlFichier(std::string_view chemin) {
    Texte url = "file:///";
    for (char c : chemin) {
        if (c == '\\')
            url += '/';
        else if (c == ':')
            url += '|';
        else if (c == ' ')
            url += "%20";
        else
            url += c;
    }
    return url;
}

std::size_t DerniereBarre(std::string_view chemin) {
    return chemin.find_last_of("\\/");
}

Texte NomFichier(std::string_view chemin) {
    const auto p = DerniereBarre(chemin);
    return Texte(p == std::string_view::npos ? chemin : chemin.substr(p + 1));
}

Texte DossierParent(std::string_view chemin) {
    const auto p = DerniereBarre(chemin);
    return p == std::string_view::npos ? Texte() : Texte(chemin.substr(0, p + 1));
}

// The streams report a failed read (a file that vanished, a device error) by an exception;
// these two helpers turn it, and a file too big for memory, into "can't be read".
std::optional<std::string> LireFichier(std::string_view chemin) {
    try {
        auto f = OuvrirFichier(chemin);
        if (!f) return std::nullopt;
        std::string contenu;
        char bloc[65536];
        while (f->read(bloc, sizeof bloc) || f->gcount() > 0)
            contenu.append(bloc, static_cast<std::size_t>(f->gcount()));
        if (f->bad()) return std::nullopt;
        return contenu;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

std::optional<std::string> LireOctets(std::string_view chemin, std::uint64_t position,
                                      std::size_t taille) {
    try {
        auto f = OuvrirFichier(chemin);
        if (!f) return std::nullopt;
        f->seekg(0, std::ios::end);
        const auto fin = f->tellg();
        if (fin < 0 || position >= static_cast<std::uint64_t>(fin)) return std::string();
        const std::uint64_t reste = static_cast<std::uint64_t>(fin) - position;
        std::string octets(static_cast<std::size_t>(std::min<std::uint64_t>(taille, reste)), '\0');
        f->seekg(static_cast<std::streamoff>(position));
        if (!*f) return std::string();
        f->read(octets.data(), static_cast<std::streamsize>(octets.size()));
        octets.resize(static_cast<std::size_t>(f->gcount()));
        return octets;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace verdane
