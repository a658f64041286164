#pragma once
// For the fuzzers whose parser reads a file: a folder of this process's own, and the bytes of
// an input written to a file in it.

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace verdane::fuzz {

inline const std::filesystem::path& Dossier() {
    static const std::filesystem::path racine = [] {
        auto r =
            std::filesystem::temp_directory_path() / ("verdane-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(r);
        return r;
    }();
    return racine;
}

// Writes `octets` to `nom` (folders made as needed) and returns its path.
inline std::string Ecrire(const std::string& nom, std::string_view octets) {
    const auto chemin = Dossier() / nom;
    std::filesystem::create_directories(chemin.parent_path());
    std::ofstream(chemin, std::ios::binary | std::ios::trunc)
        .write(octets.data(), static_cast<std::streamsize>(octets.size()));
    return chemin.string();
}

// Cuts the input into parts: each takes as many bytes as its leading byte says, times `pas`.
class Decoupe {
public:
    explicit Decoupe(std::string_view octets) : reste_(octets) {}
    std::string_view Suivant(std::size_t pas) {
        std::size_t n = 0;
        if (!reste_.empty()) {
            n = static_cast<unsigned char>(reste_[0]) * pas;
            reste_.remove_prefix(1);
        }
        n = std::min(n, reste_.size());
        const auto part = reste_.substr(0, n);
        reste_.remove_prefix(n);
        return part;
    }
    std::string_view Reste() const { return reste_; }

private:
    std::string_view reste_;
};

} // namespace verdane::fuzz
