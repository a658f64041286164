#pragma once
// A skin loaded for Qt: its description and its bitmap (and the bitmap for doubled pixels when
// there is one, named with "@2x"), the pieces cut from it once, the move cursor.

#include "skin/LectureSkin.h"

#include <QColor>
#include <QCursor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QPixmap>

#include <memory>
#include <optional>

class QPainter;

namespace verdane::qt {

class SkinQt {
public:
    // Reads Skin.ini and its pictures; the boxes of missing files go to `utilisateur`, with
    // one box for the lines that were skipped. Nothing when Skin.ini is missing.
    static std::shared_ptr<SkinQt> Charger(PortUtilisateur& utilisateur, const Texte& cheminIni);

    const skin::DescriptionSkin& Description() const { return lecture_.skin; }
    const std::vector<Texte>& Avertissements() const { return lecture_.avertissements; }
    bool AImage() const { return !image_.isNull(); }

    // Draws the source rectangle (in the skin's pixels) into `destination`, scaled, from the
    // bitmap that suits the painter's pixel ratio.
    void Dessiner(QPainter& p, const QRect& destination, const skin::Rectangle& source) const;
    // The same in three slices: the ends keep their width, the middle stretches; for buttons.
    void DessinerEtire(QPainter& p, const QRect& destination, const skin::Rectangle& source) const;
    // A piece as a pixmap, at the pixel ratio asked.
    QPixmap Morceau(const skin::Rectangle& source, qreal ratio) const;

    QColor Couleur(std::int32_t couleurSkin, QColor systeme) const;
    QFont PoliceTitre() const;
    const QCursor& CurseurDeplacer() const { return curseur_; }

private:
    const QImage& ImagePour(qreal ratio, int& facteur) const;

    skin::LectureSkin lecture_;
    QImage image_;
    QImage image2x_;
    QCursor curseur_{Qt::SizeAllCursor};
    mutable QHash<QString, QPixmap> morceaux_;
};

} // namespace verdane::qt
