#include "graphs/qt/ApplicationQt.h"

#include <QApplication>

#include <cstdlib>

namespace verdane::qt {

void ChoisirPlateformeSansEcran() {
    const auto vide = [](const char* nom) {
        const char* v = std::getenv(nom);
        return v == nullptr || *v == '\0';
    };
    if (vide("QT_QPA_PLATFORM") && vide("DISPLAY") && vide("WAYLAND_DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
}

ApplicationQt::ApplicationQt(int& argc, char** argv) {
    ChoisirPlateformeSansEcran();
    if (QApplication::instance() == nullptr)
        application_ = std::make_unique<QApplication>(argc, argv);
}

ApplicationQt::~ApplicationQt() = default;

} // namespace verdane::qt
