#pragma once
// The progress window of long work: the gauge of a generation, and the search of the word
// processors with its cancel button. It repaints at each step while the engine works.

#include "links/RechercheEditeurs.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace verdane::qt {

class FenetreProgression : public QWidget {
public:
    explicit FenetreProgression(QWidget* parent = nullptr);
    // `maximum`: the value of a full bar; `annulable`: shows the cancel button.
    void Commencer(const QString& titre, int maximum, bool annulable);
    void Poser(int valeur, const QString& libelle);
    bool Annulee() const { return annulee_; }
    void Terminer();

private:
    void Repeindre();
    QLabel* lblTitre_;
    QLabel* lblLibelle_;
    QProgressBar* barre_;
    QPushButton* cmdAnnuler_;
    bool annulee_ = false;
};

// The search's progress, shown in a progress window.
class SuiviRechercheQt : public SuiviRecherche {
public:
    void Commencer(const Texte& titre) override;
    void Progresser(int valeur) override;
    bool Annulee() override;
    void Terminer() override;

private:
    FenetreProgression fenetre_;
};

} // namespace verdane::qt
