#include "engine/CreationDoc.h"

#include "data/ChargerDossier.h"
#include "engine/LectureModele.h"
#include "graphs/ImagesAVenir.h"
#include "links/FinDocument.h"
#include "shell/etat/Annulation.h"
#include "utils/Chaines.h"
#include "utils/EcritureOrdonnee.h"
#include "utils/EcritureSure.h"
#include "utils/GestFontTable.h"
#include "utils/LectureEntiere.h"
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

// The output of a run: written beside the result and put in place once complete. The pictures
// of charts finished on the second thread take their places in it in order.
class Sortie {
public:
    Sortie(std::string_view chemin, bool remplacer)
        : fichier_(chemin, remplacer), ordre_([this](std::string_view t) { fichier_.Ecrire(t); }) {}
    bool Ouverte() const { return fichier_.Ouvert(); }
    void Ecrire(std::string_view t) { ordre_.Ecrire(t); }
    void EcrireLigne(std::string_view t) {
        ordre_.Ecrire(t);
        ordre_.Ecrire(kFinDeLigne);
    }
    // The value of a mark, with the pictures still to come in its place.
    void EcrireValeur(EtatGraphes& g, std::string_view valeur) {
        if (g.aVenir && !g.aVenir->Vide())
            g.aVenir->Ecrire(valeur, ordre_);
        else
            ordre_.Ecrire(valeur);
        ordre_.Ecrire(kFinDeLigne);
    }
    bool Valider() {
        ordre_.Terminer();
        return fichier_.Valider();
    }
    Texte Fermer() {
        ordre_.Terminer();
        return fichier_.Fermer();
    }
    bool NomPris() const { return fichier_.NomPris(); }

private:
    FichierSur fichier_;
    EcritureOrdonnee ordre_;
};

void AvancerJauge(Contexte& ctx) {
    Etat& e = ctx.etat;
    ++e.CodesFaits;
    if (e.NbCodes <= 0) return;
    const int pourcent = std::min(100, 100 * e.CodesFaits / e.NbCodes);
    ctx.utilisateur.PoserJauge(pourcent * kLargeurJauge / 100, std::to_string(pourcent) + " %");
}

// A piece being treated: a view of the model until something must change in it, then a copy
// of its own; and the offset of what is left of it. Searches that found nothing in the rest
// are not made again: the rest only shrinks, so they can't succeed later.
struct Morceau {
    std::string_view vue;
    Texte copie;
    bool estCopie = false;
    std::size_t o = 0;
    bool sansTitre = false;
    bool sansPolices = false;
    bool sansCouleurs = false;
    std::array<bool, 3> sansSignet{};
    // Paragraph ends eaten so far: none lies before `parDes`, and none at all once `sansPar`.
    std::size_t parDes = 0;
    bool sansPar = false;

    std::string_view P() const { return estCopie ? std::string_view(copie) : vue; }
    std::string_view Reste() const { return P().substr(o); }
    Texte& Modifiable() {
        if (!estCopie) {
            copie.assign(vue);
            estCopie = true;
        }
        return copie;
    }
};

// The next piece with `reste` in front of it: still a view of the model when `reste` ends
// where that piece begins, as it does unless the piece was changed.
Morceau AvecReste(std::string_view reste, std::string_view suivant) {
    Morceau m;
    if (reste.empty() || reste.data() + reste.size() == suivant.data()) {
        m.vue =
            reste.empty() ? suivant : std::string_view(reste.data(), reste.size() + suivant.size());
    } else {
        m.copie.reserve(reste.size() + suivant.size());
        m.copie.append(reste).append(suivant);
        m.estCopie = true;
    }
    return m;
}

// The first mark of the rest of a piece, from the marks found when the model was read while
// the piece is a view of it.
std::size_t ProchaineMarque(const ModeleEnMorceaux& lu, const Morceau& m) {
    const std::string_view p = m.P();
    if (m.estCopie || !lu.marquesCompletes) return TrouverSansCasse(p, "#mrl(", m.o);
    const auto base = static_cast<std::size_t>(p.data() - lu.texte->data());
    const auto n = lu.MarqueApres(base + m.o);
    return (n != Texte::npos && n + 5 <= base + p.size()) ? n - base : Texte::npos;
}

// Step of a hidden paragraph: the first "\par" becomes the meaningless word "\p", so the
// paragraph end hidden by a false condition goes away. The character behind it stays: it is
// the word's delimiter, and taking it would glue "\p" to the next word and lose that word.
// The two letters go by moving what stands between the offset and them two places on: the
// cost is that of the hidden paragraph, not of the rest of the piece.
void MangerParagraphe(Morceau& m) {
    if (m.sansPar) return;
    const auto n = m.P().find("\\par", std::max(m.o, m.parDes));
    if (n == Texte::npos) {
        m.sansPar = true;
        return;
    }
    Texte& p = m.Modifiable(); // a copy of the piece, made once
    const auto debut = p.begin() + static_cast<std::ptrdiff_t>(m.o);
    const auto lettres = p.begin() + static_cast<std::ptrdiff_t>(n + 2);
    std::move_backward(debut, lettres, lettres + 2);
    m.o += 2;
    m.parDes = n + 2; // the "\p" left, which may start a new "\par" ("\parar")
}

// The document information group: codes in it aren't interpreted. Returns false when the
// whole rest was written.
bool PasserInformations(Sortie& sortie, Morceau& m) {
    if (m.sansTitre) return true;
    const std::string_view p = m.P();
    const auto titre = p.find("\\title", m.o);
    if (titre == Texte::npos) {
        m.sansTitre = true;
        return true;
    }
    std::string_view mot = "\\author";
    auto n = p.find(mot, titre);
    if (n == Texte::npos) {
        mot = "\\company";
        n = p.find(mot, m.o);
    }
    if (n == Texte::npos) {
        sortie.EcrireLigne(m.Reste());
        return false;
    }
    sortie.Ecrire(p.substr(m.o, n + mot.size() - m.o));
    m.o = n + mot.size();
    return true;
}

void AjouterTablesRtf(Contexte& ctx, Morceau& m) {
    if (!m.sansPolices)
        m.sansPolices =
            m.P().find("{\\fonttbl", m.o) == Texte::npos || !AjouterPolices(m.Modifiable(), m.o);
    if (!m.sansCouleurs && m.P().find("{\\colortbl;", m.o) == Texte::npos) m.sansCouleurs = true;
    if (!m.sansCouleurs) {
        const auto decalage = AjouterCouleurs(m.Modifiable(), m.o);
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
        const auto n = m.P().find(coupe, m.o);
        if (n == Texte::npos)
            m.sansSignet[i] = true;
        else
            m.Modifiable().replace(n, coupe.size(),
                                   Texte("{\\*\\bkmkend ") + kSignets[i] + "}#mrl(");
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
bool Creer(Contexte& ctx, const ModeleEnMorceaux& lu, Sortie& sortie) {
    Etat& e = ctx.etat;
    const auto& morceaux = lu.Morceaux;
    const std::size_t nb = morceaux.size();
    Morceau m;
    for (std::size_t i = 0; i < nb; ++i) {
        if (AnnulationDemandee(ctx.utilisateur)) return false;
        if (i == 0) m.vue = morceaux[0];
        Morceau suivant; // the next piece, with what this one hands on in front of it
        bool reporte = false;
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
            const auto n = ProchaineMarque(lu, m);
            if (n == Texte::npos) {
                const std::string_view reste = m.Reste();
                const std::size_t queue = std::min<std::size_t>(6, reste.size());
                if (!dernier && reste.find('#', reste.size() - queue) != Texte::npos) {
                    // The start of a mark may lie in the last characters: they go on with the
                    // next piece; what stands before them is written now.
                    sortie.Ecrire(reste.substr(0, reste.size() - queue));
                    suivant = AvecReste(reste.substr(reste.size() - queue), morceaux[i + 1]);
                    reporte = true;
                } else {
                    sortie.EcrireLigne(reste);
                }
                break;
            }
            const std::string_view p = m.P();
            sortie.Ecrire(p.substr(m.o, n - m.o));
            m.o = n;
            const auto fin = p.find(")#", n);
            if (fin != Texte::npos) {
                Texte code(p.substr(n, fin + 2 - n));
                {
                    const ImagesDifferees differees(e.graphes, true);
                    e.SuiteVisible = ctx.analyseur->Analyser(ctx, code, false, false);
                }
                AvancerJauge(ctx);
                sortie.EcrireValeur(e.graphes, code);
                m.o = fin + 2;
                if (m.o >= p.size()) break;
                continue;
            }
            if (p.size() - n < kLimiteCodeCreation && !dernier) {
                // A code may span pieces up to that size.
                suivant = AvecReste(m.Reste(), morceaux[i + 1]);
                reporte = true;
                break;
            }
            SignalerBaliseManquante(ctx, m.Reste());
            // The complaint stands in the result, before the text it is about.
            sortie.EcrireLigne(PlainteBaliseManquante() + Texte(m.Reste()));
            break;
        }
        if (dernier) break;
        if (!reporte) suivant.vue = morceaux[i + 1];
        m = std::move(suivant);
    }
    return true;
}

// The main loop of an update. Each value standing between a start marker and its end marker
// is replaced by the value of the code that the end marker keeps; the markers and everything
// around them stay, so the document can be refreshed again. False when the user stopped it.
bool MettreAJour(Contexte& ctx, const ModeleEnMorceaux& lu, Sortie& sortie) {
    Etat& e = ctx.etat;
    const auto& morceaux = lu.Morceaux;
    const std::size_t nb = morceaux.size();
    Morceau m;
    for (std::size_t i = 0; i < nb; ++i) {
        if (AnnulationDemandee(ctx.utilisateur)) return false;
        if (i == 0) m.vue = morceaux[0];
        Morceau suivant;
        bool reporte = false;
        const bool dernier = i + 1 == nb;
        const bool informations = PasserInformations(sortie, m);
        const std::string_view p = m.P();
        for (; informations;) {
            const auto debut = TrouverSansCasse(p, kDebutValeur, m.o);
            if (debut == Texte::npos) {
                sortie.EcrireLigne(m.Reste());
                break;
            }
            const auto valeur = debut + kDebutValeur.size();
            const auto marque = TrouverSansCasse(p, kFinValeur, valeur);
            const auto fin = marque == Texte::npos ? Texte::npos : p.find(")#", marque);
            if (fin == Texte::npos) {
                sortie.Ecrire(p.substr(m.o, debut - m.o));
                m.o = debut;
                if (!dernier && p.size() - debut < kLimiteCodeMiseAJour) {
                    suivant = AvecReste(m.Reste(), morceaux[i + 1]);
                    reporte = true;
                } else {
                    sortie.EcrireLigne(m.Reste());
                }
                break;
            }
            const auto interieur = marque + kFinValeur.size();
            Texte code = "#mrl(" + Texte(p.substr(interieur, fin - interieur)) + ")#";
            ctx.analyseur->Analyser(ctx, code, false, true);
            sortie.Ecrire(p.substr(m.o, valeur - m.o));
            sortie.Ecrire(code);
            sortie.Ecrire(p.substr(marque, fin + 2 - marque));
            ++e.ChampsMaj;
            AvancerJauge(ctx);
            m.o = fin + 2;
        }
        if (dernier) break;
        if (!reporte) suivant.vue = morceaux[i + 1];
        m = std::move(suivant);
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
    e.fichiers.NouveauDocument();
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

    auto contenu = LireFichierEntier(modele);
    if (!contenu || !FichierExiste(modele)) {
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.AfficherMessage({"Le modèle de document est introuvable ou illisible :",
                                         modele, "Création impossible", ""});
        return IssueCreation::ModeleIllisible;
    }
    const ModeleEnMorceaux lu = DecouperModele(std::move(*contenu));
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

    const bool complet = miseAJour ? MettreAJour(ctx, lu, sortie) : Creer(ctx, lu, sortie);
    if (e.graphes.aVenir) e.graphes.aVenir->Oublier();
    if (!complet) {
        // Stopped by the user: the output is dropped unwritten, the document stays as it was.
        if (e.NbCodes > 0) ctx.utilisateur.FermerJauge();
        ctx.utilisateur.Sablier(false);
        ctx.utilisateur.Boite("Traitement en cours annulé.", "Verdane", Icone::Information);
        return IssueCreation::Abandonnee;
    }

    // A result to convert keeps its RTF apart: the result's name only takes the converted one.
    const bool aPart = ConversionAPart(ctx, resultat, miseAJour, sansOuverture);
    const Texte rtf = aPart ? sortie.Fermer() : Texte();
    if (aPart ? rtf.empty() : !sortie.Valider()) {
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
    if (aPart)
        TerminerConversion(ctx, rtf, resultat, remplacer);
    else
        TerminerDocument(ctx, modele, resultat, miseAJour, sansOuverture);
    ctx.utilisateur.Sablier(false);
    return IssueCreation::Faite;
}

} // namespace verdane
