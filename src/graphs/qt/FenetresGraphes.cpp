#include "graphs/qt/FenetresGraphes.h"

#include "graphs/EditeurGraph.h"
#include "graphs/qt/FrmGraphik.h"
#include "utils/Chaines.h"

#include <QGuiApplication>

namespace verdane::qt {

namespace {

bool EcranDisponible() {
    const QString plateforme = QGuiApplication::platformName();
    return !plateforme.isEmpty() && plateforme != QLatin1String("offscreen") &&
           plateforme != QLatin1String("minimal");
}

} // namespace

int OuvrirFrmGraphik(Contexte& ctx, const std::vector<Texte>& arguments) {
    Texte titre = "Insertion de graphique";
    int graphe = 0;
    if (!arguments.empty() && EgalSansCasse(arguments[0], "GRAPH")) {
        // The job: the dossier of the command line is loaded, its values are drawn.
        ctx.etat.graphes.avecArguments = true;
        titre = TitreTravailGraph(ctx.etat);
    } else if (!arguments.empty()) {
        titre = arguments[0];
        if (arguments.size() > 1) graphe = static_cast<int>(EntierStrict(arguments[1]).value_or(0));
    }
    FrmGraphik forme(ctx, titre, graphe);
    forme.setWindowFlag(Qt::WindowStaysOnTopHint);
    forme.exec();
    return 0;
}

void InscrireFenetresGraphes(Contexte& ctx) {
    if (!EcranDisponible()) return;
    ctx.formulaires.Inscrire("FrmGraphik", OuvrirFrmGraphik);
}

} // namespace verdane::qt
