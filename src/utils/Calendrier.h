#pragma once
// The calendar arithmetic that dates of codes and table headers share.

namespace verdane {

struct DateSimple {
    int jour = 1;
    int mois = 1;
    int annee = 1;
};

bool Bissextile(int annee);
// Days of month 1 to 12 of a year.
int JoursDuMois(int mois, int annee);
// `d` moved by whole years; 29 February becomes 28 in a year without one.
DateSimple AjouterAnnees(DateSimple d, int annees);
// The day before `d`.
DateSimple VeilleDe(DateSimple d);

} // namespace verdane
