#include "library/qt/FrmCreerDoc.h"
#include "library/qt/FrmOuvrDoc.h"
#include "library/qt/FrmTrfMdl.h"
#include "utils/qt/TexteQt.h"

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
    // Chooses the only model of the list, then the PDE page `page` if any, and creates; what the
    // dialog made, or "".
    Texte Creer(FrmCreerDoc& f, int page = -1) {
        Texte cree;
        f.PoserSuite([&](const Texte& r) { cree = r; });
        Enfant<QTreeWidget>(f, "lstModeles")->topLevelItem(0)->setSelected(true);
        if (page >= 0) {
            auto* pages = Enfant<QComboBox>(f, "ComboPDE");
            EXPECT_EQ(pages->count(), 16);
            pages->setCurrentIndex(page);
            emit pages->activated(page);
        }
        Enfant<QPushButton>(f, "comCreerDoc")->click();
        return cree;
    }

    test::FauxUtilisateur u;
    Contexte ctx;
};

TEST_F(FenetresModeles, CreerDocNommeCommeLeModeleEtLaPageDuPDE) {
    FrmCreerDoc f(ctx, false);
    EXPECT_EQ(Creer(f), d / "Marlo/Dossiers/DUPONT/lettre.rtf"); // named after the model
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_NE(d.Lire("Marlo/Dossiers/DUPONT/lettre.rtf").find("DUPONT"), std::string::npos);

    // The page chosen in the PDE list replaces the model chosen by hand.
    FrmCreerDoc pde(ctx, true);
    EXPECT_FALSE(Enfant<QWidget>(pde, "FramePDE")->isHidden());
    EXPECT_EQ(Enfant<QLineEdit>(pde, "txtNomDoc")->text(), "PDECerfa");
    const Texte page = Creer(pde, 8);
    EXPECT_NE(NomFichier(page).find("8: Plan de financement"), Texte::npos);
    EXPECT_NE(d.Lire("Marlo/Dossiers/DUPONT/" + NomFichier(page)).find("page huit"),
              std::string::npos);
}

TEST_F(FenetresModeles, EchapSurLaMiseAJourDemandeAvantDAnnuler) {
    FrmOuvrDoc maj(ctx, "dossiermaj", d / "doc.rtf");
    maj.show();
    QKeyEvent echap(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    u.reponses = {Reponse::Non};
    QApplication::sendEvent(&maj, &echap);
    EXPECT_TRUE(maj.isVisible());
    EXPECT_EQ(u.questions.back().texte, "Annuler la mise à jour du document RTF ?");
    QApplication::sendEvent(&maj, &echap);
    EXPECT_FALSE(maj.isVisible());
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
    EXPECT_EQ(liste->topLevelItem(0)->checkState(0), Qt::Unchecked);
}

} // namespace
} // namespace verdane::qt
