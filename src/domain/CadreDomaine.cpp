#include "domain/CadreDomaine.h"

#include "data/FormatNombre.h"
#include "tables/TableauModele.h"
#include "utils/Chaines.h"

#include <cmath>
#include <string>

namespace verdane {

namespace {

constexpr int kPoliceTableau = 5006;

void Bordure(Texte& def, const Texte& valeur, const char* cote) {
    if (valeur == "1")
        def += std::string(" \\clbrdr") + cote + "\\brdrs";
    else if (valeur == "2")
        def += std::string(" \\clbrdr") + cote + "\\brdrdb";
}

Texte Entier(long long n) {
    return std::to_string(n);
}

bool EstDate(std::string_view d) {
    const Texte t = Rogner(d);
    if (t.size() != 10 || t[2] != '/' || t[5] != '/') return false;
    for (std::size_t i : {0u, 1u, 3u, 4u, 6u, 7u, 8u, 9u})
        if (t[i] < '0' || t[i] > '9') return false;
    return true;
}

} // namespace

void AjouterCelluleFixe(const Etat& etat, Texte& definition, Texte& corps, CelluleFixe& c,
                        int bordDroit) {
    if (ValEntier(c.police) < 5000) c.police = Entier(kPoliceTableau);
    Bordure(definition, c.haut, "t");
    Bordure(definition, c.bas, "b");
    Bordure(definition, c.gauche, "l");
    Bordure(definition, c.droite, "r");
    definition += "\\clvertalc\\clcbpat" + Entier(c.fond + etat.decalageCouleurs) + "\\cellx" +
                  Entier(bordDroit);
    corps += "\\q" + c.alignement + "\\intbl\\clvertalb{\\fs" + Entier(c.taille) + "\\f" +
             c.police + "\\cf" + Entier(c.couleur + etat.decalageCouleurs);
    if (c.gras) corps += "\\b";
    if (c.italique) corps += "\\i";
    if (c.souligne) corps += "\\ul";
    if (c.barre) corps += "\\strike";
    if (c.ombre) corps += "\\shad";
}

void CelluleTexte(const Etat& etat, Texte& definition, Texte& corps, CelluleFixe cellule,
                  int bordDroit, std::string_view texte) {
    AjouterCelluleFixe(etat, definition, corps, cellule, bordDroit);
    corps += " " + Texte(texte) + "}\\cell";
}

Texte TexteNombre(const Etat& etat, float valeur, int decimales, bool videSiZero) {
    if (!std::isfinite(valeur)) valeur = 0;
    return FormatNombre(valeur, static_cast<std::int16_t>(decimales), videSiZero, etat.marques);
}

bool NegatifsEnRouge(const Etat& etat) {
    return !etat.tableaux.TableauxCourants.empty() && etat.tableaux.TableauxCourants[0].rouge == 1;
}

int CouleurMontant(const Etat& etat, float valeur) {
    return valeur < 0 && NegatifsEnRouge(etat) ? 6 : 1;
}

Texte TexteDuree(float valeur, bool enPeriodes, float periode) {
    if (!std::isfinite(valeur) || std::fabs(valeur) > 1e9f) valeur = 0;
    if (enPeriodes) {
        if (valeur == 0) return "";
        const char* unite = " mois";
        const int p =
            std::isfinite(periode) && std::fabs(periode) < 1000 ? static_cast<int>(periode) : 0;
        if (p == 2)
            unite = " bimestre";
        else if (p == 3)
            unite = " trimestre";
        else if (p == 6)
            unite = " semestre";
        else if (p == 12)
            unite = " ans";
        return FormatNombre(valeur, 7, false, MarquesNombre{",", ""}) + unite;
    }
    const long long ans = static_cast<long long>(valeur / 12);
    Texte t;
    if (ans == 1)
        t = "1 an";
    else if (ans > 1)
        t = Entier(ans) + " ans";
    const long long mois = static_cast<long long>(std::nearbyint(valeur)) % 12;
    if (mois > 0) t += " " + Entier(mois) + " mois";
    return t;
}

Texte FinDeTableau(const Etat& etat, int largeur) {
    const Texte prefixe = "\\trowd\\trgaph5\\trrh50\\trqc";
    Texte def = prefixe, corps;
    CelluleFixe c;
    c.alignement = "l";
    c.taille = 8;
    CelluleTexte(etat, def, corps, c, largeur, " .");
    Texte rtf = def + corps + kFinLigne;
    def = prefixe;
    corps.clear();
    CelluleFixe r = c;
    r.taille = 6;
    r.fond = 16;
    r.haut = r.bas = r.gauche = r.droite = "1";
    CelluleTexte(etat, def, corps, r, largeur, " .");
    if (largeur == 6800) CelluleTexte(etat, def, corps, c, 9500, " .");
    return rtf + def + corps + kFinLigne;
}

Texte DateCourte(std::string_view date) {
    const Texte t = Rogner(date);
    if (!EstDate(t)) return t;
    return t.substr(0, 6) + t.substr(8, 2);
}

Texte AnneeDate(std::string_view date) {
    const Texte t = Rogner(date);
    return EstDate(t) ? t.substr(6, 4) : t;
}

} // namespace verdane
