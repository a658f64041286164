#pragma once
// A user port that passes everything on to another and keeps a record of what was said and
// asked, in order: the report of a run.

#include "shell/etat/PortUtilisateur.h"

#include <vector>

namespace verdane {

struct EvenementUtilisateur {
    enum class Genre { Message, Question } genre;
    Message message;   // for a question: its text and title
    Reponse reponse{}; // the answer taken
};

class UtilisateurEnregistre : public PortUtilisateur {
public:
    explicit UtilisateurEnregistre(PortUtilisateur& suivant) : suivant_(suivant) {}

    void AfficherMessage(const Message& m) override;
    void Boite(const Texte& texte, const Texte& titre, Icone icone) override;
    Reponse Question(const Texte& texte, const Texte& titre, Boutons boutons, Reponse parDefaut,
                     Icone icone) override;
    void OuvrirJauge(const Texte& titre) override { suivant_.OuvrirJauge(titre); }
    void PoserJauge(int largeur, const Texte& libelle) override {
        suivant_.PoserJauge(largeur, libelle);
    }
    void FermerJauge() override { suivant_.FermerJauge(); }
    void Sablier(bool actif) override { suivant_.Sablier(actif); }

    const std::vector<EvenementUtilisateur>& Evenements() const { return evenements_; }

private:
    PortUtilisateur& suivant_;
    std::vector<EvenementUtilisateur> evenements_;
};

} // namespace verdane
