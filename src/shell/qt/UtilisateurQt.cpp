#include "shell/qt/UtilisateurQt.h"

#include "shell/qt/FenetreProgression.h"
#include "shell/qt/FrmAide.h"
#include "utils/qt/TexteQt.h"

#include <QApplication>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

namespace verdane::qt {

namespace {

QMessageBox::Icon IconeQt(Icone icone) {
    switch (icone) {
    case Icone::Information:
        return QMessageBox::Information;
    case Icone::Attention:
        return QMessageBox::Warning;
    case Icone::Critique:
        return QMessageBox::Critical;
    case Icone::Question:
        return QMessageBox::Question;
    case Icone::Aucune:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

std::unique_ptr<PortUtilisateur> UtilisateurEcran(bool marlo) {
    if (!EcranDisponible()) return nullptr;
    return std::make_unique<UtilisateurQt>(marlo);
}

UtilisateurQt::UtilisateurQt(bool marlo)
    : aide_(std::make_unique<FrmAide>(marlo)), jauge_(std::make_unique<FenetreProgression>()) {}

UtilisateurQt::~UtilisateurQt() = default;

void UtilisateurQt::PoserContexte(Contexte* ctx) {
    aide_->PoserContexte(ctx);
}

void UtilisateurQt::AfficherMessage(const Message& message) {
    aide_->Afficher(message);
}

void UtilisateurQt::Boite(const Texte& texte, const Texte& titre, Icone icone) {
    QMessageBox boite(IconeQt(icone), VersQt(titre), VersQt(texte));
    boite.setObjectName(QStringLiteral("Boite"));
    boite.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    boite.setWindowFlag(Qt::WindowStaysOnTopHint);
    boite.exec();
}

Reponse UtilisateurQt::Question(const Texte& texte, const Texte& titre, Boutons boutons,
                                Reponse parDefaut, Icone icone) {
    QMessageBox boite(IconeQt(icone), VersQt(titre), VersQt(texte));
    boite.setObjectName(QStringLiteral("Question"));
    boite.setWindowFlag(Qt::WindowStaysOnTopHint);
    struct Choix {
        Reponse reponse;
        const char* libelle;
        QMessageBox::ButtonRole role;
    };
    std::vector<Choix> choix;
    switch (boutons) {
    case Boutons::Ok:
        choix = {{Reponse::Ok, "OK", QMessageBox::AcceptRole}};
        break;
    case Boutons::OkAnnuler:
        choix = {{Reponse::Ok, "OK", QMessageBox::AcceptRole},
                 {Reponse::Annuler, "Annuler", QMessageBox::RejectRole}};
        break;
    case Boutons::OuiNon:
        choix = {{Reponse::Oui, "Oui", QMessageBox::YesRole},
                 {Reponse::Non, "Non", QMessageBox::NoRole}};
        break;
    case Boutons::OuiNonAnnuler:
        choix = {{Reponse::Oui, "Oui", QMessageBox::YesRole},
                 {Reponse::Non, "Non", QMessageBox::NoRole},
                 {Reponse::Annuler, "Annuler", QMessageBox::RejectRole}};
        break;
    }
    std::vector<std::pair<QAbstractButton*, Reponse>> faits;
    for (const Choix& c : choix) {
        QPushButton* b = boite.addButton(VersQt(c.libelle), c.role);
        faits.emplace_back(b, c.reponse);
        if (c.reponse == parDefaut) boite.setDefaultButton(b);
    }
    // Escape gives the last button: "Non" or "Annuler".
    boite.setEscapeButton(faits.back().first);
    boite.exec();
    for (const auto& [bouton, reponse] : faits)
        if (boite.clickedButton() == bouton) return reponse;
    return faits.back().second;
}

void UtilisateurQt::OuvrirJauge(const Texte& titre) {
    jauge_->Commencer(titre.empty() ? QStringLiteral("Création du document en cours")
                                    : QStringLiteral("Mise à jour de ") + VersQt(titre),
                      2970, true);
}

bool UtilisateurQt::Annulation() {
    return jauge_ && jauge_->Annulee();
}

void UtilisateurQt::PoserJauge(int largeur, const Texte& libelle) {
    jauge_->Poser(largeur, VersQt(libelle));
}

void UtilisateurQt::FermerJauge() {
    jauge_->Terminer();
}

void UtilisateurQt::Sablier(bool actif) {
    if (actif) {
        ++sabliers_;
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (sabliers_ > 0) {
        --sabliers_;
        QApplication::restoreOverrideCursor();
    }
}

} // namespace verdane::qt
