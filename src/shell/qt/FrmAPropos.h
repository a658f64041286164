#pragma once
// The about window, with the full-access button and its password dialog.

#include <QDialog>

class QLineEdit;

namespace verdane {
class Contexte;
}

namespace verdane::qt {

class FrmMotDePasse : public QDialog {
public:
    explicit FrmMotDePasse(Contexte& ctx, QWidget* parent = nullptr);
    QLineEdit* txtMotDePasse() const { return txtMotDePasse_; }
    // cmdValider: the text is checked, the user told, the dialog closed.
    void Valider();

private:
    Contexte& ctx_;
    QLineEdit* txtMotDePasse_;
};

class FrmAPropos : public QDialog {
public:
    explicit FrmAPropos(Contexte& ctx, QWidget* parent = nullptr);
    // comAccesTotal.
    void AccesTotal();

private:
    Contexte& ctx_;
};

} // namespace verdane::qt
