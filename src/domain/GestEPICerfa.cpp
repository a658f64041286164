#include "domain/GestEPICerfa.h"

#include "data/FormatNombre.h"
#include "domain/CadreDomaine.h"
#include "domain/FichiersDomaine.h"
#include "domain/PlansFinancement.h"
#include "domain/RangeeModele.h"
#include "domain/TabsImmoEmpr.h"
#include "utils/Chaines.h"

#include <algorithm>
#include <string>
#include <vector>

namespace verdane {

namespace {

constexpr int kLignesPage = 27;

const std::array<const char*, 16> kPages = {
    "Toutes les pages dans un même document Word",
    "1: Le candidat et le projet, MO, Surface, ... ",
    "2: Charges, produits, marges brutes par activité",
    "3: Assolement, activités animales, autres activités",
    "4: Droits à primes, droits à produire et autres aides",
    "5: Marges brutes unitaires et globales",
    "6: Comptes de résultat, soldes interm. de gestion",
    "7: Comptes de résultat, soldes interm. de gestion",
    "8: Plan de financement de l'exploitation",
    "9: Tableau des emprunts en cours et prévus - J.A.",
    "10: Budget de trésorerie courant",
    "11: Budget de trésorerie exceptionnel",
    "12: Bilans prévisionnels - situations financières",
    "13: Calcul du revenu dispo / UTAF-associé expl.",
    "14: Fiche société : surfaces, capital et résultat",
    "15: Fiche société : comptes associés",
};

// A row of cells, one style for all unless `styles` gives one by cell.
Texte Rangee(const Etat& etat, const Texte& prefixe, const std::vector<int>& bords,
             const std::vector<Texte>& textes, const CelluleFixe& style,
             const std::vector<CelluleFixe>& styles = {}) {
    Texte def = prefixe, corps;
    for (std::size_t i = 0; i < bords.size(); ++i)
        CelluleTexte(etat, def, corps, i < styles.size() ? styles[i] : style, bords[i],
                     i < textes.size() ? textes[i] : "");
    return def + corps;
}

CelluleFixe Entete(int taille = 14) {
    CelluleFixe c;
    c.taille = taille;
    c.gras = true;
    c.fond = 16;
    c.haut = c.bas = c.gauche = c.droite = "1";
    return c;
}

CelluleFixe Corps(const char* alignement = "c") {
    CelluleFixe c;
    c.taille = 14;
    c.gauche = c.droite = "1";
    c.alignement = alignement;
    return c;
}

// The three rows of one padding group: bottom open, closed, top closed.
Texte Bourrage(const Etat& etat, const Texte& prefixe, const std::vector<int>& bords, int groupes) {
    Texte rtf;
    for (int g = 0; g < groupes; ++g) {
        for (int k = 0; k < 3; ++k) {
            CelluleFixe c = Corps();
            c.haut = k == 0 ? "1" : "0";
            c.bas = k == 2 ? "1" : "0";
            rtf += Rangee(etat, prefixe, bords, {}, c) + kFinLigneSerree;
        }
    }
    return rtf;
}

// Value of a record of IMMORES.DON at a year; 0 when missing.
float Immores(const Etat& etat, long long record, int annee) {
    return ValeurDon(etat, FichierDossier(etat, "IMMORES.DON"), record, annee).value_or(0.0f);
}

// The series of the summary rows, by year: records added and taken off.
float Somme(const Etat& etat, const std::vector<long long>& plus,
            const std::vector<long long>& moins, int annee) {
    float v = 0;
    for (long long r : plus) v += Immores(etat, r, annee);
    for (long long r : moins) v -= Immores(etat, r, annee);
    return v;
}

struct SerieResume {
    const char* libelle;
    std::vector<long long> plus;
    std::vector<long long> moins;
};

int DerniereAnnee(const Etat& etat) {
    return std::clamp<int>(etat.nbAnEtude, 0, 13);
}

// The exercice (1 for the first study year) of a date, or 0.
int Exercice(const Etat& etat, std::string_view date) {
    const Texte annee = AnneeDate(date);
    if (annee.size() != 4 || etat.anneeDebut == 0) return 0;
    const long long e = ValEntier(annee) - etat.anneeDebut + 1;
    return e >= 1 && e <= 99 ? static_cast<int>(e) : 0;
}

Texte DureeEmprunt(const EnrEmprunt& e) {
    return TexteDuree(e.duree1 + e.duree2 + e.duree3, true, e.periode);
}

} // namespace

const std::array<const char*, 16>& PagesPDE() {
    return kPages;
}

Texte ModelePDE(int index, bool societe) {
    if (index == 0) return Texte("PDE\\PDECerfa") + (societe ? "soc" : "") + ".vdm";
    if (index < 0 || index > 15) return "";
    return "PDE\\PDE" + std::to_string(index) + ".vdm";
}

Texte NomResultatPDE(int index) {
    if (index == 0) return "PDECerfa";
    return index > 0 && index < 16 ? Texte(kPages[static_cast<std::size_t>(index)]) : Texte();
}

bool SuffixeSocietePDE(Contexte& ctx) {
    if (ctx.etat.enrDossier.typeExploitation == 1) return true;
    return ctx.utilisateur.Question("S'agissant d'une exploitation individuelle, souhaitez-vous "
                                    "quand même afficher les tableaux vides des Fiches Société "
                                    "en pages 14 et 15 ?",
                                    "PDE Cerfa", Boutons::OuiNon, Reponse::Non,
                                    Icone::Question) == Reponse::Oui;
}

int GroupesBourrage(int lignes) {
    return lignes >= kLignesPage ? 0 : (kLignesPage - lignes) / 3;
}

Texte TableauPlansFinancement(Contexte& ctx, int dec, const Texte& prefixe) {
    LireFichiersInvest(ctx);
    const Etat& etat = ctx.etat;
    const std::vector<int> bords = {700,  1200,  2100,  4200,  5500,  6900,  8000,
                                    9000, 10400, 11000, 11800, 12500, 13700, 15000};
    CelluleFixe sansBord;
    Texte rtf = Rangee(etat, prefixe, {15000}, {""}, sansBord) + kFinLigneSerree;
    rtf += Rangee(etat, prefixe, {5500, 15000}, {"Investissements", "Financements"}, Entete(16)) +
           kFinLigneSerree;
    std::vector<CelluleFixe> s1(11, Entete());
    s1[5].taille = 16;
    rtf += Rangee(etat, prefixe,
                  {700, 1200, 2100, 4200, 5500, 10400, 11000, 11800, 12500, 13700, 15000},
                  {"", "", "", "", "", "Type de financement"}, Entete(), s1) +
           kFinLigneSerree;
    rtf += Rangee(etat, prefixe, bords,
                  {"Exercice", "Code bien", "Code destination", "Libellé de l'investissement",
                   "Montant de l'investissement", "Prêts bonifiés - MTS-JA", "Autres prêts",
                   "PVE-PMBE", "Autres aides (PIDIL, Collectivités...)", "Taux", "Durée", "Différé",
                   "Montant total de l'aide (1)", "Montant autofinancement"},
                  Entete()) +
           kFinLigneSerree;

    int lignes = 0;
    std::vector<CelluleFixe> styles(bords.size(), Corps());
    styles[3] = Corps("l");
    for (std::size_t i = 4; i < styles.size(); ++i) styles[i] = Corps("r");
    for (const auto& p : RassemblerPlans(etat.domaine)) {
        const LibellePlan libelle = LireLibellePlan(p.plan->libelle);
        float somme = 0;
        for (std::size_t i = 0; i < p.investissements.size(); ++i) {
            const EnrImmo* immo = i < p.immobilisations.size() ? p.immobilisations[i] : nullptr;
            const float montant = p.investissements[i];
            somme += montant;
            const int ex = immo ? Exercice(etat, immo->dateRealisation) : 0;
            rtf += Rangee(etat, prefixe, bords,
                          {ex > 0 ? std::to_string(ex) : Texte(), libelle.code, "",
                           immo ? Rogner(immo->libelle) : libelle.libelle,
                           TexteNombre(etat, montant, dec)},
                          Corps(), styles) +
                   kFinLigneSerree;
            ++lignes;
        }
        float bonifies = 0, autres = 0, aides = 0;
        for (const auto* e : p.emprunts) (e->bonifie == -1 ? bonifies : autres) += e->montant;
        for (const auto* s : p.subventions) aides += s->montant;
        if (somme != 0) {
            auto gras = styles;
            for (auto& c : gras) c.gras = true;
            rtf += Rangee(etat, prefixe, bords,
                          {"", "", "", " totaux " + libelle.libelle, TexteNombre(etat, somme, dec),
                           TexteNombre(etat, bonifies, dec), TexteNombre(etat, autres, dec), "",
                           TexteNombre(etat, aides, dec), "", "", "", TexteNombre(etat, aides, dec),
                           TexteNombre(etat, somme - bonifies - autres - aides, dec)},
                          Corps(), gras) +
                   kFinLigneSerree;
            ++lignes;
        }
        for (const auto* e : p.emprunts) {
            const bool bonifie = e->bonifie == -1;
            rtf += Rangee(etat, prefixe, bords,
                          {"", "", "", "", "", bonifie ? TexteNombre(etat, e->montant, dec) : "",
                           bonifie ? "" : TexteNombre(etat, e->montant, dec), "", "",
                           TexteNombre(etat, e->taux1, 7) + " %", DureeEmprunt(*e),
                           TexteNombre(etat, e->differe, 7)},
                          Corps(), styles) +
                   kFinLigneSerree;
            ++lignes;
        }
        for (const auto* s : p.subventions) {
            rtf += Rangee(etat, prefixe, bords,
                          {"", "", "", "", "", "", "", "",
                           FormatNombre(s->montant, 7, false, MarquesNombre{",", ""})},
                          Corps(), styles) +
                   kFinLigneSerree;
            ++lignes;
        }
    }
    rtf += Bourrage(etat, prefixe, bords, GroupesBourrage(lignes));

    // Summary by exercice.
    rtf += "\\par\\plain \\par\\plain ";
    std::vector<int> bordsResume = {3400};
    for (int i = 1; i <= 8; ++i) bordsResume.push_back(3400 + 1450 * i);
    std::vector<Texte> titres = {"Financement", "Montant"};
    const Texte pde = FichierDossier(etat, "PDE.DON");
    for (int c = 1; c <= 5; ++c) {
        Texte t = "exercice " + std::to_string(c);
        if (const auto annee = ValeurDon(etat, pde, c, 1); annee && *annee != 0)
            t += " " + FormatNombre(*annee, 0, false, MarquesNombre{",", ""});
        titres.push_back(t);
    }
    titres.emplace_back("au-delà de l'exercice 5");
    titres.emplace_back("au-delà de l'exercice 5 (2)");
    const std::vector<SerieResume> series = {
        {"Total prêts MTS-JA", {122}, {}},
        {"Total autres prêts", {45}, {122}},
        {"Total autres financements", {41}, {}},
        {"Total autofinancement", {64}, {38, 53, 54}},
    };
    auto ligneResume = [&](const SerieResume& s) {
        std::vector<Texte> t = {s.libelle};
        float total = 0, apres = 0;
        std::vector<float> annees;
        for (int a = 1; a <= DerniereAnnee(etat); ++a) {
            const float v = Somme(etat, s.plus, s.moins, a);
            total += v;
            if (a <= 5)
                annees.push_back(v);
            else
                apres += v;
        }
        t.push_back(TexteNombre(etat, total, dec));
        for (int a = 0; a < 5; ++a)
            t.push_back(a < static_cast<int>(annees.size()) ? TexteNombre(etat, annees[a], dec)
                                                            : Texte());
        t.emplace_back("");
        t.push_back(TexteNombre(etat, apres, dec));
        auto st = std::vector<CelluleFixe>(bordsResume.size(), Corps("r"));
        st[0] = Corps("l");
        for (auto& c : st) c.haut = c.bas = "1";
        return Rangee(etat, prefixe, bordsResume, t, Corps(), st) + kFinLigneSerree;
    };
    rtf += Rangee(etat, prefixe, bordsResume, titres, Entete()) + kFinLigneSerree;
    for (const auto& s : series) rtf += ligneResume(s);
    rtf += Rangee(etat, prefixe, {3400}, {""}, sansBord) + kFinLigneSerree;
    titres[0] = "Investissement";
    rtf += Rangee(etat, prefixe, bordsResume, titres, Entete()) + kFinLigneSerree;
    rtf += ligneResume({"Volume total des investissements", {44}, {38, 53, 54}});
    return rtf;
}

Texte TableauFinancements(Contexte& ctx, char variante, int dec, const Texte& prefixe) {
    LireFichiersInvest(ctx);
    const Etat& etat = ctx.etat;
    const bool annuel = variante == 'a';
    std::vector<int> bords = {2400, 3400, 5200, 7200, 7900, 8700, 9400};
    std::vector<Texte> titres = {" libellé des investissements",
                                 "montant",
                                 "type de financement",
                                 "libellé du financement",
                                 "taux",
                                 "durée",
                                 "différé"};
    for (int k = 1; k <= 5; ++k) {
        bords.push_back(9400 + 600 * k);
        titres.push_back(annuel && etat.anneeDebut != 0 ? std::to_string(etat.anneeDebut + k - 1)
                                                        : "exercice " + std::to_string(k));
    }
    Texte rtf = Rangee(etat, prefixe, {3400, 9400, bords.back()},
                       {"INVESTISSEMENTS", "FINANCEMENTS", ""}, Entete(16)) +
                kFinLigneSerree;
    rtf += Rangee(etat, prefixe, bords, titres, Entete()) + kFinLigneSerree;
    std::vector<CelluleFixe> styles(bords.size(), Corps());
    styles[0] = styles[3] = Corps("l");
    styles[1] = Corps("r");
    int lignes = 0;
    for (const auto& p : RassemblerPlans(etat.domaine)) {
        const LibellePlan libelle = LireLibellePlan(p.plan->libelle);
        for (std::size_t i = 0; i < p.investissements.size(); ++i) {
            const EnrImmo* immo = i < p.immobilisations.size() ? p.immobilisations[i] : nullptr;
            std::vector<Texte> t = {immo ? Rogner(immo->libelle) : libelle.libelle,
                                    TexteNombre(etat, p.investissements[i], dec)};
            t.resize(bords.size());
            if (const int ex = immo ? Exercice(etat, immo->dateRealisation) : 0; ex >= 1 && ex <= 5)
                t[6 + static_cast<std::size_t>(ex)] = "X";
            rtf += Rangee(etat, prefixe, bords, t, Corps(), styles) + kFinLigneSerree;
            ++lignes;
        }
        for (const auto* e : p.emprunts) {
            rtf += Rangee(etat, prefixe, bords,
                          {"", "", "Emprunt", Rogner(e->libelle),
                           TexteNombre(etat, e->taux1, 7) + " %", DureeEmprunt(*e),
                           TexteNombre(etat, e->differe, 7)},
                          Corps(), styles) +
                   kFinLigneSerree;
            ++lignes;
        }
        for (const auto* s : p.subventions) {
            rtf += Rangee(etat, prefixe, bords,
                          {"", "", "Subvention", Rogner(s->libelle), "",
                           TexteDuree(s->duree * 12, false, 0), ""},
                          Corps(), styles) +
                   kFinLigneSerree;
            ++lignes;
        }
    }
    if (!annuel) rtf += Bourrage(etat, prefixe, bords, GroupesBourrage(lignes));

    const std::vector<SerieResume> totaux = {
        {"TOTAL INVESTISSEMENTS", {44}, {38, 53, 54}},
        {annuel ? "TOTAL PRETS" : "TOTAL PRETS MTS-JA", {annuel ? 45LL : 122LL}, {}},
        {"TOTAL PSM - PSE", {}, {}},
        {"TOTAL SUBVENTIONS", {41}, {}},
        {"TOTAL AUTRES PRETS", {45}, {122}},
        {"TOTAL AUTOFINANCEMENT", {64}, {38, 53, 54}},
    };
    rtf += "\\par\\plain ";
    for (const auto& s : totaux) {
        float v = 0;
        for (int a = 1; a <= DerniereAnnee(etat); ++a) v += Somme(etat, s.plus, s.moins, a);
        CelluleFixe l = Entete();
        l.alignement = "l";
        CelluleFixe c = Corps("r");
        c.haut = c.bas = "1";
        c.couleur = CouleurMontant(etat, v);
        rtf +=
            Rangee(etat, prefixe, {2400, 4000}, {s.libelle, TexteNombre(etat, v, dec)}, c, {l, c}) +
            kFinLigne;
    }
    return rtf;
}

Texte TableauEcheancier(Contexte& ctx, bool jeuneAgriculteur, int dec, const Texte& prefixe) {
    LireFichierInvest(ctx, 'e');
    const Etat& etat = ctx.etat;
    std::vector<const EnrEmprunt*> emprunts;
    for (const auto& e : etat.domaine.emprunts) {
        const bool garde = jeuneAgriculteur ? (e.nouvelle == 2 || e.bonifie == -1)
                                            : (e.nouvelle == 0 || e.nouvelle == 1);
        if (garde) emprunts.push_back(&e);
    }
    const std::vector<int> bords = {1700, 2550, 3050, 3400, 4000, 4550, 5750, 6950, 8150, 9350};
    const int fin = std::min<int>(DerniereAnnee(etat), static_cast<int>(EnrEmprunt::kNbAnnees) - 1);
    Texte rtf;
    for (int a = 1; a <= std::max(fin, 1); ++a) {
        if (a > 1) rtf += "\\par\\plain ";
        std::vector<CelluleFixe> s1(4, Entete());
        s1[0].taille = 18;
        rtf += Rangee(etat, prefixe, {4550, 5750, 8150, 9350},
                      {" caractéristiques", "capital restant", "remboursement", "capital restant"},
                      Entete(), s1) +
               kFinLigneSerree;
        const Texte annee =
            etat.anneeDebut != 0 ? std::to_string(etat.anneeDebut + a - 1) : std::to_string(a);
        rtf += Rangee(etat, prefixe, {4550, 5750, 8150, 9350},
                      {"", "dû en début", "exercice " + annee, "dû en fin"}, Entete()) +
               kFinLigneSerree;
        rtf += Rangee(etat, prefixe, bords,
                      {" objet", " montant", "durée", "diff", " taux", "année", "de prévision",
                       "annuité", "intérêts", "de prévision"},
                      Entete()) +
               kFinLigneSerree;
        std::vector<float> totaux(5, 0.0f);
        const auto i = static_cast<std::size_t>(a);
        for (const auto* e : emprunts) {
            const std::vector<float> v = {e->montant, e->capitalRestant[i - 1], e->annuite[i],
                                          e->interets[i], e->capitalRestant[i]};
            for (std::size_t k = 0; k < v.size(); ++k) totaux[k] += v[k];
            std::vector<CelluleFixe> st(bords.size(), Corps("r"));
            st[0] = Corps("l");
            for (std::size_t k : {1u, 6u, 7u, 8u, 9u})
                st[k].couleur = CouleurMontant(etat, v[k == 1 ? 0 : k - 5]);
            rtf += Rangee(etat, prefixe, bords,
                          {Rogner(e->libelle), TexteNombre(etat, e->montant, dec), DureeEmprunt(*e),
                           TexteNombre(etat, e->differe, 7), TexteNombre(etat, e->taux1, 7) + " %",
                           AnneeDate(e->dateRealisation) + "  ", TexteNombre(etat, v[1], dec),
                           TexteNombre(etat, v[2], dec), TexteNombre(etat, v[3], dec),
                           TexteNombre(etat, v[4], dec)},
                          Corps(), st) +
                   kFinLigneSerree;
        }
        std::vector<CelluleFixe> st(bords.size(), Entete());
        for (std::size_t k = 1; k < st.size(); ++k) st[k].alignement = "r";
        rtf += Rangee(etat, prefixe, bords,
                      {"TOTAL GENERAL", TexteNombre(etat, totaux[0], dec), "", "", "", "",
                       TexteNombre(etat, totaux[1], dec), TexteNombre(etat, totaux[2], dec),
                       TexteNombre(etat, totaux[3], dec), TexteNombre(etat, totaux[4], dec)},
                      Entete(), st) +
               kFinLigne;
    }
    return rtf;
}

Texte TableauInve1(Contexte& ctx, const Texte& prefixe) {
    LireFichierInvest(ctx, 'i');
    Etat& etat = ctx.etat;
    const TableauModele* tableau = etat.tableaux.Tableau(1);
    if (tableau == nullptr) return "";
    // The line that holds the code gives the cells.
    const LigneModele* modele = nullptr;
    for (const auto& l : tableau->lignes)
        if (l.definition.rfind("imemp:inve1", 0) == 0) modele = &l;
    if (modele == nullptr) return "";
    std::vector<const EnrImmo*> nouvelles;
    for (const auto& e : etat.domaine.immobilisations)
        if (e.nouvelle == 1) nouvelles.push_back(&e);
    auto montantAnnee = [&](const std::vector<const EnrImmo*>& liste, int col) {
        float v = 0;
        for (const auto* e : liste)
            if (Exercice(etat, e->dateRealisation) == col) v += e->montant;
        return v;
    };
    Texte rtf;
    for (std::size_t i = 0; i < nouvelles.size() && i < 5; ++i)
        rtf += RangeeModele(
            etat, *tableau, *modele, prefixe, {Rogner(nouvelles[i]->libelle)},
            [&](int col) { return montantAnnee({nouvelles[i]}, col); }, 0);
    if (nouvelles.size() > 5) {
        const std::vector<const EnrImmo*> autres(nouvelles.begin() + 5, nouvelles.end());
        rtf += RangeeModele(
            etat, *tableau, *modele, prefixe, {"Autres immobilisations"},
            [&](int col) { return montantAnnee(autres, col); }, 0);
    }
    rtf += RangeeModele(
        etat, *tableau, *modele, prefixe, {"Parts sociales emprunts"}, [&](int) { return 0.0f; },
        0);
    return rtf;
}

} // namespace verdane
