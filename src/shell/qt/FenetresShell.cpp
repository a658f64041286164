#include "shell/qt/FenetresShell.h"

#include "shell/DemarrageBarre.h"
#include "shell/Proprietes.h"
#include "shell/qt/DockX11.h"
#include "shell/qt/FrmAPropos.h"
#include "shell/qt/FrmBarre.h"
#include "shell/qt/FrmDemarrage.h"
#include "shell/qt/InstanceUnique.h"
#include "shell/qt/UtilisateurQt.h"

#include <QApplication>
#include <QEventLoop>

namespace verdane::qt {

int OuvrirBarre(Contexte& ctx) {
    InstanceUnique instance;
    if (!instance.Prendre()) {
        ctx.utilisateur.AfficherMessage(MessageDejaOuverte());
        return 0;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    const bool nouveautes = PreparerBarre(ctx, ParametresParDefaut());
    FrmBarre barre(ctx);
    barre.DockerBarre();
    barre.show();
    // Qt writes its own window type when it maps the window: the dock's is written again.
    MarquerDock(barre);
    barre.DockerBarre();
    if (nouveautes) {
        FrmDemarrage demarrage(ctx);
        demarrage.exec();
    }
    QEventLoop boucle;
    barre.fermee = [&boucle] { boucle.quit(); };
    if (barre.isVisible()) boucle.exec();
    return 0;
}

void InscrireFenetresShell(Contexte& ctx) {
    if (!EcranDisponible()) return;
    ctx.formulaires.Inscrire("frmBarre",
                             [](Contexte& c, const std::vector<Texte>&) { return OuvrirBarre(c); });
    ctx.formulaires.Inscrire("FrmAPropos", [](Contexte& c, const std::vector<Texte>&) {
        FrmAPropos apropos(c);
        apropos.exec();
        return 0;
    });
}

} // namespace verdane::qt
