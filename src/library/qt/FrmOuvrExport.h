#pragma once
// FrmOuvrExport: what to do with a document just created (or named by Marlo's command line):
// open it in the word processor, export it to another folder, convert it.

#include "shell/etat/Contexte.h"

#include <QDialog>

class QLabel;

namespace verdane::qt {

class FrmOuvrExport : public QDialog {
    Q_OBJECT
public:
    FrmOuvrExport(Contexte& ctx, const Texte& document, QWidget* parent = nullptr);

private:
    void Ouvrir();
    void Exporter();
    void Convertir();
    void ChangerEditeur();

    Contexte& ctx_;
    Texte document_;
    QLabel* lblEditeur_;
};

} // namespace verdane::qt
