#include "utils/EcritureSure.h"

#include "utils/OutilsFichiers.h"

#include <chrono>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace verdane {
namespace {

// A part is left for a day before it is taken as abandoned when its process can't be checked.
constexpr auto kAgeAbandon = std::chrono::hours(24);

std::string SuffixeAleatoire() {
    static constexpr char kChiffres[] = "0123456789abcdefghijklmnopqrstuvwxyz";
    std::random_device source;
    std::mt19937_64 gen(
        source() ^
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
    std::string s;
    for (int i = 0; i < 10; ++i) s += kChiffres[gen() % 36];
    return s;
}

// The number of this process, as the system's process folder names it; "0" where there is none.
std::string NumeroProcessus() {
    std::error_code ec;
    const fs::path soi = fs::read_symlink("/proc/self", ec);
    const std::string n = ec ? std::string() : soi.filename().string();
    if (n.empty() || n.find_first_not_of("0123456789") != std::string::npos) return "0";
    return n;
}

std::string PrefixeTemporaire(const fs::path& cible) {
    return "." + cible.filename().string() + ".part-";
}

// True if the part left by process `numero` can be removed: its process is gone, or it has
// not been touched for a long time.
bool Abandonne(const fs::path& part, const std::string& numero) {
    std::error_code ec;
    if (numero != "0" && fs::is_directory("/proc/self", ec) &&
        !fs::exists(fs::path("/proc") / numero, ec) && !ec)
        return true;
    const auto quand = fs::last_write_time(part, ec);
    return !ec && fs::file_time_type::clock::now() - quand > kAgeAbandon;
}

} // namespace

void NettoyerTemporairesAbandonnes(std::string_view chemin) {
    const fs::path cible = CheminSysteme(chemin);
    if (cible.filename().empty()) return;
    const std::string prefixe = PrefixeTemporaire(cible);
    const fs::path dossier = cible.parent_path().empty() ? fs::path(".") : cible.parent_path();
    std::error_code ec;
    fs::directory_iterator it(dossier, ec);
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        const std::string nom = it->path().filename().string();
        if (nom.compare(0, prefixe.size(), prefixe) != 0) continue;
        const std::string reste = nom.substr(prefixe.size());
        const auto tiret = reste.find('-');
        // Older parts carry no process number: only their age tells.
        const std::string numero = tiret == std::string::npos ? "0" : reste.substr(0, tiret);
        std::error_code e2;
        if (fs::is_regular_file(it->symlink_status(e2)) && Abandonne(it->path(), numero))
            fs::remove(it->path(), e2);
    }
}

namespace {

fs::path Temporaire(const fs::path& cible) {
    return cible.parent_path() /
           (PrefixeTemporaire(cible) + NumeroProcessus() + "-" + SuffixeAleatoire());
}

} // namespace

Texte CheminTemporaire(std::string_view chemin, std::string_view suffixe) {
    const fs::path cible = CheminSysteme(chemin);
    if (cible.filename().empty()) return {};
    return CheminTexte(Temporaire(cible)) + Texte(suffixe);
}

FichierSur::FichierSur(std::string_view chemin, bool remplacer) : remplacer_(remplacer) {
    const fs::path cible = CheminSysteme(chemin);
    if (cible.filename().empty()) return;
    // A folder (or a device) of that name can't be replaced by a document: said at once,
    // before anything is written.
    std::error_code ec;
    const auto statut = fs::status(cible, ec);
    if (fs::exists(statut) && !fs::is_regular_file(statut)) return;
    NettoyerTemporairesAbandonnes(chemin);
    final_ = cible.string();
    for (int essai = 0; essai < 5 && !ouvert_; ++essai) {
        const fs::path temp = Temporaire(cible);
        if (fs::exists(temp, ec)) continue;
        flux_.open(temp, std::ios::binary | std::ios::trunc);
        if (flux_) {
            temporaire_ = temp.string();
            ouvert_ = true;
        }
    }
}

FichierSur::~FichierSur() {
    if (ouvert_ && !valide_) {
        flux_.close();
        std::error_code ec;
        fs::remove(temporaire_, ec);
    }
}

void FichierSur::Ecrire(std::string_view octets) {
    if (ouvert_) flux_.write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

namespace {

bool Placer(const fs::path& temporaire, const fs::path& final, bool remplacer, bool& nomPris) {
    std::error_code ec;
    nomPris = false;
    if (remplacer) {
        // Keep the permissions of the file replaced, if any.
        const auto ancien = fs::status(final, ec);
        if (!ec && fs::exists(ancien))
            fs::permissions(temporaire, ancien.permissions(), fs::perm_options::replace, ec);
        ec.clear();
        fs::rename(temporaire, final, ec);
    } else {
        // A second name given to the complete file fails if the name is taken: the check and
        // the placing are one step.
        fs::create_hard_link(temporaire, final, ec);
        if (ec && ec != std::errc::file_exists) {
            // A file system without links: the next best, a check then a rename.
            std::error_code e2;
            if (!fs::exists(fs::symlink_status(final, e2)))
                fs::rename(temporaire, final, ec);
            else
                ec = std::make_error_code(std::errc::file_exists);
        }
        nomPris = ec == std::errc::file_exists;
    }
    std::error_code e2;
    fs::remove(temporaire, e2); // the link's first name; nothing once renamed
    return !ec;
}

} // namespace

bool PlacerFichier(std::string_view temporaire, std::string_view chemin, bool remplacer,
                   bool& nomPris) {
    return Placer(CheminSysteme(temporaire), CheminSysteme(chemin), remplacer, nomPris);
}

Texte FichierSur::Fermer() {
    if (!ouvert_ || valide_) return {};
    flux_.flush();
    const bool bon = static_cast<bool>(flux_);
    flux_.close();
    std::error_code ec;
    if (bon && !flux_.fail()) {
        valide_ = true; // no longer this object's to remove
        return CheminTexte(temporaire_);
    }
    fs::remove(temporaire_, ec);
    ouvert_ = false;
    return {};
}

bool FichierSur::Valider() {
    if (!ouvert_ || valide_) return valide_ && temporaire_.empty();
    if (Fermer().empty()) return false;
    const fs::path complet = std::exchange(temporaire_, {});
    if (Placer(complet, final_, remplacer_, nomPris_)) return true;
    valide_ = false;
    ouvert_ = false;
    return false;
}

bool EcrireFichierSur(std::string_view chemin, std::string_view contenu) {
    FichierSur f(chemin);
    if (!f.Ouvert()) return false;
    f.Ecrire(contenu);
    return f.Valider();
}

} // namespace verdane
