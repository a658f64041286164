#pragma once
// The news window of the start: the program's companion, an animated picture played in a
// loop, and the news text.

#include <QDialog>

class QLabel;
class QMovie;

namespace verdane {
class Contexte;
}

namespace verdane::qt {

inline constexpr const char* kImageCompagnon = "compagnonVd.gif";

class FrmDemarrage : public QDialog {
public:
    explicit FrmDemarrage(Contexte& ctx, QWidget* parent = nullptr);
    // False when the picture could not be read (the user was told; the window goes on).
    bool Anime() const { return movie_ != nullptr; }
    QMovie* Animation() const { return movie_; }

private:
    QLabel* AnimatedGIF_;
    QMovie* movie_ = nullptr;
};

} // namespace verdane::qt
