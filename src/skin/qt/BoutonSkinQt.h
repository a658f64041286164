#pragma once
// comSkin, the skinned button: its two pictures cut once from the skin, swapped on press, the
// label centred over them in the skin's colours. Picture and label are one surface, so a click
// on the label is one click of the button. `StyleBoutonSkin` gives the push buttons of a
// skinned window the same look.

#include "skin/BoutonSkin.h"
#include "skin/qt/SkinQt.h"

#include <QAbstractButton>
#include <QProxyStyle>

#include <memory>

namespace verdane::qt {

class comSkin : public QAbstractButton {
    Q_OBJECT
public:
    explicit comSkin(QWidget* parent = nullptr);

    // Takes the skin's button data and cuts the pictures (Make_Skin).
    void Make_Skin(std::shared_ptr<const SkinQt> skin);
    const std::shared_ptr<const SkinQt>& Skin() const { return skin_; }
    skin::BoutonSkin& Etat() { return bouton_; }
    const skin::BoutonSkin& Etat() const { return bouton_; }

    // The label, kept by the core and by the toolkit's button alike.
    void setText(const QString& texte);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    skin::BoutonSkin bouton_;
    std::shared_ptr<const SkinQt> skin_;
};

// Draws push buttons from the skin's button pictures and label colours, over another style for
// everything else.
class StyleBoutonSkin : public QProxyStyle {
    Q_OBJECT
public:
    explicit StyleBoutonSkin(std::shared_ptr<const SkinQt> skin);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* p,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;

private:
    std::shared_ptr<const SkinQt> skin_;
    skin::BoutonSkin bouton_; // the skin's data, as every button takes it
};

// Paints a skinned button: picture by state, label centred. Shared by the two above.
void PeindreBoutonSkin(QPainter& p, const SkinQt& skin, const skin::BoutonSkin& bouton,
                       const QRect& zone, const QString& texte, QFont police, bool focus);

} // namespace verdane::qt
