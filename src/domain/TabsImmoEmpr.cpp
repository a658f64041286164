#include "domain/TabsImmoEmpr.h"

#include "domain/CadreDomaine.h"
#include "domain/FichiersDomaine.h"
#include "domain/GestEPICerfa.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace verdane {

namespace {

struct Colonne {
    const char* titre;
    int bord;
    const char* alignement;
    bool groupe;  // a double border closes the group on the right
    bool montant; // shaded, and red when negative
};

enum class Liste { Immobilisations, Subventions, Emprunts };

const std::vector<Colonne> kColonnesImmo = {
    {"Libellé", 1500, "l", false, false},      {"Date réalisat.", 2400, "c", true, false},
    {"Montant", 3300, "r", false, true},       {"Type", 4000, "c", true, false},
    {"Durée", 4700, "c", false, false},        {"Type amort.", 5500, "c", false, false},
    {"Diff.", 6100, "c", false, false},        {"LSM", 6900, "r", true, true},
    {"Date Revente", 7800, "c", false, false}, {"Montant Revente", 8700, "r", true, true},
    {"Plus values", 9500, "r", false, true},
};

const std::vector<Colonne> kColonnesSub = {
    {"Libellé", 2200, "l", false, false}, {"Date réalisat.", 3100, "c", false, false},
    {"Montant", 4200, "c", false, true},  {"Type", 5100, "c", false, false},
    {"Durée", 5800, "c", false, false},   {"Date Echéance", 6800, "c", false, false},
};

const std::vector<Colonne> kColonnesEmpr = {
    {"Libellé", 1600, "l", false, false}, {"réalisat.", 2400, "c", false, false},
    {"Montant", 3300, "r", false, true},  {" Type", 3700, "c", false, false},
    {"Per.", 4200, "c", false, false},    {"Diff.", 4700, "c", true, false},
    {"Taux", 5350, "c", false, false},    {"Durée", 5950, "c", false, false},
    {"Diff.", 6600, "c", false, false},   {"Echéance", 7600, "r", true, true},
    {"Taux", 8250, "c", false, false},    {"Durée", 8800, "c", false, false},
    {"Echéance", 9650, "r", true, true},  {"fin", 10400, "c", false, false},
};

// The first header row of the loans, over the groups of columns.
const std::vector<Colonne> kColonnesEmpr1 = {
    {"", 1600, "c", false, false},        {"Date", 2400, "c", false, false},
    {"", 3300, "c", false, false},        {"", 3700, "c", false, false},
    {"", 4200, "c", false, false},        {"", 4700, "c", true, false},
    {"Taux : 1", 7600, "c", true, false}, {"Taux : 2", 9650, "c", true, false},
    {"Date", 10400, "c", false, false},
};

// Cells of one row of a list: header (bold on shading 16) or body.
Texte RangeeListe(const Etat& etat, const Texte& prefixe, const std::vector<Colonne>& colonnes,
                  const std::vector<Texte>& textes, const std::vector<float>& montants, bool entete,
                  const char* haut, const char* bas, bool blancFinal = false) {
    Texte def = prefixe, corps;
    const std::size_t n = colonnes.size();
    for (std::size_t i = 0; i < n; ++i) {
        CelluleFixe c;
        c.haut = haut;
        c.bas = bas;
        if (i == 0) c.gauche = "1";
        c.droite = i + 1 == n ? "1" : (colonnes[i].groupe ? "2" : "0");
        if (entete) {
            c.gras = true;
            c.fond = 16;
        } else {
            c.alignement = colonnes[i].alignement;
            if (colonnes[i].montant) {
                c.fond = 16;
                c.couleur = CouleurMontant(etat, i < montants.size() ? montants[i] : 0.0f);
            }
        }
        CelluleTexte(etat, def, corps, c, colonnes[i].bord, i < textes.size() ? textes[i] : "");
    }
    if (blancFinal) {
        // The subsidy list ends its rows with a blank unbordered cell.
        CelluleFixe c;
        c.gras = true;
        AjouterCelluleFixe(etat, def, corps, c, 9500);
        corps += " }\\cell";
    }
    return def + corps;
}

Texte Titre(const Etat& etat, const char* texte, const char* fin) {
    return "\\ql\\fs20\\cf" + std::to_string(etat.decalageCouleurs + 1) + "\\b\\i\\ul " + texte +
           fin;
}

const char* Lettre(const char* lettres, int n) {
    static thread_local char une[2] = {0, 0};
    const std::string_view l(lettres);
    if (n < 0 || static_cast<std::size_t>(n) >= l.size()) return "";
    une[0] = l[static_cast<std::size_t>(n)];
    return une;
}

const char* Mot(const std::vector<const char*>& mots, long long n) {
    return n >= 0 && static_cast<std::size_t>(n) < mots.size() ? mots[static_cast<std::size_t>(n)]
                                                               : "";
}

Texte Nombre(const Etat& etat, float v, int decimales) {
    return TexteNombre(etat, v, decimales, true);
}

Texte LigneImmo(const Etat& etat, const Texte& prefixe, const EnrImmo& e, int dec) {
    const float plusValues = static_cast<float>(e.plusValue1 + e.plusValue2);
    const std::vector<Texte> t = {
        LibelleListe(e.libelle, 21),
        DateCourte(e.dateRealisation),
        Nombre(etat, e.montant, dec),
        Lettre("FACIMSD", CodeEntier(e.type)),
        e.duree > 0 ? Nombre(etat, e.duree, 7) : Texte(),
        Mot({"Lin.", "Dég.", "Dér.", "Lib."}, CodeEntier(e.amortissement)),
        Nombre(etat, e.differe, 7),
        Nombre(etat, e.lsm, dec),
        DateCourte(e.dateRevente),
        Nombre(etat, e.montantRevente, dec),
        Nombre(etat, plusValues, dec)};
    const std::vector<float> m = {0,     0, e.montant,        0,         0, 0, 0,
                                  e.lsm, 0, e.montantRevente, plusValues};
    return RangeeListe(etat, prefixe, kColonnesImmo, t, m, false, "0", "0") + kFinLigne;
}

Texte LigneSub(const Etat& etat, const Texte& prefixe, const EnrImmo& e, int dec) {
    const std::vector<Texte> t = {Minuscules(Rogner(e.libelle)) + " ",
                                  DateCourte(e.dateRealisation),
                                  Nombre(etat, e.montant, dec),
                                  Mot({"A terme", "Lin."}, CodeEntier(e.type)),
                                  Nombre(etat, e.duree, 7),
                                  Rogner(e.dateRevente)};
    return RangeeListe(etat, prefixe, kColonnesSub, t, {0, 0, e.montant}, false, "0", "0", true) +
           kFinLigne;
}

Texte Pourcent(const Etat& etat, float taux) {
    return taux == 0 ? Texte() : TexteNombre(etat, taux, 7, false) + " %";
}

Texte LigneEmpr(const Etat& etat, const Texte& prefixe, const EnrEmprunt& e, int dec) {
    const std::vector<Texte> t = {LibelleListe(e.libelle, 22),
                                  DateCourte(e.dateRealisation),
                                  Nombre(etat, e.montant, dec) + "  ",
                                  Mot({"F", "M", "CT"}, e.type),
                                  Nombre(etat, e.periode, 7),
                                  Nombre(etat, e.differe, 7),
                                  Pourcent(etat, e.taux1),
                                  Nombre(etat, e.duree1, 7),
                                  Nombre(etat, e.differe1, 7),
                                  Nombre(etat, e.echeance1, dec) + "    ",
                                  Pourcent(etat, e.taux2),
                                  Nombre(etat, e.duree2, 7),
                                  Nombre(etat, e.echeance2, dec) + "    ",
                                  DateCourte(e.dateFin)};
    std::vector<float> m(t.size(), 0.0f);
    m[2] = e.montant;
    m[9] = e.echeance1;
    m[12] = e.echeance2;
    return RangeeListe(etat, prefixe, kColonnesEmpr, t, m, false, "0", "0") + kFinLigne;
}

struct Groupes {
    const char* nouveaux;
    const char* anciens;
    int largeur;
};

template <typename Enr, typename Ligne>
Texte TableauListe(Contexte& ctx, char variante, const Groupes& g, const Texte& entete,
                   const std::vector<Enr>& liste, Ligne ligne) {
    const Etat& etat = ctx.etat;
    if (variante == 's' || variante == 't') variante = '2';
    Texte rtf;
    if (variante == '0') rtf += Titre(etat, g.nouveaux, "\\par \\plain \\par \\plain ");
    if (variante == '1') rtf += Titre(etat, g.anciens, "\\par \\plain \\par \\plain ");
    rtf += entete;
    auto groupe = [&](int nouvelle) {
        Texte lignes;
        for (const auto& e : liste)
            if (e.nouvelle == nouvelle) lignes += ligne(e);
        return lignes.empty() ? lignes : kParagraphe + lignes;
    };
    if (variante == '2') rtf += kParagraphe + Titre(etat, g.anciens, kParagraphe);
    if (variante == '2' || variante == '1') rtf += groupe(0);
    if (variante == '2') rtf += kParagraphe + Titre(etat, g.nouveaux, kParagraphe);
    if (variante == '2' || variante == '0') rtf += groupe(1);
    return rtf + FinDeTableau(etat, g.largeur);
}

std::vector<Texte> Titres(const std::vector<Colonne>& colonnes) {
    std::vector<Texte> t;
    for (const auto& c : colonnes) t.emplace_back(c.titre);
    return t;
}

} // namespace

Texte LibelleListe(std::string_view libelle, std::size_t garde) {
    Texte t = Minuscules(Rogner(libelle));
    if (t.size() <= 22) return t + " ";
    t.resize(garde);
    if (t.back() != ' ') t += ".";
    return t;
}

Texte TableauImmobilisations(Contexte& ctx, char variante, int dec, const Texte& prefixe) {
    LireFichierInvest(ctx, 'i');
    const Etat& etat = ctx.etat;
    const Texte entete =
        RangeeListe(etat, prefixe, kColonnesImmo, Titres(kColonnesImmo), {}, true, "1", "1") +
        kFinLigne;
    return TableauListe(ctx, variante,
                        {"Immobilisations nouvelles", "Immobilisations anciennes", 9500}, entete,
                        etat.domaine.immobilisations,
                        [&](const EnrImmo& e) { return LigneImmo(etat, prefixe, e, dec); });
}

Texte TableauSubventions(Contexte& ctx, char variante, int dec, const Texte& prefixe) {
    LireFichierInvest(ctx, 's');
    const Etat& etat = ctx.etat;
    const Texte entete =
        RangeeListe(etat, prefixe, kColonnesSub, Titres(kColonnesSub), {}, true, "1", "1", true) +
        kFinLigne;
    return TableauListe(ctx, variante, {"Subventions nouvelles", "Subventions anciennes", 6800},
                        entete, etat.domaine.subventions,
                        [&](const EnrImmo& e) { return LigneSub(etat, prefixe, e, dec); });
}

Texte TableauEmprunts(Contexte& ctx, char variante, int dec, const Texte& prefixe) {
    LireFichierInvest(ctx, 'e');
    const Etat& etat = ctx.etat;
    const Texte entete =
        RangeeListe(etat, prefixe, kColonnesEmpr1, Titres(kColonnesEmpr1), {}, true, "1", "0") +
        kFinLigne +
        RangeeListe(etat, prefixe, kColonnesEmpr, Titres(kColonnesEmpr), {}, true, "0", "1") +
        kFinLigne;
    return TableauListe(ctx, variante, {"Emprunts nouveaux", "Emprunts anciens", 10400}, entete,
                        etat.domaine.emprunts,
                        [&](const EnrEmprunt& e) { return LigneEmpr(etat, prefixe, e, dec); });
}

Texte TableauImemp(Contexte& ctx, const Texte& code, const Texte& prefixeLigne) {
    const auto deuxPoints = code.find(':');
    if (deuxPoints == Texte::npos) return "";
    Texte prefixe = prefixeLigne;
    if (const auto g = prefixe.find("\\trgaph"); g != Texte::npos)
        prefixe.replace(g + 7, std::min<std::size_t>(3, prefixe.size() - g - 7), "5");
    const Texte reste = code.substr(deuxPoints + 1);
    const Texte sous = reste.substr(0, 5);
    int dec = 7;
    if (const auto second = reste.find(':'); second != Texte::npos) {
        const char c = second + 1 < reste.size() ? reste[second + 1] : ' ';
        dec = (c >= '0' && c <= '9') ? c - '0' : 0;
    }
    const char variante = sous.size() == 5 ? sous[4] : ' ';
    if (sous == "inve1") return TableauInve1(ctx, prefixe);
    if (sous == "inves") return TableauInvestissements(ctx, dec, prefixe);
    if (sous == "finan" || sous == "finaa") return TableauFinancements(ctx, variante, dec, prefixe);
    if (sous == "finap") return TableauPlansFinancement(ctx, dec, prefixe);
    if (sous == "immos" || sous == "immo0" || sous == "immo1" || sous == "immo2")
        return TableauImmobilisations(ctx, variante, dec, prefixe);
    if (sous == "subvt" || sous == "subv0" || sous == "subv1" || sous == "subv2")
        return TableauSubventions(ctx, variante, dec, prefixe);
    if (sous == "emprt" || sous == "empt0" || sous == "empt1" || sous == "empt2")
        return TableauEmprunts(ctx, variante, dec, prefixe);
    if (sous == "empr2") return TableauEcheancier(ctx, false, dec, prefixe);
    if (sous == "empr3") return TableauEcheancier(ctx, true, dec, prefixe);
    return "";
}

Texte LigneImemp(Contexte& ctx, int ligne, const Texte& prefixe) {
    if (ligne < 1 || ligne > 511) return "";
    auto* tableau = ctx.etat.tableaux.Tableau(1);
    if (tableau == nullptr) return "";
    const auto* l = tableau->Ligne(ligne);
    return l ? TableauImemp(ctx, l->definition, prefixe) : Texte();
}

} // namespace verdane
