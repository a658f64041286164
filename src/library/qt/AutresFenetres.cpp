#include "library/qt/AutresFenetres.h"

namespace verdane::qt {

void OuvrirAutreFenetre(Contexte& ctx, const Texte& nom, const std::vector<Texte>& arguments) {
    if (ctx.formulaires.Ouvrir(ctx, nom, arguments) >= 0) return;
    ctx.utilisateur.Boite("La fenêtre " + nom + " n'est pas disponible dans cette version.",
                          "Verdane", Icone::Information);
}

} // namespace verdane::qt
