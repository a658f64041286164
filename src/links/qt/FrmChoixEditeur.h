#pragma once
// The editor choice: the word processors found on this computer, one of which is picked, or
// any program picked by hand; validated into the options.

#include "links/RechercheEditeurs.h"

#include <QDialog>

class QLabel;
class QRadioButton;

namespace verdane::qt {

class FrmChoixEditeur : public QDialog {
public:
    FrmChoixEditeur(Contexte& ctx, const ParametresRecherche& recherche, QWidget* parent = nullptr);
    // The searches, with their progress window; the found ones can be chosen.
    void Detecter(SuiviRecherche& suivi);
    // The path shown in the dialog, as it would be stored.
    QString Chemin() const;
    void PoserChemin(const QString& chemin);
    // comSvgPath: stores the choice, writes the options, closes.
    void Valider();

protected:
    void reject() override;

private:
    QRadioButton* Option(int editeur) const;
    Contexte& ctx_;
    ParametresRecherche recherche_;
    EditeursTrouves trouves_;
    QRadioButton* OptionWord_;
    QRadioButton* OptionWordPro_;
    QRadioButton* OptionOffice_;
    QLabel* lblChemin_;
};

} // namespace verdane::qt
