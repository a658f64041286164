// The bar, its menus and its dialogs, driven as a user would, off screen.

#include "links/qt/FrmChoixEditeur.h"
#include "shell/Options.h"
#include "shell/qt/FrmAPropos.h"
#include "shell/qt/FrmAide.h"
#include "shell/qt/FrmBarre.h"
#include "shell/qt/FrmDemarrage.h"
#include "shell/qt/FrmMenu.h"
#include "shell/qt/InstanceUnique.h"
#include "shell/qt/UtilisateurQt.h"
#include "support/DossierTemporaire.h"
#include "support/FauxUtilisateur.h"
#include "utils/OutilsFichiers.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

#include <fstream>

namespace verdane::qt {
namespace {

struct Fenetres : ::testing::Test {
    Fenetres() {
        ctx.etat.chemins.RepVerdane = d.Chemin() + "Verdane/";
        ctx.etat.chemins.RepSkin = d.Chemin() + "Skin/SkinVerdane";
        ctx.etat.chemins.RepImages = d.Chemin() + "Images/";
    }
    int Pixels(int twips) const {
        return TwipsVersPixels(twips, QApplication::primaryScreen()->logicalDotsPerInchX());
    }
    test::DossierTemporaire d;
    test::FauxUtilisateur u;
    Contexte ctx{u};
};

void Reposer(GestionBarre& g) {
    for (int i = 0; i < 1000 && g.EnMouvement(); ++i) g.Tic();
}

TEST_F(Fenetres, LaBarreDerouleSesMenusEtLesProprietesRelisentLeFichier) {
    ctx.etat.options.sautParagraphe = 1;
    ctx.etat.options.SansDemarrage = 0;
    ASSERT_TRUE(EnregistrerOptions(ctx.etat));
    FrmBarre barre(ctx);
    barre.DockerBarre();
    EXPECT_EQ(barre.height(), kHauteurBarre);
    EXPECT_EQ(barre.width(), QApplication::primaryScreen()->geometry().width());
    for (int i = 0; i < kNbOnglets; ++i) {
        barre.CliquerOnglet(i);
        Reposer(barre.Gestion());
        FrmMenu* m = barre.Menu(i);
        ASSERT_TRUE(m->isVisible()) << i;
        EXPECT_EQ(m->pos(), QPoint(Pixels(GaucheOnglet(i)), kHauteurBarre)) << i;
        EXPECT_EQ(m->height(), Pixels(Definition(MenuOnglet(i)).hauteur)) << i;
    }
    // The skin is missing here: told once in the run, and the tabs keep a plain look.
    ASSERT_EQ(u.messages.size(), 1u);
    EXPECT_EQ(u.messages.front().titre, "Erreur SelOnglet1.bmp");
    // Each closes by its own close button, and only that one.
    barre.Menu(2)->findChild<QPushButton*>("cmdFermer")->click();
    Reposer(barre.Gestion());
    EXPECT_FALSE(barre.Menu(2)->isVisible());
    EXPECT_TRUE(barre.Menu(1)->isVisible());

    // The properties' controls go to the options; opening the menu again reads the file anew.
    FrmMenu* options = barre.Menu(5);
    auto* popup = options->findChild<QCheckBox*>("CheckAffPopup");
    EXPECT_TRUE(popup->isChecked());
    options->findChild<QRadioButton*>("OptionALaSuite")->setChecked(true);
    popup->setChecked(false);
    options->Cliquer("lblValidProp");
    EXPECT_EQ(ctx.etat.options.sautParagraphe, 0);
    ctx.etat.options.SansDemarrage = 0;
    Reposer(barre.Gestion());
    barre.CliquerOnglet(5);
    EXPECT_FALSE(popup->isChecked());

    // Hidden automatically, only a strip stays until the mouse comes.
    ctx.etat.options.PositionBarre = -1;
    FrmBarre masquee(ctx);
    masquee.show();
    masquee.DockerBarre();
    EXPECT_EQ(masquee.y() + masquee.height(), 2 * kBandeMasquee);
    masquee.MontrerBarre();
    EXPECT_EQ(masquee.y(), 0);
    // The tabs are laid again at the top of the shown bar.
    EXPECT_EQ(masquee.findChild<QWidget*>("lblOnglet0")->y(), 6);
}

TEST_F(Fenetres, UneSeuleBarreParEcranEtUnVerrouMortNeBloquePas) {
    const QString dossier = QString::fromStdString(d.Chemin() + "run");
    InstanceUnique premiere(dossier);
    ASSERT_TRUE(premiere.Prendre());
    InstanceUnique seconde(dossier);
    EXPECT_FALSE(seconde.Prendre());

    // The lock of a program that no longer runs (a pid that can't be) is taken over.
    test::DossierTemporaire autre;
    const QString dossierMort = QString::fromStdString(autre.Chemin());
    InstanceUnique modele(dossierMort);
    {
        std::ofstream f(modele.Fichier().toStdString());
        f << "2147483646\nverdane_shell_qt_tests\n"
          << QSysInfo::machineHostName().toStdString() << "\n";
    }
    InstanceUnique apres(dossierMort);
    EXPECT_TRUE(apres.Prendre());
}

TEST(UtilisateurQt, QuestionsEnFrancaisAvecLeurBoutonParDefaut) {
    UtilisateurQt port(false);
    QString titre, parDefaut;
    QStringList libelles;
    QTimer::singleShot(0, [&] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!boite) return;
        titre = boite->windowTitle();
        if (boite->defaultButton()) parDefaut = boite->defaultButton()->text();
        for (QAbstractButton* b : boite->buttons()) libelles << b->text();
        for (QAbstractButton* b : boite->buttons())
            if (b->text() == QStringLiteral("Oui")) b->click();
    });
    EXPECT_EQ(port.Question("Retirer la barre d'outils Verdane ?", "Fermeture Verdane",
                            Boutons::OuiNon, Reponse::Non, Icone::Question),
              Reponse::Oui);
    EXPECT_EQ(titre, QStringLiteral("Fermeture Verdane"));
    EXPECT_EQ(parDefaut, QStringLiteral("Non"));
    EXPECT_EQ(libelles.size(), 2);
}

TEST(UtilisateurQt, LeMessageSuitLaRegleDeCouleurEtSeFermeParSonBouton) {
    // Red for an error, black for help and for a message that stands alone.
    EXPECT_EQ(FrmAide::CouleurTexte(""), QColor(192, 0, 0));
    EXPECT_EQ(FrmAide::CouleurTexte("seule"), QColor(Qt::black));

    // Closed by its button once it has rolled down whole.
    FrmAide aide(false);
    QTimer regard;
    int regards = 0;
    QObject::connect(&regard, &QTimer::timeout, [&] {
        if (aide.Hauteur() < 3150 && ++regards < 1000) return;
        regard.stop();
        aide.findChild<QPushButton*>("cmdFermer")->click();
    });
    regard.start(5);
    aide.Afficher({"Fichier introuvable", "détail", "Erreur", ""});
    EXPECT_EQ(aide.Hauteur(), 3150);
    EXPECT_FALSE(aide.isVisible());
    // An empty main text leaves the panel as it stands, and shows nothing.
    aide.Afficher({"", "autre", "Titre", ""});
    EXPECT_EQ(aide.lblMessage()->text(), QStringLiteral("Fichier introuvable"));
}

TEST_F(Fenetres, LeMotDePasseDonneLAccesTotal) {
    FrmMotDePasse mdp(ctx);
    EXPECT_EQ(mdp.txtMotDePasse()->maxLength(), 6);
    mdp.txtMotDePasse()->setText("482915");
    mdp.Valider();
    EXPECT_EQ(ctx.etat.AccesTotal, -1);
}

TEST_F(Fenetres, LeCompagnonJoueEnBoucleOuLeDitAbsent) {
    {
        FrmDemarrage sansImage(ctx);
        EXPECT_FALSE(sansImage.Anime());
        EXPECT_EQ(u.messages.at(0).titre + " | " + u.messages[0].texte,
                  "Erreur fichier | Image introuvable");
    }
    ctx.etat.chemins.RepImages = VERDANE_SOURCE_DIR "/samples/source/Verdane/Images/";
    FrmDemarrage demarrage(ctx);
    ASSERT_TRUE(demarrage.Anime());
    EXPECT_EQ(demarrage.Animation()->state(), QMovie::Running);
    // Once played through it starts again.
    emit demarrage.Animation()->finished();
    QApplication::processEvents();
    EXPECT_EQ(demarrage.Animation()->state(), QMovie::Running);

    // A file that isn't a picture is told the same way.
    d.Ecrire("Faux/compagnonVd.gif", "GIF89a tronqué");
    ctx.etat.chemins.RepImages = d.Chemin() + "Faux/";
    FrmDemarrage abime(ctx);
    EXPECT_FALSE(abime.Anime());
}

class SuiviMuet : public SuiviRecherche {
public:
    void Commencer(const Texte&) override {}
    void Progresser(int) override {}
    bool Annulee() override { return false; }
    void Terminer() override {}
};

TEST_F(Fenetres, LeChoixDeLEditeurNeProposeQueCeQuiEstTrouve) {
    d.Ecrire("office/program/soffice", "");
    ParametresRecherche r;
    r.prioritaires = {CheminSysteme(d / "office/program")};
    FrmChoixEditeur choix(ctx, r);
    SuiviMuet suivi;
    choix.Detecter(suivi);
    for (const char* absent : {"OptionWord", "OptionWordPro"})
        EXPECT_FALSE(choix.findChild<QRadioButton*>(absent)->isEnabled()) << absent;
    auto* office = choix.findChild<QRadioButton*>("OptionOffice");
    ASSERT_TRUE(office->isEnabled());
    office->setChecked(true);
    EXPECT_EQ(choix.Chemin().toStdString(), d / "office/program/soffice");
    choix.Valider();
    Etat relu;
    relu.chemins = ctx.etat.chemins;
    ChargerOptions(relu);
    EXPECT_EQ(relu.options.CheminEditeur, d / "office/program/soffice");
}

} // namespace
} // namespace verdane::qt
