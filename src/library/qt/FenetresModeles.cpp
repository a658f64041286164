#include "data/ChargerDossier.h"

#include "library/OuvrirDoc.h"
#include "library/qt/FenetresBibliotheque.h"
#include "library/qt/FrmCreerDoc.h"
#include "library/qt/FrmOuvrDoc.h"
#include "library/qt/FrmOuvrExport.h"
#include "library/qt/FrmTrfMdl.h"
#include "utils/Chaines.h"
#include "utils/qt/Ecran.h"

#include <QApplication>
#include <QGuiApplication>

namespace verdane::qt {

namespace {

Texte Argument(const std::vector<Texte>& a, std::size_t i) {
    return i < a.size() ? a[i] : Texte();
}

// A job of the command line keeps its dialog above the other windows.
void AuPremierPlan(QWidget& fenetre, bool travail) {
    if (travail) fenetre.setWindowFlag(Qt::WindowStaysOnTopHint, true);
}

int Montrer(QDialog& fenetre) {
    fenetre.exec();
    return 0;
}

// "FrmOuvrDoc": {} opens a document or a model; {"dossier"} chooses the current dossier;
// {"dossiermaj", document} refreshes the document from the dossier chosen; the job
// {"OUVRIR", dossier, document} shows the document of the dossier in the export dialog.
int OuvrirFrmOuvrDoc(Contexte& ctx, const std::vector<Texte>& a) {
    const Texte premier = Argument(a, 0);
    if (EgalSansCasse(premier, "OUVRIR")) {
        FrmOuvrExport f(ctx, DossierComplet(ctx.etat, 0) + DocumentDuTravailOuvrir(Argument(a, 2)));
        AuPremierPlan(f, true);
        return Montrer(f);
    }
    FrmOuvrDoc f(ctx, premier.empty() ? Texte("document") : premier, Argument(a, 1));
    return Montrer(f);
}

// "FrmCreerDoc": {}, {"PDE"} with the page list; the jobs {"CREER", dossier}, {"CERFA", dossier}.
int OuvrirFrmCreerDoc(Contexte& ctx, const std::vector<Texte>& a) {
    const Texte premier = Majuscules(Argument(a, 0));
    FrmCreerDoc f(ctx, premier == "CERFA" || premier == "PDE");
    AuPremierPlan(f, premier == "CREER" || premier == "CERFA");
    return Montrer(f);
}

// "FrmTrfMdl": {"C"} copies out of the program's folders, {"A"} adds into them.
int OuvrirFrmTrfMdl(Contexte& ctx, const std::vector<Texte>& a) {
    const bool ajout = Majuscules(Argument(a, 0)) == "A";
    FrmTrfMdl f(ctx, ajout ? 'A' : 'C', ajout ? "TAB" : "MDL", {});
    return Montrer(f);
}

} // namespace

void InscrireFenetresModeles(Contexte& ctx) {
    if (!EcranDisponible()) return;
    ctx.formulaires.Inscrire("FrmOuvrDoc", OuvrirFrmOuvrDoc);
    ctx.formulaires.Inscrire("FrmCreerDoc", OuvrirFrmCreerDoc);
    ctx.formulaires.Inscrire("FrmTrfMdl", OuvrirFrmTrfMdl);
}

} // namespace verdane::qt
