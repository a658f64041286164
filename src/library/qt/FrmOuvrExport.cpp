#include "library/qt/FrmOuvrExport.h"

#include "library/qt/AutresFenetres.h"
#include "library/qt/FrmChgExtDoc.h"
#include "library/qt/FrmTrfMdl.h"
#include "links/Liens.h"
#include "utils/OutilsFichiers.h"
#include "utils/qt/Boutons.h"
#include "utils/qt/TexteQt.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace verdane::qt {

FrmOuvrExport::FrmOuvrExport(Contexte& ctx, const Texte& document, QWidget* parent)
    : QDialog(parent), ctx_(ctx), document_(document), lblEditeur_(new QLabel(this)) {
    setObjectName("FrmOuvrExport");
    setWindowTitle(VersQt("Document : " + NomFichier(document)));
    auto* disposition = new QVBoxLayout(this);
    auto* lblDocument = new QLabel(VersQt(document), this);
    lblDocument->setObjectName("lblDocument");
    lblDocument->setTextInteractionFlags(Qt::TextSelectableByMouse);
    disposition->addWidget(lblDocument);
    if (!FichierExiste(document)) {
        auto* absent =
            new QLabel(VersQt("Ce document n'existe pas (encore) dans ce répertoire."), this);
        absent->setObjectName("lblAbsent");
        disposition->addWidget(absent);
    }
    lblEditeur_->setText(
        VersQt("Traitement de texte : " + NomEditeurAffiche(ctx.etat.options.CheminEditeur)));
    disposition->addWidget(lblEditeur_);

    auto* ligne = new QHBoxLayout;
    const auto bouton = [&](const char* nom, const char* texte, void (FrmOuvrExport::*action)()) {
        auto* b = Bouton(this, nom, texte);
        connect(b, &QPushButton::clicked, this, action);
        ligne->addWidget(b);
        return b;
    };
    bouton("cmdOuvrir", "Ouvrir", &FrmOuvrExport::Ouvrir)->setDefault(true);
    bouton("cmdExporter", "Exporter...", &FrmOuvrExport::Exporter);
    bouton("cmdConvertir", "Convertir...", &FrmOuvrExport::Convertir);
    bouton("cmdChgEditeur", "Autre traitement de texte...", &FrmOuvrExport::ChangerEditeur);
    auto* fermer = new QPushButton(VersQt("Fermer"), this);
    fermer->setObjectName("cmdFermer");
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    ligne->addWidget(fermer);
    disposition->addLayout(ligne);
}

void FrmOuvrExport::Ouvrir() {
    if (!FichierExiste(document_)) {
        ctx_.utilisateur.Boite("Le document " + document_ + " est introuvable.",
                               "Ouverture impossible.", Icone::Attention);
        return;
    }
    OuvrirDansEditeur(ctx_, document_);
    accept();
}

void FrmOuvrExport::Exporter() {
    FrmTrfMdl f(ctx_, 'C', "DOC", DossierParent(document_), this);
    f.setWindowTitle(VersQt("Copie d'un ou plusieurs documents textes"));
    f.PoserLegende(" Exporter un document dans un autre répertoire");
    f.Cocher(NomFichier(document_));
    f.exec();
}

void FrmOuvrExport::Convertir() {
    FrmChgExtDoc f(ctx_, document_, this);
    f.exec();
}

void FrmOuvrExport::ChangerEditeur() {
    OuvrirAutreFenetre(ctx_, "FrmChoixEditeur", {"ouvre"});
    lblEditeur_->setText(
        VersQt("Traitement de texte : " + NomEditeurAffiche(ctx_.etat.options.CheminEditeur)));
}

} // namespace verdane::qt
