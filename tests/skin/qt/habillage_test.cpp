// Windows dressed by the hook with the program's own skin, and with a skin of another bitmap.

#include "FabriqueSkin.h"
#include "skin/qt/BoutonSkinQt.h"
#include "skin/qt/CadreFenetre.h"
#include "skin/qt/HabillageSkin.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace verdane::qt {
namespace {

class Habillage : public testing::Test {
protected:
    void SetUp() override {
        for (const auto& f : fabrique::FabriquerSkin()) dossier.Ecrire(f.nom, f.octets);
        Installer();
    }
    void TearDown() override { qApp->removeEventFilter(habillage.get()); }
    void Installer() {
        if (habillage) qApp->removeEventFilter(habillage.get());
        habillage = std::make_unique<HabillageSkin>([this](bool& definitif) {
            definitif = true;
            return SkinQt::Charger(utilisateur, dossier / "Skin.ini");
        });
        qApp->installEventFilter(habillage.get());
    }
    // A dialog as the other subsystems make them: a layout, a label-less button.
    std::unique_ptr<QDialog> Dialogue() {
        auto d = std::make_unique<QDialog>();
        d->setWindowTitle("Ouvrir un document");
        auto* couche = new QVBoxLayout(d.get());
        bouton = new QPushButton("Valider", d.get());
        couche->addWidget(bouton);
        return d;
    }
    static void Souris(QWidget* w, QEvent::Type type, QPoint p, Qt::MouseButtons boutons) {
        const QPoint global = w->mapToGlobal(p);
        QMouseEvent e(type, QPointF(p), QPointF(global),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, boutons,
                      Qt::NoModifier);
        QCoreApplication::sendEvent(w, &e);
    }
    static QPoint Centre(const CadreFenetre& cadre, QWidget* w, int bouton) {
        const auto d = cadre.Cadre().Dessin(w->width(), w->height());
        for (std::size_t i = 0; i < d.boutons.size(); ++i)
            if (d.numerosBoutons[i] == bouton) {
                const auto& r = d.boutons[i].destination;
                return {r.x + r.largeur / 2, r.y + r.hauteur / 2};
            }
        return {};
    }

    test::DossierTemporaire dossier;
    test::FauxUtilisateur utilisateur;
    std::unique_ptr<HabillageSkin> habillage;
    QPushButton* bouton = nullptr;
};

TEST_F(Habillage, UneFenetreHabilleeSeConduitParSonCadre) {
    auto d = Dialogue();
    d->resize(400, 200);
    d->show();
    auto* cadre = CadreFenetre::De(d.get());
    ASSERT_TRUE(cadre);
    EXPECT_TRUE(utilisateur.messages.empty()) << utilisateur.ToutCeQuiAEteDit();
    const auto& skin = cadre->Cadre().Skin();
    EXPECT_TRUE(d->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(d->contentsMargins().top(), skin.hauteurTitre);
    EXPECT_GE(d->minimumWidth(), cadre->Cadre().LargeurMin());
    EXPECT_GE(d->minimumHeight(), cadre->Cadre().HauteurMin());
    // The content stands under the title; its buttons, even one added later, are dressed.
    EXPECT_GE(bouton->geometry().top(), skin.hauteurTitre);
    EXPECT_TRUE(qobject_cast<StyleBoutonSkin*>(bouton->style()));
    auto* second = new QPushButton("Annuler", d.get());
    d->layout()->addWidget(second);
    second->show();
    EXPECT_TRUE(qobject_cast<StyleBoutonSkin*>(second->style()));

    // The title moves the window, with the skin's cursor.
    d->move(100, 100);
    const QPoint depart = d->pos();
    Souris(d.get(), QEvent::MouseButtonPress, QPoint(200, 10), Qt::LeftButton);
    EXPECT_EQ(d->cursor().shape(), Qt::BitmapCursor); // the skin's deplace.ico
    Souris(d.get(), QEvent::MouseMove, QPoint(230, 30), Qt::LeftButton);
    EXPECT_EQ(d->pos(), depart + QPoint(30, 20));
    Souris(d.get(), QEvent::MouseButtonRelease, QPoint(230, 30), Qt::NoButton);
    EXPECT_NE(d->cursor().shape(), Qt::BitmapCursor);

    // The close button is drawn pressed, then closes.
    const QPoint fermer = Centre(*cadre, d.get(), skin::kBoutonFermer);
    const QImage avant = d->grab().toImage();
    Souris(d.get(), QEvent::MouseButtonPress, fermer, Qt::LeftButton);
    EXPECT_TRUE(cadre->Cadre().Enfonce(skin::kBoutonFermer));
    const QImage enfonce = d->grab().toImage();
    const QPoint aCote = (fermer + QPoint(-10, 0)) * enfonce.devicePixelRatio();
    EXPECT_NE(enfonce.pixel(aCote), avant.pixel(aCote));
    Souris(d.get(), QEvent::MouseButtonRelease, fermer, Qt::NoButton);
    EXPECT_FALSE(d->isVisible());

    // Shown again, it isn't ended any more; the enlarge button enlarges.
    d->show();
    const QPoint agrandir = Centre(*cadre, d.get(), skin::kBoutonAgrandir);
    Souris(d.get(), QEvent::MouseButtonPress, agrandir, Qt::LeftButton);
    Souris(d.get(), QEvent::MouseButtonRelease, agrandir, Qt::NoButton);
    EXPECT_TRUE(d->isVisible());
    EXPECT_TRUE(d->windowState() & Qt::WindowMaximized);

    // The system menu, with the skin's pictures.
    const auto actions = cadre->MenuSysteme()->actions();
    QStringList libelles;
    for (auto* a : actions) {
        libelles << (a->isSeparator() ? QString("-") : a->text());
        EXPECT_TRUE(a->isSeparator() || !a->icon().isNull()) << a->text().toStdString();
    }
    EXPECT_EQ(libelles, (QStringList{"Restaurer", QString::fromStdString(Cp1252VersUtf8("Réduire")),
                                     "Agrandir", "-", "Fermer"}));
    actions[4]->trigger();
    EXPECT_FALSE(d->isVisible());
}

TEST_F(Habillage, FenetresQuiGardentLeurCadre) {
    auto barre = Dialogue();
    barre->setProperty("verdaneSansSkin", true);
    barre->show();
    EXPECT_FALSE(CadreFenetre::De(barre.get()));
    EXPECT_FALSE(barre->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_FALSE(qobject_cast<StyleBoutonSkin*>(bouton->style()));
    QMenu menu;
    menu.addAction("x");
    menu.popup(QPoint(0, 0));
    EXPECT_FALSE(CadreFenetre::De(&menu));
    menu.close();

    // Without Skin.ini nothing is dressed; asked once, a second window says nothing more.
    std::filesystem::remove(dossier.Systeme() / "Skin.ini");
    Installer();
    for (int i = 0; i < 2; ++i) {
        auto d = Dialogue();
        d->show();
        EXPECT_FALSE(CadreFenetre::De(d.get()));
    }
    EXPECT_EQ(utilisateur.messages.size(), 1u);
    EXPECT_TRUE(utilisateur.ADit("Fichier de configuration du skin introuvable !"));
}

TEST_F(Habillage, UnAutreBitmapChangeLAspectEtUnSkinFautifSeDessine) {
    auto d = Dialogue();
    d->resize(300, 150);
    d->show();
    const QImage avant = d->grab().toImage();
    // The title band taken from another picture: same description, another bitmap.
    const QString bmp = QString::fromStdString((dossier.Systeme() / "skin.bmp").string());
    QImage image(bmp);
    ASSERT_FALSE(image.isNull());
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 16; ++x) image.setPixelColor(x, y, QColor(200, 30, 30));
    ASSERT_TRUE(image.save(bmp));
    std::filesystem::remove(dossier.Systeme() / "skin@2x.bmp");
    Installer();
    auto autre = Dialogue();
    autre->resize(300, 150);
    autre->show();
    const QImage apres = autre->grab().toImage();
    const qreal r = apres.devicePixelRatio();
    const QPoint titre = QPoint(150, 4) * r;
    EXPECT_EQ(QColor(apres.pixel(titre)), QColor(200, 30, 30));
    EXPECT_NE(QColor(avant.pixel(titre)), QColor(200, 30, 30));
    // The body keeps the description's colour.
    EXPECT_EQ(apres.pixel(QPoint(150, 140) * r), avant.pixel(QPoint(150, 140) * r));

    // Sizes and sources out of every bound draw nonetheless, and are told.
    dossier.Ecrire("Skin.ini", "fichier = skin.bmp\n"
                               "heighttitre = 20\n"
                               "pos = 0,0,me.width*32767,me.height*32767, 0,0,8,8\n"
                               "pos = -500,-500,me.width+900,10, 0,0,16,30\n"
                               "pos = 0,0,me.width/0,10, 0,0,8,8\n"
                               "pos = 0,0,10,10, 5000,5000,8,8\n"
                               "posbend = me.width-20,0,20,20, 190,120,50,50\n"
                               "lbltitre.pos = 0,0,me.width*-3,20\n"
                               "button.mup = -100,-100,99999,5\n");
    Installer();
    auto fautif = Dialogue();
    fautif->resize(300, 150);
    fautif->show();
    ASSERT_TRUE(CadreFenetre::De(fautif.get()));
    EXPECT_FALSE(fautif->grab().isNull());
    EXPECT_TRUE(utilisateur.ADit("source en partie hors de l'image"));
    // The bitmap missing: the frame is drawn in the window's colour.
    dossier.Ecrire("Skin.ini", "fichier = absente.bmp\nheighttitre = 20\n");
    Installer();
    auto e = Dialogue();
    e->show();
    ASSERT_TRUE(CadreFenetre::De(e.get()));
    EXPECT_FALSE(e->grab().isNull());
}

TEST_F(Habillage, BoutonSkinUnClicParLibelle) {
    auto d = Dialogue();
    d->show();
    comSkin b(d.get());
    b.setText("Valider");
    b.resize(120, 30);
    b.show();
    EXPECT_TRUE(b.Etat().SourceHaut()); // dressed by the hook, as every button of the window
    QSignalSpy clics(&b, &QAbstractButton::clicked);
    const QImage haut = b.grab().toImage();
    QTest::mousePress(&b, Qt::LeftButton, {}, QPoint(60, 15)); // on the label
    EXPECT_TRUE(b.Etat().Enfonce());
    const QImage bas = b.grab().toImage();
    EXPECT_NE(haut.pixel(QPoint(8, 15) * haut.devicePixelRatio()),
              bas.pixel(QPoint(8, 15) * bas.devicePixelRatio()));
    QTest::mouseRelease(&b, Qt::LeftButton, {}, QPoint(60, 15));
    EXPECT_EQ(clics.count(), 1);
    EXPECT_FALSE(b.Etat().Enfonce());
}

} // namespace
} // namespace verdane::qt
