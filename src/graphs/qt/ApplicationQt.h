#pragma once
// The Qt application of the program, made once at start-up before any chart. Without a
// display (no DISPLAY nor WAYLAND_DISPLAY) it draws off screen.

#include <memory>

class QApplication;

namespace verdane::qt {

class ApplicationQt {
public:
    ApplicationQt(int& argc, char** argv);
    ~ApplicationQt();
    ApplicationQt(const ApplicationQt&) = delete;
    ApplicationQt& operator=(const ApplicationQt&) = delete;

private:
    std::unique_ptr<QApplication> application_;
};

// Chooses the off-screen platform when no display is there, unless one was chosen already.
void ChoisirPlateformeSansEcran();

} // namespace verdane::qt
