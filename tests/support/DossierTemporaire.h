#pragma once
// A folder of its own for one test, removed at the end.

#include "utils/Texte.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace verdane::test {

class DossierTemporaire {
public:
    DossierTemporaire() {
        std::random_device r;
        chemin_ = std::filesystem::temp_directory_path() /
                  ("verdane-test-" + std::to_string(r()) + std::to_string(r()));
        std::filesystem::create_directories(chemin_);
    }
    ~DossierTemporaire() {
        std::error_code ec;
        std::filesystem::remove_all(chemin_, ec);
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    // The folder as text of the engine, ending with a separator.
    Texte Chemin() const { return Utf8VersCp1252(chemin_.string()) + "/"; }
    // A path inside, as text of the engine.
    Texte operator/(std::string_view nom) const { return Chemin() + std::string(nom); }
    const std::filesystem::path& Systeme() const { return chemin_; }

    // Writes `contenu` to `nom` (relative, folders made as needed); returns its path.
    Texte Ecrire(std::string_view nom, std::string_view contenu) const {
        const auto p = chemin_ / std::string(nom);
        std::filesystem::create_directories(p.parent_path());
        std::ofstream(p, std::ios::binary) << contenu;
        return *this / nom;
    }
    std::string Lire(std::string_view nom) const {
        std::ifstream f(chemin_ / std::string(nom), std::ios::binary);
        return std::string((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    }

private:
    std::filesystem::path chemin_;
};

} // namespace verdane::test
