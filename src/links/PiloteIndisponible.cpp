#include "links/PiloteIndisponible.h"

namespace verdane {

bool PiloteIndisponible::Signaler() {
    NoterErreur(nom_ + " n'est pas disponible sur ce système.");
    ctx_.utilisateur.AfficherMessage(
        {nom_ + " n'est pas disponible sur ce système.",
         "Choisissez LibreOffice dans \"PROPRIETES\" -> \"AUTRE CHOIX\" pour ouvrir, convertir "
         "et compléter vos documents.",
         "Traitement de texte indisponible", ""});
    return false;
}

} // namespace verdane
