#include "domain/TabsCultures.h"

#include "domain/CadreDomaine.h"
#include "domain/FichiersDomaine.h"
#include "domain/RangeeModele.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenererTableau.h"
#include "tables/LectureCode.h"
#include "tables/StyleCellule.h"
#include "utils/Chaines.h"

#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace verdane {

namespace {

Texte Couleur(const Etat& etat) {
    return std::to_string(etat.decalageCouleurs + 1);
}

const TableauModele* TableauCourant(const Etat& etat) {
    return etat.tableaux.TableauxCourants.empty() ? nullptr : &etat.tableaux.TableauxCourants[0];
}

void PoserCulture(EtatDomaine& d, const EnrCulture& c) {
    d.cultureCourante = c;
    d.numCulture = c.numero;
    d.libelleCulture = c.libelle;
    d.uniteCulture = UniteSurface(d.uniteSurface, false);
}

void PoserCulturePerenne(EtatDomaine& d, const EnrCulturePerenne& c) {
    d.culturePerenneCourante = c;
    d.numCulturePerenne = c.numero;
    d.libelleCulturePerenne = c.libelle;
    d.uniteCulturePerenne = UniteSurface(d.uniteSurface, true);
}

// Group of an annual crop: 0 vente, 1 fourragère, 2 maraîchère, -1 none.
int Groupe(int genre) {
    if (genre == 1 || genre == 2) return 0;
    if (genre == 3) return 1;
    if (genre == 4) return 2;
    return -1;
}

std::array<float, 14>* SommeDuNom(EtatDomaine& d, std::string_view nom) {
    if (nom.rfind("totalvente", 0) == 0) return &d.totalVente;
    if (nom.rfind("totalfourr", 0) == 0) return &d.totalFourrager;
    if (nom.rfind("totalmarai", 0) == 0) return &d.totalMaraicher;
    return nullptr;
}

// Record `n` of the current crop's file (or of its "t" file) at a year; 0 when missing.
struct LecteurCulture {
    const Etat& etat;
    bool perenne;
    int annee;
    float operator()(long long n, bool t = false, int decalage = 0) const {
        const float num = perenne ? etat.domaine.numCulturePerenne : etat.domaine.numCulture;
        return ValeurDon(etat, FichierDonCulture(etat, num, perenne, t), n, annee + decalage)
            .value_or(0.0f);
    }
};

float Diviser(float a, float b) {
    return b == 0 ? 0.0f : a / b;
}

// The record an annual crop reads for the renumbered codes, by its kind.
long long Renumeroter(long long n, int genre) {
    const bool stock = genre == 2 || genre == 3;
    switch (n) {
    case 18:
        return stock ? 19 : 17;
    case 19:
        return 20;
    case 21:
    case 24:
    case 25:
        return stock ? 26 : 24;
    case 65:
        return stock ? 71 : 66;
    default:
        return n;
    }
}

std::optional<float> Composite(std::string_view c, const LecteurCulture& r, int genre) {
    const bool t = !c.empty() && c.back() == 't';
    const std::string_view s = t ? c.substr(0, c.size() - 1) : c;
    auto R = [&](long long n) { return r(n, t); };
    if (c == "15+16+17/1") return Diviser(r(15) + r(16) + r(17), r(1));
    if (c == "18+19/1") return Diviser(r(18) + r(19), r(1));
    if (c == "20+21/1") return Diviser(r(20) + r(21), r(1));
    if (c == "23+24/1") return Diviser(r(23) + r(24), r(1));
    if (c == "22/1") return Diviser(r(22), r(1));
    if (c == "5/1") return Diviser(r(5), r(1));
    if (c == "65/1") return Diviser(r(65), r(1));
    if (c == "28+58+35/1") return Diviser(r(28) + r(58) + r(35), r(1));
    if (c == "28+58+35") return r(28) + r(58) + r(35);
    if (c == "63+65+67") return r(63) + r(65) + r(67);
    if (c == "63+65+67+69") return r(63) + r(65) + r(67) + r(69);
    if (s == "61+64+67") return R(61) + R(64) + R(67);
    if (c == "82a-1") return r(82, false, -1);
    if (c == "84a-1") return r(84, false, -1);
    if (s == "78x86/100/46") return Diviser(R(78) * R(86) / 100, R(46));
    if (s == "79x86/100/46") return Diviser(R(79) * R(86) / 100, R(46));
    if (s == "80+81/46") return Diviser(R(80) + R(81), R(46));
    if (s == "69x70/46") return Diviser(R(69) * R(70), R(46));
    if (s == "70/46") return Diviser(R(70), R(46));
    if (s == "77/46") return Diviser(R(77), R(46));
    if (s == "78/46") return Diviser(R(78), R(46));
    if (c == "74/69") return Diviser(r(74), r(69));
    if (c == "75-85+87/52t+53t+54t")
        return Diviser(r(75) - r(85) + r(87), r(52, true) + r(53, true) + r(54, true));
    if (c == "4cession") return r(4);
    if (c == "6-5") return r(6) - r(5);
    if (c == "13x1") return r(13) * r(1);
    if (c == "17x22/1") return Diviser(r(17) * r(22), r(1));
    if (!r.perenne) {
        if (c == "18x19") return r(Renumeroter(18, genre)) * r(Renumeroter(19, genre));
        for (const char* n : {"18", "19", "21", "24", "25", "65"})
            if (c == n) return r(Renumeroter(ValEntier(c), genre));
    }
    return std::nullopt;
}

// Sub-code and decimals of a row's definition "cultu:<name>:<d>..." and its zero rule.
struct CodeLigne {
    Texte nom;
    int decimales;
};

CodeLigne LireCodeLigne(const Texte& definition) {
    const DefinitionLigne d = AnalyserDefinition(definition);
    return {Minuscules(d.code), d.decimales};
}

// The line's code names `@14` or `@15`: the margin lines that a fourragère crop calls a cost.
bool LigneDeMarge(std::string_view definition) {
    for (const char* debut : {"scult:@14", "scult:@15"})
        if (definition.rfind(debut, 0) == 0) {
            const std::string_view suite = definition.substr(9);
            if (suite.empty() || suite[0] == ':' || suite[0] == ';') return true;
        }
    return false;
}

} // namespace

Texte CodeCoutNetOp(const Texte& code) {
    const auto ouvre = code.find('(');
    if (ouvre == Texte::npos) return code;
    Texte r = code.substr(0, ouvre + 1);
    std::size_t debut = ouvre + 1;
    for (;;) {
        const auto fin = code.find('#', debut);
        Texte ligne = code.substr(debut, fin == Texte::npos ? Texte::npos : fin - debut);
        // Brackets: [height;gap], the label cells, then the definition.
        const auto dernier = ligne.rfind('[');
        const auto premier = ligne.find('[', ligne.find(']') == Texte::npos ? 0 : ligne.find(']'));
        if (dernier != Texte::npos && premier != Texte::npos && premier < dernier &&
            LigneDeMarge(std::string_view(ligne).substr(dernier + 1))) {
            const auto finTexte = ligne.find_first_of(";]", premier + 1);
            ligne.replace(premier + 1, finTexte - premier - 1, "Coût_net_op.");
        }
        r += ligne;
        if (fin == Texte::npos) break;
        r += "#";
        debut = fin + 1;
    }
    return r;
}

RenduTableau RenduDuProgramme() {
    return [](Contexte& ctx, const Texte& code) { return GenererTableau(ctx, code); };
}

Texte UniteSurface(int unite, bool perenne) {
    switch (unite) {
    case 0:
        return "ha";
    case 1:
        return "are";
    case 2:
        return "m²";
    default:
        return perenne ? "autre" : "ha";
    }
}

Texte TypeCulture(int genre, bool derobee) {
    static const char* const kTypes[4][2] = {
        {"Culture de vente principale", "Culture de vente dérobée"},
        {"Culture de vente principale avec aliment prélevé",
         "Culture de vente dérobée avec aliment prélevé"},
        {"Culture fourragère principale", "Culture fourragère dérobée"},
        {"Culture maraîchère principale", "Culture maraîchère de vente dérobée"}};
    if (genre < 1 || genre > 4) return "";
    return kTypes[genre - 1][derobee ? 1 : 0];
}

Texte TypeCultureCourt(int genre) {
    static const char* const kCourts[4] = {"Cult. de vente", "Cult. alimentaire",
                                           "Cult. fourragère", "Cult. maraîchère"};
    return genre >= 1 && genre <= 4 ? kCourts[genre - 1] : "";
}

float SerieCultureParNom(const EtatDomaine& d, std::string_view texte, int colonne) {
    const Texte nom = Minuscules(texte.substr(0, texte.find(':')));
    if (colonne < 0) return 0;
    if (auto* somme = SommeDuNom(const_cast<EtatDomaine&>(d), nom))
        return colonne < 14 ? (*somme)[static_cast<std::size_t>(colonne)] : 0.0f;
    const int i = IndexSerieCulture(nom);
    if (i < 0 || colonne >= static_cast<int>(kValeursSerieCulture)) return 0;
    return d.cultureCourante.series[static_cast<std::size_t>(i)][static_cast<std::size_t>(colonne)];
}

float NombreArobaseCulture(const Etat& etat, std::string_view code, int annee, bool perenne) {
    if (!code.empty() && code.front() == '@') code.remove_prefix(1);
    code = code.substr(0, code.find(':'));
    const LecteurCulture r{etat, perenne, annee};
    if (Minuscules(code).rfind("assolemper", 0) == 0)
        return ValeurDon(etat, FichierDonCulture(etat, etat.domaine.numCulturePerenne, true), 1,
                         annee)
            .value_or(0.0f);
    if (auto v = Composite(code, r, etat.domaine.cultureCourante.genre)) return *v;
    const bool t = !code.empty() && code.back() == 't';
    const std::string_view n = t ? code.substr(0, code.size() - 1) : code;
    if (const auto numero = EntierStrict(n)) return r(*numero, t);
    return 0;
}

Texte ValeurArobaseCulture(Contexte& ctx, std::string_view code, int annee, bool perenne) {
    const auto deuxPoints = code.find(':');
    int dec = 7;
    if (deuxPoints != std::string_view::npos) dec = NombreTableau(code.substr(deuxPoints + 1));
    return TexteNombre(ctx.etat, NombreArobaseCulture(ctx.etat, code, annee, perenne), dec, false);
}

Texte LibelleLigneCulture(const Etat& etat, const TableauModele& tableau, const LigneModele& ligne,
                          int colonne, const Texte& texte) {
    const DefinitionLigne d = AnalyserDefinition(ligne.definition);
    if (d.genre == GenreLigne::Scult) {
        if (colonne == 1 && tableau.typeEntete == 1) return Rogner(etat.domaine.libelleCulture);
        Texte code = d.code;
        if (!code.empty() && code.front() == '@') code.erase(0, 1);
        if ((code == "14" || code == "15") && etat.domaine.cultureCourante.genre == 3 &&
            colonne == 1)
            return "Coût net op.";
    }
    return texte;
}

Texte LignesCultures(Contexte& ctx, int ligne, const Texte& prefixe) {
    const TableauModele* tableau = TableauCourant(ctx.etat);
    const LigneModele* modele = tableau ? tableau->Ligne(ligne) : nullptr;
    if (modele == nullptr) return "";
    EtatDomaine& d = ctx.etat.domaine;
    d.totalVente.fill(0);
    d.totalFourrager.fill(0);
    d.totalMaraicher.fill(0);
    const CodeLigne code = LireCodeLigne(modele->definition);
    const EnrCulture sauve = d.cultureCourante;
    std::array<Texte, 3> groupes;
    std::array<std::array<float, 14>*, 3> sommes = {&d.totalVente, &d.totalFourrager,
                                                    &d.totalMaraicher};
    // A missing list file gives nothing at all, total rows included.
    if (!FichierExiste(FichierDossier(ctx.etat, "cult.clt"))) return "";
    const int nbAnnees = std::clamp<int>(ctx.etat.nbAnEtude, 0, 10);
    for (const auto& culture : LireCultures(ctx.etat)) {
        const int g = Groupe(culture.genre);
        if (g < 0) continue;
        PoserCulture(d, culture);
        groupes[static_cast<std::size_t>(g)] += RangeeModele(
            ctx.etat, *tableau, *modele, prefixe, {Rogner(culture.libelle)},
            [&](int col) { return SerieCultureParNom(d, code.nom, col); }, code.decimales);
        const int assolement = IndexSerieCulture("assolement");
        for (int c = 1; c <= nbAnnees; ++c)
            (*sommes[static_cast<std::size_t>(g)])[static_cast<std::size_t>(c)] +=
                culture.series[static_cast<std::size_t>(assolement)][static_cast<std::size_t>(c)];
    }
    d.cultureCourante = sauve;
    if (code.nom.substr(0, 5) != "assol") return groupes[0] + groupes[1] + groupes[2];

    static const char* const kLibelles[3] = {"Cultures de vente", "Cult. fourragères",
                                             "Cult. maraîchères"};
    static const char* const kMots[3] = {"totalvente", "totalfourr", "totalmarai"};
    // The total rows: the line's cells in bold.
    LigneModele total = *modele;
    auto gras = [&](Texte& format, Texte& cadre) {
        StyleCellule style = LireStyleCellule(format, cadre, ctx.etat.options);
        style.gras = true;
        format = FormatTexteDe(style);
        cadre = FormatCadreDe(style);
    };
    for (auto& c : total.cellules) gras(c.formatTexte, c.formatCadre);
    gras(total.formatTexte, total.formatCadre);
    Texte rtf;
    for (std::size_t g = 0; g < 3; ++g) {
        rtf += groupes[g];
        rtf += RangeeModele(
            ctx.etat, *tableau, total, prefixe, {kLibelles[g]},
            [&](int col) { return SerieCultureParNom(d, kMots[g], col); }, code.decimales);
    }
    return rtf;
}

Texte LignesCulturesPerennes(Contexte& ctx, int ligne, const Texte& prefixe) {
    const TableauModele* tableau = TableauCourant(ctx.etat);
    const LigneModele* modele = tableau ? tableau->Ligne(ligne) : nullptr;
    if (modele == nullptr) return "";
    EtatDomaine& d = ctx.etat.domaine;
    const CodeLigne code = LireCodeLigne(modele->definition);
    const EnrCulturePerenne sauve = d.culturePerenneCourante;
    const float numSauve = d.numCulturePerenne;
    Texte rtf;
    for (const auto& culture : LireCulturesPerennes(ctx.etat)) {
        PoserCulturePerenne(d, culture);
        rtf += RangeeModele(
            ctx.etat, *tableau, *modele, prefixe, {Rogner(culture.libelle)},
            [&](int col) { return NombreArobaseCulture(ctx.etat, "assolemper", col, true); },
            code.decimales);
    }
    d.culturePerenneCourante = sauve;
    d.numCulturePerenne = numSauve;
    return rtf;
}

Texte BlocNumero(const Etat& etat, int prefixe, int compteur) {
    return "\\qr\\fs20\\cf" + Couleur(etat) + "\\b " + std::to_string(prefixe) + "-" +
           std::to_string(compteur) + "\\par \\plain ";
}

Texte BandeActivite(const Etat& etat, std::string_view libelle) {
    const Texte bords = "\\clbrdrt\\brdrs\\clbrdrb\\brdrs\\clbrdrl\\brdrs\\clbrdrr\\brdrs";
    return "\\trowd\\trgaph120\\trrh100\\trql " + bords + "\\cellx1500 " + bords + "\\cellx4000" +
           "\\ql\\intbl\\clvertalb{\\fs20\\cf" + Couleur(etat) + "\\b ACTIVITE :}\\cell" +
           "\\ql\\intbl\\clvertalb{\\fs20\\cf" + Couleur(etat) + " " + Rogner(libelle) +
           "}\\cell\\row\\pard\\plain ";
}

Texte BlocCulture(const Etat& etat, const EnrCulture& c) {
    const Texte couleur = Couleur(etat);
    const Texte ligne = "\\ql\\fs22\\cf" + couleur + " ";
    static const char* const kUnites[4] = {"qx", "T", "kg", "U"};
    const int u = c.unite.empty() ? -1 : c.unite[0] - '0';
    const Texte unite = u >= 0 && u <= 3 ? kUnites[u] : "";
    Texte valeurStock;
    if (const auto v = ValeurDon(etat, FichierDonCulture(etat, c.numero, false),
                                 (c.genre == 2 || c.genre == 3) ? 18 : 17, 1))
        valeurStock = TexteNombre(etat, *v, 7, false);
    return "\\par \\plain \\ql\\fs28\\cf" + couleur + "\\b     " + Rogner(c.libelle) +
           Texte(50, ' ') + TypeCulture(c.genre, c.derobee != 0) + "\\par \\plain " + ligne +
           "Unité : " + unite + "/" + etat.domaine.uniteCulture + "\\par \\plain " + ligne +
           "Valeur stock : " + valeurStock + (etat.enrDossier.devise == 0 ? " F" : " €") +
           "\\par \\plain \\par \\plain \\ql\\fs24\\cf" + couleur + " " +
           TypeCultureCourt(c.genre) + "\\par \\plain ";
}

Texte BlocCulturePerenne(const Etat& etat, const EnrCulturePerenne& c) {
    const Texte couleur = Couleur(etat);
    static const char* const kUnites[4] = {"hl", "T", "kg", "q"};
    const Texte unite = c.unite >= 0 && c.unite <= 3 ? kUnites[c.unite] : "";
    const Texte ans = TexteNombre(etat, c.pleineProduction, 7, false);
    return "\\par \\plain \\ql\\fs28\\cf" + couleur + "\\b     " + Rogner(c.libelle) +
           "\\par \\plain \\par\\par \\ql\\fs26\\cf" + couleur +
           "\\b        Caractéristiques :\\plain \\par \\ql\\fs22\\cf" + couleur +
           "            Unité de rendement : " + unite + "/" + etat.domaine.uniteCulturePerenne +
           "\\par \\ql\\fs22\\cf" + couleur + "            Pleine production : " + ans +
           (c.pleineProduction > 1 ? " ans" : " an") + "\\par \\ql\\fs22\\cf" + couleur +
           "            Durée d'amortissement : " +
           TexteNombre(etat, c.dureeAmortissement, 7, false) + " ans\\par\\plain ";
}

Texte TableauCultures(Contexte& ctx, const Texte& codeComplet, const RenduTableau& rendu) {
    Texte code = codeComplet;
    TableauModele entete;
    LirePrefixeTableau(code, entete);
    const bool perenne = entete.genre == kTableauCulturePerenne;
    EtatDomaine& d = ctx.etat.domaine;
    Texte rtf;
    auto ouvrir = [&](auto&& bloc, std::string_view libelle) {
        if (entete.pageDebut > 0)
            rtf += BlocNumero(ctx.etat, entete.pageDebut, ++d.compteurTableaux);
        if (entete.typeEntete == 1)
            rtf += bloc() + kParagraphe;
        else if (entete.typeEntete == 2)
            rtf += BandeActivite(ctx.etat, libelle) + kParagraphe;
    };
    if (perenne) {
        for (const auto& c : LireCulturesPerennes(ctx.etat)) {
            const Texte fichier = FichierDonCulture(ctx.etat, c.numero, true);
            if (!ctx.etat.fichiers.Existe(fichier)) continue;
            if (d.ignorerPerennesVides) {
                float somme = 0;
                for (int a = 1; a <= 6; ++a)
                    somme += ValeurDon(ctx.etat, fichier, 74, a).value_or(0.0f);
                if (somme == 0) continue;
            }
            PoserCulturePerenne(d, c);
            ouvrir([&] { return BlocCulturePerenne(ctx.etat, c); }, c.libelle);
            if (rendu) rtf += rendu(ctx, codeComplet);
        }
    } else {
        for (const auto& c : LireCultures(ctx.etat)) {
            PoserCulture(d, c);
            ouvrir([&] { return BlocCulture(ctx.etat, c); }, c.libelle);
            if (rendu) rtf += rendu(ctx, c.genre == 3 ? CodeCoutNetOp(codeComplet) : codeComplet);
        }
    }
    return rtf;
}

} // namespace verdane
