#include "tables/EditeurTableaux.h"

#include "tables/BibliothequeTableaux.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <map>

namespace verdane {

namespace {

constexpr const char* kTitreEdition = "Edition - Insertion des Tableaux";
constexpr const char* kDossierDefaut = "Divers";
constexpr const char* kDossierRecupere = "Récupéré";
constexpr const char* kCadreDefaut = "1;1;1;1;8";

Texte EnTexte(long long n) {
    return std::to_string(n);
}

// The pair of default frames (label, value) of a kind of line, 0 to 5; -1 for none.
int PaireCadres(TypeLigne genre) {
    switch (genre) {
    case TypeLigne::Intitule:
        return 0;
    case TypeLigne::Serie:
        return 1;
    case TypeLigne::Espace:
        return -1;
    case TypeLigne::Calcul:
        return 2;
    case TypeLigne::Predefinies:
        return 3;
    case TypeLigne::SerieCulture:
    case TypeLigne::SerieCulturePerenne:
        return 4;
    case TypeLigne::SerieActivite:
        return 5;
    }
    return -1;
}

Texte CadreOption(const Options& o, std::size_t i) {
    const Texte f = i < o.FormatsDefaut.size() ? Rogner(o.FormatsDefaut[i]) : Texte{};
    return f.empty() ? Texte(kCadreDefaut) : f;
}

// `format` with its field `champ` (from 0) set to `valeur`.
Texte AvecChamp(const Texte& format, std::size_t champ, const Texte& valeur) {
    std::vector<Texte> champs;
    std::size_t debut = 0;
    for (;;) {
        const std::size_t fin = format.find(';', debut);
        champs.push_back(format.substr(debut, fin - debut));
        if (fin == Texte::npos) break;
        debut = fin + 1;
    }
    if (champs.size() <= champ) champs.resize(champ + 1);
    champs[champ] = valeur;
    Texte r;
    for (std::size_t i = 0; i < champs.size(); ++i) r += (i ? ";" : "") + champs[i];
    return r;
}

// `definition` with each line number `LG`n replaced by nouveau(n); `suit` becomes false when a
// referenced line would no longer stand above the total's line `ligneTotal`.
Texte RenumeroterReferences(const Texte& definition, const std::function<int(int)>& nouveau,
                            int ligneTotal, bool& suit) {
    Texte r;
    std::size_t pos = 0;
    for (std::size_t lg = definition.find("LG"); lg != Texte::npos;
         lg = definition.find("LG", pos)) {
        r.append(definition, pos, lg + 2 - pos);
        pos = lg + 2;
        std::size_t fin = pos;
        while (fin < definition.size() && fin - pos < 4 &&
               std::isdigit(static_cast<unsigned char>(definition[fin])))
            ++fin;
        if (fin == pos) continue;
        const int n = nouveau(std::stoi(definition.substr(pos, fin - pos)));
        if (n >= ligneTotal) suit = false;
        r += EnTexte(n);
        pos = fin;
    }
    r.append(definition, pos);
    return r;
}

bool ContientTab(const Texte& nom) {
    return Minuscules(nom).find("tab") != Texte::npos;
}

} // namespace

std::vector<NoeudTableau> ArbreTableaux(const std::vector<TableauModele>& tableaux) {
    std::vector<NoeudTableau> noeuds{{"Racine", "Tableaux enregistrés", ""}};
    if (tableaux.empty()) {
        noeuds.push_back({"tab0", "Aucun enregistrement", "Racine"});
        return noeuds;
    }
    // Folders in the order they are first met, their tables in file order.
    std::map<Texte, bool> vus;
    auto dossierDe = [](const TableauModele& t) {
        const Texte d = Rogner(t.dossier);
        return d.empty() ? Texte(kDossierDefaut) : d;
    };
    for (const TableauModele& t : tableaux) {
        const Texte d = dossierDe(t);
        const Texte cleDossier = "#Doss" + d;
        if (!vus[cleDossier]) {
            vus[cleDossier] = true;
            noeuds.push_back({cleDossier, d, "Racine"});
        }
        const Texte s = Rogner(t.sousDossier);
        if (!s.empty()) {
            const Texte cleSous = "#ssDoss##" + d + "##" + s;
            if (!vus[cleSous]) {
                vus[cleSous] = true;
                noeuds.push_back({cleSous, s, cleDossier});
            }
        }
    }
    for (std::size_t i = 0; i < tableaux.size(); ++i) {
        const TableauModele& t = tableaux[i];
        const Texte d = dossierDe(t);
        const Texte s = Rogner(t.sousDossier);
        noeuds.push_back({"tab" + EnTexte(static_cast<long long>(i + 1)), Rogner(t.nom),
                          s.empty() ? "#Doss" + d : "#ssDoss##" + d + "##" + s});
    }
    return noeuds;
}

int NumeroTableau(const Texte& cle) {
    if (!CommencePar(cle, "tab")) return 0;
    const auto n = EntierStrict(std::string_view(cle).substr(3));
    return n && *n > 0 && *n < 100000 ? static_cast<int>(*n) : 0;
}

const std::vector<Texte>& TextesTypesLigne() {
    static const std::vector<Texte> textes = {
        "    Intitulé   (de chaque colonne de valeurs)",
        "    Série          (de données Win-Marlo 2008)",
        "    Espace       (avec ou sans commentaire)",
        "    Calcul  (sur des séries de données Marlo)",
        "    Lignes pré-définies      (cultures, immo,...)",
        "    Série de données pour tableau de culture",
        "    Série de données pour cultures pérennes",
        "    Série de données pour activités libres animales"};
    return textes;
}

const std::vector<Texte>& TextesGenresTableau() {
    static const std::vector<Texte> textes = {"tableau classique", "un tableau pour chaque culture",
                                              "un tableau par culture pérenne",
                                              "un tableau par activité libre"};
    return textes;
}

const std::vector<Texte>& TextesAnneesTableau() {
    static const std::vector<Texte> textes = {"toutes les années d'étude (par défaut)",
                                              "toutes les années d'étude + l'année début",
                                              "uniquement la première et la dernière année"};
    return textes;
}

TypeLigne TypeDeLigne(const LigneModele& ligne) {
    const Texte d = Minuscules(Rogner(ligne.definition));
    if (CommencePar(d, "entete")) return TypeLigne::Intitule;
    if (CommencePar(d, "espac")) return TypeLigne::Espace;
    if (CommencePar(d, "total")) return TypeLigne::Calcul;
    if (CommencePar(d, "scult")) return TypeLigne::SerieCulture;
    if (CommencePar(d, "scltp")) return TypeLigne::SerieCulturePerenne;
    if (CommencePar(d, "alani")) return TypeLigne::SerieActivite;
    if (CommencePar(d, "serie") || d.empty()) return TypeLigne::Serie;
    return TypeLigne::Predefinies;
}

LigneModele NouvelleLigne(const Options& options) {
    LigneModele l;
    const Texte format = FormatTexteDefaut(options);
    for (auto& c : l.cellules) {
        c.formatTexte = format;
        c.formatCadre = kCadreDefaut;
    }
    l.formatTexte = format;
    l.formatCadre = kCadreDefaut;
    return l;
}

TableauModele NouveauTableau(const Options& options) {
    TableauModele t;
    t.nom = "Nouveau tableau";
    t.dossier = kDossierDefaut;
    t.centre = 1;
    t.rouge = 1;
    t.typeEntete = 1;
    t.pageDebut = -1;
    t.nbDossiers = 2;
    t.nbColonnes = 1;
    t.largeurs.fill(2000);
    t.largeurValeurs = 7200;
    t.multiDossier = 0;
    t.modeAnnees = kToutesAnnees;
    t.lignes.push_back(NouvelleLigne(options));
    return t;
}

void AppliquerTypeLigne(LigneModele& ligne, TypeLigne genre, const Options& options,
                        int nbColonnes) {
    const int paire = PaireCadres(genre);
    const Texte cadreLibelle =
        paire < 0 ? Texte(kCadreVide) : CadreOption(options, static_cast<std::size_t>(2 * paire));
    const Texte cadreValeur = paire < 0
                                  ? Texte(kCadreVide)
                                  : CadreOption(options, static_cast<std::size_t>(2 * paire + 1));
    const Texte format = FormatTexteDefaut(options);
    for (int c = 0; c < std::clamp(nbColonnes, 0, kMaxColonnesLibelle); ++c) {
        CelluleModele& cellule = ligne.cellules[static_cast<std::size_t>(c)];
        if (genre == TypeLigne::Calcul) cellule.texte = c == 0 ? "TOTAL" : "";
        if (genre == TypeLigne::Predefinies) cellule.texte.clear();
        cellule.formatTexte = AvecChamp(format, 3, "1"); // bold labels
        cellule.formatCadre = cadreLibelle;
    }
    switch (genre) {
    case TypeLigne::Intitule:
        ligne.definition = "entete:1:1ère année de prévision&Fin de prévision";
        ligne.formatTexte = AvecChamp(format, 4, "1"); // italic
        break;
    case TypeLigne::Espace:
        ligne.definition = "espace";
        ligne.formatTexte.clear();
        break;
    default:
        ligne.definition.clear();
        ligne.formatTexte = format;
        break;
    }
    ligne.formatCadre = cadreValeur;
}

Texte TexteDeLibelle(const Texte& saisie) {
    Texte t = Remplacer(saisie, "\\par ", "");
    t = Remplacer(t, "\r", "");
    t = Remplacer(t, "\n", "");
    std::replace(t.begin(), t.end(), ';', ',');
    return t;
}

// ---- the editor ----------------------------------------------------------------------------

bool EditeurTableaux::Ouvrir() {
    if (ctx_.etat.options.TailleDefaut <= 0) ctx_.etat.options.TailleDefaut = 10;
    chemin_ = ctx_.etat.chemins.RepModlDocs + "tableaux.txt";
    if (ctx_.etat.AccesTotal == -1 &&
        ctx_.utilisateur.Question("Gérer les tableaux du PDE Cerfa ?", "Mode accès total",
                                  Boutons::OuiNon, Reponse::Non, Icone::Question) == Reponse::Oui)
        chemin_ = ctx_.etat.chemins.RepModlDocs + "PDE\\tableaux.txt";
    // The lines of a table are read when it is opened; a library whose reading stopped at a
    // broken entry is not written back unasked.
    const std::size_t entrees = ChargerTableaux(ctx_, chemin_, false);
    lisible_ = entrees <= Tableaux().size();
    if (!lisible_)
        ctx_.utilisateur.AfficherMessage(
            {"La bibliothèque des tableaux n'a pu être lue qu'en partie : " +
                 EnTexte(static_cast<long long>(Tableaux().size())) + " tableaux sur " +
                 EnTexte(static_cast<long long>(entrees)) + ".",
             "Fichier : " + chemin_ +
                 "\r\nElle ne sera pas réécrite sans votre accord, pour ne rien perdre.",
             kTitreEdition, ""});
    courant_ = Tableaux().empty() ? 0 : 1;
    return lisible_;
}

void EditeurTableaux::Selectionner(int numero) {
    courant_ = numero >= 1 && static_cast<std::size_t>(numero) <= Tableaux().size() ? numero : 0;
}

TableauModele* EditeurTableaux::Tableau() {
    TableauModele* t = ctx_.etat.tableaux.Tableau(courant_);
    if (t != nullptr) LireLignesEnAttente(*t);
    return t;
}

bool EditeurTableaux::AjouterTableau(const Texte& dossier, const Texte& sousDossier) {
    TableauModele t = NouveauTableau(ctx_.etat.options);
    if (!Rogner(dossier).empty()) t.dossier = Rogner(dossier);
    t.sousDossier = Rogner(sousDossier);
    Tableaux().push_back(std::move(t));
    courant_ = static_cast<int>(Tableaux().size());
    return true;
}

bool EditeurTableaux::SupprimerTableau() {
    const TableauModele* t = Tableau();
    if (t == nullptr) {
        ctx_.utilisateur.Boite("Aucun tableau à supprimer !", kTitreEdition, Icone::Attention);
        return false;
    }
    if (ctx_.utilisateur.Question("Supprimer le tableau ' " + Rogner(t->nom) + " ' ?",
                                  "Confirmation de suppression", Boutons::OuiNon, Reponse::Non,
                                  Icone::Question) != Reponse::Oui)
        return false;
    Tableaux().erase(Tableaux().begin() + (courant_ - 1));
    Selectionner(std::min<int>(courant_, static_cast<int>(Tableaux().size())));
    return true;
}

bool EditeurTableaux::SupprimerDossier(const Texte& dossier) {
    const Texte nom = Rogner(dossier);
    if (nom == kDossierDefaut) {
        ctx_.utilisateur.Boite(
            "' Divers ' est le dossier par défaut. Vous ne pouvez le supprimer !",
            "Suppression interdite", Icone::Attention);
        return false;
    }
    if (ctx_.utilisateur.Question("Les tableaux contenus dans le dossier ' " + nom +
                                      " '\r\nseront placés dans le dossier par défaut : ' Divers "
                                      "'.\r\n\r\nSupprimer le dossier ' " +
                                      nom + " ' ?",
                                  "Confirmation de suppression d'un dossier", Boutons::OuiNon,
                                  Reponse::Non, Icone::Question) != Reponse::Oui)
        return false;
    for (TableauModele& t : Tableaux())
        if (Rogner(t.dossier) == nom) {
            t.dossier = kDossierDefaut;
            t.sousDossier.clear();
        }
    return true;
}

bool EditeurTableaux::SupprimerSousDossier(const Texte& dossier, const Texte& sousDossier) {
    const Texte d = Rogner(dossier);
    const Texte s = Rogner(sousDossier);
    if (ctx_.utilisateur.Question("Les tableaux contenus dans le sous-dossier ' " + s +
                                      " '\r\nseront placés directement dans le dossier : ' " + d +
                                      " '.\r\n\r\nSupprimer le sous-dossier ' " + s + " ' ?",
                                  "Confirmation de suppression d'un sous-dossier", Boutons::OuiNon,
                                  Reponse::Non, Icone::Question) != Reponse::Oui)
        return false;
    for (TableauModele& t : Tableaux())
        if (Rogner(t.dossier) == d && Rogner(t.sousDossier) == s) t.sousDossier.clear();
    return true;
}

bool EditeurTableaux::NomDossierAccepte(const Texte& nom, bool sousDossier) {
    if (!ContientTab(nom) && !Rogner(nom).empty()) return true;
    if (Rogner(nom).empty()) return false;
    ctx_.utilisateur.AfficherMessage(
        {Texte("Le nom de votre ") + (sousDossier ? "sous-dossier" : "dossier") +
             " ne doit pas contenir le mot \"tab\" qui est un mot-clé réservé !",
         Texte("Veuillez nommer votre ") + (sousDossier ? "sous-dossier" : "dossier") +
             " différemment ! Merci.",
         kTitreEdition, ""});
    return false;
}

bool EditeurTableaux::ChangerGenre(int genre) {
    TableauModele* t = Tableau();
    if (t == nullptr || genre < 0 || genre > 3) return false;
    auto refuser = [&](const Texte& texte) {
        ctx_.utilisateur.Boite(texte, "Choix impossible", Icone::Attention);
        return false;
    };
    for (const LigneModele& l : t->lignes) {
        const TypeLigne g = TypeDeLigne(l);
        const Texte d = Minuscules(Rogner(l.definition));
        if (genre != kTableauCulture && g == TypeLigne::SerieCulture)
            return refuser("Le tableau contient des séries de données pour les cultures");
        if (genre != kTableauCulturePerenne && g == TypeLigne::SerieCulturePerenne)
            return refuser("Le tableau contient des séries de données pour les cultures"
                           " pérennes !");
        if (genre != kTableauActiviteLibre && g == TypeLigne::SerieActivite)
            return refuser("Vous devez d'abord supprimer les lignes d'activités libres animales "
                           "dans votre modèle de tableau");
        if (genre != kTableauClassique && CommencePar(d, "newpg"))
            return refuser(
                "Vous devez d'abord supprimer les sauts de page dans votre modèle de tableau");
        if (genre != kTableauClassique && g == TypeLigne::Predefinies)
            return refuser("Vous devez d'abord supprimer les lignes pré-définies dans votre modèle "
                           "de tableau");
    }
    t->genre = static_cast<std::int16_t>(genre);
    return true;
}

void EditeurTableaux::Renumeroter(int ligneChangee, SensRenumerotation sens) {
    TableauModele* t = Tableau();
    if (t == nullptr) return;
    const auto definie = [t](int n) {
        const LigneModele* l = t->Ligne(n);
        return l != nullptr && !Rogner(l->definition).empty();
    };
    // The totals below the change; each was numbered as the lines now stand.
    const int premier = sens == SensRenumerotation::Plus ? ligneChangee + 2 : ligneChangee;
    for (int n = std::max(premier, 1); n <= t->nbLignes(); ++n)
        RenumeroterFormule(ctx_, t->Ligne(n)->definition, ligneChangee, n, sens, definie);
}

bool EditeurTableaux::AjouterLigne(int apres) {
    TableauModele* t = Tableau();
    if (t == nullptr) return false;
    if (t->nbLignes() >= kMaxLignesTableau) {
        ctx_.utilisateur.Boite("Ajout impossible : les tableaux sont limités à " +
                                   EnTexte(kMaxLignesTableau) + " maxi !",
                               kTitreEdition, Icone::Attention);
        return false;
    }
    apres = std::clamp<int>(apres, 0, t->nbLignes());
    t->lignes.insert(t->lignes.begin() + apres, NouvelleLigne(ctx_.etat.options));
    Renumeroter(apres, SensRenumerotation::Plus);
    return true;
}

bool EditeurTableaux::SupprimerLigne(int numero) {
    TableauModele* t = Tableau();
    if (t == nullptr || t->Ligne(numero) == nullptr) return false;
    if (t->nbLignes() <= 1) {
        ctx_.utilisateur.Boite("Plus de ligne à supprimer !", "Suppression impossible.",
                               Icone::Attention);
        return false;
    }
    t->lignes.erase(t->lignes.begin() + (numero - 1));
    Renumeroter(numero, SensRenumerotation::Moins);
    return true;
}

bool EditeurTableaux::DeplacerLigne(int numero, int cible, bool apresCible) {
    TableauModele* t = Tableau();
    if (t == nullptr || t->Ligne(numero) == nullptr || t->Ligne(cible) == nullptr) return false;
    if (cible == numero) {
        ctx_.utilisateur.Boite("Déplacer la ligne " + EnTexte(numero) + " " +
                                   (apresCible ? "après" : "avant") + " elle-même ?! impossible !",
                               kTitreEdition, Icone::Attention);
        return false;
    }
    // The place it goes to, counted as the lines stand before the move: before line `place`.
    int place = apresCible ? cible + 1 : cible;
    if (place == numero || place == numero + 1) {
        ctx_.utilisateur.Boite("Ce choix n'entraîne pas de déplacement !", kTitreEdition,
                               Icone::Information);
        return false;
    }
    if (place > numero) --place; // its number once moved
    const LigneModele copie = *t->Ligne(numero);
    t->lignes.erase(t->lignes.begin() + (numero - 1));
    t->lignes.insert(t->lignes.begin() + (place - 1), copie);
    // Where each former line now stands; a total follows the lines it adds, unless it now
    // stands above one of them.
    const auto nouveau = [&](int ancien) {
        if (ancien == numero) return place;
        if (numero < place && ancien > numero && ancien <= place) return ancien - 1;
        if (place < numero && ancien >= place && ancien < numero) return ancien + 1;
        return ancien;
    };
    for (int n = 1; n <= t->nbLignes(); ++n) {
        Texte& definition = t->Ligne(n)->definition;
        if (!CommencePar(definition, "total")) continue;
        bool suit = true;
        const Texte renumerotee = RenumeroterReferences(definition, nouveau, n, suit);
        if (suit) {
            definition = renumerotee;
            continue;
        }
        ctx_.utilisateur.AfficherMessage(
            {"Du fait de la re-numérotation des lignes, la formule de la ligne de total n°" +
                 EnTexte(n) + " est à ré-écrire.",
             "Merci de noter la formule suivante et la re-saisir avec une numérotation correcte "
             "des LGn : " +
                 definition,
             kTitreEdition, ""});
        definition.clear();
    }
    return true;
}

bool EditeurTableaux::DupliquerLigne(int numero) {
    TableauModele* t = Tableau();
    if (t == nullptr || t->Ligne(numero) == nullptr) return false;
    const LigneModele copie = *t->Ligne(numero);
    if (!AjouterLigne(numero)) return false;
    *Tableau()->Ligne(numero + 1) = copie;
    return true;
}

std::optional<Texte> EditeurTableaux::Inserer() {
    const TableauModele* t = Tableau();
    if (t == nullptr) return std::nullopt;
    if (ctx_.utilisateur.Question(
            "Insérer le tableau '" + Rogner(t->nom) + "' dans le document en cours ?",
            kTitreEdition, Boutons::OuiNon, Reponse::Non, Icone::Question) != Reponse::Oui)
        return std::nullopt;
    Enregistrer();
    int incomplete = 0;
    return CodeModele(*t, ctx_.etat.options, incomplete);
}

int EditeurTableaux::Recuperer(const Texte& code) {
    Texte c = Rogner(code);
    if (CommencePar(c, "#mrl(") && FinitPar(c, ")#")) c = c.substr(5, c.size() - 7);
    for (std::size_t i = 0; i < Tableaux().size(); ++i) {
        // A table not opened is compared by its code as the library holds it.
        const TableauModele& lu = Tableaux()[i];
        int incomplete = 0;
        if (lu.source.lignesEnAttente ? lu.source.Code() == c
                                      : CodeModele(lu, ctx_.etat.options, incomplete) == c) {
            courant_ = static_cast<int>(i + 1);
            return courant_;
        }
    }
    TableauModele t = LireCodeTableau(c);
    t.dossier = kDossierRecupere;
    t.sousDossier.clear();
    if (Rogner(t.nom).empty()) t.nom = "Tableau récupéré";
    Tableaux().push_back(std::move(t));
    courant_ = static_cast<int>(Tableaux().size());
    Enregistrer();
    return courant_;
}

bool EditeurTableaux::Enregistrer(bool forcer) {
    if (chemin_.empty()) return false;
    if (!lisible_ && !forcer &&
        ctx_.utilisateur.Question("La bibliothèque des tableaux n'avait pu être lue qu'en "
                                  "partie. L'enregistrer quand même, en perdant ce qui n'a pu "
                                  "être lu ?",
                                  kTitreEdition, Boutons::OuiNon, Reponse::Non,
                                  Icone::Question) != Reponse::Oui)
        return false;
    CreerChemin(DossierParent(chemin_));
    if (!EcrireTableaux(ctx_, chemin_)) {
        ctx_.utilisateur.AfficherMessage({"La bibliothèque des tableaux n'a pu être enregistrée.",
                                          "Fichier : " + chemin_, kTitreEdition, ""});
        return false;
    }
    lisible_ = true;
    return true;
}

} // namespace verdane
