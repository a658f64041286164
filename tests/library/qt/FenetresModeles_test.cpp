#include "library/qt/FrmCreerDoc.h"
#include "library/qt/FrmOuvrDoc.h"
#include "library/qt/FrmTrfMdl.h"
#include "utils/qt/TexteQt.h"

#include "library/DocumentLot.h"
#include "support/FauxUtilisateur.h"
#include "support/InstallationTemporaire.h"
#include "utils/OutilsFichiers.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace verdane::qt {
namespace {

class FenetresModeles : public ::testing::Test, protected test::InstallationTemporaire {
protected:
    FenetresModeles() : ctx(u) {
        Initialiser(ctx, env);
        d.Ecrire("Marlo/Verdane/ModlDocs/lettre.vdm", "{\\rtf1 Lettre à #mrl(nomDossier)#}");
        d.Ecrire("Marlo/Verdane/ModlDocs/PDE/PDE8.vdm", "{\\rtf1 page huit}");
        ctx.etat.RepDossier[0] = d / "Marlo/Dossiers/";
        ctx.etat.NomDossier[0] = "DUPONT";
    }

    template <typename T> T* Enfant(QWidget& w, const char* nom) {
        T* t = w.findChild<T*>(nom);
        EXPECT_NE(t, nullptr) << nom;
        return t;
    }
    static QStringList Textes(const QComboBox& c) {
        QStringList l;
        for (int i = 0; i < c.count(); ++i) l << c.itemText(i);
        return l;
    }
    static void Echap(QWidget& w) {
        QKeyEvent echap(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&w, &echap);
    }

    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(FenetresModeles, CreerDocCommeVerdaneLot) {
    FrmCreerDoc f(ctx, false);
    Texte cree;
    f.PoserSuite([&](const Texte& r) { cree = r; });
    auto* modeles = Enfant<QTreeWidget>(f, "lstModeles");
    ASSERT_EQ(modeles->topLevelItemCount(), 1);
    modeles->topLevelItem(0)->setSelected(true);
    EXPECT_EQ(Enfant<QLineEdit>(f, "txtNomDoc")->text(), "lettre");
    Enfant<QPushButton>(f, "comCreerDoc")->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    ASSERT_EQ(cree, d / "Marlo/Dossiers/DUPONT/lettre.rtf");

    EXPECT_EQ(d.Lire("Marlo/Dossiers/DUPONT/lettre.rtf"),
              test::DocumentDeVerdaneLot(*this, "DUPONT", d / "Marlo/Verdane/ModlDocs/lettre.vdm",
                                         "lot.rtf"));
}

TEST_F(FenetresModeles, SansDossierRienNEstCree) {
    ctx.etat.NomDossier[0].clear();
    FrmCreerDoc f(ctx, false);
    bool suite = false;
    f.PoserSuite([&](const Texte&) { suite = true; });
    Enfant<QTreeWidget>(f, "lstModeles")->topLevelItem(0)->setSelected(true);
    Enfant<QPushButton>(f, "comCreerDoc")->click();
    EXPECT_FALSE(suite);
    EXPECT_TRUE(u.ADit("Vous devez d'abord sélectionner un dossier !"));
}

TEST_F(FenetresModeles, FormatsSelonLeTraitementDeTexte) {
    ctx.etat.options.CheminEditeur = "/usr/bin/soffice";
    FrmCreerDoc lo(ctx, false);
    const QStringList formats = Textes(*Enfant<QComboBox>(lo, "ComboFormat"));
    EXPECT_EQ(formats.size(), 5);
    EXPECT_FALSE(formats.contains("Microsoft Word (.doc)"));
    ctx.etat.options.CheminEditeur = "C:\\Office\\winword.exe";
    FrmCreerDoc word(ctx, false);
    EXPECT_EQ(Textes(*Enfant<QComboBox>(word, "ComboFormat")),
              QStringList({"Rich Text Format (.rtf)", "Microsoft Word (.doc)"}));
}

TEST_F(FenetresModeles, LaPageDuPDERemplaceLeModeleChoisiALaMain) {
    FrmCreerDoc f(ctx, true);
    Texte cree;
    f.PoserSuite([&](const Texte& r) { cree = r; });
    EXPECT_FALSE(Enfant<QWidget>(f, "FramePDE")->isHidden());
    EXPECT_EQ(Enfant<QLineEdit>(f, "txtNomDoc")->text(), "PDECerfa");
    Enfant<QTreeWidget>(f, "lstModeles")->topLevelItem(0)->setSelected(true);
    auto* pages = Enfant<QComboBox>(f, "ComboPDE");
    EXPECT_EQ(pages->count(), 16);
    pages->setCurrentIndex(8);
    emit pages->activated(8);
    Enfant<QPushButton>(f, "comCreerDoc")->click();
    ASSERT_FALSE(cree.empty());
    EXPECT_NE(NomFichier(cree).find("8: Plan de financement"), Texte::npos);
    EXPECT_NE(d.Lire("Marlo/Dossiers/DUPONT/" + NomFichier(cree)).find("page huit"),
              std::string::npos);
}

TEST_F(FenetresModeles, EchapAnnuleLesDialogues) {
    FrmCreerDoc creer(ctx, false);
    creer.show();
    Echap(creer);
    EXPECT_EQ(creer.result(), QDialog::Rejected);
    EXPECT_FALSE(creer.isVisible());

    // Refreshing a document: cancelling is asked first.
    FrmOuvrDoc maj(ctx, "dossiermaj", d / "doc.rtf");
    maj.show();
    u.reponses = {Reponse::Non};
    Echap(maj);
    EXPECT_TRUE(maj.isVisible());
    EXPECT_EQ(u.questions.back().texte, "Annuler la mise à jour du document RTF ?");
    Echap(maj);
    EXPECT_FALSE(maj.isVisible());
    EXPECT_EQ(Enfant<QTreeWidget>(maj, "lstFichiers")->topLevelItem(0)->toolTip(0),
              "Dossier 1 : DUPONT");
}

TEST_F(FenetresModeles, TransfertToutOuRien) {
    d.Ecrire("ailleurs/.garde", "");
    FrmTrfMdl f(ctx, 'C', "MDL", {});
    auto* liste = Enfant<QTreeWidget>(f, "lstFichiers");
    ASSERT_EQ(liste->topLevelItemCount(), 1);
    auto* tout = Enfant<QPushButton>(f, "cmdToutTrf");
    tout->click();
    EXPECT_EQ(tout->text(), "Rien Trf.");
    EXPECT_EQ(liste->topLevelItem(0)->checkState(0), Qt::Checked);
    Enfant<QLineEdit>(f, "txtDestination")->setText(VersQt(d / "ailleurs"));
    u.reponses = {Reponse::Oui};
    Enfant<QPushButton>(f, "cmdTransferer")->click();
    EXPECT_EQ(d.Lire("ailleurs/lettre.vdm"), d.Lire("Marlo/Verdane/ModlDocs/lettre.vdm"));
    tout->click();
    EXPECT_EQ(tout->text(), "Tout Trf.");
    EXPECT_EQ(liste->topLevelItem(0)->checkState(0), Qt::Unchecked);
}

} // namespace
} // namespace verdane::qt
