#pragma once
// FrmChgExtDoc: the format of a conversion, one ticked among those the linked word processor
// writes; the conversion runs on validation.

#include "shell/etat/Contexte.h"

#include <QDialog>

#include <vector>

class QRadioButton;

namespace verdane::qt {

class FrmChgExtDoc : public QDialog {
    Q_OBJECT
public:
    FrmChgExtDoc(Contexte& ctx, const Texte& document, QWidget* parent = nullptr);

private:
    void Valider();

    Contexte& ctx_;
    Texte document_;
    std::vector<std::pair<char, QRadioButton*>> formats_;
};

} // namespace verdane::qt
