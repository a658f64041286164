#include "shell/UtilisateurEnregistre.h"

namespace verdane {

void UtilisateurEnregistre::AfficherMessage(const Message& m) {
    if (!m.texte.empty()) evenements_.push_back({EvenementUtilisateur::Genre::Message, m, {}});
    suivant_.AfficherMessage(m);
}

void UtilisateurEnregistre::Boite(const Texte& texte, const Texte& titre, Icone icone) {
    evenements_.push_back(
        {EvenementUtilisateur::Genre::Message, Message{texte, "", titre, "boite"}, {}});
    suivant_.Boite(texte, titre, icone);
}

Reponse UtilisateurEnregistre::Question(const Texte& texte, const Texte& titre, Boutons boutons,
                                        Reponse parDefaut, Icone icone) {
    const Reponse r = suivant_.Question(texte, titre, boutons, parDefaut, icone);
    evenements_.push_back(
        {EvenementUtilisateur::Genre::Question, Message{texte, "", titre, "question"}, r});
    return r;
}

} // namespace verdane
