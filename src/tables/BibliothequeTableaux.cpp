#include "tables/BibliothequeTableaux.h"

#include "shell/etat/Contexte.h"
#include "tables/CodeTableau.h"
#include "tables/LectureCode.h"
#include "utils/Chaines.h"
#include "utils/EcritureSure.h"
#include "utils/OutilsFichiers.h"

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

} // namespace

std::vector<TableauModele> LireTexteTableaux(std::string_view contenu, bool detail) {
    std::vector<TableauModele> tableaux;
    while (!contenu.empty()) {
        std::string_view entete = LireLigne(contenu);
        if (entete.empty() || entete[0] != '[') continue;
        TableauModele tableau;
        tableau.nom = Crochet(entete);
        tableau.dossier = Crochet(entete);
        tableau.sousDossier = Crochet(entete);
        if (Rogner(tableau.dossier).empty()) tableau.dossier = "Divers";
        if (tableau.sousDossier == "erreur") tableau.sousDossier.clear();

        if (contenu.empty()) break;
        const Texte marque = RognerTout(LireLigne(contenu));
        if (marque.size() < kDebutMarque.size() + kFinMarque.size() ||
            !marque.starts_with(kDebutMarque) || !marque.ends_with(kFinMarque))
            break;
        Texte code = marque.substr(kDebutMarque.size(),
                                   marque.size() - kDebutMarque.size() - kFinMarque.size());
        LirePrefixeTableau(code, tableau);
        LireEnteteTableau(code, tableau);
        if (detail) LireLignesTableau(code, tableau);
        tableaux.push_back(std::move(tableau));
    }
    return tableaux;
}

Texte TexteTableaux(const std::vector<TableauModele>& tableaux, const Options& options) {
    Texte texte;
    for (const TableauModele& tableau : tableaux) {
        int ligneIncomplete = 0;
        Texte code = CodeModele(tableau, options, ligneIncomplete);
        if (ligneIncomplete != 0) code.clear();
        texte += '[' + tableau.nom + "][" + tableau.dossier + "][" + tableau.sousDossier + "]\r\n";
        texte += Texte(kDebutMarque) + code + Texte(kFinMarque) + "\r\n\r\n";
    }
    return texte;
}

void ChargerTableaux(Contexte& ctx, std::string_view chemin, bool detail) {
    ctx.etat.tableaux.TableauxCourants.clear();
    const auto contenu = LireFichier(chemin);
    if (!contenu || contenu->empty()) return;
    ctx.etat.tableaux.TableauxCourants = LireTexteTableaux(*contenu, detail);
}

bool EcrireTableaux(Contexte& ctx, std::string_view chemin) {
    return EcrireFichierSur(chemin,
                            TexteTableaux(ctx.etat.tableaux.TableauxCourants, ctx.etat.options));
}

} // namespace verdane
