#pragma once
// A user port that passes everything on to another and keeps a record of what was said and
// asked, in order: the report of a run. The record is bounded: the first events are kept in
// full, the others only counted, by kind and title, so that a model with a hundred thousand
// bad codes doesn't hold a hundred thousand messages in memory.

#include "shell/etat/PortUtilisateur.h"

#include <cstddef>
#include <vector>

namespace verdane {

struct EvenementUtilisateur {
    enum class Genre { Message, Question } genre;
    Message message;   // for a question: its text and title
    Reponse reponse{}; // the answer taken
};

// Events beyond the kept ones, counted: those of one kind ("message", "boite", "question" and
// the like: the message's `genre`, empty for an error) and one title.
struct EvenementsOmis {
    Texte genre;
    Texte titre;
    long long nombre = 0;
};

class UtilisateurEnregistre : public PortUtilisateur {
public:
    static constexpr std::size_t kEvenementsGardes = 1000;
    // Past this many kinds of omitted events, the others count under one kind "autres".
    static constexpr std::size_t kGenresOmis = 50;

    explicit UtilisateurEnregistre(PortUtilisateur& suivant, std::size_t gardes = kEvenementsGardes)
        : suivant_(suivant), gardes_(gardes) {}

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

    // The first events of the run, in order.
    const std::vector<EvenementUtilisateur>& Evenements() const { return evenements_; }
    // The events after those, counted by kind in the order each kind first came.
    const std::vector<EvenementsOmis>& Omis() const { return omis_; }
    long long NombreOmis() const { return nombreOmis_; }

private:
    void Garder(EvenementUtilisateur evenement);
    PortUtilisateur& suivant_;
    std::size_t gardes_;
    std::vector<EvenementUtilisateur> evenements_;
    std::vector<EvenementsOmis> omis_;
    long long nombreOmis_ = 0;
};

} // namespace verdane
