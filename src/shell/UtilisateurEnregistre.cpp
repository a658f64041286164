#include "shell/UtilisateurEnregistre.h"

namespace verdane {

void UtilisateurEnregistre::Garder(EvenementUtilisateur ev) {
    if (evenements_.size() < gardes_) {
        evenements_.push_back(std::move(ev));
        return;
    }
    ++nombreOmis_;
    for (auto& o : omis_) {
        if (o.genre == ev.message.genre && o.titre == ev.message.titre) {
            ++o.nombre;
            return;
        }
    }
    if (omis_.size() < kGenresOmis) {
        omis_.push_back({ev.message.genre, ev.message.titre, 1});
        return;
    }
    if (omis_.size() == kGenresOmis) omis_.push_back({"autres", "", 0});
    ++omis_.back().nombre;
}

void UtilisateurEnregistre::AfficherMessage(const Message& m) {
    if (!m.texte.empty()) Garder({EvenementUtilisateur::Genre::Message, m, {}});
    suivant_.AfficherMessage(m);
}

void UtilisateurEnregistre::Boite(const Texte& texte, const Texte& titre, Icone icone) {
    Garder({EvenementUtilisateur::Genre::Message, Message{texte, "", titre, "boite"}, {}});
    suivant_.Boite(texte, titre, icone);
}

Reponse UtilisateurEnregistre::Question(const Texte& texte, const Texte& titre, Boutons boutons,
                                        Reponse parDefaut, Icone icone) {
    const Reponse r = suivant_.Question(texte, titre, boutons, parDefaut, icone);
    Garder({EvenementUtilisateur::Genre::Question, Message{texte, "", titre, "question"}, r});
    return r;
}

} // namespace verdane
