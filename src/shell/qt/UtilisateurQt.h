#pragma once
// The user port on Qt: the message form, boxes and questions with French buttons, and the
// progress window of a generation.

#include "shell/etat/Annulation.h"
#include "shell/etat/PortUtilisateur.h"
#include "utils/qt/Ecran.h"

#include <memory>

namespace verdane {
class Contexte;
}

namespace verdane::qt {

class FenetreProgression;
class FrmAide;

class UtilisateurQt : public PortUtilisateur, public Annulable {
public:
    // `marlo`: the program runs a job of the command line (the message form is larger).
    explicit UtilisateurQt(bool marlo);
    ~UtilisateurQt() override;

    // The run's state, for the help entries of the message form.
    void PoserContexte(Contexte* ctx);

    void AfficherMessage(const Message& message) override;
    void Boite(const Texte& texte, const Texte& titre, Icone icone) override;
    Reponse Question(const Texte& texte, const Texte& titre, Boutons boutons, Reponse parDefaut,
                     Icone icone) override;
    void OuvrirJauge(const Texte& titre) override;
    void PoserJauge(int largeur, const Texte& libelle) override;
    void FermerJauge() override;
    void Sablier(bool actif) override;
    // The gauge's cancel button was pressed since it opened.
    bool Annulation() override;

private:
    std::unique_ptr<FrmAide> aide_;
    std::unique_ptr<FenetreProgression> jauge_;
    int sabliers_ = 0;
};

// A Qt user port when the program has a screen to show it on (not the off-screen platform);
// null otherwise, and the console serves.
std::unique_ptr<PortUtilisateur> UtilisateurEcran(bool marlo);

} // namespace verdane::qt
