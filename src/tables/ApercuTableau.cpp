#include "tables/ApercuTableau.h"

#include "utils/Chaines.h"

#include <algorithm>

namespace verdane {

namespace {

// The sample numbers of the preview, one line in two.
constexpr const char* kExemples[] = {"42 000", "16 550"};

bool Gras(const Texte& formatTexte) {
    // The fourth field of a text format is the bold flag.
    std::size_t debut = 0;
    for (int champ = 0; champ < 3; ++champ) {
        debut = formatTexte.find(';', debut);
        if (debut == Texte::npos) return false;
        ++debut;
    }
    return formatTexte.compare(debut, 1, "1") == 0;
}

} // namespace

ApercuTableau Apercu(const TableauModele& t, int nbAnnees, int anneeDebut) {
    ApercuTableau a;
    a.colonnesLibelle = std::max(1, t.ColonnesLibelle());
    if (nbAnnees <= 0) nbAnnees = 5;
    std::vector<Texte> annees;
    switch (t.modeAnnees) {
    case kAnneeDebutEtToutes:
        for (int i = 0; i <= nbAnnees; ++i) annees.push_back(std::to_string(anneeDebut - 1 + i));
        break;
    case kPremiereEtDerniere:
        annees = {std::to_string(anneeDebut), std::to_string(anneeDebut + nbAnnees - 1)};
        break;
    case kSansValeurs:
        break;
    default:
        for (int i = 0; i < nbAnnees; ++i) annees.push_back(std::to_string(anneeDebut + i));
        break;
    }
    if (t.multiDossier == 1) {
        annees.clear();
        for (int d = 1; d <= std::clamp<int>(t.nbDossiers, 1, 9); ++d)
            annees.push_back("Dossier " + std::to_string(d));
    }
    for (int c = 1; c <= a.colonnesLibelle; ++c)
        a.entetes.push_back("Libellé " + std::to_string(c));
    a.entetes.insert(a.entetes.end(), annees.begin(), annees.end());

    int exemple = 0;
    for (const LigneModele& l : t.lignes) {
        RangeeApercu r;
        const Texte d = Minuscules(Rogner(l.definition));
        for (int c = 0; c < a.colonnesLibelle; ++c)
            r.cellules.push_back(Rogner(l.cellules[static_cast<std::size_t>(c)].texte));
        r.gras = Gras(l.cellules[0].formatTexte);
        if (CommencePar(d, "espace") || CommencePar(d, "saut")) {
            r.espace = true;
            if (CommencePar(d, "saut")) r.cellules[0] = "--- saut de page ---";
        } else if (CommencePar(d, "entete")) {
            r.cellules.insert(r.cellules.end(), annees.begin(), annees.end());
        } else if (d.empty() || CommencePar(d, "serie") || CommencePar(d, "total") ||
                   CommencePar(d, "scult") || CommencePar(d, "scltp") || CommencePar(d, "sacti")) {
            for (std::size_t i = 0; i < annees.size(); ++i)
                r.cellules.push_back(d.empty() ? Texte{} : Texte(kExemples[exemple % 2]));
            if (!d.empty()) ++exemple;
        } else {
            // Lines laid by the domain tables: named by their kind.
            r.cellules[0] = "[" + Rogner(l.definition) + "] " + r.cellules[0];
        }
        a.rangees.push_back(std::move(r));
    }
    return a;
}

} // namespace verdane
