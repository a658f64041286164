#include "engine/CreationDoc.h"

#include "data/ChargerDossier.h"
#include "engine/LectureModele.h"
#include "links/FinDocument.h"
#include "shell/etat/Annulation.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/GestFontTable.h"
#include "utils/OutilsFichiers.h"

#include <algorithm>
#include <array>

namespace verdane {
namespace {

constexpr int kLargeurJauge = 2970;
constexpr std::size_t kLimiteCodeCreation = 20000;
constexpr std::size_t kLimiteCodeMiseAJour = 200000;
constexpr std::string_view kFinDeLigne = "\r\n";
constexpr std::string_view kDebutValeur = "{\\v #debdata#}";
constexpr std::string_view kFinValeur = "{\\v #findata=#mrl(";

// The output of a run: written beside the result and put in place once complete.
class Sortie {
public:
    Sortie(std::string_view chemin, bool remplacer) : fichier_(chemin, remplacer) {}
    bool Ouverte() const { return fichier_.Ouvert(); }
    void Ecrire(std::string_view t) { fichier_.Ecrire(t); }
    void EcrireLigne(std::string_view t) {
        fichier_.Ecrire(t);
        fichier_.Ecrire(kFinDeLigne);
    }
    bool Valider() { return fichier_.Valider(); }
    bool NomPris() const { return fichier_.NomPris(); }

private:
    FichierSur fichier_;
};

void AvancerJauge(Contexte& ctx) {
    Etat& e = ctx.etat;
    ++e.CodesFaits;
    if (e.NbCodes <= 0) return;
    const int pourcent = std::min(100, 100 * e.CodesFaits / e.NbCodes);
    ctx.utilisateur.PoserJauge(pourcent * kLargeurJauge / 100, std::to_string(pourcent) + " %");
}

// A piece being treated: its text and the offset of what is left of it. Searches that found
// nothing in the rest are not made again: the rest only shrinks, so they can't succeed later.
struct Morceau {
    Texte p;
    std::size_t o = 0;
    bool sansTitre = false;
    bool sansPolices = false;
    bool sansCouleurs = false;
    std::array<bool, 3> sansSignet{};
    // Paragraph ends eaten so far: none lies before `parDes`, and none at all once `sansPar`.
    std::size_t parDes = 0;
    bool sansPar = false;

    std::string_view Reste() const { return std::string_view(p).substr(o); }
};

// Step of a hidden paragraph: the first "\par" becomes the meaningless word "\p", so the
// paragraph end hidden by a false condition goes away. The character behind it stays: it is
// the word's delimiter, and taking it would glue "\p" to the next word and lose that word.
// The two letters go by moving what stands between the offset and them two places on: the
// cost is that of the hidden paragraph, not of the rest of the piece.
void MangerParagraphe(Morceau& m) {
    if (m.sansPar) return;
    const auto n = m.p.find("\\par", std::max(m.o, m.parDes));
    if (n == Texte::npos) {
        m.sansPar = true;
        return;
    }
    const auto debut = m.p.begin() + static_cast<std::ptrdiff_t>(m.o);
    const auto lettres = m.p.begin() + static_cast<std::ptrdiff_t>(n + 2);
    std::move_backward(debut, lettres, lettres + 2);
    m.o += 2;
    m.parDes = n + 2; // the "\p" left, which may start a new "\par" ("\parar")
}

// The document information group: codes in it aren't interpreted. Returns false when the
// whole rest was written.
bool PasserInformations(Sortie& sortie, Morceau& m) {
    if (m.sansTitre) return true;
    const auto titre = m.p.find("\\title", m.o);
    if (titre == Texte::npos) {
        m.sansTitre = true;
        return true;
    }
    std::string_view mot = "\\author";
    auto n = m.p.find(mot, titre);
    if (n == Texte::npos) {
        mot = "\\company";
        n = m.p.find(mot, m.o);
    }
    if (n == Texte::npos) {
        sortie.EcrireLigne(m.Reste());
        return false;
    }
    sortie.Ecrire(std::string_view(m.p).substr(m.o, n + mot.size() - m.o));
    m.o = n + mot.size();
    return true;
}

void AjouterTablesRtf(Contexte& ctx, Morceau& m) {
    if (!m.sansPolices) m.sansPolices = !AjouterPolices(m.p, m.o);
    if (!m.sansCouleurs) {
        const auto decalage = AjouterCouleurs(m.p, m.o);
        if (decalage)
            ctx.etat.decalageCouleurs = *decalage;
        else
            m.sansCouleurs = true;
    }
}

// A mark split by a bookmark of Word: "#mrl{\*\bkmkend DDE_LINK}(".
void ReparerSignets(Morceau& m) {
    static constexpr std::array<const char*, 3> kSignets = {"DDE_LINK", "DDE_LINK1", "DDE_LINK2"};
    for (std::size_t i = 0; i < kSignets.size(); ++i) {
        if (m.sansSignet[i]) continue;
        const Texte coupe = Texte("#mrl{\\*\\bkmkend ") + kSignets[i] + "}(";
        const auto n = m.p.find(coupe, m.o);
        if (n == Texte::npos)
            m.sansSignet[i] = true;
        else
            m.p.replace(n, coupe.size(), Texte("{\\*\\bkmkend ") + kSignets[i] + "}#mrl(");
    }
}

void SignalerBaliseManquante(Contexte& ctx, std::string_view p) {
    const Texte extrait = p.size() > 65 ? Texte(p.substr(0, 62)) + "..." : Texte(p);
    ctx.utilisateur.AfficherMessage(
        {"Verdane ne trouve pas la balise de fin d'un code à interpréter dans le modèle de "
         "document utilisé pour la création.",
         "Le code concerné est : " + extrait +
             "\r\nModifier le modèle de document en conséquence pour ne plus voir apparaître "
             "cette erreur.",
         "Le modèle de document comporte une erreur !", ""});
}

Texte PlainteBaliseManquante() {
    return "Verdane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la balise de "
           "fin \")#\" : ";
}

// The main loop of a creation. False when the user stopped it.
bool Creer(Contexte& ctx, std::vector<Texte>& morceaux, Sortie& sortie) {
    Etat& e = ctx.etat;
    const std::size_t nb = morceaux.size();
    for (std::size_t i = 0; i < nb; ++i) {
        if (AnnulationDemandee(ctx.utilisateur)) return false;
        Morceau m;
        m.p = std::move(morceaux[i]);
        const bool dernier = i + 1 == nb;
        for (;;) { // a piece is treated again behind each code
            if (!e.SuiteVisible) {
                MangerParagraphe(m);
                e.SuiteVisible = true;
            }
            // The program's fonts and colours join the model's tables before anything of the
            // piece is written, the information group included.
            AjouterTablesRtf(ctx, m);
            if (!PasserInformations(sortie, m)) break;
            ReparerSignets(m);
            const auto n = TrouverSansCasse(m.p, "#mrl(", m.o);
            if (n == Texte::npos) {
                const std::string_view reste = m.Reste();
                const std::size_t queue = std::min<std::size_t>(6, reste.size());
                if (!dernier && reste.find('#', reste.size() - queue) != Texte::npos) {
                    // The start of a mark may lie in the last characters: they go on with the
                    // next piece; what stands before them is written now.
                    sortie.Ecrire(reste.substr(0, reste.size() - queue));
                    morceaux[i + 1].insert(0, reste.substr(reste.size() - queue));
                } else {
                    sortie.EcrireLigne(reste);
                }
                break;
            }
            sortie.Ecrire(std::string_view(m.p).substr(m.o, n - m.o));
            m.o = n;
            const auto fin = TrouverSansCasse(m.p, ")#", n);
            if (fin != Texte::npos) {
                Texte code = m.p.substr(n, fin + 2 - n);
                e.SuiteVisible = ctx.analyseur->Analyser(ctx, code, false, false);
                AvancerJauge(ctx);
                sortie.EcrireLigne(code);
                m.o = fin + 2;
                if (m.o >= m.p.size()) break;
                continue;
            }
            if (m.p.size() - n < kLimiteCodeCreation && !dernier) {
                morceaux[i + 1].insert(0, m.Reste()); // a code may span pieces up to that size
                break;
            }
            SignalerBaliseManquante(ctx, m.Reste());
            // The complaint stands in the result, before the text it is about.
            sortie.EcrireLigne(PlainteBaliseManquante() + Texte(m.Reste()));
            break;
        }
    }
    return true;
}

// The main loop of an update. Each value standing between a start marker and its end marker
// is replaced by the value of the code that the end marker keeps; the markers and everything
// around them stay, so the document can be refreshed again. False when the user stopped it.
bool MettreAJour(Contexte& ctx, std::vector<Texte>& morceaux, Sortie& sortie) {
    Etat& e = ctx.etat;
    const std::size_t nb = morceaux.size();
    for (std::size_t i = 0; i < nb; ++i) {
        if (AnnulationDemandee(ctx.utilisateur)) return false;
        Morceau m;
        m.p = std::move(morceaux[i]);
        const bool dernier = i + 1 == nb;
        if (!PasserInformations(sortie, m)) continue;
        for (;;) {
            const auto debut = TrouverSansCasse(m.p, kDebutValeur, m.o);
            if (debut == Texte::npos) {
                sortie.EcrireLigne(m.Reste());
                break;
            }
            const auto valeur = debut + kDebutValeur.size();
            const auto marque = TrouverSansCasse(m.p, kFinValeur, valeur);
            const auto fin =
                marque == Texte::npos ? Texte::npos : TrouverSansCasse(m.p, ")#", marque);
            if (fin == Texte::npos) {
                sortie.Ecrire(std::string_view(m.p).substr(m.o, debut - m.o));
                m.o = debut;
                if (!dernier && m.p.size() - debut < kLimiteCodeMiseAJour)
                    morceaux[i + 1].insert(0, m.Reste());
                else
                    sortie.EcrireLigne(m.Reste());
                break;
            }
            const auto interieur = marque + kFinValeur.size();
            Texte code = "#mrl(" + m.p.substr(interieur, fin - interieur) + ")#";
            ctx.analyseur->Analyser(ctx, code, false, true);
            sortie.Ecrire(std::string_view(m.p).substr(m.o, valeur - m.o));
            sortie.Ecrire(code);
            sortie.Ecrire(std::string_view(m.p).substr(marque, fin + 2 - marque));
            ++e.ChampsMaj;
            AvancerJauge(ctx);
            m.o = fin + 2;
        }
    }
    return true;
}

void FinirJauge(Contexte& ctx, bool miseAJour) {
    const Etat& e = ctx.etat;
    if (e.NbCodes <= 0) return;
    ctx.utilisateur.PoserJauge(kLargeurJauge, miseAJour ? "        " + std::to_string(e.ChampsMaj) +
                                                              " champs mis à jour !"
                                                        : "            Création terminée !");
    ctx.utilisateur.FermerJauge();
}

} // namespace

Texte NomJauge(const Texte& nom) {
    if (nom.size() <= 32) return nom;
    return nom.substr(0, 3) + "..." + nom.substr(nom.size() - 30);
}

IssueCreation CreerDocument(Contexte& ctx, const Texte& modeleDemande, const Texte& resultat,
                            bool miseAJour, bool sansOuverture, bool demanderRemplacement) {
    Etat& e = ctx.etat;
    ChargerDossier(ctx);
    if (e.anneesPDE) e.nbAnEtude = static_cast<std::int16_t>(*e.anneesPDE == 0 ? 5 : *e.anneesPDE);
    e.NumPageCourant = 0;
    e.NbCouleursDoc = 0;
    e.ModeMemeDossier = 0;
    e.decalageCouleurs = 0;
    e.tableaux.nbDossiersChoisis = 0;
    e.domaine.compteurTableaux = 0;
    e.NbCodes = 0;
    e.CodesFaits = 0;
    e.ChampsMaj = 0;
    e.SuiteVisible = true;
    if (Rogner(e.RepDossier[1]).empty()) e.RepDossier[1] = e.RepDossier[0];
    if (Rogner(e.NomDossier[1]).empty()) e.NomDossier[1] = e.NomDossier[0];

    Texte modele = Rogner(modeleDemande);
    if (modele.empty()) return IssueCreation::Abandonnee;
    // Without leave to replace, the result is put in place only if its name is still free.
    bool remplacer = miseAJour || !demanderRemplacement;
    if (!miseAJour && demanderRemplacement && FichierExiste(resultat)) {
        const auto r = ctx.utilisateur.Question(
            "Le document demandé existe déjà !\r\nVoulez-vous le remplacer ?", "Verdane",
            Boutons::OuiNon, Reponse::Non, Icone::Attention);
        if (r != Reponse::Oui) return IssueCreation::Abandonnee;
        remplacer = true;
    }
    ctx.utilisateur.Sablier(true);
    if (miseAJour) {
        // A Word document is refreshed through an RTF copy made by the word processor.
        const auto lu = PreparerMiseAJour(ctx, modele);
        if (!lu) {
            ctx.utilisateur.Sablier(false);
            return IssueCreation::Abandonnee;
        }
        modele = *lu;
    }

    const auto contenu = LireFichier(modele);
    if (!contenu || !FichierExiste(modele)) {
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.AfficherMessage({"Le modèle de document est introuvable ou illisible :",
                                         modele, "Création impossible", ""});
        return IssueCreation::ModeleIllisible;
    }
    ModeleEnMorceaux lu = DecouperModele(*contenu);
    e.NbCodes = lu.NbCodes;

    const Texte cible = miseAJour ? modele : resultat;
    Sortie sortie(cible, remplacer);
    if (!sortie.Ouverte()) {
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.AfficherMessage(
            {"Le document résultat ne peut pas être écrit :", cible,
             DossierExiste(cible)
                 ? "Un répertoire porte ce nom."
                 : "Vérifiez que le répertoire existe et que vous pouvez y écrire.",
             ""});
        return IssueCreation::ResultatImpossible;
    }
    if (e.NbCodes > 0) ctx.utilisateur.OuvrirJauge(miseAJour ? NomJauge(NomFichier(resultat)) : "");

    const bool complet =
        miseAJour ? MettreAJour(ctx, lu.Morceaux, sortie) : Creer(ctx, lu.Morceaux, sortie);
    if (!complet) {
        // Stopped by the user: the output is dropped unwritten, the document stays as it was.
        if (e.NbCodes > 0) ctx.utilisateur.FermerJauge();
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.Boite("Traitement en cours annulé.", "Verdane", Icone::Information);
        return IssueCreation::Abandonnee;
    }

    if (!sortie.Valider()) {
        if (e.NbCodes > 0) ctx.utilisateur.FermerJauge();
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.AfficherMessage(
            {"Le document résultat ne peut pas être écrit :", cible,
             sortie.NomPris() ? "Un autre document a pris ce nom pendant la création."
                              : "L'écriture du document a échoué.",
             ""});
        return IssueCreation::ResultatImpossible;
    }
    FinirJauge(ctx, miseAJour);
    TerminerDocument(ctx, modele, resultat, miseAJour, sansOuverture);
    ctx.utilisateur.Sablier(false);
    return IssueCreation::Faite;
}

} // namespace verdane
