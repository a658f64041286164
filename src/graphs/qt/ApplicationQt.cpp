#include "graphs/qt/ApplicationQt.h"

#include <QApplication>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace verdane::qt {

void ChoisirPlateformeSansEcran() {
    const auto vide = [](const char* nom) {
        const char* v = std::getenv(nom);
        return v == nullptr || *v == '\0';
    };
    if (vide("QT_QPA_PLATFORM") && vide("DISPLAY") && vide("WAYLAND_DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // A batch run outside a desktop session has no runtime folder; Qt then complains on stderr
    // about one it doesn't need. Give it a private one.
    if (vide("XDG_RUNTIME_DIR")) {
        const std::filesystem::path dossier =
            std::filesystem::temp_directory_path() / ("verdane-" + std::to_string(getuid()));
        std::error_code ec;
        std::filesystem::create_directories(dossier, ec);
        std::filesystem::permissions(dossier, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::replace, ec);
        if (!ec) setenv("XDG_RUNTIME_DIR", dossier.c_str(), 1);
    }
}

ApplicationQt::ApplicationQt(int& argc, char** argv) {
    ChoisirPlateformeSansEcran();
    if (QApplication::instance() == nullptr)
        application_ = std::make_unique<QApplication>(argc, argv);
}

ApplicationQt::~ApplicationQt() = default;

} // namespace verdane::qt
