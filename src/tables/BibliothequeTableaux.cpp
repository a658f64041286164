#include "tables/BibliothequeTableaux.h"

#include "shell/etat/Contexte.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

#include <optional>

namespace verdane {

namespace {

constexpr std::string_view kDebutMarque = "#mrl(";
constexpr std::string_view kFinMarque = ")#";

// The next line of `reste` without its end (CR LF, LF or CR); `reste` goes on behind it.
std::string_view LireLigne(std::string_view& reste) {
    const std::size_t fin = reste.find_first_of("\r\n");
    const std::string_view ligne = reste.substr(0, fin);
    if (fin == std::string_view::npos) {
        reste = {};
    } else {
        const bool crlf = reste[fin] == '\r' && fin + 1 < reste.size() && reste[fin + 1] == '\n';
        reste.remove_prefix(fin + (crlf ? 2 : 1));
    }
    return ligne;
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
    Texte code(source.Code());
    LirePrefixeTableau(code, tableau);
    LireEnteteTableau(code, tableau);
    if (lignes) LireLignesTableau(code, tableau);
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
        Texte texteCode(*code);
        LirePrefixeTableau(texteCode, tableau);
        LireEnteteTableau(texteCode, tableau);
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
        int ligneIncomplete = 0;
        Texte code = CodeModele(*modele, options, ligneIncomplete);
        if (ligneIncomplete != 0) code.clear();
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
