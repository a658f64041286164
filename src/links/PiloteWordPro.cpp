#include "links/PiloteWordPro.h"

#include "links/Liens.h"
#include "utils/OutilsFichiers.h"

#include <filesystem>
#include <system_error>

namespace verdane {

namespace {
const Message kAucunDocument{"Aucun document n'est actuellement ouvert dans WordPro.",
                             "Erreur : sauvegarde impossible.", "", ""};
} // namespace

void PiloteWordPro::SignalerErreur(const std::exception& e) {
    ctx_.utilisateur.AfficherMessage({e.what(), "", "", ""});
}

bool PiloteWordPro::LierApplication() {
    try {
        if (!app_) app_ = port_.Creer("WordPro.Application");
    } catch (const std::exception&) {
        app_ = nullptr;
    }
    if (app_) return true;
    ctx_.utilisateur.AfficherMessage({"Impossible de lancer Word Pro.", "",
                                      "Problème de liaison entre Verdane et Word Pro", ""});
    return false;
}

RefObjet PiloteWordPro::DocumentActif() {
    return ObjetOuRien(app_->Lire("ActiveDocument"));
}

// Word Pro comes to the front only by being hidden, then shown.
void PiloteWordPro::Montrer() {
    app_->Ecrire("Visible", false);
    app_->Ecrire("Visible", true);
}

bool PiloteWordPro::NouveauDocument() {
    if (!LierApplication()) return false;
    try {
        app_->Appeler("NewDocument");
        Montrer();
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteWordPro::OuvrirDocument(const Texte& chemin) {
    if (!LierApplication()) return false;
    try {
        std::error_code ec;
        std::filesystem::permissions(CheminSysteme(chemin), std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add, ec);
        app_->Appeler("OpenDocument", {{"", chemin}});
        Montrer();
        return true;
    } catch (const std::exception& e) {
        ctx_.utilisateur.AfficherMessage(
            {"Erreur de Lotus Word Pro lors de l'ouverture d'un document existant :", e.what(), "",
             ""});
        return false;
    }
}

bool PiloteWordPro::SauverDocument(int forcer, bool confirmer) {
    if (!LierApplication()) return false;
    try {
        auto document = DocumentActif();
        if (!document) {
            ctx_.utilisateur.AfficherMessage(kAucunDocument);
            return false;
        }
        if (!TexteDe(document->Lire("FullName")).empty() && forcer == 0) {
            document->Appeler("Save");
            return true;
        }
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
    return SauverSous(ctx_, false, Editeur::WordPro, "", confirmer);
}

bool PiloteWordPro::FermerDocument(int reponse) {
    if (!LierApplication()) return false;
    try {
        auto document = DocumentActif();
        if (!document) {
            ctx_.utilisateur.AfficherMessage(kAucunDocument);
            return false;
        }
        if (reponse == 0) {
            const Reponse r = ctx_.utilisateur.Question(
                "Voulez-vous enregistrer les changements apportés au document ?",
                "Fermeture du document", Boutons::OuiNonAnnuler, Reponse::Annuler, Icone::Question);
            reponse = r == Reponse::Oui ? 6 : r == Reponse::Non ? 7 : 2;
        }
        if (reponse == 6 || reponse == 5) {
            if (TexteDe(document->Lire("FullName")).empty())
                SauverSous(ctx_, true, Editeur::WordPro, "", false);
            else
                document->Appeler("Close", {{"", true}});
        } else if (reponse == 7) {
            document->Appeler("Close", {{"", false}});
        } else {
            return false;
        }
        if (!DocumentActif()) app_->Appeler("Quit");
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteWordPro::InsererTexte(const Texte& texte, const Texte&, int) {
    if (!app_) {
        ctx_.utilisateur.AfficherMessage({"Insertion dans le document courant impossible.",
                                          "Lotus Word Pro n'est pas ouvert.", "", ""});
        return false;
    }
    try {
        if (!DocumentActif()) {
            ctx_.utilisateur.AfficherMessage(
                {kAucunDocument.texte, "Erreur : insertion impossible.", "", ""});
            return false;
        }
        auto texteDoc = ObjetDe(app_->Lire("Text"), "Text");
        texteDoc->Appeler("InsertText",
                          {{"", texte}, {"", static_cast<long>(ctx_.etat.options.sautParagraphe)}});
        Montrer();
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

Texte PiloteWordPro::LireSelection() {
    if (!LierApplication()) return {};
    try {
        app_->Appeler("CopySelection");
        return port_.TextePressePapiers();
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return {};
    }
}

Texte PiloteWordPro::FormatWordPro(FormatDocument format) {
    if (format == FormatDocument::Rtf) return "Rich Text Format";
    if (format == FormatDocument::Doc) return "MS Word 97";
    return "Lotus Word Pro";
}

void PiloteWordPro::EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) {
    if (!LierApplication()) throw ErreurEditeur("Impossible de lancer Word Pro.");
    app_->Appeler("AnswerMsgBox", {{"", 2079L}});
    const std::size_t barre = DerniereBarre(chemin);
    const Texte dossier = barre == Texte::npos ? Texte() : chemin.substr(0, barre);
    const Texte nom = barre == Texte::npos ? chemin : chemin.substr(barre + 1);
    auto document = DocumentActif();
    if (!document) throw ErreurEditeur(kAucunDocument.texte);
    if (fermeture)
        document->Appeler("Close",
                          {{"", true}, {"", dossier}, {"", nom}, {"", FormatWordPro(format)}});
    else
        document->Appeler("SaveAs", {{"", dossier}, {"", nom}, {"", FormatWordPro(format)}});
}

} // namespace verdane
