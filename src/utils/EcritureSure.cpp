#include "utils/EcritureSure.h"

#include "utils/OutilsFichiers.h"

#include <chrono>
#include <filesystem>
#include <random>
#include <system_error>

namespace fs = std::filesystem;

namespace verdane {
namespace {

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

} // namespace

FichierSur::FichierSur(std::string_view chemin) {
    const fs::path cible = CheminSysteme(chemin);
    final_ = cible.string();
    const fs::path dossier = cible.parent_path();
    for (int essai = 0; essai < 5 && !ouvert_; ++essai) {
        const fs::path temp =
            dossier / ("." + cible.filename().string() + ".part-" + SuffixeAleatoire());
        std::error_code ec;
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

bool FichierSur::Valider() {
    if (!ouvert_ || valide_) return valide_;
    flux_.flush();
    const bool bon = static_cast<bool>(flux_);
    flux_.close();
    std::error_code ec;
    if (bon && !flux_.fail()) {
        // Keep the permissions of the file replaced, if any.
        const auto ancien = fs::status(final_, ec);
        if (!ec && fs::exists(ancien))
            fs::permissions(temporaire_, ancien.permissions(), fs::perm_options::replace, ec);
        ec.clear();
        fs::rename(temporaire_, final_, ec);
        if (!ec) {
            valide_ = true;
            return true;
        }
    }
    fs::remove(temporaire_, ec);
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
