#include "links/PiloteOpenOffice.h"

#include "links/FinDocument.h"
#include "links/Liens.h"
#include "utils/OutilsFichiers.h"

#include <filesystem>
#include <system_error>

namespace verdane {

namespace {

const Message kAucunDocument{
    "Aucun document n'est actuellement ouvert dans OpenOffice avec Verdane.",
    "Erreur : insertion impossible.", "", ""};

// The file's attributes set to normal: writable by its owner.
void RendreModifiable(const Texte& chemin) {
    std::error_code ec;
    std::filesystem::permissions(CheminSysteme(chemin), std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add, ec);
}

// The URL of a path of this system, made absolute first: the office has no current folder.
Texte UrlDe(const Texte& chemin) {
    return CheminVersURL(CheminTexte(CheminSysteme(CheminComplet(chemin))));
}

} // namespace

void PiloteOpenOffice::SignalerErreur(const std::exception& e) {
    NoterErreur(e.what());
    ctx_.utilisateur.AfficherMessage(
        {"Erreur d'OpenOffice :", e.what(), "Problème de liaison entre Verdane et OpenOffice", ""});
}

bool PiloteOpenOffice::LierApplication() {
    Texte erreur;
    if (bureau_.Connecter(erreur)) return true;
    NoterErreur("Impossible de lancer OpenOffice : " + erreur);
    ctx_.utilisateur.AfficherMessage({"Impossible de lancer OpenOffice.", erreur,
                                      "Problème de liaison entre Verdane et OpenOffice", ""});
    return false;
}

bool PiloteOpenOffice::Charger(const Texte& url, bool cache) {
    if (!LierApplication()) return false;
    try {
        bureau_.ChargerURL(url, cache);
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteOpenOffice::NouveauDocument() {
    return Charger("private:factory/swriter", false);
}

bool PiloteOpenOffice::OuvrirDocument(const Texte& chemin) {
    RendreModifiable(chemin);
    return Charger(UrlDe(chemin), false);
}

bool PiloteOpenOffice::OuvrirDocumentCache(const Texte& chemin) {
    RendreModifiable(chemin);
    return Charger(UrlDe(chemin), true);
}

bool PiloteOpenOffice::SauverDocument(int forcer, bool confirmer) {
    if (!LierApplication()) return false;
    try {
        if (bureau_.NombreCadres() <= 0 || !bureau_.PrendreDocumentCourant()) return false;
        if (bureau_.LectureSeule()) {
            ctx_.utilisateur.AfficherMessage(
                {"Le document en cours est ouvert en lecture seule !",
                 "Vos modifications ne peuvent donc pas être sauvegardées dans le document en "
                 "cours !",
                 "Sauvegarde du document impossible !", ""});
            return false;
        }
        if (bureau_.AEmplacement() && forcer == 0) {
            if (bureau_.Modifie()) {
                bureau_.Stocker();
                return true;
            }
            ctx_.utilisateur.AfficherMessage(
                {"Vous n'avez pas modifié le document depuis sa dernière ouverture !",
                 "Sa sauvegarde est donc inutile.", "Sauvegarde du document inutile !", ""});
            return false;
        }
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
    return SauverSous(ctx_, false, Editeur::OpenOffice, "", confirmer);
}

bool PiloteOpenOffice::FermerDocument(int reponse) {
    if (!LierApplication()) return false;
    try {
        if (bureau_.NombreCadres() <= 0 || !bureau_.PrendreDocumentCourant()) return false;
        if (reponse == 0) {
            if (!bureau_.Modifie()) {
                reponse = 7;
            } else {
                const Reponse r = ctx_.utilisateur.Question(
                    "Voulez-vous enregistrer les changements apportés au document en cours ?",
                    "Fermeture du document", Boutons::OuiNonAnnuler, Reponse::Annuler,
                    Icone::Question);
                reponse = r == Reponse::Oui ? 6 : r == Reponse::Non ? 7 : 2;
            }
        }
        if (reponse == 6 || reponse == 5) {
            if (bureau_.AEmplacement()) {
                if (reponse == 6)
                    bureau_.Stocker();
                else
                    ctx_.utilisateur.Boite("A faire !", "", Icone::Information);
            } else {
                SauverDocument(1, false);
            }
            reponse = 7;
        }
        if (reponse != 7) return false;
        // A save-as of an unnamed document may have closed it already.
        if (bureau_.NombreCadres() > 0) bureau_.FermerCadreActif();
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

bool PiloteOpenOffice::InsererTexte(const Texte& texte, const Texte& police, int taille) {
    if (!LierApplication()) return false;
    try {
        if (bureau_.NombreCadres() <= 0 || !bureau_.PrendreDocumentCourant()) {
            ctx_.utilisateur.AfficherMessage(kAucunDocument);
            return false;
        }
        bureau_.InsererTexte(ctx_.etat.options.sautParagraphe == 1 ? texte + "\n" : texte, police,
                             taille);
        return true;
    } catch (const std::exception& e) {
        SignalerErreur(e);
        return false;
    }
}

Texte PiloteOpenOffice::LireSelection() {
    if (!LierApplication()) return {};
    try {
        if (bureau_.NombreCadres() > 0 && bureau_.PrendreDocumentCourant())
            return bureau_.Selection();
        Message m = kAucunDocument;
        m.technique = "Erreur : récupération de la sélection impossible.";
        ctx_.utilisateur.AfficherMessage(m);
    } catch (const std::exception& e) {
        SignalerErreur(e);
    }
    return {};
}

Texte PiloteOpenOffice::Filtre(FormatDocument format, bool fermeture) {
    switch (format) {
    case FormatDocument::Rtf:
        return "Rich Text Format";
    case FormatDocument::Odt:
        return "writer8";
    case FormatDocument::Docx:
        return "MS Word 2007 XML";
    case FormatDocument::Pdf:
        return "writer_pdf_Export";
    case FormatDocument::Doc:
        return fermeture ? "MS Word 97" : "MS WinWord 97/2000/XP";
    case FormatDocument::Lwp:
    case FormatDocument::Autre:
        break;
    }
    return fermeture ? "MS Word 97" : "Rich Text Format";
}

void PiloteOpenOffice::EnregistrerSous(const Texte& chemin, FormatDocument format, bool fermeture) {
    Texte erreur;
    if (!bureau_.Connecter(erreur)) throw ErreurEditeur(erreur);
    if (bureau_.NombreCadres() <= 0 || !bureau_.PrendreDocumentCourant()) {
        const Texte perdu = bureau_.DocumentPerdu();
        throw ErreurEditeur(perdu.empty() ? Texte("Aucun document n'est ouvert.") : perdu);
    }
    bureau_.StockerSous(UrlDe(chemin), Filtre(format, fermeture), format == FormatDocument::Pdf);
    if (fermeture) FermerDocument(7);
}

} // namespace verdane
