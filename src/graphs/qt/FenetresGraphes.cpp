#include "graphs/qt/FenetresGraphes.h"

#include "graphs/EditeurGraph.h"
#include "graphs/FichierGraph.h"
#include "graphs/qt/FrmGraphik.h"
#include "utils/Chaines.h"

#include "utils/qt/Ecran.h"

namespace verdane::qt {

int OuvrirFrmGraphik(Contexte& ctx, const std::vector<Texte>& arguments) {
    Texte titre = "Insertion de graphique";
    int graphe = 0;
    if (!arguments.empty() && EgalSansCasse(arguments[0], "GRAPH")) {
        // The job: the dossier of the command line is loaded, its values are drawn.
        ctx.etat.graphes.avecArguments = true;
        titre = TitreTravailGraph(ctx.etat);
    } else if (!arguments.empty()) {
        titre = arguments[0];
        if (arguments.size() > 1) {
            if (const auto n = EntierStrict(arguments[1])) {
                graphe = static_cast<int>(*n);
            } else {
                // A graph code taken from a document enters the library, its title starting
                // with "Récupéré: ", and the editor opens on it.
                Texte code = Rogner(arguments[1]);
                if (CommencePar(code, "gph(") && FinitPar(code, ")"))
                    code = code.substr(4, code.size() - 5);
                graphe = AjouterCodeAuFichier(ctx, kPrefixeRecupere + code);
                titre = "Insertion de graphique";
            }
        }
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
