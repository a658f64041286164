#include "tables/BibliothequeTableaux.h"

#include "shell/etat/Contexte.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <cstring>
#include <optional>

namespace verdane {

namespace {

constexpr std::string_view kDebutMarque = "#mrl(";
constexpr std::string_view kFinMarque = ")#";

// The next line of `reste` without its end (CR LF, LF or CR); `reste` goes on behind it.
std::string_view LireLigne(std::string_view& reste) {
    const char* debut = reste.data();
    const auto* lf = static_cast<const char*>(std::memchr(debut, '\n', reste.size()));
    const std::size_t avantLf = lf == nullptr ? reste.size() : static_cast<std::size_t>(lf - debut);
    const auto* cr = static_cast<const char*>(std::memchr(debut, '\r', avantLf));
    const std::size_t fin = cr == nullptr ? avantLf : static_cast<std::size_t>(cr - debut);
    const std::string_view ligne = reste.substr(0, fin);
    if (fin == reste.size()) {
        reste = {};
    } else {
        const bool crlf = reste[fin] == '\r' && fin + 1 < reste.size() && reste[fin + 1] == '\n';
        reste.remove_prefix(fin + (crlf ? 2 : 1));
    }
    return ligne;
}

// The prefix and head of a code, which end at its first "(", read into `tableau`.
void LireTete(std::string_view code, TableauModele& tableau) {
    const std::size_t parenthese = code.find('(');
    Texte tete(code.substr(0, parenthese == std::string_view::npos ? parenthese : parenthese + 1));
    LirePrefixeTableau(tete, tableau);
    LireEnteteTableau(tete, tableau);
}

Texte Crochet(std::string_view& reste) {
    const auto dedans = PrendreCrochet(reste);
    return dedans ? Texte(*dedans) : Texte("erreur");
}

// The names of an entry's "[" line.
void LireNoms(std::string_view entete, TableauModele& tableau) {
    tableau.nom = Crochet(entete);
    tableau.dossier = Crochet(entete);
    tableau.sousDossier = Crochet(entete);
    if (Rogner(tableau.dossier).empty()) tableau.dossier = "Divers";
    if (tableau.sousDossier == "erreur") tableau.sousDossier.clear();
}

// The code of a mark line, without its blanks and marks; nothing if it is no mark. `debut`
// becomes the code's place in the line.
std::optional<std::string_view> CodeDeMarque(std::string_view ligne, std::size_t& debut) {
    const std::size_t premier = ligne.find_first_not_of(" \t");
    if (premier == std::string_view::npos) return std::nullopt;
    const std::string_view marque =
        ligne.substr(premier, ligne.find_last_not_of(" \t") + 1 - premier);
    if (marque.size() < kDebutMarque.size() + kFinMarque.size() ||
        !marque.starts_with(kDebutMarque) || !marque.ends_with(kFinMarque))
        return std::nullopt;
    debut = premier + kDebutMarque.size();
    return marque.substr(kDebutMarque.size(),
                         marque.size() - kDebutMarque.size() - kFinMarque.size());
}

// The model its source holds: names, prefix and head, and the lines when `lignes`.
TableauModele LireSource(const SourceTableau& source, bool lignes) {
    TableauModele tableau;
    std::string_view entree = source.entree;
    LireNoms(LireLigne(entree), tableau);
    if (!lignes) {
        LireTete(source.Code(), tableau);
        return tableau;
    }
    Texte code(source.Code());
    LirePrefixeTableau(code, tableau);
    LireEnteteTableau(code, tableau);
    LireLignesTableau(code, tableau);
    return tableau;
}

bool FinitParFinDeLigne(const Texte& texte) {
    return !texte.empty() && (texte.back() == '\n' || texte.back() == '\r');
}

} // namespace

std::vector<TableauModele> LireTexteTableaux(std::string_view contenu, bool detail) {
    std::vector<TableauModele> tableaux;
    while (!contenu.empty()) {
        const std::string_view avant = contenu;
        const std::string_view entete = LireLigne(contenu);
        if (entete.empty() || entete[0] != '[') continue;
        if (contenu.empty()) break;
        const std::size_t debutLigneCode = static_cast<std::size_t>(contenu.data() - avant.data());
        std::size_t debutCode = 0;
        const auto code = CodeDeMarque(LireLigne(contenu), debutCode);
        if (!code) break;
        // The entry runs up to the next "[" line.
        while (!contenu.empty() && contenu[0] != '[') LireLigne(contenu);
        TableauModele tableau;
        SourceTableau& source = tableau.source;
        source.entree = Texte(avant.substr(0, avant.size() - contenu.size()));
        source.debutCode = debutLigneCode + debutCode;
        source.tailleCode = code->size();
        source.lignesEnAttente = true;
        LireNoms(entete, tableau);
        LireTete(*code, tableau);
        if (detail) LireLignesEnAttente(tableau);
        tableaux.push_back(std::move(tableau));
    }
    return tableaux;
}

void LireLignesEnAttente(TableauModele& tableau) {
    if (!tableau.source.lignesEnAttente) return;
    // The lines are read with the head the entry held, whatever became of it since.
    tableau.lignes = LireSource(tableau.source, true).lignes;
    tableau.source.lignesEnAttente = false;
}

std::size_t CompterEntrees(std::string_view contenu) {
    std::size_t entrees = 0;
    while (!contenu.empty()) {
        if (contenu[0] == '[') ++entrees;
        LireLigne(contenu);
    }
    return entrees;
}

Texte TexteTableaux(const std::vector<TableauModele>& tableaux, const Options& options) {
    Texte texte;
    std::size_t taille = 0;
    for (const TableauModele& tableau : tableaux) taille += tableau.source.entree.size() + 2;
    texte.reserve(taille);
    for (const TableauModele& tableau : tableaux) {
        const SourceTableau& source = tableau.source;
        if (!source.entree.empty() && LireSource(source, !source.lignesEnAttente) == tableau) {
            if (!texte.empty() && !FinitParFinDeLigne(texte)) texte += "\r\n";
            texte += source.entree;
            continue;
        }
        const TableauModele* modele = &tableau;
        TableauModele complet;
        if (source.lignesEnAttente) {
            complet = tableau;
            LireLignesEnAttente(complet);
            modele = &complet;
        }
        // Every line, those still to be defined too: saving loses nothing.
        int ligneIncomplete = 0;
        const Texte code = CodeModele(*modele, options, ligneIncomplete, true);
        if (!texte.empty() && !FinitParFinDeLigne(texte)) texte += "\r\n";
        texte += '[' + tableau.nom + "][" + tableau.dossier + "][" + tableau.sousDossier + "]\r\n";
        texte += Texte(kDebutMarque) + code + Texte(kFinMarque) + "\r\n\r\n";
    }
    return texte;
}

std::size_t ChargerTableaux(Contexte& ctx, std::string_view chemin, bool detail) {
    ctx.etat.tableaux.TableauxCourants.clear();
    const auto contenu = LireFichier(chemin);
    if (!contenu || contenu->empty()) return 0;
    ctx.etat.tableaux.TableauxCourants = LireTexteTableaux(*contenu, detail);
    return CompterEntrees(*contenu);
}

bool EcrireTableaux(Contexte& ctx, std::string_view chemin) {
    return EcrireFichierSur(chemin,
                            TexteTableaux(ctx.etat.tableaux.TableauxCourants, ctx.etat.options));
}

} // namespace verdane
