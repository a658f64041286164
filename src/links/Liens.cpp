#include "links/Liens.h"

#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <filesystem>
#include <system_error>

namespace verdane {

namespace {

// The executables of LibreOffice on this kind of system: "soffice", "soffice.bin",
// "libreoffice", and the versioned "libreoffice7.6" of the office's own packages.
bool EstExecutableLibreOffice(const Texte& nom) {
    if (nom == "soffice" || nom == "soffice.bin" || nom == "libreoffice") return true;
    if (!CommencePar(nom, "libreoffice")) return false;
    for (std::size_t i = 11; i < nom.size(); ++i)
        if (!((nom[i] >= '0' && nom[i] <= '9') || nom[i] == '.')) return false;
    return true;
}

Texte LibelleFormat(Editeur editeur) {
    return editeur == Editeur::WordPro ? "Lotus Word Pro" : "Microsoft Word";
}

// The question before a change of format; false when the user says no (and was told).
bool ConfirmerFormat(Contexte& ctx, Editeur editeur) {
    const bool lwp = editeur == Editeur::WordPro;
    const Reponse r =
        ctx.utilisateur.Question("Confirmer la sauvegarde au format " + LibelleFormat(editeur),
                                 lwp ? "Sauvegarde au format LWP" : "Sauvegarde au format DOC",
                                 Boutons::OuiNon, Reponse::Oui, Icone::Question);
    if (r == Reponse::Oui) return true;
    ctx.utilisateur.Boite("Sauvegarde annulée", "", Icone::Information);
    return false;
}

void RefuserLwp(Contexte& ctx) {
    ctx.utilisateur.AfficherMessage(
        {"Pour pouvoir sauvegarder au format LWP, "
         "Verdane doit être lié à l'éditeur de texte Lotus Word Pro.",
         "Cliquez le menu \"PROPRIETES\" -> \"AUTRE CHOIX\" pour sélectionner "
         "Lotus Word Pro à condition qu'il soit installé sur votre ordinateur.",
         "Sauvegarde impossible dans le format demandé", ""});
}

Texte FiltreDialogue(const Etat& etat) {
    Texte filtre = "Modèle document Verdane (*.vdm)|*.vdm|Document Rich Text Format "
                   "(*.rtf)|*.rtf";
    if (EditeurCourant(etat) == "wordpro.exe") filtre += "|Document Lotus Word Pro (*.lwp)|*.lwp";
    return filtre;
}

// The model saved as RTF takes its own name back: "x.rtf" becomes "x.vdm", replacing it.
void RenommerEnModele(const Texte& cheminRtf, const Texte& cheminModele) {
    std::error_code ec;
    const auto source = CheminSysteme(cheminRtf);
    const auto cible = CheminSysteme(cheminModele);
    std::filesystem::remove(cible, ec);
    std::filesystem::rename(source, cible, ec);
    std::filesystem::permissions(
        cible, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
        std::filesystem::perm_options::add, ec);
}

} // namespace

Editeur EditeurDuNom(const Texte& nom) {
    if (nom == "winword.exe") return Editeur::Word;
    if (nom == "wordpro.exe") return Editeur::WordPro;
    if (nom == "soffice.exe") return Editeur::OpenOffice;
    return Editeur::Aucun;
}

Texte EditeurCourant(const Etat& etat) {
    const Texte nom = Minuscules(NomFichier(Rogner(etat.options.CheminEditeur)));
    return EstExecutableLibreOffice(nom) ? Texte("soffice.exe") : nom;
}

Editeur EditeurLie(const Etat& etat) {
    return EditeurDuNom(EditeurCourant(etat));
}

Texte NomEditeurAffiche(const Texte& cheminEditeur) {
    const Texte chemin = Rogner(cheminEditeur);
    if (chemin.empty()) return "Aucun";
    Texte nom = NomFichier(chemin);
    if (nom.size() > 4 && nom[nom.size() - 4] == '.') nom.resize(nom.size() - 4);
    if (nom.empty()) return "Aucun";
    nom = Majuscule(nom[0]) + Minuscules(nom.substr(1));
    if (nom == "Winword") return "Microsoft Word";
    if (nom == "Wordpro") return "Lotus Word Pro";
    if (nom == "Soffice") return "Sun OpenOffice";
    if (nom == "Libreoffice") return "LibreOffice";
    return nom;
}

Texte CheminVersURL(const Texte& chemin) {
    if (!chemin.empty() && chemin[0] == '/') return UrlFichier(chemin.substr(1));
    return UrlFichier(chemin);
}

FormatDocument FormatDuChemin(const Texte& chemin) {
    const Texte ext = Majuscules(chemin.size() >= 3 ? chemin.substr(chemin.size() - 3) : chemin);
    if (ext == "RTF") return FormatDocument::Rtf;
    if (ext == "DOC") return FormatDocument::Doc;
    if (ext == "LWP") return FormatDocument::Lwp;
    if (ext == "ODT") return FormatDocument::Odt;
    if (ext == "PDF") return FormatDocument::Pdf;
    if (Majuscules(chemin.size() >= 4 ? chemin.substr(chemin.size() - 4) : chemin) == "DOCX")
        return FormatDocument::Docx;
    return FormatDocument::Autre;
}

void SignalerAucunEditeur(Contexte& ctx) {
    ctx.utilisateur.AfficherMessage(
        {"Aucun traitement de texte n'est actuellement lié à Verdane !",
         "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur "
         "\"DOCUMENT\" -> \"OUVRIR\".",
         "Erreur détectée :  cliquez Fermer pour continuer", ""});
}

void OuvrirDansEditeur(Contexte& ctx, const Texte& chemin) {
    if (PiloteEditeur* pilote = ctx.Pilote(EditeurLie(ctx.etat))) {
        pilote->OuvrirDocument(chemin);
        return;
    }
    SignalerAucunEditeur(ctx);
}

void AfficherDocument(Contexte& ctx, const Texte& chemin) {
    OuvrirDansEditeur(ctx, chemin);
}

bool SauverSous(Contexte& ctx, bool fermeture, Editeur editeur, const Texte& cheminDemande,
                bool confirmer) {
    PiloteEditeur* pilote = ctx.Pilote(editeur);
    if (!pilote) {
        SignalerAucunEditeur(ctx);
        return false;
    }
    Texte chemin = cheminDemande;
    if (Rogner(chemin).empty()) {
        DialogueFichiers* dialogue = pilote->Dialogue();
        if (dialogue)
            chemin =
                dialogue->CheminSauvegarde(ctx.etat.options.RepDocuments, FiltreDialogue(ctx.etat));
        if (Rogner(chemin).empty()) return false;
    }
    if (!chemin.empty() && EstSeparateur(chemin.back())) chemin.pop_back();

    const bool estModele =
        chemin.size() >= 3 && EgalSansCasse(chemin.substr(chemin.size() - 3), "vdm");
    if (estModele) chemin = chemin.substr(0, chemin.size() - 3) + "rtf";

    if (DerniereBarre(chemin) == Texte::npos) {
        ctx.utilisateur.AfficherMessage({"Le chemin du document à sauvegarder est erroné.",
                                         "Erreur : sauvegarde impossible.", "", ""});
        return false;
    }

    FormatDocument format = FormatDuChemin(chemin);
    // A word processor that can't write a format of the others' saves it as Word, as the
    // table of saves gives for "any other" extension.
    if (format == FormatDocument::Lwp && editeur != Editeur::WordPro) {
        RefuserLwp(ctx);
        return false;
    }
    const bool changeFormat = format != FormatDocument::Rtf;
    bool demander = false;
    if (confirmer && !fermeture && changeFormat) {
        switch (editeur) {
        case Editeur::Word:
        case Editeur::OpenOffice:
            demander = true;
            break;
        case Editeur::WordPro:
            demander = format == FormatDocument::Lwp;
            break;
        case Editeur::Aucun:
            break;
        }
    }
    if (demander && !ConfirmerFormat(ctx, editeur)) return false;

    try {
        pilote->EnregistrerSous(chemin, format, fermeture);
    } catch (const std::exception& e) {
        pilote->NoterErreur(e.what());
        ctx.utilisateur.AfficherMessage(
            {"Erreur du traitement de texte lors de la sauvegarde du document en cours :\n"
             "Description technique de l'erreur : " +
                 Texte(e.what()),
             "", "", ""});
        return false;
    }

    if (estModele) {
        if (!fermeture) pilote->FermerDocument(7);
        const Texte modele = chemin.substr(0, chemin.size() - 3) + "vdm";
        RenommerEnModele(chemin, modele);
        pilote->OuvrirDocument(modele);
    }
    return true;
}

} // namespace verdane
