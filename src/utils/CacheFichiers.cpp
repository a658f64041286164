#include "utils/CacheFichiers.h"

#include "utils/Chaines.h"
#include "utils/LectureEntiere.h"
#include "utils/OutilsFichiers.h"

#if __has_include(<unistd.h>) && __has_include(<fcntl.h>)
#define VERDANE_POSIX 1
#include <fcntl.h>
#include <unistd.h>
#else
#define VERDANE_POSIX 0
#endif

#include <climits>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace verdane {
namespace {

// Modification time of a file or folder, or nothing when it can't be had.
std::optional<std::int64_t> Temps(const std::string& chemin) {
    std::error_code ec;
    const auto t = fs::last_write_time(chemin, ec);
    if (ec) return std::nullopt;
    return static_cast<std::int64_t>(t.time_since_epoch().count());
}

// A file opened for reading without a buffer of its own: each read is one system read.
struct Fichier {
    explicit Fichier(const std::string& chemin) : f(std::fopen(chemin.c_str(), "rb")) {
        if (f) std::setvbuf(f, nullptr, _IONBF, 0);
    }
    ~Fichier() {
        if (f) std::fclose(f);
    }
    Fichier(const Fichier&) = delete;
    Fichier& operator=(const Fichier&) = delete;
    std::FILE* f;
};

long LireOctetsDans(const std::string& chemin, std::uint64_t position, char* tampon,
                    std::size_t taille) {
#if VERDANE_POSIX
    // The fewest calls a record can cost: open, one positioned read, close.
    const int fd = ::open(chemin.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return -1;
    long lus = 0;
    if (position <= static_cast<std::uint64_t>(LONG_MAX)) {
        const auto n = ::pread(fd, tampon, taille, static_cast<off_t>(position));
        lus = n < 0 ? 0 : static_cast<long>(n);
    }
    ::close(fd);
    return lus;
#else
    Fichier fichier(chemin);
    if (!fichier.f) return -1;
    if (position > static_cast<std::uint64_t>(LONG_MAX)) return 0;
    if (position > 0 && std::fseek(fichier.f, static_cast<long>(position), SEEK_SET) != 0) return 0;
    return static_cast<long>(std::fread(tampon, 1, taille, fichier.f));
#endif
}

std::optional<std::string> LireTout(const std::string& chemin, std::size_t prevu) {
    Fichier fichier(chemin);
    if (!fichier.f) return std::nullopt;
    std::string octets;
    // One byte more than expected, so that the end is seen by the same read.
    octets.resize(prevu + 1);
    std::size_t lus = 0;
    for (;;) {
        const auto n = std::fread(octets.data() + lus, 1, octets.size() - lus, fichier.f);
        lus += n;
        if (lus < octets.size()) break;
        octets.resize(octets.size() * 2);
    }
    if (std::ferror(fichier.f)) return std::nullopt;
    octets.resize(lus);
    return octets;
}

} // namespace

std::optional<std::string> LireFichierEntier(std::string_view chemin) {
    const std::string systeme = CheminSysteme(chemin).string();
    std::error_code ec;
    const auto taille = fs::file_size(systeme, ec);
    return LireTout(systeme, ec ? 0 : static_cast<std::size_t>(taille));
}

CacheFichiers::CacheFichiers(const CacheFichiers&) {}

CacheFichiers& CacheFichiers::operator=(const CacheFichiers&) {
    noms_.clear();
    listes_.clear();
    contenus_.clear();
    return *this;
}

void CacheFichiers::Lister(Liste& liste) {
    if (!liste.lu || !Temps(liste.dossier)) {
        liste.dossier = CheminSysteme(liste.texte).string();
        if (!liste.dossier.empty() && liste.dossier.back() != '/') liste.dossier += '/';
    }
    liste.temps = Temps(liste.dossier).value_or(-1);
    liste.noms.clear();
    std::error_code ec;
    for (fs::directory_iterator it(liste.dossier.empty() ? "." : liste.dossier, ec), fin;
         !ec && it != fin; it.increment(ec))
        liste.noms.push_back(it->path().filename().string());
    liste.lu = true;
    liste.aVerifier = false;
    ++liste.generation;
}

void CacheFichiers::ResoudreDans(Nom& nom) {
    const Liste& liste = *nom.liste;
    nom.generation = liste.generation;
    const std::string exact = Cp1252VersUtf8(nom.nom);
    const std::string* trouve = nullptr;
    for (const auto& n : liste.noms)
        if (n == exact) {
            trouve = &n;
            break;
        }
    if (!trouve)
        for (const auto& n : liste.noms)
            if (EgalSansCasse(Utf8VersCp1252(n), nom.nom)) {
                trouve = &n;
                break;
            }
    nom.systeme = liste.dossier + (trouve ? *trouve : exact);
}

CacheFichiers::Nom& CacheFichiers::Entree(std::string_view chemin) {
    auto [it, nouveau] = noms_.try_emplace(Texte(chemin));
    Nom& nom = it->second;
    if (nouveau) {
        const auto barre = DerniereBarre(chemin);
        const bool dansUnDossier = barre != std::string_view::npos && barre + 1 < chemin.size();
        const Texte nomSeul(dansUnDossier ? chemin.substr(barre + 1) : chemin);
        if (!dansUnDossier || nomSeul == "." || nomSeul == "..") {
            nom.systeme = CheminSysteme(chemin).string();
            return nom;
        }
        const Texte dossier(chemin.substr(0, barre + 1));
        auto& liste = listes_[dossier];
        if (!liste) {
            liste = std::make_unique<Liste>();
            liste->texte = dossier;
            Lister(*liste);
        }
        nom.liste = liste.get();
        nom.nom = nomSeul;
    }
    if (!nom.liste) return nom;
    if (nom.liste->aVerifier) Verifier(*nom.liste);
    if (nom.generation != nom.liste->generation) ResoudreDans(nom);
    return nom;
}

bool CacheFichiers::Verifier(Liste& liste) {
    liste.aVerifier = false;
    const auto temps = Temps(liste.dossier);
    if (liste.lu && temps.value_or(-1) == liste.temps) return false;
    Lister(liste);
    return true;
}

bool CacheFichiers::Rafraichir(Nom& nom) {
    if (!nom.liste || !Verifier(*nom.liste)) return false;
    ResoudreDans(nom);
    return true;
}

const std::string& CacheFichiers::Resoudre(std::string_view chemin) {
    return Entree(chemin).systeme;
}

long CacheFichiers::LireDans(std::string_view chemin, std::uint64_t position, char* tampon,
                             std::size_t taille) {
    Nom& nom = Entree(chemin);
    long lus = LireOctetsDans(nom.systeme, position, tampon, taille);
    if (lus < 0 && Rafraichir(nom)) lus = LireOctetsDans(nom.systeme, position, tampon, taille);
    return lus;
}

bool CacheFichiers::Existe(std::string_view chemin) {
    if (Rogner(chemin).empty()) return false;
    Nom& nom = Entree(chemin);
    std::error_code ec;
    if (fs::is_regular_file(nom.systeme, ec)) return true;
    return Rafraichir(nom) && fs::is_regular_file(nom.systeme, ec);
}

std::shared_ptr<const std::string> CacheFichiers::LireFichier(std::string_view chemin) {
    Nom& nom = Entree(chemin);
    std::error_code ec;
    auto statut = fs::status(nom.systeme, ec);
    if (!fs::is_regular_file(statut) && Rafraichir(nom)) statut = fs::status(nom.systeme, ec);
    if (!fs::is_regular_file(statut)) return nullptr;
    const auto taille = fs::file_size(nom.systeme, ec);
    if (ec) return nullptr;
    const auto temps = Temps(nom.systeme);
    Contenu& c = contenus_[nom.systeme];
    if (c.octets && temps && c.taille == static_cast<std::int64_t>(taille) && c.temps == *temps)
        return c.octets;
    auto octets = LireTout(nom.systeme, static_cast<std::size_t>(taille));
    if (!octets) return nullptr;
    auto partage = std::make_shared<const std::string>(std::move(*octets));
    if (temps && partage->size() == taille && taille <= kTailleGardee) {
        c = {static_cast<std::int64_t>(taille), *temps, partage};
    } else {
        contenus_.erase(nom.systeme);
    }
    return partage;
}

void CacheFichiers::NouveauDocument() {
    for (auto& [texte, liste] : listes_) liste->aVerifier = true;
}

} // namespace verdane
