#include "tables/LectureCode.h"

#include "shell/etat/Contexte.h"

#include <algorithm>
#include <optional>

namespace verdane {

namespace {

constexpr std::string_view kLarg = ";larg";

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

std::int16_t Chiffre(char c) {
    return EstChiffre(c) ? static_cast<std::int16_t>(c - '0') : 0;
}

bool Commence(std::string_view texte, std::string_view debut) {
    return texte.substr(0, debut.size()) == debut;
}

Texte SoulignesEnBlancs(std::string_view texte) {
    Texte t(texte);
    std::replace(t.begin(), t.end(), '_', ' ');
    return t;
}

// A bracket cut at its first ";": the text before it is returned; behind it, the nine fields
// of the text format before the ninth ";" and the frame after it. With fewer fields all of
// them are the text format; without ";" both formats are empty.
Texte CouperCellule(std::string_view contenu, Texte& formatTexte, Texte& formatCadre) {
    const std::size_t pointVirgule = contenu.find(';');
    formatTexte.clear();
    formatCadre.clear();
    if (pointVirgule != std::string_view::npos) {
        const std::string_view format = contenu.substr(pointVirgule + 1);
        const std::size_t position = PositionPointVirgule(format, 9);
        formatTexte = Texte(format.substr(0, position));
        if (position != std::string_view::npos) formatCadre = Texte(format.substr(position + 1));
    }
    return Texte(contenu.substr(0, pointVirgule));
}

// A multi-dossier line writes its year as a digit and "@" in front of a cell.
void PrendreAnnee(Texte& texte, LigneModele& ligne) {
    if (texte.size() > 1 && texte[1] == '@') {
        ligne.annee = Chiffre(texte[0]);
        texte.erase(0, 2);
    }
}

void LireCelluleLibelle(std::string_view crochet, bool multiDossier, LigneModele& ligne,
                        CelluleModele& cellule) {
    Texte contenu(crochet);
    if (multiDossier) PrendreAnnee(contenu, ligne);
    cellule.texte =
        SoulignesEnBlancs(CouperCellule(contenu, cellule.formatTexte, cellule.formatCadre));
}

void LireDefinition(std::string_view crochet, LigneModele& ligne) {
    ligne.definition =
        CouperCellule(SoulignesEnBlancs(crochet), ligne.formatTexte, ligne.formatCadre);
    PrendreAnnee(ligne.definition, ligne);
}

// Reads the head into `tableau` and gives the text of the lines.
std::string_view AnalyserEntete(std::string_view code, TableauModele& tableau) {
    code.remove_prefix(std::min<std::size_t>(3, code.size())); // "tab"
    if (!code.empty() && code.back() == ')') code.remove_suffix(1);

    if (!code.empty() && (code[0] == 'a' || code[0] == 'd')) {
        tableau.multiDossier = code[0] == 'd' ? 1 : 0;
        tableau.nbDossiers = code.size() > 1 ? Chiffre(code[1]) : 0;
        code.remove_prefix(std::min<std::size_t>(2, code.size()));
    } else {
        tableau.multiDossier = 0;
        tableau.nbDossiers = 2;
    }
    tableau.nbColonnes = 1;
    if (!code.empty() && code[0] == 'p') {
        tableau.nbColonnes = code.size() > 1 ? Chiffre(code[1]) : 0;
        code.remove_prefix(std::min<std::size_t>(2, code.size()));
    }
    tableau.centre = !code.empty() && code[0] == 'c' ? 1 : 0;
    if (tableau.centre) code.remove_prefix(1);
    tableau.rouge = !code.empty() && code[0] == 'r' ? 1 : 0;
    if (tableau.rouge) code.remove_prefix(1);
    tableau.modeAnnees = 0;
    if (!code.empty() && EstChiffre(code[0])) {
        tableau.modeAnnees = Chiffre(code[0]);
        code.remove_prefix(1);
    }

    tableau.largeurs.fill(kLargeurLibelleDefaut);
    tableau.largeurValeurs = kLargeurValeursDefaut;
    if (Commence(code, kLarg)) {
        for (int c = 0; c < tableau.ColonnesLibelle(); ++c) {
            if (!Commence(code, kLarg)) break;
            code.remove_prefix(kLarg.size());
            const std::size_t fin = std::min(code.find(';'), code.find('('));
            tableau.largeurs[static_cast<std::size_t>(c)] = NombreTableau(code.substr(0, fin));
            code.remove_prefix(std::min(fin, code.size()));
        }
        if (Commence(code, kLarg)) {
            code.remove_prefix(kLarg.size());
            tableau.largeurValeurs = NombreTableau(code.substr(0, code.find('(')));
        }
    }
    const std::size_t parenthese = code.find('(');
    return parenthese == std::string_view::npos ? std::string_view() : code.substr(parenthese + 1);
}

void AnalyserLignes(std::string_view texte, TableauModele& tableau) {
    tableau.lignes.clear();
    const bool multiDossier = tableau.multiDossier == 1;
    while (!texte.empty() && tableau.nbLignes() < kMaxLignesTableau) {
        const std::size_t diese = texte.find('#');
        std::string_view reste = texte.substr(0, diese);
        texte = diese == std::string_view::npos ? std::string_view() : texte.substr(diese + 1);

        const auto taille = PrendreCrochet(reste);
        if (!taille) break;
        LigneModele ligne;
        const std::size_t pointVirgule = taille->find(';');
        ligne.hauteur = NombreTableau(taille->substr(0, pointVirgule));
        ligne.retrait = pointVirgule == std::string_view::npos
                            ? std::int16_t{0}
                            : NombreTableau(taille->substr(pointVirgule + 1));
        for (int c = 0; c < tableau.ColonnesLibelle(); ++c) {
            LireCelluleLibelle(PrendreCrochet(reste).value_or("erreur"), multiDossier, ligne,
                               ligne.cellules[static_cast<std::size_t>(c)]);
        }
        LireDefinition(PrendreCrochet(reste).value_or("erreur"), ligne);
        tableau.lignes.push_back(std::move(ligne));
    }
}

} // namespace

std::optional<std::string_view> PrendreCrochet(std::string_view& reste) {
    const std::size_t ouvre = reste.find('[');
    const std::size_t ferme = ouvre == std::string_view::npos ? ouvre : reste.find(']', ouvre);
    if (ferme == std::string_view::npos) {
        reste = {};
        return std::nullopt;
    }
    const std::string_view dedans = reste.substr(ouvre + 1, ferme - ouvre - 1);
    reste.remove_prefix(ferme + 1);
    return dedans;
}

std::size_t PositionPointVirgule(std::string_view texte, int n) {
    std::size_t position = std::string_view::npos;
    for (std::size_t depart = 0; n > 0; --n, depart = position + 1) {
        position = texte.find(';', depart);
        if (position == std::string_view::npos) break;
    }
    return position;
}

std::int16_t NombreTableau(std::string_view texte) {
    while (!texte.empty() && (texte.front() == ' ' || texte.front() == '\t'))
        texte.remove_prefix(1);
    while (!texte.empty() && (texte.back() == ' ' || texte.back() == '\t')) texte.remove_suffix(1);
    std::size_t i = 0;
    const bool negatif = !texte.empty() && texte[0] == '-';
    if (!texte.empty() && (texte[0] == '-' || texte[0] == '+')) ++i;
    long valeur = 0;
    bool chiffres = false;
    for (; i < texte.size() && EstChiffre(texte[i]); ++i) {
        chiffres = true;
        if (valeur <= 100000) valeur = valeur * 10 + (texte[i] - '0');
    }
    int premiereDecimale = 0;
    bool suiteDecimale = false;
    if (i < texte.size() && (texte[i] == '.' || texte[i] == ',')) {
        for (std::size_t k = ++i; i < texte.size() && EstChiffre(texte[i]); ++i) {
            chiffres = true;
            if (i == k)
                premiereDecimale = texte[i] - '0';
            else if (texte[i] != '0')
                suiteDecimale = true;
        }
    }
    if (!chiffres || i != texte.size()) return 0;
    if (premiereDecimale > 5 || (premiereDecimale == 5 && (suiteDecimale || valeur % 2 == 1)))
        ++valeur;
    if (negatif) valeur = -valeur;
    if (valeur > 32767 || valeur < -32768) return 0;
    return static_cast<std::int16_t>(valeur);
}

void LirePrefixeTableau(Texte& code, TableauModele& tableau) {
    tableau.genre = kTableauClassique;
    tableau.typeEntete = 1;
    tableau.pageDebut = -1;
    static constexpr std::string_view kMots[] = {"culture", "cultper", "actlibr"};
    for (std::size_t g = 0; g < std::size(kMots); ++g) {
        if (!Commence(code, kMots[g])) continue;
        tableau.genre = static_cast<std::int16_t>(g + 1);
        std::size_t i = kMots[g].size();
        if (i < code.size() && code[i] != 't') {
            tableau.typeEntete = Chiffre(code[i]);
            const std::size_t t = std::min(code.find('t', ++i), code.size());
            if (t > i) tableau.pageDebut = NombreTableau(std::string_view(code).substr(i, t - i));
            i = t;
        }
        code.erase(0, i);
        return;
    }
}

void LireEnteteTableau(std::string_view code, TableauModele& tableau) {
    AnalyserEntete(code, tableau);
}

void LireLignesTableau(std::string_view code, TableauModele& tableau) {
    TableauModele entete;
    AnalyserLignes(AnalyserEntete(code, entete), tableau);
}

TableauModele LireCodeTableau(std::string_view code) {
    TableauModele tableau;
    Texte reste(code);
    LirePrefixeTableau(reste, tableau);
    const std::string_view lignes = AnalyserEntete(reste, tableau);
    AnalyserLignes(lignes, tableau);
    return tableau;
}

void LirePrefixeTableau(Contexte& ctx, Texte& code, int numero) {
    if (TableauModele* tableau = ctx.etat.tableaux.Tableau(numero))
        LirePrefixeTableau(code, *tableau);
}

void LireEnteteTableau(Contexte& ctx, std::string_view code, int numero) {
    if (TableauModele* tableau = ctx.etat.tableaux.Tableau(numero))
        LireEnteteTableau(code, *tableau);
}

void LireLignesTableau(Contexte& ctx, std::string_view code, int numero) {
    if (TableauModele* tableau = ctx.etat.tableaux.Tableau(numero))
        LireLignesTableau(code, *tableau);
}

} // namespace verdane
