#pragma once
// FrmDate: today's date in sixteen forms; the chosen one goes to the document as it stands, or
// as a date code that each generation writes anew.

#include "shell/etat/Contexte.h"

#include <QDialog>

class QCheckBox;
class QListWidget;
class QPushButton;

namespace verdane::qt {

class FrmDate : public QDialog {
public:
    explicit FrmDate(Contexte& ctx, QWidget* parent = nullptr);

    QListWidget* ListFormatsDate;
    QCheckBox* CheckMajAuto;
    QPushButton* cmdInserer;
    QPushButton* cmdFermer;

private:
    Contexte& ctx_;
};

} // namespace verdane::qt
