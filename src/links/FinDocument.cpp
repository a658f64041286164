#include "links/FinDocument.h"

#include "links/FormatFichier.h"
#include "links/Liens.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <filesystem>
#include <system_error>

namespace verdane {

namespace {

Texte SansExtension(const Texte& chemin) {
    const std::size_t point = chemin.find_last_of('.');
    const std::size_t barre = DerniereBarre(chemin);
    if (point == Texte::npos || (barre != Texte::npos && point < barre)) return chemin;
    return chemin.substr(0, point);
}

Texte Fin(const Texte& texte, std::size_t n) {
    return texte.size() >= n ? texte.substr(texte.size() - n) : texte;
}

const char* const kSansConvertisseur =
    "Aucun traitement de texte capable de le convertir n'est disponible sur ce système.";

void SignalerSansConversion(Contexte& ctx, const Texte& chemin) {
    ctx.utilisateur.AfficherMessage(
        {"Le document " + chemin + " n'a pas pu être converti : il est resté au format RTF.",
         kSansConvertisseur, "Conversion impossible", ""});
}

// The RTF written under the name of another format takes its own name: "x.doc" becomes
// "x.rtf", replacing it. Gives the path of the RTF kept, empty when there is none.
Texte GarderRtf(const Texte& resultat, const Texte& montre) {
    const Texte copie = SansExtension(resultat) + ".rtf";
    const auto tete = LireOctets(resultat, 0, 16);
    if (tete && FormatDesOctets(*tete) == FormatDocument::Rtf) {
        std::error_code ec;
        std::filesystem::rename(CheminSysteme(resultat), CheminSysteme(copie), ec);
        if (!ec) return copie;
    }
    // An update of a Word document keeps its RTF copy: the document itself is as it was.
    if (FichierAuFormat(montre, FormatDocument::Rtf)) return montre;
    return {};
}

void SignalerConversionManquee(Contexte& ctx, const Texte& resultat,
                               const ConversionManquee& manquee) {
    const Texte format = NomFormat(FormatDuChemin(resultat));
    ctx.utilisateur.AfficherMessage(
        {"Le document " + resultat + " n'a pas pu être créé au format " + format +
             (manquee.copieRtf.empty()
                  ? Texte(".")
                  : " : il est gardé au format RTF sous le nom " + manquee.copieRtf + "."),
         manquee.raison, "Conversion impossible", ""});
}

} // namespace

Texte CheminComplet(const Texte& chemin) {
    if (chemin.empty() || DerniereBarre(chemin) == 0 ||
        (chemin.size() > 2 && chemin[1] == ':' && EstSeparateur(chemin[2])))
        return chemin;
    std::error_code ec;
    const auto absolu = std::filesystem::absolute(CheminSysteme(chemin), ec);
    return ec ? chemin : CheminTexte(absolu.lexically_normal());
}

PiloteEditeur* PiloteConversion(Contexte& ctx, Editeur& editeur) {
    editeur = EditeurLie(ctx.etat);
    PiloteEditeur* pilote = ctx.Pilote(editeur);
    if (pilote && pilote->Disponible()) return pilote;
    pilote = ctx.Pilote(Editeur::OpenOffice);
    editeur = Editeur::OpenOffice;
    if (pilote && pilote->Disponible()) return pilote;
    editeur = Editeur::Aucun;
    return nullptr;
}

void ConvertirViaOO(Contexte& ctx, const Texte& resultatDonne, bool& sansOuverture) {
    if (ctx.etat.options.ConvertirViaOO == 0) return;
    PiloteEditeur* office = ctx.Pilote(Editeur::OpenOffice);
    const Texte resultat = CheminComplet(resultatDonne);
    if (!office || !office->Disponible()) {
        SignalerSansConversion(ctx, resultat);
        return;
    }
    const bool ooLie = EditeurLie(ctx.etat) == Editeur::OpenOffice;
    const bool ouvert = ooLie && !sansOuverture ? office->OuvrirDocument(resultat)
                                                : office->OuvrirDocumentCache(resultat);
    if (!ouvert) return;
    const Texte doc = resultat.substr(0, resultat.size() >= 3 ? resultat.size() - 3 : 0) + "doc";
    SauverSous(ctx, !ooLie, Editeur::OpenOffice, doc, false);
    if (ooLie) sansOuverture = true;
}

bool DoitResauver(bool miseAJour, const Texte& resultat) {
    return miseAJour || Majuscules(Fin(resultat, 4)) != ".RTF";
}

bool ResauverResultat(Contexte& ctx, const Texte& sourceDonnee, const Texte& cibleDonnee,
                      bool affiche, Texte* raison) {
    const Texte source = CheminComplet(sourceDonnee);
    const Texte cible = CheminComplet(cibleDonnee);
    Editeur editeur = Editeur::Aucun;
    PiloteEditeur* pilote = PiloteConversion(ctx, editeur);
    if (!pilote) {
        if (raison) *raison = kSansConvertisseur;
        return false;
    }
    pilote->NoterErreur("");
    bool fait = false;
    if (affiche && editeur == EditeurLie(ctx.etat))
        fait = SauverSous(ctx, false, editeur, cible, false);
    else
        fait = pilote->OuvrirDocumentCache(source) && SauverSous(ctx, true, editeur, cible, false);
    if (!fait && raison) *raison = pilote->DerniereErreur();
    return fait;
}

void SupprimerCopieRtf(const Texte& resultat) {
    if (Minuscules(Fin(resultat, 4)) != ".doc") return;
    SupprimerFichier(resultat.substr(0, resultat.size() - 3) + "rtf");
}

void TerminerDocument(Contexte& ctx, const Texte& modele, const Texte& resultat, bool miseAJour,
                      bool sansOuverture) {
    ctx.etat.conversionManquee = {};
    ConvertirViaOO(ctx, resultat, sansOuverture);
    const Texte montre = miseAJour ? modele : resultat;
    if (!sansOuverture) AfficherDocument(ctx, CheminComplet(montre));
    if (DoitResauver(miseAJour, resultat)) {
        Texte raison;
        const bool fait = ResauverResultat(ctx, montre, resultat, !sansOuverture, &raison);
        const FormatDocument format = FormatDuChemin(resultat);
        // A save that said it worked still has to have written the format asked for; an RTF
        // document saved again is one already.
        if (format != FormatDocument::Rtf &&
            (!fait || !FichierAuFormat(CheminComplet(resultat), format))) {
            ConversionManquee& manquee = ctx.etat.conversionManquee;
            manquee.raison = !raison.empty() ? raison
                             : fait
                                 ? "Le fichier écrit n'est pas au format " + NomFormat(format) + "."
                                 : Texte("La conversion n'a pas été faite.");
            manquee.copieRtf = GarderRtf(resultat, montre);
            SignalerConversionManquee(ctx, resultat, manquee);
            return;
        }
    }
    SupprimerCopieRtf(resultat);
}

bool ConversionAPart(const Contexte& ctx, const Texte& resultat, bool miseAJour,
                     bool sansOuverture) {
    return !miseAJour && sansOuverture && ctx.etat.options.ConvertirViaOO == 0 &&
           FormatDuChemin(resultat) != FormatDocument::Rtf && DoitResauver(false, resultat);
}

void TerminerConversion(Contexte& ctx, const Texte& rtf, const Texte& resultatDonne,
                        bool remplacer) {
    ctx.etat.conversionManquee = {};
    const Texte resultat = CheminComplet(resultatDonne);
    const FormatDocument format = FormatDuChemin(resultat);
    // The converted file keeps the result's extension: it tells the format to write.
    const Texte converti =
        CheminTemporaire(resultat, resultat.substr(SansExtension(resultat).size()));
    Texte raison;
    bool fait = ResauverResultat(ctx, rtf, converti, false, &raison);
    if (fait && !FichierAuFormat(converti, format)) {
        fait = false;
        raison = "Le fichier écrit n'est pas au format " + NomFormat(format) + ".";
    }
    bool nomPris = false;
    if (fait && PlacerFichier(converti, resultat, remplacer, nomPris)) {
        SupprimerFichier(rtf);
        SupprimerCopieRtf(resultat);
        return;
    }
    SupprimerFichier(converti);
    ConversionManquee& manquee = ctx.etat.conversionManquee;
    manquee.raison = nomPris ? Texte("Un autre document a pris ce nom pendant la création.")
                     : !raison.empty() ? raison
                     : fait            ? Texte("Le document converti n'a pas pu prendre son nom.")
                                       : Texte("La conversion n'a pas été faite.");
    const Texte copie = SansExtension(resultat) + ".rtf";
    bool copiePrise = false;
    if (PlacerFichier(rtf, copie, true, copiePrise)) manquee.copieRtf = copie;
    SignalerConversionManquee(ctx, resultat, manquee);
}

std::optional<Texte> PreparerMiseAJour(Contexte& ctx, const Texte& document) {
    if (Minuscules(Fin(document, 4)) != ".doc") return document;
    const Texte souche = document.substr(0, document.size() - 4);
    const Reponse r = ctx.utilisateur.Question(
        "Pour mettre à jour votre document MS Word, Verdane va devoir créer une copie convertie "
        "au RTF.\nSouhaitez-vous continuer en autorisant la création de " +
            souche +
            ".rtf ?\n( si un fichier de ce nom existe déjà dans ce répertoire, il sera alors "
            "perdu ! )",
        "Verdane utilise le format texte enrichi ( RTF ) !", Boutons::OkAnnuler, Reponse::Ok,
        Icone::Information);
    if (r != Reponse::Ok) {
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.Boite("Mise à jour annulée par l'utilisateur.", "", Icone::Information);
        return std::nullopt;
    }
    Editeur editeur = Editeur::Aucun;
    PiloteEditeur* pilote = PiloteConversion(ctx, editeur);
    if (!pilote) {
        SignalerAucunEditeur(ctx);
        return std::nullopt;
    }
    const Texte copie = CheminComplet(souche + ".rtf");
    if (!pilote->OuvrirDocumentCache(CheminComplet(document))) return std::nullopt;
    if (!SauverSous(ctx, true, editeur, copie, false)) return std::nullopt;
    ctx.utilisateur.Boite("Verdane a terminé la conversion au RTF de votre document MS Word.\nLa "
                          "mise à jour du document MS Word va pouvoir se faire à partir de la "
                          "copie RTF.",
                          "Cliquez OK pour lancer la mise à jour !", Icone::Information);
    return copie;
}

bool ConvertirDocument(Contexte& ctx, const Texte& chemin, const Texte& formatDemande) {
    const Texte format = Minuscules(formatDemande);
    const char* const titre = "Conversion d'un document";
    const std::size_t point = chemin.find_last_of('.');
    const Texte extension = point == Texte::npos ? Texte() : Minuscules(chemin.substr(point + 1));
    if (extension == format) {
        ctx.utilisateur.Boite("Le document est déjà au format " + format + " !", titre,
                              Icone::Information);
        return false;
    }
    if (ctx.utilisateur.Question("Convertir le document au format " + format + " ?", titre,
                                 Boutons::OuiNon, Reponse::Non, Icone::Question) != Reponse::Oui)
        return false;
    Editeur editeur = Editeur::Aucun;
    PiloteEditeur* pilote = PiloteConversion(ctx, editeur);
    if (!pilote) {
        SignalerAucunEditeur(ctx);
        return false;
    }
    const Texte source = CheminComplet(chemin);
    if (!pilote->OuvrirDocumentCache(source)) return false;
    const bool fait = SauverSous(ctx, false, editeur, SansExtension(source) + "." + format, false);
    pilote->FermerDocument(7);
    return fait;
}

} // namespace verdane
