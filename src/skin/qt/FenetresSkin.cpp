#include "skin/qt/FenetresSkin.h"

#include "utils/qt/Ecran.h"

#include "skin/qt/HabillageSkin.h"
#include "utils/OutilsFichiers.h"

#include <QApplication>

namespace verdane::qt {

void InscrireFenetresSkin(Contexte& ctx) {
    auto* app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!app || HabillageSkin::DeLApplication()) return;
    if (!EcranDisponible()) return;
    Contexte* c = &ctx;
    auto* habillage = new HabillageSkin(
        [c](bool& definitif) -> std::shared_ptr<SkinQt> {
            const Texte& dossier = c->etat.chemins.RepSkin;
            if (dossier.empty()) return nullptr; // the folders aren't known yet
            definitif = true;
            return SkinQt::Charger(c->utilisateur, AjouterBarre(dossier) + "Skin.ini");
        },
        app);
    app->installEventFilter(habillage);
}

bool HabillerFenetre(QWidget* fenetre) {
    auto* habillage = HabillageSkin::DeLApplication();
    return habillage && habillage->Habiller(fenetre);
}

} // namespace verdane::qt
