#pragma once
// FrmInfoBulle: a tooltip in the model, from a title, a comment, the annotated text and the
// initials shown on its mark.

#include "shell/etat/Contexte.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace verdane::qt {

class FrmInfoBulle : public QDialog {
public:
    explicit FrmInfoBulle(Contexte& ctx, QWidget* parent = nullptr);

    QLineEdit* txtTitre;
    QLabel* lblResteTitre;
    QPlainTextEdit* txtCommentaire;
    QLineEdit* txtTexteAnnote;
    QLineEdit* txtCodeAffiche;
    QSpinBox* txtTaille;
    QPushButton* cmdInserer;
    QPushButton* cmdFermer;

private:
    Contexte& ctx_;
};

} // namespace verdane::qt
