#include "tables/qt/FenetresTableaux.h"

#include "tables/qt/FrmInserTab.h"
#include "tables/qt/FrmParamTab.h"

#include <QGuiApplication>

namespace verdane::qt {

void InscrireFenetresTableaux(Contexte& ctx) {
    const QString plateforme = QGuiApplication::platformName();
    if (plateforme.isEmpty() || plateforme == QLatin1String("offscreen") ||
        plateforme == QLatin1String("minimal"))
        return;
    ctx.formulaires.Inscrire("FrmInserTab", [](Contexte& c, const std::vector<Texte>& arguments) {
        FrmInserTab forme(c, arguments.empty() ? Texte{} : arguments[0]);
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
