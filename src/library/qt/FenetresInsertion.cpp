#include "library/InfoBulle.h"

#include "library/InsererCode.h"
#include "library/LectureSelection.h"
#include "library/qt/ApercuGraph.h"
#include "library/qt/FenetresBibliotheque.h"
#include "library/qt/FenetresInsertionFormes.h"
#include "library/qt/FrmDate.h"
#include "library/qt/FrmInfoBulle.h"
#include "library/qt/FrmInserVal.h"
#include "utils/qt/Ecran.h"

#include <QGuiApplication>

namespace verdane::qt {

namespace {

Texte Argument(const std::vector<Texte>& arguments, std::size_t i) {
    return i < arguments.size() ? arguments[i] : Texte();
}

} // namespace

void InscrireFormesInsertion(Contexte& ctx) {
    auto& f = ctx.formulaires;
    f.Inscrire("FrmInserVal", [](Contexte& c, const std::vector<Texte>& a) {
        const Texte tag = Argument(a, 0);
        FrmInserVal fenetre(c, tag.empty() ? Texte("CLASSIC") : tag);
        return fenetre.exec() == QDialog::Accepted ? 0 : 1;
    });
    f.Inscrire("FrmDate", [](Contexte& c, const std::vector<Texte>&) {
        FrmDate fenetre(c);
        return fenetre.exec() == QDialog::Accepted ? 0 : 1;
    });
    f.Inscrire("FrmInfoBulle", [](Contexte& c, const std::vector<Texte>&) {
        AvertirInfoBullesOpenOffice(c);
        FrmInfoBulle fenetre(c);
        return fenetre.exec() == QDialog::Accepted ? 0 : 1;
    });
    f.Inscrire("InsererCode", [](Contexte& c, const std::vector<Texte>& a) {
        c.etat.insertion.codeEnAttente = Argument(a, 0);
        return InsererCode(c) ? 0 : 1;
    });
    f.Inscrire("lblRecupMdl1", [](Contexte& c, const std::vector<Texte>&) {
        return ExpliquerSelection(c) ? 0 : 1;
    });
    f.Inscrire("lblVoirGraph", [](Contexte& c, const std::vector<Texte>&) {
        const Texte chemin = ApercuGraphSelection(c);
        if (chemin.empty()) return 1;
        ApercuGraph fenetre(c.etat, chemin);
        fenetre.exec();
        return fenetre.ImageLue() ? 0 : 1;
    });
    f.Inscrire("lblVoirMdlGraph", [](Contexte& c, const std::vector<Texte>&) {
        return RecupererModeleGraph(c) ? 0 : 1;
    });
    f.Inscrire("lblRecupTab", [](Contexte& c, const std::vector<Texte>&) {
        return RecupererModeleTableau(c) ? 0 : 1;
    });
}

void InscrireFenetresInsertion(Contexte& ctx) {
    if (!EcranDisponible()) return;
    InscrireFormesInsertion(ctx);
}

} // namespace verdane::qt
