#include "tables/LigneTableauRTF.h"

#include "engine/AnalyserCodes.h"

#include "data/ValeurCode.h"
#include "shell/etat/Contexte.h"
#include "tables/Cellules.h"
#include "tables/DefinitionLigne.h"
#include "tables/LignesDomaine.h"
#include "tables/StyleCellule.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>

namespace verdane {

namespace {

constexpr const char* kFinLigne = "\\row\\pard\\plain ";

Texte SansBlancsFinals(const Texte& t) {
    const auto fin = t.find_last_not_of(' ');
    return fin == Texte::npos ? Texte() : t.substr(0, fin + 1);
}

Texte CodeCellule(const Texte& texte, const Texte& formatTexte, const Texte& formatCadre) {
    return texte + ";" + formatTexte + ";" + formatCadre;
}

int Avancer(int position, int largeur) {
    return std::clamp(position + std::max(largeur, 0), 0, kPositionMax);
}

// The nine text fields of label cell 1 as a paragraph: no row, no frame.
Texte ParagrapheEspace(Contexte& ctx, const LigneModele& ligne) {
    const CelluleModele& c = ligne.cellules[0];
    const StyleCellule s = LireStyleCellule(c.formatTexte, "", ctx.etat.options);
    const long long decalage = ctx.etat.decalageCouleurs;
    const long long taille = std::clamp<long long>(2LL * s.taille, -3276, 3276);
    const Texte alignement = s.alignement.empty() ? Texte("l") : s.alignement;
    Texte r = "\\q" + alignement + "\\f" + std::to_string(s.police) + "\\fs" +
              std::to_string(taille) + "\\cf" + std::to_string(s.couleur + decalage);
    if (s.gras) r += "\\b";
    if (s.italique) r += "\\i";
    if (s.souligne) r += "\\ul";
    if (s.barre) r += "\\strike";
    if (s.ombre) r += "\\shad";
    Texte texte = RemplacerExact(SansBlancsFinals(c.texte), "_", " ");
    if (texte.find("%mrl(") != Texte::npos) AnalyserCodesImbriques(ctx, texte);
    return r + " " + texte + "\\par\\plain ";
}

Texte LigneClassique(Contexte& ctx, TableauModele& t, const LigneModele& ligne,
                     const Texte& prefixe) {
    int position = 0;
    Texte cellules;
    Texte definitions = prefixe;
    const bool cultureRepetee = CommencePar(ligne.definition, "scult") && t.typeEntete == 1;
    for (int c = 1; c <= t.ColonnesLibelle(); ++c) {
        const CelluleModele& cel = ligne.cellules[static_cast<std::size_t>(c - 1)];
        Texte texte = SansBlancsFinals(cel.texte);
        if (c == 1 && cultureRepetee && ctx.etat.tableaux.lignesDomaine)
            texte = ctx.etat.tableaux.lignesDomaine->LibelleCulture(ctx);
        position = Avancer(position, t.largeurs[static_cast<std::size_t>(c - 1)]);
        std::int16_t mode = t.modeAnnees;
        AjouterCellules(ctx, CodeCellule(texte, cel.formatTexte, cel.formatCadre), definitions,
                        cellules, position, true, mode);
    }
    AjouterCellules(ctx, CodeCellule(ligne.definition, ligne.formatTexte, ligne.formatCadre),
                    definitions, cellules, position, false, t.modeAnnees);
    if (EstValeursNulles(cellules)) return {};
    return definitions + cellules + kFinLigne;
}

// One row per record of pricult.don in the range that the sub-code names.
Texte BlocPrimes(Contexte& ctx, TableauModele& t, const LigneModele& ligne, const Texte& prefixe) {
    const Texte& def = ligne.definition;
    const Texte mot = def.size() > 6 ? def.substr(6, 5) : Texte();
    int premier = 0, dernier = 0;
    if (mot == "pricv") premier = 1, dernier = 21;
    if (mot == "pricf") premier = 23, dernier = 43;
    if (mot == "pricm") premier = 45, dernier = 65;
    const Texte reste = def.size() > 11 ? def.substr(11) : Texte();

    Texte rows;
    for (int k = premier; k <= dernier; ++k) {
        const Texte numero = std::to_string(k);
        int position = 0;
        Texte cellules;
        Texte definitions = prefixe;
        for (int c = 1; c <= t.ColonnesLibelle(); ++c) {
            const CelluleModele& cel = ligne.cellules[static_cast<std::size_t>(c - 1)];
            position = Avancer(position, t.largeurs[static_cast<std::size_t>(c - 1)]);
            Texte code = "pricult.don+pricult-i" + numero;
            std::int16_t annee = -1, decimales = -1;
            const Texte libelle = Rogner(ValeurCode(ctx, code, 20, annee, decimales, 0));
            std::int16_t mode = t.modeAnnees;
            AjouterCellules(ctx, CodeCellule(libelle, cel.formatTexte, cel.formatCadre),
                            definitions, cellules, position, true, mode);
        }
        AjouterCellules(ctx,
                        CodeCellule("serie:pricult.don+pricult-" + numero + reste,
                                    ligne.formatTexte, ligne.formatCadre),
                        definitions, cellules, position, false, t.modeAnnees);
        if (!EstValeursNulles(cellules)) rows += definitions + cellules + kFinLigne;
    }
    return rows;
}

} // namespace

Texte PrefixeLigne(const TableauModele& tableau, const LigneModele& ligne) {
    Texte p = "\\plain \\trowd";
    if (ligne.retrait > 10) p += "\\trgaph" + std::to_string(ligne.retrait);
    if (ligne.hauteur > 10) p += "\\trrh" + std::to_string(ligne.hauteur);
    p += tableau.centre == 1 ? "\\trqc" : "\\trleft0";
    return p;
}

Texte LigneTableauRTF(Contexte& ctx) {
    TableauModele* t = ctx.etat.tableaux.Tableau(1);
    const int n = ctx.etat.tableaux.ligneCourante;
    if (!t || !t->Ligne(n)) return {};
    // A copy: the domain rows may reload the tables.
    const LigneModele ligne = *t->Ligne(n);
    const Texte prefixe = PrefixeLigne(*t, ligne);
    LignesDomaine* domaine = ctx.etat.tableaux.lignesDomaine;

    switch (GenreDeLigne(ligne.definition)) {
    case GenreLigne::Espace:
        return ParagrapheEspace(ctx, ligne);
    case GenreLigne::Cultu:
    case GenreLigne::Cultp:
    case GenreLigne::Imemp:
        return domaine ? domaine->Lignes(ctx, GenreDeLigne(ligne.definition), n, prefixe) : Texte();
    case GenreLigne::Prime:
        return BlocPrimes(ctx, *t, ligne, prefixe);
    case GenreLigne::Newpg:
        return "}\\page {";
    default:
        return LigneClassique(ctx, *t, ligne, prefixe);
    }
}

} // namespace verdane
