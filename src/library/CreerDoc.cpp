#include "library/CreerDoc.h"

#include "data/ChargerDossier.h"
#include "domain/GestEPICerfa.h"
#include "library/FormatsDocument.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

namespace verdane {

namespace {

constexpr const char* kTitre = "Création d'un document";

void Refuser(Contexte& ctx, const Texte& texte) {
    ctx.utilisateur.Boite(texte, kTitre, Icone::Attention);
}

} // namespace

Texte CheminResultat(const DemandeCreation& d) {
    const Texte extension = ExtensionFormat(d.format);
    Texte nom = Rogner(d.nomResultat);
    if (!FinitParSansCasse(nom, extension)) nom += extension;
    return AjouterBarre(d.dossierResultat) + nom;
}

Texte ModeleDePage(const Etat& etat, int page, bool societe) {
    const Texte relatif = ModelePDE(page, societe);
    if (relatif.empty()) return {};
    return AjouterBarre(etat.chemins.RepModlDocs) + relatif;
}

std::optional<CheminsCreation> VerifierCreation(Contexte& ctx, const DemandeCreation& d) {
    Etat& e = ctx.etat;
    if (Rogner(e.RepDossier[0]).empty() || Rogner(e.NomDossier[0]).empty()) {
        Refuser(ctx, "Vous devez d'abord sélectionner un dossier !");
        return std::nullopt;
    }
    if (!FichierExiste(DossierComplet(e, 0) + Rogner(e.NomDossier[0]))) {
        Refuser(ctx, "Aucun dossier d'étude Marlo n'est lié !");
        return std::nullopt;
    }
    const bool pde = d.pagePDE >= 0 && d.pagePDE <= 15;
    if (!pde && Rogner(d.modele).empty()) {
        Refuser(ctx, "Vous devez d'abord choisir un modèle de document !");
        return std::nullopt;
    }
    if (Rogner(d.nomResultat).empty()) {
        Refuser(ctx, "Vous devez d'abord indiquer le nom du document à créer !");
        return std::nullopt;
    }
    if (Rogner(d.dossierResultat).empty() || !DossierExiste(d.dossierResultat)) {
        Refuser(ctx, "Le répertoire du document à créer n'existe pas : " + d.dossierResultat);
        return std::nullopt;
    }
    CheminsCreation c;
    c.resultat = CheminResultat(d);
    if (pde) {
        ChargerDossier(ctx);
        c.modele = ModeleDePage(e, d.pagePDE, d.pagePDE == 0 && SuffixeSocietePDE(ctx));
    } else {
        c.modele = d.modele;
    }
    return c;
}

std::optional<IssueCreation> LancerCreation(Contexte& ctx, const DemandeCreation& d,
                                            Texte& resultat) {
    const auto chemins = VerifierCreation(ctx, d);
    if (!chemins) return std::nullopt;
    resultat = chemins->resultat;
    ctx.etat.anneesPDE = d.pagePDE >= 0 ? d.anneesPDE : std::nullopt;
    const IssueCreation issue = CreerDocument(ctx, chemins->modele, resultat, false, true, true);
    ctx.etat.anneesPDE.reset();
    return issue;
}

} // namespace verdane
