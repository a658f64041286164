#include "skin/qt/CadreFenetre.h"

#include <QApplication>
#include <QLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <QWindow>

namespace verdane::qt {

namespace {

constexpr const char* kProprieteCadre = "verdaneCadreSkin";

QRect Rect(const skin::Rectangle& r) {
    return QRect(r.x, r.y, r.largeur, r.hauteur);
}

QString Qs(std::string_view cp1252) {
    return QString::fromStdString(Cp1252VersUtf8(cp1252));
}

} // namespace

CadreFenetre::CadreFenetre(QWidget* fenetre, std::shared_ptr<const SkinQt> skin)
    : QObject(fenetre), fenetre_(fenetre), skin_(std::move(skin)), cadre_(skin_->Description()) {
    const auto& d = skin_->Description();
    fenetre_->setProperty(kProprieteCadre, QVariant::fromValue<QObject*>(this));

    // No caption and no sizing frame: the skin draws both.
    const Qt::WindowFlags drapeaux = fenetre_->windowFlags() | Qt::FramelessWindowHint;
    fenetre_->overrideWindowFlags(drapeaux);
    if (QWindow* w = fenetre_->windowHandle()) w->setFlags(drapeaux);

    // The content stands inside the border, under the title.
    const int bord = d.tailleBord, titre = std::max(d.hauteurTitre, d.tailleBord);
    const QMargins avant = fenetre_->contentsMargins();
    fenetre_->setContentsMargins(avant + QMargins(bord, titre, bord, bord));
    if (!fenetre_->layout()) {
        for (QObject* o : fenetre_->children())
            if (auto* enfant = qobject_cast<QWidget*>(o); enfant && !enfant->isWindow())
                enfant->move(enfant->pos() + QPoint(bord, titre));
    }
    if (fenetre_->testAttribute(Qt::WA_Resized))
        fenetre_->resize(fenetre_->size() + QSize(2 * bord, titre + bord));
    fenetre_->setMinimumSize(
        fenetre_->minimumSize().expandedTo(QSize(cadre_.LargeurMin(), cadre_.HauteurMin())));

    QPalette palette = fenetre_->palette();
    palette.setColor(QPalette::Window,
                     skin_->Couleur(d.couleurFond, palette.color(QPalette::Window)));
    fenetre_->setPalette(palette);
    // Where the platform can, the window is see-through by the skin's alpha.
    if (d.transparence && d.alpha < 255) fenetre_->setWindowOpacity(d.alpha / 255.0);

    fenetre_->setMouseTracking(true);
    fenetre_->installEventFilter(this);
    fenetre_->update();
}

CadreFenetre* CadreFenetre::De(const QWidget* fenetre) {
    return fenetre
               ? qobject_cast<CadreFenetre*>(fenetre->property(kProprieteCadre).value<QObject*>())
               : nullptr;
}

skin::EtatFenetre CadreFenetre::Etat() const {
    const auto etat = fenetre_->windowState();
    if (etat & Qt::WindowMinimized) return skin::EtatFenetre::Reduite;
    if (etat & (Qt::WindowMaximized | Qt::WindowFullScreen)) return skin::EtatFenetre::Agrandie;
    return skin::EtatFenetre::Normale;
}

bool CadreFenetre::eventFilter(QObject* objet, QEvent* e) {
    if (objet != fenetre_) return false;
    const int l = fenetre_->width(), h = fenetre_->height();
    switch (e->type()) {
    case QEvent::Paint:
        Peindre();
        return false; // the window paints its own over it
    case QEvent::MouseButtonPress: {
        auto* m = static_cast<QMouseEvent*>(e);
        const QPoint p = m->position().toPoint();
        if (m->button() == Qt::RightButton && cadre_.DansTitre(p.x(), p.y(), l, h)) {
            OuvrirMenuSysteme(m->globalPosition().toPoint());
            return true;
        }
        if (m->button() != Qt::LeftButton) return false;
        if (cadre_.Survol(true, p.x(), p.y(), l, h)) fenetre_->update();
        if (cadre_.DansTitre(p.x(), p.y(), l, h) && Etat() == skin::EtatFenetre::Normale) {
            QWindow* w = fenetre_->windowHandle();
            // Wayland moves windows itself; elsewhere the window follows the mouse.
            if (QGuiApplication::platformName() == "wayland" && w && w->startSystemMove())
                return true;
            deplacement_ = true;
            ecartDeplacement_ = m->globalPosition().toPoint() - fenetre_->frameGeometry().topLeft();
            fenetre_->setCursor(skin_->CurseurDeplacer());
        }
        return true;
    }
    case QEvent::MouseMove: {
        auto* m = static_cast<QMouseEvent*>(e);
        const QPoint p = m->position().toPoint();
        if (deplacement_) {
            fenetre_->move(m->globalPosition().toPoint() - ecartDeplacement_);
            return true;
        }
        if (cadre_.Survol(m->buttons() & Qt::LeftButton, p.x(), p.y(), l, h)) fenetre_->update();
        return false;
    }
    case QEvent::MouseButtonRelease: {
        auto* m = static_cast<QMouseEvent*>(e);
        if (m->button() != Qt::LeftButton) return false;
        if (deplacement_) {
            FinDeplacement();
            return true;
        }
        const QPoint p = m->position().toPoint();
        const auto action = cadre_.Relacher(p.x(), p.y(), l, h, Etat());
        fenetre_->update();
        Action(action);
        return action != skin::ActionTitre::Aucune;
    }
    case QEvent::MouseButtonDblClick: {
        auto* m = static_cast<QMouseEvent*>(e);
        const QPoint p = m->position().toPoint();
        if (m->button() != Qt::LeftButton || !cadre_.DansTitre(p.x(), p.y(), l, h)) return false;
        Action(Etat() == skin::EtatFenetre::Normale ? skin::ActionTitre::Agrandir
                                                    : skin::ActionTitre::Restaurer);
        return true;
    }
    case QEvent::Show:
        cadre_.Rouvrir();
        return false;
    case QEvent::Leave:
        if (cadre_.Survol(false, -1, -1, l, h)) fenetre_->update();
        return false;
    case QEvent::Resize:
    case QEvent::WindowTitleChange:
    case QEvent::WindowStateChange:
        fenetre_->update();
        return false;
    default:
        return false;
    }
}

void CadreFenetre::FinDeplacement() {
    deplacement_ = false;
    fenetre_->unsetCursor();
}

void CadreFenetre::Peindre() {
    QPainter p(fenetre_);
    const int l = fenetre_->width(), h = fenetre_->height();
    const auto dessin = cadre_.Dessin(l, h);
    if (!skin_->AImage()) p.fillRect(fenetre_->rect(), fenetre_->palette().window());
    for (const auto& piece : dessin.pieces)
        skin_->Dessiner(p, Rect(piece.destination), piece.source);
    for (const auto& piece : dessin.boutons)
        skin_->Dessiner(p, Rect(piece.destination), piece.source);
    if (!dessin.titre || dessin.titre->Vide()) return;
    const auto& d = skin_->Description();
    p.setFont(skin_->PoliceTitre());
    p.setPen(skin_->Couleur(d.titre.couleur, fenetre_->palette().color(QPalette::WindowText)));
    const QFontMetrics mesures(p.font());
    const Texte titre = Utf8VersCp1252(fenetre_->windowTitle().toStdString());
    const Texte coupe = skin::CouperTitre(titre, dessin.titre->largeur, [&](std::string_view t) {
        return mesures.horizontalAdvance(Qs(t));
    });
    p.drawText(Rect(*dessin.titre), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
               Qs(coupe));
}

void CadreFenetre::Action(skin::ActionTitre action) {
    switch (action) {
    case skin::ActionTitre::Menu: {
        const auto& d = skin_->Description();
        OuvrirMenuSysteme(fenetre_->mapToGlobal(QPoint(d.menuGauche, d.menuHaut)));
        break;
    }
    case skin::ActionTitre::Reduire:
        ActionMenu("mMin");
        break;
    case skin::ActionTitre::Agrandir:
        ActionMenu("mMax");
        break;
    case skin::ActionTitre::Restaurer:
        ActionMenu("mRestaurer");
        break;
    case skin::ActionTitre::Fermer:
        ActionMenu("mEnd");
        break;
    case skin::ActionTitre::Aucune:
        break;
    }
}

void CadreFenetre::ActionMenu(const char* cle) {
    const auto etat = cadre_.ActionMenu(cle, Etat());
    if (cadre_.Termine()) {
        fenetre_->close();
        return;
    }
    if (!etat) return;
    switch (*etat) {
    case skin::EtatFenetre::Normale:
        fenetre_->showNormal();
        break;
    case skin::EtatFenetre::Reduite:
        fenetre_->showMinimized();
        break;
    case skin::EtatFenetre::Agrandie:
        fenetre_->showMaximized();
        break;
    }
}

QMenu* CadreFenetre::MenuSysteme() {
    if (menu_) return menu_;
    menu_ = new QMenu(fenetre_);
    menu_->setProperty("verdaneSansSkin", true);
    const auto& d = skin_->Description();
    if (d.couleurMenu) {
        QPalette palette = menu_->palette();
        palette.setColor(QPalette::Window,
                         skin_->Couleur(*d.couleurMenu, palette.color(QPalette::Window)));
        palette.setColor(QPalette::Base, palette.color(QPalette::Window));
        menu_->setPalette(palette);
    }
    for (int i = 0; i < skin::kNbBoutonsTitre; ++i) {
        const auto& entree = skin::kMenuSysteme[i];
        if (i == skin::kBoutonFermer) menu_->addSeparator();
        QAction* a = menu_->addAction(Qs(entree.libelle));
        a->setObjectName(entree.cle);
        const auto& images = d.menu[static_cast<std::size_t>(i)];
        if (!images.empty() && skin_->AImage()) {
            const auto source = images.front().Source(0, 0);
            QIcon icone;
            icone.addPixmap(skin_->Morceau(source, 1));
            icone.addPixmap(skin_->Morceau(source, 2));
            a->setIcon(icone);
        }
        const char* cle = entree.cle;
        connect(a, &QAction::triggered, this, [this, cle] { ActionMenu(cle); });
    }
    return menu_;
}

void CadreFenetre::OuvrirMenuSysteme(const QPoint& global) {
    MenuSysteme()->popup(global);
}

} // namespace verdane::qt
