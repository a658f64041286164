#include "links/qt/FenetresLiens.h"

#include "links/qt/FrmChoixEditeur.h"
#include "shell/qt/FenetreProgression.h"
#include "shell/qt/UtilisateurQt.h"

namespace verdane::qt {

void InscrireFenetresLiens(Contexte& ctx) {
    if (!EcranDisponible()) return;
    ctx.formulaires.Inscrire("FrmChoixEditeur", [](Contexte& c, const std::vector<Texte>&) {
        FrmChoixEditeur choix(c, ParametresParDefaut());
        choix.show();
        SuiviRechercheQt suivi;
        choix.Detecter(suivi);
        return choix.exec() == QDialog::Accepted ? 0 : 1;
    });
}

} // namespace verdane::qt
