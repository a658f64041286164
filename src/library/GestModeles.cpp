#include "library/GestModeles.h"

#include "graphs/EtatGraphes.h"
#include "graphs/ModeleGraph.h"
#include "library/EntreesTableaux.h"
#include "library/FormatsDocument.h"
#include "links/FinDocument.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>

namespace verdane {

namespace fs = std::filesystem;

namespace {

constexpr const char* kGraphes = "graph.txt";
constexpr const char* kCopieAnnulee = "Copie annulée";
constexpr const char* kConfirmationSuppression = "Confirmation de suppression";

bool MemeDossier(const Texte& a, const Texte& b) {
    std::error_code ec;
    return fs::equivalent(CheminSysteme(a), CheminSysteme(b), ec) && !ec;
}

void EchecEcriture(Contexte& ctx, const Texte& chemin) {
    ctx.utilisateur.Boite("Le fichier " + chemin +
                              " n'a pas pu être écrit (disque plein, protégé en écriture ou "
                              "répertoire disparu) : il est resté tel qu'il était.",
                          kCopieAnnulee, Icone::Critique);
}

void Illisible(Contexte& ctx, const Texte& chemin) {
    ctx.utilisateur.Boite("Le fichier " + chemin + " est introuvable ou illisible.", kCopieAnnulee,
                          Icone::Critique);
}

bool CopierFichier(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom,
                   const Texte& tag) {
    const Texte depart = AjouterBarre(source) + nom;
    const Texte arrivee = AjouterBarre(destination) + nom;
    if (!FichierExiste(depart)) {
        ctx.utilisateur.Boite(nom + " introuvable !", kCopieAnnulee, Icone::Attention);
        return false;
    }
    if (FichierExiste(arrivee)) {
        ctx.utilisateur.Boite(nom + (tag == "DOC" ? " existe déjà ! Le document n'a pas été copié."
                                                  : " existe déjà ! Le modèle n'a pas été copié."),
                              kCopieAnnulee, Icone::Attention);
        return false;
    }
    const auto contenu = LireFichier(depart);
    if (!contenu) {
        Illisible(ctx, depart);
        return false;
    }
    if (!EcrireFichierSur(arrivee, *contenu)) {
        EchecEcriture(ctx, arrivee);
        return false;
    }
    return true;
}

// The records of a graph library, or nothing (the user told) when it can't be read or its
// length isn't a whole number of records. A missing library is empty.
std::optional<std::string> OctetsGraphes(Contexte& ctx, const Texte& chemin) {
    if (!FichierExiste(chemin)) return std::string();
    auto octets = LireFichier(chemin);
    if (!octets) {
        Illisible(ctx, chemin);
        return std::nullopt;
    }
    if (octets->size() % kTailleEnrGraph != 0) {
        ctx.utilisateur.Boite("La bibliothèque " + chemin + " n'a pas une longueur multiple de " +
                                  std::to_string(kTailleEnrGraph) +
                                  " octets : elle est endommagée et n'est pas modifiée.",
                              kCopieAnnulee, Icone::Critique);
        return std::nullopt;
    }
    return octets;
}

Texte TitreEnregistrement(std::string_view octets, std::size_t numero) {
    return Rogner(
        LireEnrGraph(octets.substr((numero - 1) * kTailleEnrGraph, kTailleEnrGraph)).titre);
}

// Appends record `numero` (from 1) of source's library to destination's.
bool CopierEnregistrement(Contexte& ctx, const Texte& source, const Texte& destination,
                          std::size_t numero) {
    const Texte depart = AjouterBarre(source) + kGraphes;
    const Texte arrivee = AjouterBarre(destination) + kGraphes;
    const auto lus = OctetsGraphes(ctx, depart);
    if (!lus) return false;
    const auto cible = OctetsGraphes(ctx, arrivee);
    if (!cible) return false;
    if (numero < 1 || numero > lus->size() / kTailleEnrGraph) return false;
    const Texte nom = TitreEnregistrement(*lus, numero);
    const std::size_t nombre = cible->size() / kTailleEnrGraph;
    if (nombre >= static_cast<std::size_t>(kMaxGraphes)) {
        ctx.utilisateur.Boite("La bibliothèque " + arrivee + " compte déjà " +
                                  std::to_string(kMaxGraphes) + " graphiques : " + nom +
                                  " n'a pas été copié.",
                              kCopieAnnulee, Icone::Attention);
        return false;
    }
    for (std::size_t i = 1; i <= nombre; ++i) {
        if (TitreEnregistrement(*cible, i) != nom) continue;
        if (ctx.utilisateur.Question("Il existe déjà un graphique nommé " + nom +
                                         ". Ajouter quand même ?",
                                     "Demande de confirmation", Boutons::OuiNon, Reponse::Non,
                                     Icone::Question) != Reponse::Oui)
            return false;
        break;
    }
    const std::string ajout = lus->substr((numero - 1) * kTailleEnrGraph, kTailleEnrGraph);
    if (!EcrireFichierSur(arrivee, *cible + ajout)) {
        EchecEcriture(ctx, arrivee);
        return false;
    }
    return true;
}

void IntituleIllisible(Contexte& ctx, const Texte& nom) {
    ctx.utilisateur.Boite("Problème d'intitulé : transfert du modèle " + nom + " annulé.",
                          "Erreur :  copie du modèle impossible.", Icone::Critique);
}

// Appends entry `numero` (from 1; 0: the first named `nom`) of source's table library.
bool CopierEntree(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom,
                  std::size_t numero) {
    const Texte depart = AjouterBarre(source) + kFichierTableaux;
    const Texte arrivee = AjouterBarre(destination) + kFichierTableaux;
    const auto contenu = FichierExiste(depart) ? LireFichier(depart) : std::nullopt;
    const LectureTableaux lu = LireEntreesTableaux(contenu ? *contenu : std::string());
    const EntreeTableau* entree = nullptr;
    if (numero >= 1 && numero <= lu.entrees.size()) {
        entree = &lu.entrees[numero - 1];
        if (entree->nom != nom) entree = nullptr;
    } else if (numero == 0) {
        for (const EntreeTableau& e : lu.entrees)
            if (e.nom == nom) {
                entree = &e;
                break;
            }
    }
    if (entree == nullptr) {
        const bool abime = std::any_of(lu.illisibles.begin(), lu.illisibles.end(),
                                       [&](const Texte& t) { return t.find(nom) != Texte::npos; });
        if (abime)
            IntituleIllisible(ctx, nom);
        else
            ctx.utilisateur.Boite("Le modèle de tableau \"" + nom +
                                      "\" est introuvable. Non transféré.",
                                  "Impossibilité de copier un modèle", Icone::Attention);
        return false;
    }
    std::string existant;
    if (FichierExiste(arrivee)) {
        const auto cible = LireFichier(arrivee);
        if (!cible) {
            Illisible(ctx, arrivee);
            return false;
        }
        existant = *cible;
    }
    for (const EntreeTableau& e : LireEntreesTableaux(existant).entrees) {
        if (e.nom != nom) continue;
        if (ctx.utilisateur.Question("Il existe déjà un tableau nommé " + nom +
                                         ". Ajouter quand même ?",
                                     "Demande de confirmation", Boutons::OuiNon, Reponse::Non,
                                     Icone::Question) != Reponse::Oui)
            return false;
        break;
    }
    if (!EcrireFichierSur(arrivee, AjouterEntree(existant, *contenu, *entree))) {
        EchecEcriture(ctx, arrivee);
        return false;
    }
    return true;
}

Texte NomGenre(const Texte& tag) {
    if (tag == "DOC") return "Le document texte \"";
    if (tag == "TAB") return "Le modèle de tableau \"";
    if (tag == "GPH") return "Le modèle de graphique \"";
    return "Le modèle de document \"";
}

void DireSupprime(Contexte& ctx, const Texte& tag, const Texte& nom) {
    ctx.utilisateur.Boite(NomGenre(tag) + nom + "\" a été supprimé.", "Suppression",
                          Icone::Information);
}

// The rows of `choix` whose entry of the library still holds the name they were listed
// with: the library may have changed since it was listed.
template <typename Nom>
std::set<std::size_t> NumerosValides(const std::vector<LigneListe>& choix, std::size_t nombre,
                                     Nom nomDe) {
    std::set<std::size_t> numeros;
    for (const LigneListe& l : choix) {
        const auto n = static_cast<std::size_t>(l.numero);
        if (n >= 1 && n <= nombre && nomDe(n) == l.nom) numeros.insert(n);
    }
    return numeros;
}

int SupprimerTableaux(Contexte& ctx, const Texte& dossier, const std::vector<LigneListe>& choix) {
    const Texte chemin = AjouterBarre(dossier) + kFichierTableaux;
    const auto contenu = LireFichier(chemin);
    if (!contenu) {
        Illisible(ctx, chemin);
        return 0;
    }
    const LectureTableaux lu = LireEntreesTableaux(*contenu);
    const auto numeros = NumerosValides(choix, lu.entrees.size(),
                                        [&](std::size_t n) { return lu.entrees[n - 1].nom; });
    std::string reste;
    std::size_t p = 0;
    for (const std::size_t n : numeros) {
        const EntreeTableau& e = lu.entrees[n - 1];
        reste.append(*contenu, p, e.debut - p);
        p = e.fin;
    }
    reste.append(*contenu, p);
    if (numeros.empty()) return 0;
    if (!EcrireFichierSur(chemin, reste)) {
        EchecEcriture(ctx, chemin);
        return 0;
    }
    for (const std::size_t n : numeros) DireSupprime(ctx, "TAB", lu.entrees[n - 1].nom);
    return static_cast<int>(numeros.size());
}

int SupprimerGraphes(Contexte& ctx, const Texte& dossier, const std::vector<LigneListe>& choix) {
    const Texte chemin = AjouterBarre(dossier) + kGraphes;
    const auto octets = OctetsGraphes(ctx, chemin);
    if (!octets) return 0;
    const std::size_t nombre = octets->size() / kTailleEnrGraph;
    const auto numeros = NumerosValides(
        choix, nombre, [&](std::size_t n) { return TitreEnregistrement(*octets, n); });
    if (numeros.empty()) return 0;
    std::string reste;
    for (std::size_t i = 1; i <= nombre; ++i)
        if (numeros.count(i) == 0)
            reste.append(*octets, (i - 1) * kTailleEnrGraph, kTailleEnrGraph);
    if (!EcrireFichierSur(chemin, reste)) {
        EchecEcriture(ctx, chemin);
        return 0;
    }
    for (const std::size_t n : numeros) DireSupprime(ctx, "GPH", TitreEnregistrement(*octets, n));
    return static_cast<int>(numeros.size());
}

bool SupprimerUnFichier(Contexte& ctx, const Texte& chemin) {
    std::error_code ec;
    if (fs::remove(CheminSysteme(chemin), ec) && !ec) return true;
    ctx.utilisateur.Boite("Le fichier " + chemin + " n'a pas pu être supprimé.", "Suppression",
                          Icone::Attention);
    return false;
}

} // namespace

bool CopierGraphe(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom) {
    const Texte depart = AjouterBarre(source) + kGraphes;
    const auto octets = OctetsGraphes(ctx, depart);
    if (!octets) return false;
    for (std::size_t i = 1; i <= octets->size() / kTailleEnrGraph; ++i)
        if (TitreEnregistrement(*octets, i) == Rogner(nom))
            return CopierEnregistrement(ctx, source, destination, i);
    ctx.utilisateur.Boite("Le modèle de graphique \"" + nom + "\" est introuvable. Non transféré.",
                          "Impossibilité de copier un modèle", Icone::Attention);
    return false;
}

bool CopierTableau(Contexte& ctx, const Texte& source, const Texte& destination, const Texte& nom) {
    return CopierEntree(ctx, source, destination, nom, 0);
}

int TransfererSelection(Contexte& ctx, const Texte& source, const Texte& destination,
                        const Texte& tag, const std::vector<LigneListe>& choix) {
    if (choix.empty()) return 0;
    if (ctx.utilisateur.Question("Voulez-vous transférer les modèles sélectionnés ?",
                                 kConfirmationSuppression, Boutons::OuiNon, Reponse::Non,
                                 Icone::Question) != Reponse::Oui)
        return 0;
    if (Rogner(destination).empty() || !DossierExiste(destination)) {
        ctx.utilisateur.Boite("Le répertoire de destination n'existe pas !", kCopieAnnulee,
                              Icone::Attention);
        return 0;
    }
    if (MemeDossier(source, destination)) {
        ctx.utilisateur.Boite("Le répertoire de destination est le répertoire source : rien "
                              "n'est copié.",
                              kCopieAnnulee, Icone::Attention);
        return 0;
    }
    int copies = 0;
    for (const LigneListe& l : choix) {
        bool fait = false;
        if (tag == "GPH")
            fait =
                CopierEnregistrement(ctx, source, destination, static_cast<std::size_t>(l.numero));
        else if (tag == "TAB")
            fait =
                CopierEntree(ctx, source, destination, l.nom, static_cast<std::size_t>(l.numero));
        else
            fait = CopierFichier(ctx, source, destination, l.nom, tag);
        if (fait) ++copies;
    }
    return copies;
}

bool RenommerDocument(Contexte& ctx, const Texte& ancien, const Texte& nouveauDonne) {
    Texte nouveau = Rogner(nouveauDonne);
    if (nouveau.empty()) {
        ctx.utilisateur.Boite("Vous devez d'abord indiquer un nouveau nom.",
                              "Validation impossible", Icone::Attention);
        return false;
    }
    if (nouveau.find_first_of("\\/") != Texte::npos) {
        ctx.utilisateur.Boite("Le nouveau nom ne doit pas contenir de \\ ni de /.",
                              "Validation impossible", Icone::Attention);
        return false;
    }
    const Texte ext = ExtensionMinuscule(ancien);
    if (!ext.empty() && ExtensionMinuscule(nouveau) != ext) nouveau += "." + ext;
    const Texte cible = DossierParent(ancien) + nouveau;
    if (!FichierExiste(ancien)) {
        ctx.utilisateur.Boite(NomFichier(ancien) + " introuvable !", "Renommer un document",
                              Icone::Attention);
        return false;
    }
    if (FichierExiste(cible)) {
        ctx.utilisateur.Boite(nouveau + " existe déjà ! Le document n'a pas été renommé.",
                              "Renommer un document", Icone::Attention);
        return false;
    }
    std::error_code ec;
    fs::rename(CheminSysteme(ancien), CheminSysteme(cible), ec);
    if (ec) {
        ctx.utilisateur.Boite("Le document " + NomFichier(ancien) + " n'a pas pu être renommé.",
                              "Renommer un document", Icone::Critique);
        return false;
    }
    return true;
}

int SupprimerElements(Contexte& ctx, const Texte& dossier, const Texte& tag,
                      const std::vector<LigneListe>& choix) {
    if (tag == "TAB") return SupprimerTableaux(ctx, dossier, choix);
    if (tag == "GPH") return SupprimerGraphes(ctx, dossier, choix);
    if (tag == "DOS") return 0; // the dossiers are Marlo's: never written, never deleted
    int faits = 0;
    for (const LigneListe& l : choix) {
        if (!SupprimerUnFichier(ctx, AjouterBarre(dossier) + l.nom)) continue;
        DireSupprime(ctx, tag, l.nom);
        ++faits;
    }
    return faits;
}

int SupprimerSelection(Contexte& ctx, const Texte& dossier, const Texte& tag,
                       const std::vector<LigneListe>& choix) {
    std::vector<LigneListe> retenus;
    for (const LigneListe& l : choix)
        if (ctx.utilisateur.Question("Voulez-vous supprimer le " +
                                         Texte(tag == "DOC" ? "document texte " : "modèle ") +
                                         l.nom + " ?",
                                     kConfirmationSuppression, Boutons::OuiNon, Reponse::Non,
                                     Icone::Question) == Reponse::Oui)
            retenus.push_back(l);
    return SupprimerElements(ctx, dossier, tag, retenus);
}

int SupprimerTousElements(Contexte& ctx, const Texte& dossier, const Texte& tag) {
    if (tag == "DOS") return 0;
    if (tag == "TAB" || tag == "GPH") {
        const Texte chemin = AjouterBarre(dossier) + (tag == "TAB" ? kFichierTableaux : kGraphes);
        if (!FichierExiste(chemin)) return 0;
        const int nombre = static_cast<int>(ListerFichiers(ctx.etat, dossier, tag).lignes.size());
        return SupprimerUnFichier(ctx, chemin) ? nombre : 0;
    }
    return SupprimerElements(ctx, dossier, tag, ListerFichiers(ctx.etat, dossier, tag).lignes);
}

bool SupprimerTout(Contexte& ctx, const Texte& dossier, const Texte& tag) {
    if (ctx.utilisateur.Question("Voulez-vous supprimer tous les " +
                                     Texte(tag == "DOC" ? "documents texte ?" : "modèles ?"),
                                 "Suppression totale", Boutons::OuiNon, Reponse::Non,
                                 Icone::Question) != Reponse::Oui)
        return false;
    SupprimerTousElements(ctx, dossier, tag);
    return true;
}

bool ConvertirEnFormat(Contexte& ctx, const Texte& chemin, char lettre) {
    Texte format = ExtensionFormat(lettre);
    format.erase(0, 1);
    return ConvertirDocument(ctx, chemin, format);
}

} // namespace verdane
