// The investments-financing table: for each financing plan its investments, subsidies and
// loans side by side, then the totals and the self-financing left.

#include "domain/CadreDomaine.h"
#include "domain/FichiersDomaine.h"
#include "domain/PlansFinancement.h"
#include "domain/TabsImmoEmpr.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace verdane {

namespace {

constexpr const char* kTitreInves = "Tableau des investissements-financements";

bool Garder(Contexte& ctx, const char* phrase) {
    return ctx.utilisateur.Question(
               Texte("\r\n") + phrase + "\r\nSouhaitez-vous l'afficher quand même ?", kTitreInves,
               Boutons::OuiNon, Reponse::Oui, Icone::Attention) == Reponse::Oui;
}

struct Disposition {
    bool subventions;
    bool differes;
    std::vector<int> bords; // right edges of the body columns
};

Disposition Colonnes(bool subventions, bool differes) {
    Disposition d{subventions, differes, {2900, 4050}};
    if (subventions) d.bords.push_back(5200);
    const int m = subventions ? 6300 : 5500;
    for (int b : {m, m + 900, m + 1900}) d.bords.push_back(b);
    if (differes) d.bords.push_back(m + 2900);
    return d;
}

Texte Rangee(const Etat& etat, const Texte& prefixe, const std::vector<int>& bords,
             const std::vector<Texte>& textes, const std::vector<CelluleFixe>& cellules) {
    Texte def = prefixe, corps;
    for (std::size_t i = 0; i < bords.size(); ++i)
        CelluleTexte(etat, def, corps, cellules[i], bords[i], i < textes.size() ? textes[i] : "");
    return def + corps;
}

CelluleFixe Entete(const char* bordure = "1") {
    CelluleFixe c;
    c.taille = 20;
    c.gras = true;
    c.fond = 16;
    c.haut = c.bas = c.gauche = c.droite = bordure;
    return c;
}

std::vector<CelluleFixe> CorpsPlan(const Disposition& d) {
    std::vector<CelluleFixe> cellules(d.bords.size());
    for (std::size_t i = 0; i < cellules.size(); ++i) {
        auto& c = cellules[i];
        c.taille = 20;
        c.gauche = i == 0 ? "2" : "1";
        c.droite = i + 1 == cellules.size() ? "2" : "1";
        c.alignement = i == 0 ? "l" : "r";
    }
    return cellules;
}

} // namespace

Texte TableauInvestissements(Contexte& ctx, int dec, const Texte& prefixe) {
    LireFichiersInvest(ctx);
    const Etat& etat = ctx.etat;
    const auto plans = RassemblerPlans(etat.domaine);

    bool subventions = false, differes = false;
    for (const auto& p : plans) {
        for (const auto* s : p.subventions) subventions = subventions || s->montant != 0;
        for (const auto* e : p.emprunts) differes = differes || e->differe != 0;
    }
    if (!subventions) subventions = Garder(ctx, "La colonne des subventions est vide. ");
    if (!differes) differes = Garder(ctx, "La colonne des différés est vide. ");
    const Disposition d = Colonnes(subventions, differes);

    // Header: three rows.
    const int r = (subventions ? 8200 : 7400) + (differes ? 1000 : 0);
    Texte rtf = Rangee(etat, prefixe, {4050, r}, {"Investissements", "Financements"},
                       {Entete("2"), Entete("2")}) +
                kFinLigne;
    std::vector<int> b2 = {2900, 4050};
    std::vector<Texte> t2 = {"Objet", "Montant"};
    if (subventions) b2.push_back(5200), t2.push_back("Subvent°");
    b2.push_back(subventions ? 8200 : 7400), t2.push_back("Emprunts");
    if (differes) b2.push_back(b2.back() + 1000), t2.push_back("");
    rtf += Rangee(etat, prefixe, b2, t2, std::vector<CelluleFixe>(b2.size(), Entete())) + kFinLigne;
    std::vector<Texte> t3(subventions ? 3 : 2, "");
    for (const char* t : {"Montant", "Taux", "Durée"}) t3.emplace_back(t);
    if (differes) t3.emplace_back("Différé");
    rtf += Rangee(etat, prefixe, d.bords, t3, std::vector<CelluleFixe>(d.bords.size(), Entete())) +
           kFinLigne;

    float totalInv = 0, totalSub = 0, totalEmpr = 0;
    for (const auto& p : plans) {
        const std::size_t nbInv = p.investissements.size();
        const std::size_t lignes = std::max({nbInv, p.subventions.size(), p.emprunts.size()});
        for (std::size_t i = 0; i < lignes; ++i) {
            std::vector<Texte> t;
            auto cellules = CorpsPlan(d);
            t.push_back(i == 0 ? Rogner(p.plan->libelle) : Texte());
            float inv = i < nbInv ? p.investissements[i] : 0.0f;
            if (i < nbInv) totalInv += inv;
            t.push_back(i < nbInv ? TexteNombre(etat, inv, dec) : Texte());
            cellules[1].couleur = CouleurMontant(etat, inv);
            std::size_t k = 2;
            if (subventions) {
                const float s = i < p.subventions.size() ? p.subventions[i]->montant : 0.0f;
                totalSub += s;
                t.push_back(i < p.subventions.size() ? TexteNombre(etat, s, dec) : Texte());
                cellules[k++].couleur = CouleurMontant(etat, s);
            }
            if (i < p.emprunts.size()) {
                const EnrEmprunt& e = *p.emprunts[i];
                totalEmpr += e.montant;
                t.push_back(TexteNombre(etat, e.montant, dec));
                cellules[k].couleur = CouleurMontant(etat, e.montant);
                t.push_back(TexteNombre(etat, e.taux1, 7) + " %");
                t.push_back(TexteDuree(e.duree1 + e.duree2 + e.duree3, true, e.periode));
                if (differes) t.push_back(TexteNombre(etat, e.differe, 7));
            }
            rtf += Rangee(etat, prefixe, d.bords, t, cellules) + kFinLigne;
        }
        auto separateur = CorpsPlan(d);
        for (auto& c : separateur) c.gras = true;
        rtf += Rangee(etat, prefixe, d.bords, {}, separateur) + kFinLigneSerree;
    }

    // Totals.
    std::vector<CelluleFixe> totaux(d.bords.size());
    std::vector<Texte> tt = {"TOTAL", TexteNombre(etat, totalInv, dec)};
    std::vector<float> valeurs = {0, totalInv};
    if (subventions) tt.push_back(TexteNombre(etat, totalSub, dec)), valeurs.push_back(totalSub);
    tt.push_back(TexteNombre(etat, totalEmpr, dec));
    valeurs.push_back(totalEmpr);
    for (std::size_t i = 0; i < totaux.size(); ++i) {
        auto& c = totaux[i];
        c.taille = 20;
        c.haut = "2";
        if (i < tt.size()) {
            c.gras = true;
            c.fond = 16;
            c.bas = c.gauche = c.droite = "2";
            c.alignement = i == 0 ? "c" : "r";
            c.couleur = CouleurMontant(etat, valeurs[i]);
        }
    }
    rtf += Rangee(etat, prefixe, d.bords, tt, totaux) + kFinLigne;

    // Self-financing: what the investments leave once subsidies and loans are taken off.
    const int e = (subventions ? 6600 : 5800) + (differes ? 1000 : 0);
    const float autofinancement = totalInv - totalSub - totalEmpr;
    CelluleFixe vide;
    vide.taille = 20;
    CelluleFixe libelle = Entete("2");
    CelluleFixe valeur = Entete("2");
    valeur.fond = 8;
    valeur.gras = false;
    valeur.alignement = "r";
    valeur.couleur = CouleurMontant(etat, autofinancement);
    rtf += kParagraphe +
           Rangee(etat, prefixe, {3600, e, e + 1600},
                  {"", "Autofinancement", TexteNombre(etat, autofinancement, dec)},
                  {vide, libelle, valeur}) +
           kFinLigne;
    return rtf;
}

} // namespace verdane
