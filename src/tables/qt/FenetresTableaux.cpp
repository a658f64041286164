#include "tables/qt/FenetresTableaux.h"

#include "tables/qt/FrmInserTab.h"
#include "tables/qt/FrmParamTab.h"

#include "utils/qt/Ecran.h"

namespace verdane::qt {

void InscrireFenetresTableaux(Contexte& ctx) {
    if (!EcranDisponible()) return;
    ctx.formulaires.Inscrire("FrmInserTab", [](Contexte& c, const std::vector<Texte>& arguments) {
        // {code}, or {"Récupéré", code} from the reading of a selected code.
        const Texte code = arguments.empty() ? Texte{} : arguments.back();
        FrmInserTab forme(c, code == "Récupéré" ? Texte{} : code);
        forme.setWindowFlag(Qt::WindowStaysOnTopHint);
        forme.exec();
        return 0;
    });
    ctx.formulaires.Inscrire("FrmParamTab", [](Contexte& c, const std::vector<Texte>&) {
        FrmParamTab forme(c);
        forme.setWindowFlag(Qt::WindowStaysOnTopHint);
        forme.exec();
        return 0;
    });
}

} // namespace verdane::qt
