#include "tables/Cellules.h"

#include "engine/AnalyserCodes.h"

#include "data/FormatNombre.h"
#include "data/ValeurCode.h"
#include "shell/etat/Contexte.h"
#include "tables/DefinitionLigne.h"
#include "tables/EntetesTableau.h"
#include "tables/Formules.h"
#include "tables/LignesDomaine.h"
#include "tables/StyleCellule.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace verdane {

namespace {

constexpr std::size_t kChampsCellule = 15; // the text and the fourteen format fields

const TableauModele& TableauEnCours(Contexte& ctx) {
    static const TableauModele kVide{};
    const TableauModele* t = ctx.etat.tableaux.Tableau(1);
    return t ? *t : kVide;
}

Texte Nombre(long long n) {
    return std::to_string(n);
}

long long Entier(std::string_view t) {
    return ValEntier(t);
}

// The right edge moved by `largeur`, kept within 0..kPositionMax.
int Avancer(int position, long long largeur) {
    return static_cast<int>(
        std::clamp<long long>(position + std::max<long long>(largeur, 0), 0, kPositionMax));
}

// The alignment letters RTF knows; anything else aligns left.
Texte Alignement(std::string_view a) {
    return (a == "l" || a == "c" || a == "r" || a == "j") ? Texte(a) : Texte("l");
}

std::vector<Texte> Decouper(const Texte& code) {
    std::vector<Texte> champs(1);
    for (char c : code) {
        if (c == ';') {
            if (champs.size() == kChampsCellule) break; // fields beyond the fifteenth: ignored
            champs.emplace_back();
        } else {
            champs.back() += c;
        }
    }
    return champs;
}

// Fields `de` to `a` - 1 joined again; empty when none of them holds anything, so that a
// cell without format takes the defaults of a new cell.
Texte Joindre(const std::vector<Texte>& champs, std::size_t de, std::size_t a) {
    Texte t;
    bool vide = true;
    for (std::size_t i = de; i < a && i < champs.size(); ++i) {
        if (i > de) t += ';';
        t += champs[i];
        vide = vide && Rogner(champs[i]).empty();
    }
    return vide ? Texte() : t;
}

void RemplacerCodes(Contexte& ctx, Texte& texte) {
    if (texte.find("%mrl(") != Texte::npos) AnalyserCodesImbriques(ctx, texte);
}

// Label text of a line, for the question of its zero rule: the first label cell of 1, 2, 3
// that holds something.
Texte LibelleDeLigne(Contexte& ctx, const LigneModele* ligne) {
    if (!ligne) return {};
    for (std::size_t c = 0; c < 3; ++c) {
        if (Rogner(ligne->cellules[c].texte).empty()) continue;
        Texte t = ligne->cellules[c].texte;
        RemplacerCodes(ctx, t);
        return RemplacerExact(t, "_", " ");
    }
    return {};
}

// Width of one value column: the block shared among `n`, rounded half to even.
int LargeurColonne(int largeurValeurs, int n) {
    if (n <= 0) return 0;
    const int l = std::max(largeurValeurs, 0);
    int q = l / n;
    const int r = l % n;
    if (2 * r > n || (2 * r == n && q % 2 == 1)) ++q;
    return q;
}

Texte TitreEntete(Contexte& ctx, const TableauModele& t, const DefinitionLigne& d, int colonne,
                  int modeAnnees) {
    const auto dp = d.reste.find(':');
    const Texte forme = dp == Texte::npos ? Texte("1") : d.reste.substr(0, dp);
    if (t.multiDossier == 1) return TitreDossier(ctx, colonne, forme);
    if (modeAnnees == kPremiereEtDerniere) {
        const Texte paire = dp == Texte::npos ? Texte() : d.reste.substr(dp + 1);
        const auto et = paire.find('&');
        if (et == Texte::npos)
            return colonne == 1 ? Texte("1ère année de prévision") : Texte("Fin de prévision");
        return colonne == 1 ? paire.substr(0, et) : paire.substr(et + 1);
    }
    return TitreAnnee(ctx, colonne, forme);
}

Texte ValeurDomaine(Contexte& ctx, GenreLigne genre, const Texte& reste, int colonne) {
    LignesDomaine* domaine = ctx.etat.tableaux.lignesDomaine;
    return domaine ? domaine->Valeur(ctx, genre, reste, colonne) : Texte();
}

// The text of value cell `colonne`, recorded for the formulas when it is a number.
Texte TexteValeur(Contexte& ctx, const TableauModele& t, const LigneModele* ligne,
                  const Texte& definition, const DefinitionLigne& d, int colonne,
                  std::int16_t modeAnnees, int annexe, Texte& cellules) {
    Texte texte;
    switch (d.genre) {
    case GenreLigne::Entete:
        return TitreEntete(ctx, t, d, colonne, modeAnnees);
    case GenreLigne::Serie: {
        Texte code = d.code;
        const auto tiret = code.find('-');
        const int posTiret = tiret == Texte::npos ? 0 : static_cast<int>(tiret + 1);
        std::int16_t decimales = static_cast<std::int16_t>(d.decimales);
        const bool multi = t.multiDossier == 1;
        std::int16_t annee =
            static_cast<std::int16_t>(multi ? (ligne ? ligne->annee : 0) : colonne);
        texte = ValeurCode(ctx, code, posTiret, annee, decimales, multi ? colonne : 0);
        PoserValeur(ctx, texte, cellules, colonne);
        return texte;
    }
    case GenreLigne::TotalS:
    case GenreLigne::TotalC: {
        TableauFormule tf;
        tf.modeAnnees = modeAnnees;
        texte = EvaluerFormule(ctx, d.reste, colonne, tf);
        PoserValeur(ctx, texte, cellules, colonne);
        return texte;
    }
    case GenreLigne::Cultu:
    case GenreLigne::Cultp:
        texte = ValeurDomaine(ctx, d.genre, d.reste, colonne);
        PoserValeur(ctx, texte, cellules, 0);
        return texte;
    case GenreLigne::Scult:
    case GenreLigne::Scltp:
    case GenreLigne::ALani:
        texte = ValeurDomaine(ctx, d.genre, d.reste, colonne);
        PoserValeur(ctx, texte, cellules, colonne);
        return texte;
    case GenreLigne::Imemp:
        if (annexe != 0) {
            Texte code = "IMMORES.DON+IMMORES-" + Nombre(colonne) + "a" + Nombre(annexe);
            std::int16_t annee = -1;
            std::int16_t decimales = static_cast<std::int16_t>(d.decimales);
            texte = ValeurCode(ctx, code, 20, annee, decimales, 0);
        } else {
            texte = ValeurDomaine(ctx, d.genre, d.reste, colonne);
        }
        PoserValeur(ctx, texte, cellules, 0);
        return texte;
    default:
        return definition;
    }
}

bool RegleZeroApplicable(GenreLigne g) {
    return g == GenreLigne::Serie || g == GenreLigne::TotalS || g == GenreLigne::TotalC ||
           g == GenreLigne::Scult || g == GenreLigne::Scltp || g == GenreLigne::ALani;
}

void AppliquerRegleZero(Contexte& ctx, const LigneModele* ligne, const DefinitionLigne& d,
                        int nombre, Texte& cellules) {
    const int n = ctx.etat.tableaux.ligneCourante;
    if (n < 1 || n > kMaxLignesTableau) return;
    const auto& valeurs = ctx.etat.tableaux.valeursLignes;
    bool nulle = true;
    for (int c = 0; c <= std::min(nombre, 15) && nulle; ++c)
        nulle = valeurs[static_cast<std::size_t>(c)][static_cast<std::size_t>(n)] == 0.0f;
    if (nulle && d.regleZero == kZeroMasquer) cellules = Texte(kValeursNulles);
    if (nulle && d.regleZero == kZeroDemander) {
        const Texte question = "La ligne " + d.mot.substr(0, 5) + " '" +
                               LibelleDeLigne(ctx, ligne) +
                               "' d'un tableau ne contient que des valeurs nulles. \r\n"
                               "Souhaitez-vous l'afficher dans le document ?";
        if (ctx.utilisateur.Question(question, "Ligne de valeurs nulles", Boutons::OuiNon,
                                     Reponse::Oui, Icone::Question) == Reponse::Non)
            cellules = Texte(kValeursNulles);
    }
    if (d.regleZero == kZeroJamais) cellules = Texte(kValeursNulles);
}

} // namespace

bool EstValeursNulles(std::string_view cellules) {
    return cellules.size() == kValeursNulles.size() && EgalSansCasse(cellules, kValeursNulles);
}

void FormatCellule(const Contexte& ctx, Texte& definitions, Texte& cellules, std::string_view haut,
                   std::string_view bas, std::string_view gauche, std::string_view droite,
                   std::string_view fond, int position, Texte& police, std::string_view taille,
                   std::string_view couleur, std::string_view gras, std::string_view italique,
                   std::string_view souligne, std::string_view barre, std::string_view ombre,
                   std::string_view alignement) {
    const long long decalage = ctx.etat.decalageCouleurs;
    struct Cote {
        std::string_view valeur;
        const char* mot;
    };
    const Cote cotes[] = {{haut, "t"}, {bas, "b"}, {gauche, "l"}, {droite, "r"}};
    for (const Cote& c : cotes) {
        if (c.valeur == "1") definitions += std::string(" \\clbrdr") + c.mot + "\\brdrs";
        if (c.valeur == "2") definitions += std::string(" \\clbrdr") + c.mot + "\\brdrdb";
    }
    definitions += "\\clvertalc\\clcbpat" + Nombre(Entier(fond) + decalage) + "\\cellx" +
                   Nombre(std::clamp(position, -kPositionMax, kPositionMax));

    if (Entier(police) < kPremierePolice) police = std::to_string(kPoliceDefaut);
    cellules += "\\q" + Alignement(alignement) + "\\intbl\\clvertalb{\\fs" +
                Nombre(Entier(taille)) + "\\f" + Nombre(Entier(police)) + "\\cf" +
                Nombre(Entier(couleur) + decalage);
    if (gras == "1") cellules += "\\b";
    if (italique == "1") cellules += "\\i";
    if (souligne == "1") cellules += "\\ul";
    if (barre == "1") cellules += "\\strike";
    if (ombre == "1") cellules += "\\shad";
}

void FormatCellule(const Contexte& ctx, Texte& definitions, Texte& cellules, const StyleCellule& s,
                   int position) {
    // Sizes in points, as a model keeps them: doubled, 0 (and nonsense) printing at 8 points.
    long long demiPoints = 2LL * s.taille;
    if (demiPoints <= 0) demiPoints = 16;
    demiPoints = std::min<long long>(demiPoints, 3276);
    auto drapeau = [](bool b) { return b ? "1" : "0"; };
    Texte police = Nombre(s.police);
    FormatCellule(ctx, definitions, cellules, Nombre(s.haut), Nombre(s.bas), Nombre(s.gauche),
                  Nombre(s.droite), Nombre(s.fond), position, police, Nombre(demiPoints),
                  Nombre(s.couleur), drapeau(s.gras), drapeau(s.italique), drapeau(s.souligne),
                  drapeau(s.barre), drapeau(s.ombre), s.alignement);
}

void PoserValeur(Contexte& ctx, Texte& texte, Texte& cellules, int colonne) {
    if (Rogner(texte).empty()) texte = "0";
    const auto valeur = LireNombre(RognerTout(texte), ctx.etat.marques);
    const int ligne = ctx.etat.tableaux.ligneCourante;
    if (ligne >= 1 && ligne <= kMaxLignesTableau && colonne >= 0 && colonne <= 15)
        ctx.etat.tableaux
            .valeursLignes[static_cast<std::size_t>(colonne)][static_cast<std::size_t>(ligne)] =
            valeur ? static_cast<float>(*valeur) : 0.0f;
    if (!valeur) return;
    if (*valeur < 0 && TableauEnCours(ctx).rouge == 1) {
        const auto cf = cellules.rfind("\\cf");
        if (cf != Texte::npos) {
            std::size_t fin = cf + 3;
            if (fin < cellules.size() && cellules[fin] == '-') ++fin;
            while (fin < cellules.size() && cellules[fin] >= '0' && cellules[fin] <= '9') ++fin;
            cellules.replace(cf + 3, fin - cf - 3, Nombre(ctx.etat.decalageCouleurs + 6LL));
        }
    }
    if (*valeur == 0) texte = " ";
}

void AjouterCellules(Contexte& ctx, const Texte& celluleCode, Texte& definitions, Texte& cellules,
                     int& position, bool estLibelle, std::int16_t& modeAnnees, int annexe) {
    const std::size_t depart = cellules.size(); // the trace is looked for in what is added
    const std::vector<Texte> champs = Decouper(celluleCode);
    Texte texte = champs[0];
    if (Rogner(texte).empty()) texte = " ";
    const StyleCellule style =
        LireStyleCellule(Joindre(champs, 1, 10), Joindre(champs, 10, 15), ctx.etat.options);

    if (estLibelle) {
        FormatCellule(ctx, definitions, cellules, style, position);
        RemplacerCodes(ctx, texte);
        cellules += " " + RemplacerExact(texte, "_", " ") + "}\\cell";
    } else {
        const TableauModele& t = TableauEnCours(ctx);
        const LigneModele* ligne = t.Ligne(ctx.etat.tableaux.ligneCourante);
        const DefinitionLigne d = AnalyserDefinition(texte);

        int nombre;
        if (t.multiDossier == 1) {
            nombre = std::clamp<int>(t.nbDossiers, 0, 9);
            modeAnnees = 0;
        } else if (modeAnnees == kSansValeurs) {
            nombre = 1;
        } else {
            nombre = std::clamp<int>(ctx.etat.nbAnEtude, 0, 13);
        }
        const int largeur = LargeurColonne(t.largeurValeurs, nombre);
        if (modeAnnees != kSansValeurs) {
            for (int c = modeAnnees == kAnneeDebutEtToutes ? 0 : 1; c <= nombre; ++c) {
                if (modeAnnees == kPremiereEtDerniere && c != 1 && c != nombre) continue;
                position = Avancer(position, largeur);
                FormatCellule(ctx, definitions, cellules, style, position);
                const Texte valeur =
                    TexteValeur(ctx, t, ligne, texte, d, c, modeAnnees, annexe, cellules);
                cellules += " " + valeur + "}\\cell";
            }
        }
        const int n = ctx.etat.tableaux.ligneCourante;
        if (modeAnnees == kPremiereEtDerniere && n >= 1 && n <= kMaxLignesTableau)
            for (int c = 2; c <= nombre - 1; ++c)
                ctx.etat.tableaux
                    .valeursLignes[static_cast<std::size_t>(c)][static_cast<std::size_t>(n)] = 0.0f;
        if (RegleZeroApplicable(d.genre)) AppliquerRegleZero(ctx, ligne, d, nombre, cellules);
    }

    // A trace that a model's author leaves in a cell.
    const std::size_t recherche = cellules.size() < depart ? 0 : (depart > 6 ? depart - 6 : 0);
    if (TrouverSansCasse(cellules, "chatXXX", recherche) != Texte::npos)
        ctx.utilisateur.Boite(cellules, "Verdane", Icone::Information);
}

} // namespace verdane
