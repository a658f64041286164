#pragma once
// The header dialog of a table repeated per crop or activity: the header form, chosen by
// clicking its picture, and the page start printed above each repetition.

#include <QDialog>

#include <array>
#include <cstdint>

class QComboBox;
class QPushButton;

namespace verdane::qt {

class FrmEnteteTab : public QDialog {
public:
    // `images`: the folder of the pictures, ending with its separator.
    FrmEnteteTab(std::int16_t typeEntete, std::int16_t pageDebut, const std::string& images,
                 QWidget* parent = nullptr);

    std::int16_t TypeEntete() const { return typeEntete_; }
    std::int16_t PageDebut() const;

    std::array<QPushButton*, 3> cmdEntete; // none, planning application style, Cerfa style
    QComboBox* ComboPageDebut;

private:
    void Choisir(std::int16_t type);
    std::int16_t typeEntete_;
};

} // namespace verdane::qt
