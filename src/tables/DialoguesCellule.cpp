#include "tables/DialoguesCellule.h"

#include "shell/Options.h"
#include "utils/Chaines.h"

namespace verdane {

namespace {

constexpr const char* kTitreEdition = "Edition - Insertion des Tableaux";

bool LigneEspace(const LigneModele& ligne) {
    return CommencePar(Minuscules(Rogner(ligne.definition)), "espac");
}

std::optional<int> Nombre(const Texte& texte) {
    const auto n = EntierStrict(Rogner(texte));
    if (!n || *n < -32768 || *n > 32767) return std::nullopt;
    return static_cast<int>(*n);
}

} // namespace

Cadre LireCadre(const Texte& format) {
    Cadre c;
    std::size_t debut = 0;
    for (int champ = 0; champ < 5 && debut <= format.size(); ++champ) {
        std::size_t fin = format.find(';', debut);
        if (fin == Texte::npos) fin = format.size();
        const auto n = Nombre(format.substr(debut, fin - debut));
        if (champ < 4 && n && *n >= 0 && *n <= 2) c.bords[static_cast<std::size_t>(champ)] = *n;
        if (champ == 4 && n && *n >= 1 && *n <= 16) c.fond = *n;
        debut = fin + 1;
    }
    return c;
}

Texte EcrireCadre(const Cadre& c) {
    Texte t;
    for (int b : c.bords) t += std::to_string(b) + ";";
    return t + std::to_string(c.fond);
}

bool AppliquerCadre(Contexte& ctx, TableauModele* tableau, int numeroLigne, int cellule,
                    const Cadre& cadre, bool toutLaLigne) {
    LigneModele* ligne = tableau ? tableau->Ligne(numeroLigne) : nullptr;
    if (!ligne || cellule < 0 || cellule > tableau->ColonnesLibelle()) {
        ctx.utilisateur.Boite("Problème de sauvegarde de la définition", kTitreEdition,
                              Icone::Attention);
        return false;
    }
    if (LigneEspace(*ligne)) {
        ctx.utilisateur.Boite("Dans le cas d'une ligne d'espace, cette définition ne sera pas "
                              "prise en compte puisqu'il ne s'agit alors plus de cellules !",
                              kTitreEdition, Icone::Information);
        return false;
    }
    if (!MiseEnFormePermise(ctx, *ligne)) return false;
    const Texte texte = EcrireCadre(cadre);
    if (toutLaLigne || cellule == 0) ligne->formatCadre = texte;
    for (int c = 1; c <= tableau->ColonnesLibelle(); ++c)
        if (toutLaLigne || c == cellule)
            ligne->cellules[static_cast<std::size_t>(c - 1)].formatCadre = texte;
    return true;
}

bool MiseEnFormePermise(Contexte& ctx, const LigneModele& ligne) {
    if (!CommencePar(Minuscules(Rogner(ligne.definition)), "imemp")) return true;
    ctx.utilisateur.Boite("Ce modèle de tableau ne peut recevoir une mise en forme personnalisée.",
                          kTitreEdition, Icone::Information);
    return false;
}

Texte TexteHauteur(int hauteur) {
    return hauteur <= 10 ? Texte("AUTO") : std::to_string(hauteur);
}

std::optional<std::int16_t> HauteurDeTexte(const Texte& texte) {
    if (Majuscules(Rogner(texte)) == "AUTO") return std::int16_t{0};
    const auto n = Nombre(texte);
    if (!n || *n < 0) return std::nullopt;
    return static_cast<std::int16_t>(*n);
}

std::vector<Texte> HauteursProposees() {
    std::vector<Texte> t{"AUTO"};
    for (int h = 100; h <= 2000; h += 100) t.push_back(std::to_string(h));
    return t;
}

std::vector<Texte> RetraitsProposes() {
    std::vector<Texte> t;
    for (int r = 0; r <= 600; r += 20) t.push_back(std::to_string(r));
    return t;
}

bool TailleModifiable(Contexte& ctx, const LigneModele& ligne) {
    if (!LigneEspace(ligne)) return true;
    ctx.utilisateur.Boite("Vous ne pouvez modifier la taille d'une ligne d'espace ( ce n'est pas "
                          "une ligne de cellules ).",
                          kTitreEdition, Icone::Information);
    return false;
}

Texte QuestionLargeur(int colonne, int nbColonnes) {
    if (colonne <= 0) return "Définir la largeur totale des colonnes de valeurs :";
    if (nbColonnes <= 1) return "Définir la largeur de la colonne de libellé :";
    const Texte rang = colonne == 1 ? Texte("1ère") : std::to_string(colonne) + "ème";
    return "Définir la largeur de la " + rang + " colonne de libellé :";
}

Texte AideLargeurValeurs() {
    return "Par exemple, si vous choisissez une largeur de 9000 pour les colonnes de valeurs et "
           "que vous créez le tableau lorsque le dossier Marlo lié comporte 6 années d'exercice, "
           "la largeur de chaque colonne de valeur sera donc de 9000 / 6, soit 1500.";
}

std::vector<Texte> PagesDebutProposees() {
    std::vector<Texte> t{"aucune"};
    for (int p = 1; p <= 99; ++p) t.push_back(std::to_string(p));
    return t;
}

std::int16_t PageDebutDeChoix(int choix) {
    return choix <= 0 || choix > 99 ? std::int16_t{-1} : static_cast<std::int16_t>(choix);
}

int ChoixDePageDebut(std::int16_t pageDebut) {
    return pageDebut >= 1 && pageDebut <= 99 ? pageDebut : 0;
}

const std::vector<Texte>& TextesGenresDefauts() {
    static const std::vector<Texte> textes = {"Intitulé",
                                              "Série de données",
                                              "Calcul",
                                              "Lignes pré-définies",
                                              "Séries de cultures (pérennes)",
                                              "Séries d'activités libres ani."};
    return textes;
}

std::array<Texte, 2> PaireDefaut(const Options& options, int genre) {
    std::array<Texte, 2> paire;
    for (std::size_t i = 0; i < 2; ++i) {
        const std::size_t k = static_cast<std::size_t>(2 * genre) + i;
        const Texte f = genre >= 0 && k < options.FormatsDefaut.size()
                            ? Rogner(options.FormatsDefaut[k])
                            : Texte{};
        paire[i] = f.empty() ? Texte(kFormatDefaut) : f;
    }
    return paire;
}

const std::vector<Texte>& TextesAlignements() {
    static const std::vector<Texte> textes = {"gauche", "centré", "droite"};
    return textes;
}

Texte AlignementDeTexte(const Texte& choix) {
    if (choix == "centré") return "c";
    if (choix == "droite") return "r";
    return "l";
}

Texte TexteAlignement(const Texte& code) {
    const Texte c = Minuscules(Rogner(code));
    return c == "c" ? Texte("centré") : c == "r" ? Texte("droite") : Texte("gauche");
}

bool ValiderParametres(Contexte& ctx, int taille, const Texte& alignement,
                       const std::array<Texte, 12>& formats) {
    Options& o = ctx.etat.options;
    o.TailleDefaut = static_cast<std::int16_t>(taille >= 8 && taille <= 72 ? taille : 10);
    o.AlignementDefaut = AlignementDeTexte(alignement);
    for (std::size_t i = 0; i < formats.size(); ++i)
        o.FormatsDefaut[i] = EcrireCadre(LireCadre(formats[i]));
    if (EnregistrerOptions(ctx.etat)) return true;
    ctx.utilisateur.Boite("Les paramètres n'ont pu être enregistrés dans " +
                              FichierOptions(ctx.etat) + ".",
                          kTitreEdition, Icone::Attention);
    return false;
}

} // namespace verdane
