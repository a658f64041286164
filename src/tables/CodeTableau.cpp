#include "tables/CodeTableau.h"

#include "shell/etat/Contexte.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>

namespace verdane {

namespace {

// One digit of the code: values beyond it are held to the nearest one.
char Chiffre(int valeur) {
    return static_cast<char>('0' + std::clamp(valeur, 0, 9));
}

} // namespace

Texte FormatComplet(const Texte& format, std::string_view defaut) {
    if (Rogner(format).empty()) return Texte(defaut);
    Texte complet = format;
    const auto champs = static_cast<int>(std::count(format.begin(), format.end(), ';')) + 1;
    const std::size_t suite = PositionPointVirgule(defaut, champs);
    if (suite != std::string_view::npos) complet += defaut.substr(suite);
    return complet;
}

namespace {

void AjouterFormat(Texte& code, const Texte& formatTexte, const Texte& formatCadre,
                   const Texte& texteDefaut) {
    code += ';';
    code += FormatComplet(formatTexte, texteDefaut);
    code += ';';
    code += FormatComplet(formatCadre, kCadreVide);
}

void AjouterEntete(Texte& code, const TableauModele& tableau) {
    static constexpr const char* kMots[] = {"culture", "cultper", "actlibr"};
    const bool multiDossier = tableau.multiDossier == 1;
    if (!multiDossier && tableau.genre >= kTableauCulture &&
        tableau.genre <= kTableauActiviteLibre) {
        code += kMots[tableau.genre - 1];
        code += Chiffre(tableau.typeEntete);
        if (tableau.pageDebut != -1) code += std::to_string(tableau.pageDebut);
    }
    code += "tab";
    code += multiDossier ? 'd' : 'a';
    code += Chiffre(tableau.nbDossiers);
    code += 'p';
    code += Chiffre(tableau.ColonnesLibelle());
    if (tableau.centre != 0) code += 'c';
    if (tableau.rouge != 0) code += 'r';
    if (tableau.modeAnnees >= 0 && tableau.modeAnnees <= 9) code += Chiffre(tableau.modeAnnees);
    for (int c = 0; c < tableau.ColonnesLibelle(); ++c)
        code += ";larg" + std::to_string(tableau.largeurs[static_cast<std::size_t>(c)]);
    code += ";larg" + std::to_string(tableau.largeurValeurs);
    code += '(';
}

void AjouterLigne(Texte& code, const TableauModele& tableau, const LigneModele& ligne,
                  const Texte& texteDefaut) {
    code += '[' + std::to_string(ligne.hauteur) + ';' + std::to_string(ligne.retrait) + ']';
    // The reader takes a digit and "@" off the front of a cell (of a label only in mode "d"):
    // a text that begins so gets the line's year in front, to read back as it was.
    const auto annee = [&](const Texte& texte, bool ecrite) {
        if (ecrite || (texte.size() > 1 && texte[1] == '@')) {
            code += Chiffre(ligne.annee);
            code += '@';
        }
    };
    const bool multiDossier = tableau.multiDossier == 1;
    for (int c = 0; c < tableau.ColonnesLibelle(); ++c) {
        const CelluleModele& cellule = ligne.cellules[static_cast<std::size_t>(c)];
        code += '[';
        if (multiDossier) annee(cellule.texte, false);
        code += cellule.texte;
        AjouterFormat(code, cellule.formatTexte, cellule.formatCadre, texteDefaut);
        code += ']';
    }
    code += '[';
    annee(ligne.definition, multiDossier && ligne.definition.starts_with("serie"));
    code += ligne.definition;
    AjouterFormat(code, ligne.formatTexte, ligne.formatCadre, texteDefaut);
    code += ']';
}

} // namespace

Texte FormatTexteDefaut(const Options& options) {
    const int taille = options.TailleDefaut > 0 ? options.TailleDefaut : 10;
    const Texte alignement = Rogner(options.AlignementDefaut);
    return "5006;" + std::to_string(taille) + ";1;0;0;0;0;0;" +
           (alignement.empty() ? Texte("l") : alignement);
}

Texte CodeModele(const TableauModele& tableau, const Options& options, int& ligneIncomplete,
                 bool toutesLesLignes) {
    const Texte texteDefaut = FormatTexteDefaut(options);
    ligneIncomplete = 0;
    Texte code;
    AjouterEntete(code, tableau);
    const int nbLignes = std::min<int>(tableau.nbLignes(), kMaxLignesTableau);
    for (int n = 1; n <= nbLignes; ++n) {
        const LigneModele& ligne = *tableau.Ligne(n);
        if (Rogner(ligne.definition).empty() && ligneIncomplete == 0) {
            ligneIncomplete = n;
            if (!toutesLesLignes) break;
        }
        if (n > 1) code += '#';
        AjouterLigne(code, tableau, ligne, texteDefaut);
    }
    code += ')';
    std::replace(code.begin(), code.end(), ' ', '_');
    return code;
}

Texte CodeTableau(Contexte& ctx, int numero, bool silencieux) {
    const TableauModele* tableau = ctx.etat.tableaux.Tableau(numero);
    if (tableau == nullptr) return {};
    int ligneIncomplete = 0;
    Texte code = CodeModele(*tableau, ctx.etat.options, ligneIncomplete);
    if (ligneIncomplete == 0) return code;
    if (silencieux) return {};
    Texte texte = "Il vous faut définir les cellules de la ligne " +
                  std::to_string(ligneIncomplete) + " du tableau n°" + std::to_string(numero) +
                  " \"" + tableau->nom + "\" dans le dossier \"" + tableau->dossier;
    if (!Rogner(tableau->sousDossier).empty())
        texte += "\", sous-dossier : \"" + tableau->sousDossier + "\".";
    else
        texte += "\".";
    ctx.utilisateur.AfficherMessage(
        Message{texte, "", "Edition d'un tableau : définition incomplète !", ""});
    return code;
}

} // namespace verdane
