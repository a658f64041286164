#include "links/PiloteMSWord.h"

#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <filesystem>
#include <system_error>

namespace verdane {

namespace {
void RendreModifiable(const Texte& chemin) {
    std::error_code ec;
    std::filesystem::permissions(CheminSysteme(chemin), std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add, ec);
}
} // namespace

void PiloteMSWord::SignalerErreur(const std::exception& e) {
    ctx_.utilisateur.AfficherMessage({e.what(), "", "", ""});
}

void PiloteMSWord::SignalerAucunDocument(const char* technique) {
    ctx_.utilisateur.AfficherMessage(
        {"Aucun document n'est actuellement ouvert dans MSWord.", technique, "", ""});
}

bool PiloteMSWord::LierApplication() {
    try {
        const bool ouvert = port_.FenetreExiste("OpusApp");
        if (ouvert && !app_) app_ = port_.Actif("Word.Application");
        if (!ouvert) {
            app_ = port_.Creer("Word.Application");
            if (app_) app_->Ecrire("Caption", Texte("Editeur Verdane"));
        }
    } catch (const std::exception& e) {
        SignalerErreur(e);
    }
    return app_ != nullptr;
}

long PiloteMSWord::NombreDocuments() {
    return EntierDe(ObjetDe(app_->Lire("Documents"), "Documents")->Lire("Count"));
}

RefObjet PiloteMSWord::DocumentActif() {
    return ObjetDe(app_->Lire("ActiveDocument"), "ActiveDocument");
}

// A document Word named by itself ("Document1") has no name of its own; a saved one has its
// drive or folder at the head of its full name.
bool PiloteMSWord::DocumentSansNom() {
    const Texte nom = TexteDe(DocumentActif()->Lire("FullName"));
    return nom.empty() || Majuscules(nom.substr(0, 8)) == "DOCUMENT";
}

void PiloteMSWord::Montrer(const RefObjet& document) {
    document->Appeler("Activate");
    app_->Ecrire("Visible", true);
    app_->Ecrire("WindowState", 1L);
}

bool PiloteMSWord::NouveauDocument() {
    if (!LierApplication()) return false;
    try {
        Montrer(ObjetDe(ObjetDe(app_->Lire("Documents"), "Documents")->Appeler("Add"), "Add"));
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteMSWord::OuvrirDocument(const Texte& chemin) {
    if (!LierApplication()) return false;
    try {
        RendreModifiable(chemin);
        auto documents = ObjetDe(app_->Lire("Documents"), "Documents");
        Montrer(ObjetDe(documents->Appeler("Open", {{"Filename", chemin}, {"ReadOnly", false}}),
                        "Open"));
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteMSWord::SauverDocument(int forcer, bool confirmer) {
    if (!LierApplication()) return false;
    try {
        if (NombreDocuments() <= 0) {
            SignalerAucunDocument("Erreur : sauvegarde impossible.");
            return false;
        }
        if (!DocumentSansNom() && forcer == 0) {
            DocumentActif()->Appeler("Save");
            return true;
        }
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
    return SauverSous(ctx_, false, Editeur::Word, "", confirmer);
}

bool PiloteMSWord::FermerDocument(int reponse) {
    if (!LierApplication()) return false;
    try {
        if (NombreDocuments() <= 0) {
            SignalerAucunDocument("Erreur : sauvegarde impossible.");
            return false;
        }
        if (reponse == 0) {
            const Texte nom = TexteDe(DocumentActif()->Lire("FullName"));
            const Reponse r = ctx_.utilisateur.Question(
                "Voulez-vous enregistrer les changements apportés à :\n" + nom + " ?",
                "Fermeture du document", Boutons::OuiNonAnnuler, Reponse::Annuler, Icone::Question);
            reponse = r == Reponse::Oui ? 6 : r == Reponse::Non ? 7 : 2;
        }
        if (reponse == 6 || reponse == 5) {
            if (DocumentSansNom())
                SauverSous(ctx_, true, Editeur::Word, "", false);
            else
                DocumentActif()->Appeler("Close", {{"", true}});
        } else if (reponse == 7) {
            DocumentActif()->Appeler("Close", {{"", false}});
        } else {
            return false;
        }
        if (NombreDocuments() == 0) app_->Appeler("Quit");
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteMSWord::InsererTexte(const Texte& texte, const Texte& police, int taille) {
    return InsererTexteMisEnForme(texte, std::nullopt, std::nullopt, std::nullopt, police, taille);
}

bool PiloteMSWord::InsererTexteMisEnForme(const Texte& texte, std::optional<bool> gras,
                                          std::optional<bool> italique, std::optional<long> couleur,
                                          const Texte& police, int taille) {
    if (!LierApplication()) return false;
    try {
        if (NombreDocuments() == 0) {
            SignalerAucunDocument("Erreur : insertion impossible.");
            return false;
        }
        auto selection = ObjetDe(app_->Lire("Selection"), "Selection");
        if (ctx_.etat.options.sautParagraphe == 1) selection->Appeler("TypeParagraph");
        auto fonte = ObjetDe(selection->Lire("Font"), "Font");
        static const char* const kChamps[] = {"Bold", "Italic", "ColorIndex", "Name", "Size"};
        Valeur avant[5];
        for (int i = 0; i < 5; ++i) avant[i] = fonte->Lire(kChamps[i]);
        if (gras) fonte->Ecrire("Bold", *gras);
        if (italique) fonte->Ecrire("Italic", *italique);
        if (couleur) fonte->Ecrire("ColorIndex", *couleur);
        if (!police.empty()) fonte->Ecrire("Name", police);
        if (taille > 0) fonte->Ecrire("Size", static_cast<long>(taille));
        if (!texte.empty()) selection->Appeler("TypeText", {{"Text", texte}});
        for (int i = 0; i < 5; ++i) fonte->Ecrire(kChamps[i], avant[i]);
        app_->Appeler("Activate");
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

Texte PiloteMSWord::LireSelection() {
    if (!LierApplication()) return {};
    try {
        auto selection = ObjetDe(app_->Lire("Selection"), "Selection");
        return TexteDe(ObjetDe(selection->Lire("FormattedText"), "FormattedText")->Lire("Text"));
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return {};
    }
}

long PiloteMSWord::FormatWord(FormatDocument format) {
    switch (format) {
    case FormatDocument::Rtf:
        return 6;
    case FormatDocument::Docx:
        return 16;
    case FormatDocument::Pdf:
        return 17;
    case FormatDocument::Odt:
        return 23;
    case FormatDocument::Doc:
    case FormatDocument::Lwp:
    case FormatDocument::Autre:
        break;
    }
    return 0;
}

void PiloteMSWord::EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) {
    if (!LierApplication()) throw ErreurEditeur("Microsoft Word ne répond pas.");
    auto document = DocumentActif();
    if (fermeture && format == FormatDocument::Rtf) {
        document->Appeler("Close", {{"", true}, {"", Texte("Rich Text Format")}, {"", chemin}});
        return;
    }
    document->Appeler("SaveAs", {{"", chemin}, {"", FormatWord(format)}});
    if (fermeture) document->Appeler("Close", {{"", false}});
}

} // namespace verdane
