#include "skin/qt/BoutonSkinQt.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionButton>

namespace verdane::qt {

namespace {

QString NomStyleDeBase() {
    const QString nom = QApplication::style() ? QApplication::style()->name() : QString();
    return nom.isEmpty() ? QStringLiteral("Fusion") : nom;
}

} // namespace

void PeindreBoutonSkin(QPainter& p, const SkinQt& skin, const skin::BoutonSkin& bouton,
                       const QRect& zone, const QString& texte, QFont police, bool focus) {
    const auto source = bouton.Enfonce() ? bouton.SourceBas() : bouton.SourceHaut();
    QRect image = zone;
    // The picture never grows beyond the skin's bounds; it stays centred in a bigger button.
    if (bouton.LargeurMax() > 0 && image.width() > bouton.LargeurMax())
        image.setWidth(bouton.LargeurMax());
    if (bouton.HauteurMax() > 0 && image.height() > bouton.HauteurMax())
        image.setHeight(bouton.HauteurMax());
    image.moveCenter(zone.center());
    if (source && skin.AImage())
        skin.DessinerEtire(p, image, *source);
    else
        p.fillRect(image, bouton.Enfonce() ? QColor(0xd6, 0xe6, 0xf7) : QColor(0xff, 0xff, 0xff));
    if (focus) {
        QColor c = skin.Couleur(bouton.CouleurLibelle(), Qt::black);
        c.setAlpha(90);
        p.setPen(QPen(c, 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(image).adjusted(3.5, 3.5, -3.5, -3.5), 3, 3);
    }
    police.setBold(bouton.LibelleGras());
    p.setFont(police);
    p.setPen(skin.Couleur(bouton.CouleurLibelle(), Qt::black));
    p.drawText(image, Qt::AlignCenter | Qt::TextShowMnemonic, texte);
}

// ---- comSkin -------------------------------------------------------------------------------

comSkin::comSkin(QWidget* parent) : QAbstractButton(parent) {
    setObjectName("comSkin");
    setFocusPolicy(Qt::StrongFocus);
}

void comSkin::Make_Skin(std::shared_ptr<const SkinQt> skin) {
    skin_ = std::move(skin);
    if (skin_) bouton_.RecevoirSkin(skin_->Description());
    if (bouton_.LargeurMax() > 0 && bouton_.HauteurMax() > 0)
        setMaximumSize(bouton_.LargeurMax(), bouton_.HauteurMax());
    updateGeometry();
    update();
}

void comSkin::setText(const QString& texte) {
    bouton_.Text(Utf8VersCp1252(texte.toStdString()));
    QAbstractButton::setText(texte);
}

QSize comSkin::sizeHint() const {
    const QFontMetrics m(font());
    const auto source = bouton_.SourceHaut();
    const int h = std::max(source ? source->hauteur : 0, m.height() + 10);
    return QSize(std::max(m.horizontalAdvance(text()) + 28, 80), h);
}

void comSkin::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (skin_) PeindreBoutonSkin(p, *skin_, bouton_, rect(), text(), font(), hasFocus());
}

void comSkin::mousePressEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) bouton_.Appuyer();
    QAbstractButton::mousePressEvent(e);
}

void comSkin::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) bouton_.Relacher(hitButton(e->position().toPoint()));
    QAbstractButton::mouseReleaseEvent(e);
}

// ---- the style of skinned push buttons -------------------------------------------------------

StyleBoutonSkin::StyleBoutonSkin(std::shared_ptr<const SkinQt> skin)
    : QProxyStyle(NomStyleDeBase()), skin_(std::move(skin)) {
    bouton_.RecevoirSkin(skin_->Description());
}

void StyleBoutonSkin::drawControl(ControlElement element, const QStyleOption* option, QPainter* p,
                                  const QWidget* widget) const {
    const auto* o = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != CE_PushButton || !o || (o->features & QStyleOptionButton::Flat))
        return QProxyStyle::drawControl(element, option, p, widget);
    skin::BoutonSkin bouton = bouton_;
    if (o->state & (State_Sunken | State_On)) bouton.Appuyer();
    if (!(o->state & State_Enabled)) p->setOpacity(0.5);
    PeindreBoutonSkin(*p, *skin_, bouton, o->rect, QString(), p->font(), o->state & State_HasFocus);
    // The label by the underlying style (icon, mnemonic, menu arrow), in the skin's colour.
    QStyleOptionButton libelle = *o;
    libelle.palette.setColor(
        QPalette::ButtonText,
        skin_->Couleur(bouton.CouleurLibelle(), o->palette.color(QPalette::ButtonText)));
    libelle.rect = subElementRect(SE_PushButtonContents, o, widget);
    p->save();
    QFont police = p->font();
    police.setBold(bouton.LibelleGras());
    p->setFont(police);
    QProxyStyle::drawControl(CE_PushButtonLabel, &libelle, p, widget);
    p->restore();
    p->setOpacity(1);
}

QSize StyleBoutonSkin::sizeFromContents(ContentsType type, const QStyleOption* option,
                                        const QSize& taille, const QWidget* widget) const {
    QSize s = QProxyStyle::sizeFromContents(type, option, taille, widget);
    if (type == CT_PushButton) {
        if (const auto source = bouton_.SourceHaut())
            s.setHeight(std::max(s.height(), source->hauteur));
        s.setWidth(std::max(s.width(), 88));
    }
    return s;
}

int StyleBoutonSkin::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                 const QWidget* widget) const {
    if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical) return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace verdane::qt
