#include "shell/Lot.h"

#include "data/ChargerDossier.h"
#include "engine/CreationDoc.h"
#include "shell/Chemins.h"
#include "shell/Options.h"
#include "shell/Parametres.h"
#include "utils/Chaines.h"
#include "utils/Json.h"
#include "utils/OutilsFichiers.h"

#include <chrono>

namespace verdane {
namespace {

// Splits a dossier folder into the folder that holds it and its name.
void PoserDossier(Etat& e, std::size_t slot, const Texte& dossier) {
    Texte chemin = AjouterBarre(dossier);
    chemin.pop_back();
    const auto p = DerniereBarre(chemin);
    e.RepDossier[slot] = p == Texte::npos ? Texte("./") : chemin.substr(0, p + 1);
    e.NomDossier[slot] = p == Texte::npos ? chemin : chemin.substr(p + 1);
}

// The text of what is missing: the folder or the record file. A record file shorter than its
// layout is read as far as it goes, as the dossier loader does.
std::optional<Texte> DossierManquant(const Texte& dossier) {
    if (!DossierExiste(dossier)) return "le dossier " + dossier + " n'existe pas";
    Texte chemin = AjouterBarre(dossier);
    chemin.pop_back();
    const Texte enregistrement = AjouterBarre(dossier) + NomFichier(chemin);
    if (!FichierExiste(enregistrement))
        return "le fichier du dossier " + enregistrement + " est introuvable";
    return std::nullopt;
}

} // namespace

Texte AideLot() {
    return "Usage : verdane-lot --dossier DOSSIER --modele MODELE --resultat RESULTAT\n"
           "                   [--remplacer] [--compare DOSSIER]... [--reponse oui|non]\n"
           "                   [--rapport FICHIER.json]\n"
           "\n"
           "Crée le document RESULTAT à partir du modèle MODELE et des données du dossier\n"
           "Marlo DOSSIER (le répertoire qui contient le fichier du dossier de même nom).\n"
           "\n"
           "  --dossier DOSSIER    le dossier Marlo du document\n"
           "  --modele MODELE      le modèle de document (.vdm ou .rtf)\n"
           "  --resultat RESULTAT  le document à créer\n"
           "  --remplacer          remplace un résultat existant (sinon : erreur)\n"
           "  --compare DOSSIER    un dossier des tableaux multi-dossiers (répétable, dans\n"
           "                       l'ordre des colonnes)\n"
           "  --reponse oui|non    la réponse à toutes les questions de la création\n"
           "  --rapport FICHIER    écrit le compte rendu de la création en JSON\n"
           "  --help               affiche cette aide\n"
           "  --version            affiche la version\n"
           "\n"
           "Le répertoire de Marlo est donné par la variable d'environnement MARLO_HOME.\n"
           "Un RESULTAT .doc, .odt, .docx ou .pdf est converti par LibreOffice ; s'il ne peut\n"
           "pas l'être, le document est gardé au format RTF sous le même nom en .rtf.\n"
           "Statut de sortie : 0 document créé (même avec des messages sur des codes),\n"
           "1 le document n'a pas pu être écrit ou converti au format demandé,\n"
           "2 erreur d'usage ou donnée manquante.\n";
}

LectureOptionsLot LireOptionsLot(const std::vector<Texte>& args) {
    OptionsLot o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const Texte& a = args[i];
        auto valeur = [&](Texte& cible) {
            if (i + 1 >= args.size()) return false;
            cible = args[++i];
            return true;
        };
        Texte v;
        if (a == "--help" || a == "-h")
            o.aide = true;
        else if (a == "--version")
            o.version = true;
        else if (a == "--remplacer")
            o.remplacer = true;
        else if (a == "--dossier") {
            if (!valeur(o.dossier)) return {std::nullopt, "--dossier demande un répertoire"};
        } else if (a == "--modele") {
            if (!valeur(o.modele)) return {std::nullopt, "--modele demande un fichier"};
        } else if (a == "--resultat") {
            if (!valeur(o.resultat)) return {std::nullopt, "--resultat demande un fichier"};
        } else if (a == "--rapport") {
            if (!valeur(o.rapport)) return {std::nullopt, "--rapport demande un fichier"};
        } else if (a == "--compare") {
            if (!valeur(v)) return {std::nullopt, "--compare demande un répertoire"};
            if (o.compares.size() >= 9) return {std::nullopt, "au plus 9 dossiers à comparer"};
            o.compares.push_back(v);
        } else if (a == "--reponse") {
            if (!valeur(v)) return {std::nullopt, "--reponse demande oui ou non"};
            const Texte r = Minuscules(v);
            if (r == "oui")
                o.reponse = Reponse::Oui;
            else if (r == "non")
                o.reponse = Reponse::Non;
            else
                return {std::nullopt, "--reponse demande oui ou non, pas " + v};
        } else {
            return {std::nullopt, "option inconnue : " + a};
        }
    }
    if (o.aide || o.version) return {o, ""};
    if (o.dossier.empty()) return {std::nullopt, "il manque --dossier"};
    if (o.modele.empty()) return {std::nullopt, "il manque --modele"};
    if (o.resultat.empty()) return {std::nullopt, "il manque --resultat"};
    return {o, ""};
}

BilanLot ExecuterLot(Contexte& ctx, const OptionsLot& o, const Environnement& env) {
    const auto debut = std::chrono::steady_clock::now();
    BilanLot bilan;
    auto finir = [&](int statut, const Texte& raison = "") {
        bilan.statut = statut;
        if (statut != kSortieFaite && bilan.raison.empty()) bilan.raison = raison;
        bilan.codesTrouves = ctx.etat.NbCodes;
        bilan.codesTraites = ctx.etat.CodesFaits;
        bilan.secondes =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
        return bilan;
    };
    // A failure of the run told to the user, and kept as the reason of the report.
    auto erreur = [&](const Texte& texte, const Texte& technique = "") {
        bilan.raison = texte;
        ctx.utilisateur.AfficherMessage({texte, technique, "verdane-lot", ""});
    };
    // Paths, options and parameters as the program reads them; the options are not saved:
    // this tool leaves the user's current dossier alone.
    Environnement lecture = env;
    lecture.optionsEnLectureSeule = true;
    if (!Initialiser(ctx, lecture)) return finir(kSortieUsage, "Marlo.par est introuvable.");

    if (auto manque = DossierManquant(o.dossier)) {
        erreur("Dossier Marlo introuvable : " + *manque + ".");
        return finir(kSortieUsage);
    }
    for (const Texte& c : o.compares) {
        if (auto manque = DossierManquant(c)) {
            erreur("Dossier à comparer introuvable : " + *manque + ".");
            return finir(kSortieUsage);
        }
    }
    if (!FichierExiste(o.modele)) {
        erreur("Modèle de document introuvable : " + o.modele + ".");
        return finir(kSortieUsage);
    }
    if (DossierExiste(o.resultat)) {
        erreur("Le document résultat est un répertoire : " + o.resultat + ".");
        return finir(kSortieEchec);
    }
    if (FichierExiste(o.resultat) && !o.remplacer) {
        erreur("Le document demandé existe déjà : " + o.resultat + ".",
               "Ajoutez --remplacer pour le remplacer.");
        return finir(kSortieUsage);
    }
    if (!DossierExiste(DossierParent(o.resultat).empty() ? Texte(".")
                                                         : DossierParent(o.resultat))) {
        erreur("Le répertoire du document résultat n'existe pas : " + DossierParent(o.resultat) +
               ".");
        return finir(kSortieEchec);
    }

    Etat& e = ctx.etat;
    for (std::size_t k = 0; k < e.RepDossier.size(); ++k) {
        e.RepDossier[k].clear();
        e.NomDossier[k].clear();
    }
    PoserDossier(e, 0, o.dossier);
    for (std::size_t k = 0; k < o.compares.size(); ++k) PoserDossier(e, k + 1, o.compares[k]);
    e.nbDossiersImposes = static_cast<std::int16_t>(o.compares.size());
    ChargerDossier(ctx);

    // Without --remplacer, a result that appears meanwhile is not replaced.
    switch (CreerDocument(ctx, o.modele, o.resultat, false, true, !o.remplacer)) {
    case IssueCreation::Faite:
        break;
    case IssueCreation::Abandonnee:
        return finir(kSortieUsage, "La création a été abandonnée.");
    case IssueCreation::ModeleIllisible:
        return finir(kSortieUsage, "Le modèle de document est illisible.");
    case IssueCreation::ResultatImpossible:
        return finir(kSortieEchec, "Le document résultat ne peut pas être écrit.");
    }
    const ConversionManquee& manquee = e.conversionManquee;
    if (manquee.Manquee()) {
        bilan.copieRtf = manquee.copieRtf;
        return finir(kSortieEchec, manquee.raison);
    }
    return finir(kSortieFaite);
}

std::string RapportJson(const OptionsLot& o, const BilanLot& bilan,
                        const std::vector<EvenementUtilisateur>& evenements,
                        const std::vector<EvenementsOmis>& omis) {
    EcrivainJson j;
    j.DebutObjet();
    j.Chaine("dossier", o.dossier);
    j.Chaine("modele", o.modele);
    j.Chaine("resultat", o.resultat);
    j.Entier("statut", bilan.statut);
    j.Booleen("documentCree", bilan.statut == kSortieFaite);
    j.Chaine("raison", bilan.raison);
    j.Chaine("copieRtf", bilan.copieRtf);
    j.Entier("codesTrouves", bilan.codesTrouves);
    j.Entier("codesTraites", bilan.codesTraites);
    j.Nombre("secondes", bilan.secondes);
    // Messages and questions each in their order; "rang" places them in the whole run.
    j.DebutTableau("messages");
    for (std::size_t i = 0; i < evenements.size(); ++i) {
        const auto& ev = evenements[i];
        if (ev.genre != EvenementUtilisateur::Genre::Message) continue;
        j.DebutObjet();
        j.Entier("rang", static_cast<long long>(i + 1));
        j.Chaine("titre", ev.message.titre);
        j.Chaine("texte", ev.message.texte);
        j.Chaine("technique", ev.message.technique);
        j.Chaine("genre", ev.message.genre);
        j.FinObjet();
    }
    j.FinTableau();
    j.DebutTableau("questions");
    for (std::size_t i = 0; i < evenements.size(); ++i) {
        const auto& ev = evenements[i];
        if (ev.genre != EvenementUtilisateur::Genre::Question) continue;
        j.DebutObjet();
        j.Entier("rang", static_cast<long long>(i + 1));
        j.Chaine("titre", ev.message.titre);
        j.Chaine("texte", ev.message.texte);
        const char* r = ev.reponse == Reponse::Oui   ? "oui"
                        : ev.reponse == Reponse::Non ? "non"
                        : ev.reponse == Reponse::Ok  ? "ok"
                                                     : "annuler";
        j.Chaine("reponse", r);
        j.FinObjet();
    }
    j.FinTableau();
    // Past the first events, only their number by kind and title.
    long long nombreOmis = 0;
    for (const auto& g : omis) nombreOmis += g.nombre;
    j.Entier("evenementsOmis", nombreOmis);
    j.DebutTableau("omisParGenre");
    for (const auto& g : omis) {
        j.DebutObjet();
        j.Chaine("genre", g.genre);
        j.Chaine("titre", g.titre);
        j.Entier("nombre", g.nombre);
        j.FinObjet();
    }
    j.FinTableau();
    j.FinObjet();
    return j.Texte_() + "\n";
}

} // namespace verdane
