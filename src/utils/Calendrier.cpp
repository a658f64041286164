#include "utils/Calendrier.h"

#include <algorithm>

namespace verdane {

bool Bissextile(int a) {
    return (a % 4 == 0 && a % 100 != 0) || a % 400 == 0;
}

int JoursDuMois(int mois, int annee) {
    static constexpr int kJoursMois[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return mois == 2 && Bissextile(annee) ? 29 : kJoursMois[mois - 1];
}

DateSimple AjouterAnnees(DateSimple d, int annees) {
    d.annee += annees;
    d.jour = std::min(d.jour, JoursDuMois(d.mois, d.annee));
    return d;
}

DateSimple VeilleDe(DateSimple d) {
    if (--d.jour >= 1) return d;
    if (--d.mois < 1) {
        d.mois = 12;
        --d.annee;
    }
    d.jour = JoursDuMois(d.mois, d.annee);
    return d;
}

} // namespace verdane
