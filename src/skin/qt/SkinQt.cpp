#include "skin/qt/SkinQt.h"

#include "utils/OutilsFichiers.h"

#include <QPainter>

namespace verdane::qt {

namespace {

QString Chemin(const Texte& chemin) {
    return QString::fromStdString(CheminSysteme(chemin).string());
}

} // namespace

std::shared_ptr<SkinQt> SkinQt::Charger(PortUtilisateur& utilisateur, const Texte& cheminIni) {
    auto lecture = skin::ChargerDescriptionSkin(utilisateur, cheminIni);
    if (!lecture) return nullptr;
    auto s = std::make_shared<SkinQt>();
    const Texte& fichier = lecture->skin.fichierImage;
    if (!fichier.empty()) {
        s->image_ = QImage(Chemin(fichier));
        if (s->image_.isNull()) {
            utilisateur.Boite("Le Fichier Image du Skin est illisible !",
                              "Erreur " + NomFichier(fichier), Icone::Attention);
        } else {
            skin::VerifierSources(*lecture, s->image_.width(), s->image_.height());
            // The same bitmap drawn for doubled pixels, when it's there and has the right size.
            const auto point = fichier.rfind('.');
            const Texte double_ = point == Texte::npos || point < DerniereBarre(fichier) + 1
                                      ? fichier + "@2x"
                                      : fichier.substr(0, point) + "@2x" + fichier.substr(point);
            QImage i2(Chemin(double_));
            if (i2.size() == s->image_.size() * 2) s->image2x_ = i2;
        }
    }
    skin::SignalerAvertissements(utilisateur, *lecture);
    const QPixmap curseur(Chemin(DossierParent(cheminIni) + "deplace.ico"));
    if (!curseur.isNull()) s->curseur_ = QCursor(curseur);
    s->lecture_ = std::move(*lecture);
    return s;
}

const QImage& SkinQt::ImagePour(qreal ratio, int& facteur) const {
    if (ratio > 1.25 && !image2x_.isNull()) {
        facteur = 2;
        return image2x_;
    }
    facteur = 1;
    return image_;
}

QPixmap SkinQt::Morceau(const skin::Rectangle& source, qreal ratio) const {
    int facteur = 1;
    const QImage& image = ImagePour(ratio, facteur);
    const QString cle = QStringLiteral("%1,%2,%3,%4@%5")
                            .arg(source.x)
                            .arg(source.y)
                            .arg(source.largeur)
                            .arg(source.hauteur)
                            .arg(facteur);
    auto it = morceaux_.find(cle);
    if (it == morceaux_.end()) {
        // Cut once: drawn scaled from its own copy, a piece never bleeds its neighbours in.
        QPixmap p =
            QPixmap::fromImage(image.copy(source.x * facteur, source.y * facteur,
                                          source.largeur * facteur, source.hauteur * facteur));
        p.setDevicePixelRatio(facteur);
        it = morceaux_.insert(cle, p);
    }
    return *it;
}

void SkinQt::Dessiner(QPainter& p, const QRect& destination, const skin::Rectangle& source) const {
    if (image_.isNull() || destination.isEmpty() || source.Vide()) return;
    const QPixmap morceau = Morceau(source, p.device() ? p.device()->devicePixelRatioF() : 1);
    if (morceau.isNull()) return;
    p.drawPixmap(destination, morceau);
}

void SkinQt::DessinerEtire(QPainter& p, const QRect& d, const skin::Rectangle& s) const {
    const int bout = std::min({s.hauteur / 2, s.largeur / 3, d.width() / 2, 10});
    if (bout <= 0) return Dessiner(p, d, s);
    Dessiner(p, QRect(d.x(), d.y(), bout, d.height()), {s.x, s.y, bout, s.hauteur});
    Dessiner(p, QRect(d.x() + bout, d.y(), d.width() - 2 * bout, d.height()),
             {s.x + bout, s.y, s.largeur - 2 * bout, s.hauteur});
    Dessiner(p, QRect(d.right() + 1 - bout, d.y(), bout, d.height()),
             {s.x + s.largeur - bout, s.y, bout, s.hauteur});
}

QColor SkinQt::Couleur(std::int32_t couleurSkin, QColor systeme) const {
    const auto c = skin::CouleurRvb(couleurSkin);
    return c ? QColor(c->r, c->v, c->b) : systeme;
}

QFont SkinQt::PoliceTitre() const {
    const auto& p = lecture_.skin.titre.police;
    QFont f(QString::fromStdString(Cp1252VersUtf8(p.nom)));
    f.setPointSizeF(p.taille);
    f.setBold(p.gras);
    f.setItalic(p.italique);
    f.setUnderline(p.souligne);
    f.setStrikeOut(p.barre);
    return f;
}

} // namespace verdane::qt
