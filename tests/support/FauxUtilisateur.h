#pragma once
// A user port that records what the program says (message forms and boxes, in order; a box
// has the kind "boite") and asks, and answers from a script (else with the default).

#include "shell/etat/PortUtilisateur.h"

#include <deque>
#include <string>
#include <vector>

namespace verdane::test {

class FauxUtilisateur : public PortUtilisateur {
public:
    struct Question {
        Texte texte;
        Texte titre;
        Boutons boutons;
        Reponse parDefaut;
    };

    void AfficherMessage(const Message& m) override { messages.push_back(m); }
    void Boite(const Texte& texte, const Texte& titre, Icone) override {
        messages.push_back({texte, "", titre, "boite"});
    }
    Reponse Question(const Texte& texte, const Texte& titre, Boutons b, Reponse parDefaut,
                     Icone) override {
        questions.push_back({texte, titre, b, parDefaut});
        if (reponses.empty()) return parDefaut;
        const Reponse r = reponses.front();
        reponses.pop_front();
        return r;
    }
    void OuvrirJauge(const Texte& titre) override { jauges.push_back("ouvrir:" + titre); }
    void PoserJauge(int largeur, const Texte& libelle) override {
        jauges.push_back(std::to_string(largeur) + ":" + libelle);
    }
    void FermerJauge() override { jauges.push_back("fermer"); }

    // True if a message or a box said `morceau` in its main or technical text.
    bool ADit(const Texte& morceau) const {
        for (const auto& m : messages)
            if (m.texte.find(morceau) != Texte::npos || m.technique.find(morceau) != Texte::npos)
                return true;
        return false;
    }

    // Every main text, technical text and title said so far, joined: for "was it said".
    std::string ToutCeQuiAEteDit() const {
        std::string s;
        for (const auto& m : messages) s += m.titre + "\n" + m.texte + "\n" + m.technique + "\n";
        return s;
    }

    std::vector<Message> messages;
    std::vector<struct Question> questions;
    std::deque<Reponse> reponses;
    std::vector<std::string> jauges;
};

} // namespace verdane::test
