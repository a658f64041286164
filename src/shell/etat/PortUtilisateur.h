#pragma once
// What the program says to the user and asks of them. The core calls this port; a platform
// stands behind it (the console here, windows later). Nothing in the core waits on a person
// by any other road.

#include "utils/Texte.h"

#include <vector>

namespace verdane {

// The message form: main text, technical text, title and kind. An empty kind draws the main
// text as an error (dark red); "seule" places it with no toolbar above; "Aide" marks help.
struct Message {
    Texte texte;
    Texte technique;
    Texte titre;
    Texte genre;
};

enum class Boutons { Ok, OuiNon, OuiNonAnnuler, OkAnnuler };
enum class Reponse { Ok, Oui, Non, Annuler };
enum class Icone { Aucune, Information, Attention, Critique, Question };

// A dossier of Marlo as the dossier slots hold it: its parent folder and its name.
struct DossierCompare {
    Texte repertoire;
    Texte nom;
};

class PortUtilisateur {
public:
    virtual ~PortUtilisateur() = default;

    // The message form (modal).
    virtual void AfficherMessage(const Message& message) = 0;
    // A message box: text and title, with an OK button.
    virtual void Boite(const Texte& texte, const Texte& titre, Icone icone) = 0;
    // A question; `parDefaut` is the default button, the answer taken when no one can answer.
    virtual Reponse Question(const Texte& texte, const Texte& titre, Boutons boutons,
                             Reponse parDefaut, Icone icone) = 0;

    // The gauge of a creation or an update. `titre` names the document in an update, empty in
    // a creation. `largeur` runs from 0 to 2970, the full bar; `libelle` stands beside it.
    virtual void OuvrirJauge(const Texte& titre) = 0;
    virtual void PoserJauge(int largeur, const Texte& libelle) = 0;
    virtual void FermerJauge() = 0;

    // The hourglass pointer during a long operation.
    virtual void Sablier(bool /*actif*/) {}

    // The dossiers that a multi-dossier table compares, under `titre` and `consigne`.
    // `nombre` (1 to 9) and `dossiers` (slots 1 to 9, the first at index 0) come in as they
    // stand and go out as chosen. False: no choice made, nothing is changed.
    virtual bool ChoisirDossiers(const Texte& /*titre*/, const Texte& /*consigne*/, int& /*nombre*/,
                                 std::vector<DossierCompare>& /*dossiers*/) {
        return false;
    }
};

// Says nothing, answers every question with its default: for runs that nobody watches and for
// tests that don't look at the user's side.
class UtilisateurMuet : public PortUtilisateur {
public:
    void AfficherMessage(const Message&) override {}
    void Boite(const Texte&, const Texte&, Icone) override {}
    Reponse Question(const Texte&, const Texte&, Boutons, Reponse parDefaut, Icone) override {
        return parDefaut;
    }
    void OuvrirJauge(const Texte&) override {}
    void PoserJauge(int, const Texte&) override {}
    void FermerJauge() override {}
};

} // namespace verdane
