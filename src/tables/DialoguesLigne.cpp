#include "tables/DialoguesLigne.h"

#include "utils/Chaines.h"

#include <algorithm>

namespace verdane {

namespace {

constexpr const char* kTitreEdition = "Edition - Insertion des Tableaux";

void Dire(Contexte& ctx, const Texte& texte) {
    ctx.utilisateur.Boite(texte, kTitreEdition, Icone::Information);
}

// `texte` cut at each ":" (all of them).
std::vector<Texte> Champs(const Texte& texte) {
    std::vector<Texte> champs;
    std::size_t debut = 0;
    for (;;) {
        const std::size_t fin = texte.find(':', debut);
        champs.push_back(texte.substr(debut, fin - debut));
        if (fin == Texte::npos) return champs;
        debut = fin + 1;
    }
}

int EntierOu(const Texte& texte, int defaut) {
    const auto n = EntierStrict(Rogner(texte));
    return n && *n >= -32768 && *n <= 32767 ? static_cast<int>(*n) : defaut;
}

bool CommenceParMot(const Texte& definition, std::string_view mot) {
    return CommencePar(Minuscules(Rogner(definition)), mot);
}

} // namespace

const std::vector<FormeEntete>& FormesEntete(bool modeDossier) {
    static const std::vector<FormeEntete> annees = {
        {"1", "[Année début sur 4 / année fin sur 2]", "2008/07"},
        {"2", "[Mois - année sur 4] sur deux lignes", "6-2008             5-2009"},
        {"3", "[Mois en clair - année sur 4] sur 2 lignes", "Jui.2008  Mai.2009"},
        {"4", "[Année début sur 4 - année fin sur 4]", "2008 - 2009"},
        {"5", "[exercice n]", "exercice 1"},
        {"6", "[situation au jour/mois/année fin sur 4]", "situation au     1/5/2008"},
    };
    static const std::vector<FormeEntete> dossiers = {
        {"1", "[Nom du dossier]", "MonDossier"},
        {"2", "[Hypothèse n] avec n = 1,2,3,...", "Hypothèse 1"},
        {"3", "[Hn] avec n = 1,2,3,...", "H1"},
        {"4", "[Dossier Marlo n°n] avec n = 1,2,3,...", "Dossier Marlo n°1"},
        {"5", "[Dossier n°n] avec n = 1,2,3,...", "Dossier n°1"},
        {"6", "[Dossier n] avec n = 1,2,3,...", "Dossier 1"},
    };
    return modeDossier ? dossiers : annees;
}

DefinitionEntete LireEntete(const Texte& definition) {
    DefinitionEntete e;
    const std::size_t a = definition.find(':');
    if (a == Texte::npos) return e;
    const std::size_t b = definition.find(':', a + 1);
    e.forme = Rogner(definition.substr(a + 1, b == Texte::npos ? Texte::npos : b - a - 1));
    if (b == Texte::npos) return e;
    const Texte textes = definition.substr(b + 1);
    const std::size_t et = textes.find('&');
    e.debut = textes.substr(0, et);
    if (et != Texte::npos) e.fin = textes.substr(et + 1);
    return e;
}

Texte EcrireEntete(const DefinitionEntete& entete) {
    return "entete:" + entete.forme + ":" + entete.debut + "&" + entete.fin;
}

const std::vector<Texte>& TextesDecimales() {
    static const std::vector<Texte> textes = {"AUTO", "0", "1", "2", "3", "4", "5", "6"};
    return textes;
}

int DecimalesDeChoix(int choix) {
    return choix <= 0 || choix > 7 ? 7 : choix - 1;
}

int ChoixDeDecimales(int decimales) {
    return decimales >= 0 && decimales <= 6 ? decimales + 1 : 0;
}

const std::vector<Texte>& TextesReglesZero() {
    static const std::vector<Texte> textes = {
        "Toujours afficher la ligne quelquesoit ses valeurs",
        "Ne pas l'afficher si toutes ses valeurs sont nulles",
        "Message de choix si toutes ses valeurs sont nulles",
        "Ne jamais afficher la ligne quelquesoit ses valeurs"};
    return textes;
}

DefinitionValeurs LireValeurs(const Texte& definition) {
    DefinitionValeurs v;
    const std::vector<Texte> champs = Champs(definition);
    v.mot = champs[0];
    if (champs.size() > 1) v.code = champs[1];
    if (champs.size() > 2) v.decimales = std::clamp(EntierOu(champs[2], 7), 0, 7);
    // Any rule outside 1..3 keeps the line, as "0" does.
    if (champs.size() > 3) {
        const int r = EntierOu(champs[3], 0);
        v.regleZero = r >= 1 && r <= 3 ? r : 0;
    }
    return v;
}

Texte EcrireValeurs(const DefinitionValeurs& v) {
    return v.mot + ":" + v.code + ":" + std::to_string(std::clamp(v.decimales, 0, 7)) + ":" +
           std::to_string(std::clamp(v.regleZero, 0, 3));
}

Texte FormuleSimple(int ligneA, const Texte& operateur, int ligneB) {
    return "LG" + std::to_string(ligneA) + (operateur == "x" ? Texte("*") : operateur) + "LG" +
           std::to_string(ligneB);
}

bool LireFormuleSimple(const Texte& formule, int& ligneA, Texte& operateur, int& ligneB) {
    const Texte f = Majuscules(Rogner(formule));
    if (!CommencePar(f, "LG")) return false;
    const std::size_t op = f.find_first_of("+-*/", 2);
    if (op == Texte::npos || f.compare(op + 1, 2, "LG") != 0) return false;
    const auto a = EntierStrict(f.substr(2, op - 2));
    const auto b = EntierStrict(f.substr(op + 3));
    if (!a || !b) return false;
    ligneA = static_cast<int>(*a);
    ligneB = static_cast<int>(*b);
    operateur = f[op] == '*' ? Texte("x") : Texte(1, f[op]);
    return true;
}

Texte FormuleStockee(const Texte& saisie) {
    return Majuscules(Rogner(saisie));
}

Texte MotSerieRepetee(TypeLigne type) {
    switch (type) {
    case TypeLigne::SerieCulture:
        return "scult";
    case TypeLigne::SerieCulturePerenne:
        return "scltp";
    case TypeLigne::SerieActivite:
        return "ALani";
    default:
        return {};
    }
}

Texte TitreSerieRepetee(TypeLigne type) {
    switch (type) {
    case TypeLigne::SerieCulture:
        return "cultures";
    case TypeLigne::SerieCulturePerenne:
        return "cultures pérennes";
    case TypeLigne::SerieActivite:
        return "activités libres animales";
    default:
        return {};
    }
}

std::vector<NoeudElement> ElementsSerieRepetee(TypeLigne type) {
    switch (type) {
    case TypeLigne::SerieCulture:
        return ArbreElements(CatalogueCultures());
    case TypeLigne::SerieCulturePerenne:
        return ArbreElements(CataloguePerennes());
    case TypeLigne::SerieActivite:
        return ArbreElements(CatalogueAnimaux(), 1);
    default:
        return {};
    }
}

Texte CleSerieRepetee(const NoeudElement& noeud) {
    if (noeud.image == "rep") return {};
    Texte cle = noeud.cle.substr(0, noeud.cle.rfind('#'));
    if (CommencePar(cle, "ALani:")) cle.erase(0, 6);
    return cle;
}

bool RemplacerLibelle(Contexte& ctx, const Texte& actuel, const Texte& nouveau) {
    if (Rogner(nouveau).empty() || Rogner(actuel) == Rogner(nouveau)) return false;
    return ctx.utilisateur.Question("Remplacer le libellé actuel \"" + actuel + "\" par \"" +
                                        nouveau + "\" dans la première cellule ?",
                                    kTitreEdition, Boutons::OuiNon, Reponse::Oui,
                                    Icone::Question) == Reponse::Oui;
}

std::vector<NoeudTableau> CataloguePredefinies() {
    const Texte racine = "Racine";
    return {
        {racine, "Tableaux génériques proposés", ""},
        {"cultu", "Cultures", racine},
        {"cultp", "Cultures pérennes", racine},
        {"cultu:assolement", "Assolement", racine},
        {"cultp:assolemper", "AssolemPer", racine},
        {"imemp#", "Immos - Emprunts", racine},
        {"imemp:inve1", "Investissements", "imemp#"},
        {"imemp:inves", "Investissements - Financements", "imemp#"},
        {"imemp:finan", "Plan de financement - PDE Cerfa", "imemp#"},
        {"imemp:immo0", "Immobilisations", "imemp#"},
        {"imemp:subv0", "Subventions", "imemp#"},
        {"imemp:empt0", "Emprunts", "imemp#"},
        {"imemp:empr2", "Emprunts - PDE Cerfa", "imemp#"},
        {"imemp:empr3", "Emprunts du JA - PDE Cerfa", "imemp#"},
        {"prime#", "Récapitulatifs primes", racine},
        {"prime:pricv", "Primes cultures de vente", "prime#"},
        // Kept as the models hold it: the renderer gives this one a single record.
        {"prime:p4ricf", "Primes cultures fourragères", "prime#"},
        {"prime:pricm", "Primes cultures maraîchères", "prime#"},
    };
}

bool DefinitionPermise(Contexte& ctx, const TableauModele& tableau, const LigneModele& ligne,
                       std::optional<TypeLigne> type) {
    if (!type) {
        Dire(ctx, "Veuillez d'abord sélectionner un type de valeur dans la liste.");
        return false;
    }
    if (CommenceParMot(ligne.definition, "newpg")) {
        Dire(ctx, "Les sauts de page ne sont pas paramétrables !");
        return false;
    }
    if (*type == TypeLigne::Espace) {
        Dire(ctx, "Pour insérer un commentaire dans cet espace et lui affecter une mise en forme, "
                  "cliquez l'autre bouton à gauche sur la ligne.");
        return false;
    }
    if (tableau.modeAnnees == kSansValeurs) {
        Dire(ctx, "Vous avez choisi de n'afficher aucune colonne de valeurs. Edition impossible !");
        return false;
    }
    return true;
}

} // namespace verdane
